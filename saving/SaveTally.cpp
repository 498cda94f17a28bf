// Counting, and the sentences that say the counts.
#include "saving/SaveTally.h"

#include "results/SizeForPeople.h"
#include "results/Soundness.h"

namespace vantor {

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
            ++(outcome.checked ? complete : unchecked);
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

QStringList SaveTally::bySoundness() const {
    const std::pair<std::uint64_t, QString> counts[] = {
        {complete, soundnessWords(Verdict::Complete, true)},
        {unchecked, QObject::tr("ending where they say (content not checked)")},
        {cutOff, soundnessWords(Verdict::CutOff, false)},
        {damaged, soundnessWords(Verdict::Damaged, false)},
        {unknownLength, soundnessWords(Verdict::Unknown, false)},
        {mended, QObject::tr("put together or repaired (please look)")}};
    QStringList kinds;
    for (const auto& [count, words] : counts) {
        if (count != 0) {
            kinds.append(QStringLiteral("%1 %2").arg(numberForPeople(count), words));
        }
    }
    return kinds;
}

QStringList SaveTally::lines(const QString& destination) const {
    QStringList lines;
    QString first = QStringLiteral("%1 saved in %2").arg(numberForPeople(saved), destination);
    if (saved != 0) {
        first +=
            QStringLiteral(" (%1): %2").arg(sizeForPeople(bytes), bySoundness().join(QStringLiteral(", ")));
    }
    lines.append(first);
    const auto line = [&lines](std::uint64_t count, const char* text) {
        if (count != 0) {
            lines.append(QStringLiteral("%1 %2").arg(numberForPeople(count), QLatin1String(text)));
        }
    };
    line(named, "under the names that the card still tells");
    line(withUnreadableSectors, "of them have sectors that could not be read");
    line(duplicates, "not written again: the same bytes are saved already");
    line(tooSmall, "left out: smaller than asked for");
    line(unsound, "left out: no files of their type");
    line(stillThere, "left out: still there as files on the card");
    line(parts, "left out: parts of files that are saved whole");
    return lines;
}

}  // namespace vantor
