// Puts the contents on the card one after another, notes where they came to lie, and deletes them.
#include "samples/SampleCard.h"

#include <QCryptographicHash>
#include <QStringList>

#include "samples/CardContents.h"
#include "samples/Random.h"

namespace vantor::samples {

namespace {

constexpr std::uint64_t kNoiseSeed = 0x56414E544F52;
constexpr std::int64_t kPieceGapClusters = 6;

QByteArray noise(std::int64_t bytes, Random& random) {
    QByteArray result;
    result.reserve(bytes);
    while (result.size() < bytes) {
        const std::uint64_t word = random.next();
        for (int i = 0; i < 8; ++i)
            result.append(static_cast<char>(word >> (8 * i)));
    }
    return result;
}

QString placeNote(const CardFile& file, bool isFirst) {
    if (isFirst)
        return QStringLiteral("first on the card");
    const std::int64_t sectors = file.gapClusters * FatCard::kSectorsPerCluster;
    switch (file.gap) {
        case Gap::None:
            return QStringLiteral("right after the file before");
        case Gap::Zeros:
            return QStringLiteral("after a gap of %1 zero sectors").arg(sectors);
        case Gap::Noise:
            return QStringLiteral("after a gap of %1 sectors of random bytes").arg(sectors);
    }
    return {};
}

QString runsNote(const std::vector<SectorRun>& runs) {
    if (runs.size() == 1)
        return QStringLiteral("in one piece");
    QStringList parts;
    for (const SectorRun& run : runs)
        parts << QStringLiteral("%1-%2").arg(run.first).arg(run.end - 1);
    return QStringLiteral("fragmented: sectors ") + parts.join(QStringLiteral(" and "));
}

CardEntry entryFor(const CardFile& file, const std::vector<SectorRun>& runs, bool isFirst) {
    CardEntry entry;
    entry.folder = file.folder;
    entry.name = file.name;
    entry.type = file.name.mid(file.name.lastIndexOf(QLatin1Char('.')) + 1).toUpper();
    entry.bytes = file.bytes.size();
    entry.sha256 = QCryptographicHash::hash(file.bytes, QCryptographicHash::Sha256).toHex();
    entry.runs = runs;
    entry.note = QStringLiteral("%1; %2; %3").arg(runsNote(runs), placeNote(file, isFirst), file.folder);
    return entry;
}

}  // namespace

std::optional<SampleCard> buildSampleCard() {
    const std::vector<CardFile> files = cardContents();
    FatCard card;
    Random random(kNoiseSeed);
    // The folders come first, as on a card whose camera has made them before the first picture.
    for (const CardFile& file : files) {
        if (!card.makeFolder(file.folder))
            return std::nullopt;
    }
    SampleCard result;
    for (const CardFile& file : files) {
        card.leaveGap(file.gapClusters, file.gap == Gap::Noise
                                            ? noise(file.gapClusters * FatCard::kClusterBytes, random)
                                            : QByteArray());
        const auto runs = file.pieces == Pieces::Two
                              ? card.addFileInTwoPieces(file.folder, file.name, file.bytes, kPieceGapClusters)
                              : card.addFile(file.folder, file.name, file.bytes);
        if (!runs)
            return std::nullopt;
        result.entries.push_back(entryFor(file, *runs, result.entries.empty()));
    }
    card.deleteFiles();
    result.image = card.image();
    return result;
}

QByteArray listText(const std::vector<CardEntry>& entries) {
    QByteArray text = "name\ttype\tfirst_sector\tbytes\tsha256\tlayout\n";
    for (const CardEntry& entry : entries) {
        text += entry.name.toUtf8() + '\t' + entry.type.toUtf8() + '\t' +
                QByteArray::number(qint64{entry.runs.front().first}) + '\t' +
                QByteArray::number(qint64{entry.bytes}) + '\t' + entry.sha256 + '\t' + entry.note.toUtf8() +
                '\n';
    }
    return text;
}

}  // namespace vantor::samples
