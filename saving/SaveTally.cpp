// Counting, and the sentences that say the counts.
#include "saving/SaveTally.h"

#include <QObject>
#include <algorithm>

#include "results/SizeForPeople.h"

namespace vantor {

namespace {

// A line for each count that is not 0.
struct Counts {
    QStringList lines;

    void add(std::uint64_t count, const char* text) {
        if (count != 0) {
            lines << QObject::tr(text, nullptr, pluralOf(count)).arg(numberForPeople(count));
        }
    }
};

}  // namespace

void SaveTally::add(const QString& name, const SaveOutcome& outcome) {
    if (outcome.leftOut != LeftOut::No) {
        ++(outcome.leftOut == LeftOut::TooSmall  ? tooSmall
           : outcome.leftOut == LeftOut::Unsound ? unsound
           : outcome.leftOut == LeftOut::Part    ? parts
                                                 : stillThere);
        return;
    }
    if (!outcome.saved) {
        if (failed++ < static_cast<std::uint64_t>(kFailuresTold)) {
            failures.append(QStringLiteral("%1: %2").arg(name, outcome.error));
        }
        return;
    }
    if (outcome.duplicate) {
        ++duplicates;
        return;
    }
    ++saved;
    named += outcome.original ? 1 : 0;
    bytes += outcome.bytes;
    withUnreadableSectors += outcome.sectorsUnreadable != 0 ? 1 : 0;
    if (outcome.mend) {
        ++mended;
        return;
    }
    switch (outcome.verdict) {
        case Verdict::Complete:
            ++(outcome.contentChecked() ? complete : unchecked);
            break;
        case Verdict::CutOff:
            ++cutOff;
            break;
        case Verdict::Damaged:
            ++damaged;
            break;
        case Verdict::Unknown:
            ++unknownLength;
            break;
    }
}

void SaveTally::noteChecked(const SaveOutcome& outcome) {
    if (outcome.saved && !outcome.duplicate && !outcome.mend && outcome.contentChecked()) {
        --unchecked;
        ++complete;
    }
}

void SaveTally::loseSaved(const QString& why) {
    const std::uint64_t lost = saved + duplicates;
    if (lost == 0) {
        return;
    }
    m_lost += lost;
    failed += lost;
    failures.prepend(why);
    saved = bytes = complete = unchecked = cutOff = damaged = unknownLength = mended = withUnreadableSectors =
        duplicates = named = 0;
}

std::uint64_t SaveTally::failedBeside(qsizetype sentences) const {
    const auto said = static_cast<std::uint64_t>(std::min(sentences, failures.size()));
    return failed - (m_lost == 0 ? said : m_lost + (std::max<std::uint64_t>(said, 1) - 1));
}

QStringList SaveTally::bySoundness() const {
    Counts kinds;
    kinds.add(complete, QT_TRANSLATE_N_NOOP("QObject", "%1 complete"));
    kinds.add(unchecked, QT_TRANSLATE_N_NOOP("QObject", "%1 ending where they say (content not checked)"));
    kinds.add(cutOff, QT_TRANSLATE_N_NOOP("QObject", "%1 cut off"));
    kinds.add(damaged, QT_TRANSLATE_N_NOOP("QObject", "%1 damaged"));
    kinds.add(unknownLength, QT_TRANSLATE_N_NOOP("QObject", "%1 of unknown length"));
    kinds.add(mended, QT_TRANSLATE_N_NOOP("QObject", "%1 put together or repaired (please look)"));
    return kinds.lines;
}

QStringList SaveTally::lines(const QString& destination) const {
    Counts counts;
    counts.lines << (saved == 0 ? QObject::tr("%1 saved in %2").arg(numberForPeople(saved), destination)
                                : QObject::tr("%1 saved in %2 (%3): %4", nullptr, pluralOf(saved))
                                      .arg(numberForPeople(saved), destination, sizeForPeople(bytes),
                                           bySoundness().join(QStringLiteral(", "))));
    counts.add(named, QT_TRANSLATE_N_NOOP("QObject", "%1 under the names that the card still tells"));
    counts.add(withUnreadableSectors,
               QT_TRANSLATE_N_NOOP("QObject", "%1 of them have sectors that could not be read"));
    counts.add(duplicates,
               QT_TRANSLATE_N_NOOP("QObject", "%1 not written again: the same bytes are saved already"));
    counts.add(tooSmall, QT_TRANSLATE_N_NOOP("QObject", "%1 left out: smaller than asked for"));
    counts.add(unsound, QT_TRANSLATE_N_NOOP("QObject", "%1 left out: no files of their type"));
    counts.add(stillThere, QT_TRANSLATE_N_NOOP("QObject", "%1 left out: still there as files on the card"));
    counts.add(parts, QT_TRANSLATE_N_NOOP("QObject", "%1 left out: parts of files that are saved whole"));
    return counts.lines;
}

}  // namespace vantor
