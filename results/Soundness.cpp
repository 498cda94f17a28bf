// Examining with the walkers that saving uses, and the words for the result.
#include "results/Soundness.h"

#include <QObject>
#include <QStringList>
#include <utility>

#include "catalogue/FileKind.h"
#include "decode/ContentTrials.h"
#include "formats/ExifCamera.h"
#include "results/ItemBytes.h"
#include "results/SizeForPeople.h"
#include "results/TrueLength.h"

namespace vantor {

namespace {

QString words(const Soundness& soundness) {
    return soundness.notOfItsType ? QObject::tr("no file of its type")
                                  : soundnessWords(soundness.verdict, soundness.checked);
}

// An item as somebody who watches reads it.
struct WatchedItem {
    WatchedItem(const CarvedRun& carved, SectorReader& medium, ReadWatch& watch, std::uint64_t mostSectors,
                const ItemHints& hints, std::vector<std::uint8_t>& kept)
        : reader(medium, watch, mostSectors),
          source{carved, {}, [this] { return &reader; }, medium.mediumSectors(), false, nullptr, hints},
          found(source, kept) {}

    WatchedReader reader;
    const ItemSource source;
    ItemBytes found;
};

}  // namespace

// Some pictures stand in a movie's boxes.
std::uint64_t playingTimeOf(const QString& type, const Facts& facts) {
    const FileKind kind = kindOfExtension(type);
    return kind == FileKind::Video || kind == FileKind::Sound ? facts.durationMs : 0;
}

std::optional<Soundness> examine(const QString& type, const CarvedRun& carved, SectorReader& medium,
                                 ReadWatch& watch, std::vector<std::uint8_t>& kept, std::uint64_t mostBytes,
                                 const ItemHints& hints) {
    WatchedItem item(carved, medium, watch, mostBytes / kSectorBytes, hints, kept);
    ItemBytes& found = item.found;
    Soundness soundness;
    soundness.unreadable = carved.readFailed;
    soundness.bytes = found.bytes().carvedBytes();
    const ItemTruth& truth = found.measure(type, true);
    const TrueLength& length = truth.length;
    const MediumBytes& bytes = found.bytes();
    if (watch.ended) {
        return std::nullopt;
    }
    if (item.reader.wasEnded()) {
        return soundness;
    }
    const Facts& facts = length.extent.facts;
    soundness.unreadable = soundness.unreadable || bytes.sectorsUnreadable(length.bytes) != 0;
    soundness.verdict = verdictOf(truth);
    soundness.original = truth.file;
    soundness.pieces = truth.assembly ? truth.assembly->runs.size() : 1;
    if (soundness.unreadable && soundness.verdict == Verdict::Complete) {
        soundness.verdict = Verdict::Damaged;
    }
    soundness.followed = soundness.verdict == Verdict::Complete && length.extent.checked;
    soundness.checked = soundness.followed && (!length.extent.framesOnly || (hints.mend && truth.assembly));
    soundness.notOfItsType = !soundness.unreadable && isCertainlyUnsound(type, length.extent);
    soundness.bytes = length.bytes;
    soundness.width = facts.width;
    soundness.height = facts.height;
    soundness.taken = facts.taken;
    soundness.durationMs = playingTimeOf(type, facts);
    // What was followed is in memory; nothing more is read for it.
    SpanSource beginning(bytes.keptFrom(0));
    soundness.camera = QString::fromStdString(cameraOf(beginning));
    return soundness;
}

FileDescriptor contentInMemory(const QString& type, const CarvedRun& carved, SectorReader& medium,
                               ReadWatch& watch, std::vector<std::uint8_t>& kept, std::uint64_t bytes,
                               const ItemHints& hints, const StopRequest& stop) {
    WatchedItem item(carved, medium, watch, kMostExaminedBytes / kSectorBytes, hints, kept);
    if (item.found.measure(type, true).length.bytes != bytes) {
        return {};
    }
    FileDescriptor content = inMemory(item.found.bytes(), bytes, stop);
    return item.found.bytes().sectorsUnreadable(bytes) == 0 ? std::move(content) : FileDescriptor();
}

QString soundnessText(Verdict verdict) {
    switch (verdict) {
        case Verdict::Complete:
            return QStringLiteral("complete");
        case Verdict::CutOff:
            return QStringLiteral("cut off");
        case Verdict::Damaged:
            return QStringLiteral("damaged");
        case Verdict::Unknown:
            break;
    }
    return QStringLiteral("unknown");
}

QString soundnessWords(Verdict verdict, bool checked) {
    switch (verdict) {
        case Verdict::Complete:
            return checked ? QObject::tr("complete") : QObject::tr("ends where it says, content not checked");
        case Verdict::CutOff:
            return QObject::tr("cut off");
        case Verdict::Damaged:
            return QObject::tr("damaged");
        case Verdict::Unknown:
            break;
    }
    return QObject::tr("of unknown length");
}

QString describe(const Soundness& soundness) {
    QStringList parts{words(soundness)};
    if (soundness.pieces > 1) {
        parts << QObject::tr("put together from %1 pieces", nullptr, pluralOf(soundness.pieces))
                     .arg(soundness.pieces);
    }
    if (soundness.unreadable) {
        parts << QObject::tr("not all of its sectors could be read");
    }
    parts << sizeForPeople(soundness.bytes);
    if (soundness.width != 0) {
        parts << QObject::tr("%1 × %2 pixels").arg(soundness.width).arg(soundness.height);
    }
    if (!soundness.camera.isEmpty()) {
        parts << soundness.camera;
    }
    if (soundness.taken) {
        parts << QObject::tr("taken %1-%2-%3")
                     .arg(soundness.taken->year, 4, 10, QLatin1Char('0'))
                     .arg(soundness.taken->month, 2, 10, QLatin1Char('0'))
                     .arg(soundness.taken->day, 2, 10, QLatin1Char('0'));
    }
    return parts.join(QStringLiteral(", "));
}

}  // namespace vantor
