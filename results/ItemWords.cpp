// The words, and which of them there is room for.
#include "results/ItemWords.h"

#include <QDateTime>
#include <QObject>
#include <algorithm>

#include "media/SectorReader.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"

namespace vantor {

namespace {

QString sectors(const SectorRun& run) {
    return run.end - run.first == 1 ? QObject::tr("sector %1").arg(numberForPeople(run.first))
                                    : QObject::tr("sectors %1 to %2")
                                          .arg(numberForPeople(run.first), numberForPeople(run.end - 1));
}

}  // namespace

QString dateWords(const ItemFacts& known) {
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

QString pixelWords(const ItemFacts& known) {
    return known.soundness && known.soundness->width != 0
               ? QObject::tr("%1 × %2").arg(numberForPeople(known.soundness->width),
                                            numberForPeople(known.soundness->height))
               : QString();
}

QString lengthWords(const ItemFacts& known, std::int64_t durationMs) {
    if (durationMs <= 0 && known.soundness) {
        durationMs = static_cast<std::int64_t>(known.soundness->durationMs);
    }
    constexpr std::int64_t kSecond = 1000;  // what plays less has no length that could be told
    return durationMs >= kSecond ? timeText(durationMs) : QString();
}

QString extentWords(const ItemFacts& known, std::int64_t durationMs) {
    const QString length = lengthWords(known, durationMs);
    return length.isEmpty() ? pixelWords(known) : length;
}

// What the search published where nothing more is known.
QString placeWords(const MyImageObject& item, const ItemFacts& known) {
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

QString stateWords(const ItemFacts& known) {
    if (!known.soundness) {
        return QObject::tr("not examined yet");
    }
    return known.soundness->notOfItsType ? QObject::tr("no file of its type")
                                         : soundnessWords(known.soundness->verdict, known.soundness->checked);
}

QString timeText(std::int64_t timeMs) {
    const std::int64_t seconds = std::max<std::int64_t>(0, timeMs) / 1000;
    const QString rest = QStringLiteral(":%1").arg(seconds % 60, 2, 10, QLatin1Char('0'));
    const std::int64_t minutes = seconds / 60;
    return minutes < 60
               ? QString::number(minutes) + rest
               : QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0')) + rest;
}

CaptionWords captionWords(const ItemFacts& known, std::int64_t durationMs) {
    constexpr qsizetype kDayLetters = 10;
    const QString day = dateWords(known).left(kDayLetters);
    QString extent = lengthWords(known, durationMs);
    if (extent.isEmpty() && known.soundness) {
        extent = known.soundness->width != 0
                     ? QObject::tr("%1 × %2").arg(known.soundness->width).arg(known.soundness->height)
                     : sizeForPeople(known.soundness->bytes);
    }
    if (day.isEmpty() || extent.isEmpty()) {
        return {day + extent, day + extent};
    }
    return {QObject::tr("%1 · %2").arg(day, extent), day};
}

}  // namespace vantor
