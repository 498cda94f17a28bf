// Reads the card and its list from the build folder.
#include "tests/samples/CardFixture.h"

#include <zlib.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

namespace vantor::samples {

namespace {

QByteArray contentOf(const char* path) {
    QFile file(QString::fromLocal8Bit(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<ListedFile> parseList() {
    std::vector<ListedFile> files;
    const QList<QByteArray> lines = cardListText().split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QList<QByteArray> fields = lines[i].split('\t');
        if (fields.size() == 6)
            files.push_back({QString::fromUtf8(fields[0]), QString::fromUtf8(fields[1]),
                             fields[2].toLongLong(), fields[3].toLongLong(), fields[4],
                             QString::fromUtf8(fields[5])});
    }
    return files;
}

}  // namespace

const QByteArray& cardImage() {
    static const QByteArray kImage = contentOf(SAMPLE_CARD_IMAGE);
    return kImage;
}

const QByteArray& cardListText() {
    static const QByteArray kText = contentOf(SAMPLE_CARD_LIST);
    return kText;
}

const std::vector<ListedFile>& listedFiles() {
    static const std::vector<ListedFile> kFiles = parseList();
    return kFiles;
}

QByteArray bytesOf(const ListedFile& file) {
    return cardImage().mid(file.firstSector * 512, file.bytes);
}

QByteArray bytesOf(const char* name) {
    for (const ListedFile& file : listedFiles()) {
        if (file.name == QLatin1String(name))
            return bytesOf(file);
    }
    return {};
}

std::int64_t be32(const QByteArray& bytes, qsizetype at) {
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

std::int64_t le32(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

int le16(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

std::uint32_t checksum(const QByteArray& bytes) {
    return std::uint32_t(crc32(0, reinterpret_cast<const Bytef*>(bytes.constData()), uInt(bytes.size())));
}

QImage decoded(QByteArray bytes) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read();
}

}  // namespace vantor::samples
