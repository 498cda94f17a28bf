// The words of the facts.
#include "window/preview/ViewerFacts.h"

#include <QDateTime>
#include <QObject>

#include "media/SectorReader.h"
#include "results/CardIndex.h"
#include "results/Mend.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"
#include "window/preview/MovieControls.h"

namespace vantor {

namespace {

QString dateOf(const ItemFacts& known) {
    if (known.soundness && known.soundness->taken) {
        const CivilTime& taken = *known.soundness->taken;
        const auto two = [](int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
        return QStringLiteral("%1-%2-%3 %4:%5")
            .arg(taken.year, 4, 10, QLatin1Char('0'))
            .arg(two(taken.month), two(taken.day), two(taken.hour), two(taken.minute));
    }
    if (known.original && known.original->modified) {
        return QDateTime::fromSecsSinceEpoch(*known.original->modified)
            .toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    }
    return {};
}

QString sizeOf(const ItemFacts& known, const ViewedFacts& viewed) {
    if (viewed.bytes) {
        const QString size = sizeForPeople(*viewed.bytes);
        return viewed.lengthIsKnown ? size : QObject::tr("more than %1").arg(size);
    }
    return known.soundness ? sizeForPeople(known.soundness->bytes) : QString();
}

QString sectors(const SectorRun& run) {
    return run.end - run.first == 1 ? QObject::tr("sector %1").arg(numberForPeople(run.first))
                                    : QObject::tr("sectors %1 to %2")
                                          .arg(numberForPeople(run.first), numberForPeople(run.end - 1));
}

// Where the file lies as far as that is known, else what was found; what the search published where nothing
// more is known.
QString placeOf(const MyImageObject& item, const ItemFacts& known) {
    const auto& runs = item.carved().runs;
    if (!runs.empty()) {
        const std::uint64_t first = runs.front().first;
        if (known.soundness && known.soundness->pieces > 1) {
            return QObject::tr("from sector %1, in pieces").arg(numberForPeople(first));
        }
        const std::uint64_t bytes = known.soundness ? known.soundness->bytes : 0;
        const std::uint64_t length = (bytes + kSectorBytes - 1) / kSectorBytes;
        return sectors({first, length != 0 ? first + length : runs.back().end});
    }
    const std::uint64_t first = item.File_Start_Sector(), end = item.File_End_Sector();
    return end > first ? sectors({first, end}) : QString();
}

// A gap between two runs is a place that was refused; what else could not be read is known without a number.
QString unreadableOf(const MyImageObject& item, const ItemFacts& known) {
    std::uint64_t refused = 0;
    const auto& runs = item.carved().runs;
    for (std::size_t next = 1; next < runs.size(); ++next) {
        if (runs[next].first > runs[next - 1].end) {
            refused += runs[next].first - runs[next - 1].end;
        }
    }
    if (refused > 0) {
        return numberForPeople(refused);
    }
    if (known.readFailed || (known.soundness && known.soundness->unreadable)) {
        return QObject::tr("some");
    }
    return known.soundness ? QObject::tr("none") : QString();
}

QString stateOf(const ItemFacts& known) {
    if (!known.soundness) {
        return QObject::tr("not examined yet");
    }
    return known.soundness->notOfItsType ? QObject::tr("no file of its type")
                                         : soundnessWords(known.soundness->verdict, known.soundness->checked);
}

}  // namespace

QList<ViewerFact> viewerFacts(const MyImageObject& item, const ItemFacts& known, const ViewedFacts& viewed) {
    QList<ViewerFact> facts;
    const auto add = [&facts](const QString& name, const QString& value) {
        if (!value.isEmpty()) {
            facts.append({name, value});
        }
    };
    add(QObject::tr("Name"), item.imageTitle());
    add(QObject::tr("Name on the card"), known.original ? originalPath(*known.original) : QString());
    add(QObject::tr("Date"), dateOf(known));
    add(QObject::tr("Size"), sizeOf(known, viewed));
    if (known.soundness && known.soundness->width != 0) {
        add(QObject::tr("Pixels"), QObject::tr("%1 × %2").arg(numberForPeople(known.soundness->width),
                                                              numberForPeople(known.soundness->height)));
    }
    add(QObject::tr("Length"), viewed.durationMs > 0 ? timeText(viewed.durationMs) : QString());
    add(QObject::tr("On the card"), placeOf(item, known));
    add(QObject::tr("Pieces"),
        known.soundness ? numberForPeople(static_cast<std::uint64_t>(known.soundness->pieces)) : QString());
    add(QObject::tr("Unreadable sectors"), unreadableOf(item, known));
    add(QObject::tr("State"), stateOf(known));
    add(QObject::tr("Mended"), known.mend ? describe(*known.mend) : QString());
    add(QObject::tr("Saved"), known.saved ? QObject::tr("yes") : QObject::tr("not yet"));
    return facts;
}

}  // namespace vantor
