// The sample card as the build made it, read once for all tests.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <cstdint>
#include <vector>

namespace vantor::samples {

struct ListedFile {
    QString name;
    QString type;
    std::int64_t firstSector = 0;
    std::int64_t bytes = 0;
    QByteArray sha256;
    QString note;

    bool inOnePiece() const { return note.startsWith(QLatin1String("in one piece")); }
    std::int64_t endSector() const { return firstSector + (bytes + 511) / 512; }
};

const QByteArray& cardImage();
const QByteArray& cardListText();
const std::vector<ListedFile>& listedFiles();

// The bytes of a file that lies in one piece.
QByteArray bytesOf(const ListedFile& file);
// The bytes of the file of that name; empty when there is none.
QByteArray bytesOf(const char* name);

// Unsigned numbers in the card's files; the bytes must be there.
std::int64_t be32(const QByteArray& bytes, qsizetype at);
std::int64_t le32(const QByteArray& bytes, qsizetype at);
int le16(const QByteArray& bytes, qsizetype at);

// The CRC-32 of ZIP and PNG.
std::uint32_t checksum(const QByteArray& bytes);

// The picture as it is to be seen; null when Qt cannot read it.
QImage decoded(QByteArray bytes);

}  // namespace vantor::samples
