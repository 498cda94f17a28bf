// The card's FAT16 file system, written by mtools: files take the first free clusters, one after another.
#include "samples/Card.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QUnhandledException>
#include <QtConcurrent>
#include <stdexcept>

namespace vantor::samples {

namespace {

constexpr int kSectorBytes = 512;
constexpr int kSectorsPerCluster = 8;
constexpr int kClusterBytes = kSectorsPerCluster * kSectorBytes;
constexpr qint64 kCardBytes = 64 * 1024 * 1024;
constexpr int kReservedSectors = 96;  // puts the first cluster at sector 256
constexpr int kFatSectors = 64;
constexpr int kRootSectors = 32;
constexpr int kFirstDataSector = kReservedSectors + 2 * kFatSectors + kRootSectors;
constexpr int kPieceGapClusters = 6;

// The card under way: a folder with the image and the files that go onto it.
class Mtools {
  public:
    Mtools() {
        QFile image(path(QStringLiteral("card.img")));
        if (!image.open(QIODevice::WriteOnly) || !image.resize(kCardBytes))
            throw std::runtime_error("the card's image cannot be written");
        // clang-format off
        run("mformat", {"-T", QString::number(kCardBytes / kSectorBytes), "-h", "8", "-s", "32", "-m", "0xf8",
                        "-c", QString::number(kSectorsPerCluster), "-R", QString::number(kReservedSectors),
                        "-L", QString::number(kFatSectors), "-r", QString::number(kRootSectors),
                        "-N", "20240601", "-v", "VANTOR CARD", "::"});
        // clang-format on
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QByteArray run(const char* tool, const QStringList& arguments) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1717236000"));  // 1 June 2024
        environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
        environment.insert(QStringLiteral("MTOOLSRC"), QStringLiteral("/dev/null"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(QString::fromLatin1(tool), QStringList{"-i", "card.img"} + arguments);
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            throw std::runtime_error(
                (tool + (": " + process.errorString().toUtf8()) + '\n' + process.readAllStandardError())
                    .toStdString());
        return process.readAllStandardOutput();
    }

    // Copies what waits, in its order, into the folder of the card.
    void copy(QStringList& waiting, const QString& folder) {
        if (!waiting.isEmpty())
            run("mcopy", waiting + QStringList{"::/" + folder});
        waiting.clear();
    }

    void write(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error(file.errorString().toStdString());
    }

  private:
    QTemporaryDir m_folder;
};

QByteArray gapBytes(const CardFile& file, QRandomGenerator& random) {
    QByteArray bytes(qsizetype{file.gapClusters} * kClusterBytes, '\0');
    if (file.gap == Gap::Noise)
        random.generate(reinterpret_cast<quint32*>(bytes.begin()), reinterpret_cast<quint32*>(bytes.end()));
    return bytes;
}

// The sectors [first, end) of each run of clusters that mshowfat tells as "<first-last>", cut at the file's
// end.
std::vector<std::pair<qint64, qint64>> runsIn(const QString& told, qint64 bytes) {
    static const QRegularExpression kRun(QStringLiteral("<(\\d+)(?:-(\\d+))?>"));
    std::vector<std::pair<qint64, qint64>> runs;
    qint64 sectors = (bytes + kSectorBytes - 1) / kSectorBytes;
    for (const QRegularExpressionMatch& match : kRun.globalMatch(told)) {
        const qint64 first = match.captured(1).toLongLong();
        const qint64 last = match.capturedLength(2) > 0 ? match.captured(2).toLongLong() : first;
        const qint64 start = kFirstDataSector + (first - 2) * kSectorsPerCluster;
        const qint64 length = std::min(sectors, (last - first + 1) * kSectorsPerCluster);
        runs.emplace_back(start, start + length);
        sectors -= length;
    }
    return runs;
}

QByteArray listLine(const CardFile& file, const QByteArray& bytes, const QString& told, bool isFirst) {
    const auto runs = runsIn(told, bytes.size());
    if (runs.size() != (file.inTwoPieces ? 2u : 1u))
        throw std::runtime_error("not laid out as planned: " + file.name.toStdString());
    const auto text = [&](std::size_t i) {
        return QString::number(int(runs[i].first)) + '-' + QString::number(int(runs[i].second - 1));
    };
    const QString pieces =
        runs.size() == 1 ? "in one piece" : "fragmented: sectors " + text(0) + " and " + text(1);
    const QString gap = QString::number(file.gapClusters * kSectorsPerCluster);
    const QString place = isFirst                  ? "first on the card"
                          : file.gap == Gap::Zeros ? "after a gap of " + gap + " zero sectors"
                          : file.gap == Gap::Noise ? "after a gap of " + gap + " sectors of random bytes"
                                                   : "right after the file before";
    const QString hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    QStringList fields{file.name, file.name.section('.', -1).toUpper(), QString::number(int(runs[0].first))};
    fields << QString::number(int(bytes.size())) << hash << pieces + "; " + place + "; " + file.folder + '\n';
    return fields.join('\t').toUtf8();
}

std::vector<QByteArray> contentsOf(const std::vector<CardFile>& files) {
    try {
        return QtConcurrent::blockingMapped<std::vector<QByteArray>>(
            files, [](const CardFile& file) { return file.content(); });
    } catch (const QUnhandledException& thrown) {
        std::rethrow_exception(thrown.exception());
    }
}

}  // namespace

SampleCard buildSampleCard(const std::vector<CardFile>& files) {
    const std::vector<QByteArray> contents = contentsOf(files);
    Mtools card;
    QStringList folders;
    for (const CardFile& file : files) {
        if (!folders.contains(file.folder))
            folders << file.folder;
    }
    // The folders come first, as on a card whose camera has made them before the first picture.
    for (const QString& folder : folders) {
        for (qsizetype slash = folder.indexOf('/'); slash > 0; slash = folder.indexOf('/', slash + 1))
            card.run("mmd", {"::/" + folder.left(slash)});
        card.run("mmd", {"::/" + folder});
    }
    QRandomGenerator random(2024);
    QStringList waiting;
    QStringList onCard;
    for (std::size_t i = 0; i < files.size(); ++i) {
        const CardFile& file = files[i];
        const QByteArray& bytes = contents[i];
        card.write(file.name, bytes);
        onCard << "::/" + file.folder + '/' + file.name;
        if (file.gap != Gap::None) {
            const QString gap = QStringLiteral("GAP%1.TMP").arg(i);
            card.write(gap, gapBytes(file, random));
            waiting << gap;
        }
        if (file.inTwoPieces) {
            // A file of its first half's size makes room for it, and one behind stays in its way.
            card.write("HALF.TMP", QByteArray(bytes.size() / kClusterBytes / 2 * kClusterBytes, '\0'));
            card.write("WAY.TMP", QByteArray(kPieceGapClusters * kClusterBytes, '\0'));
            waiting += QStringList{"HALF.TMP", "WAY.TMP"};
            card.copy(waiting, file.folder);
            card.run("mdel", {"::/" + file.folder + "/HALF.TMP"});
        }
        waiting << file.name;
        if (i + 1 == files.size() || files[i + 1].folder != file.folder || file.inTwoPieces)
            card.copy(waiting, file.folder);
    }
    const QStringList told = QString::fromUtf8(card.run("mshowfat", onCard)).split('\n', Qt::SkipEmptyParts);
    SampleCard result{{}, "name\ttype\tfirst_sector\tbytes\tsha256\tlayout\n"};
    for (std::size_t i = 0; i < files.size(); ++i)
        result.list += listLine(files[i], contents[i], told.value(qsizetype(i)), i == 0);
    for (const QString& folder : folders)
        card.run("mdel", {"::/" + folder + "/*.*"});
    QFile image(card.path("card.img"));
    if (image.open(QIODevice::ReadOnly))
        result.image = image.readAll();
    return result;
}

}  // namespace vantor::samples
