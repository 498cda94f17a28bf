// Pictures in the formats that no library at hand writes, and cameras' JPEG files.
#pragma once

#include <QByteArray>
#include <QImage>
#include <vector>

namespace vantor::samples {

// The JPEG file as a camera would have written it: with Exif and a small picture in place of JFIF. `takenAt`
// is like "2024:06:01 10:00:00"; what is turned is stored on its side, to be turned clockwise to be seen.
QByteArray withExif(const QByteArray& jpeg, const QImage& picture, const QByteArray& takenAt, bool isTurned);
// Two JPEG files in one, indexed by the first (CIPA DC-007).
QByteArray mpoFile(const QByteArray& left, const QByteArray& right);
QByteArray dngFile(const QImage& picture);  // Adobe DNG 1.1, 16-bit colour filter array
QByteArray photoshopFile(const QImage& picture,
                         bool isLarge);  // PSD or PSB: one flattened layer, uncompressed
QByteArray iconFile(const std::vector<QImage>& sizes, bool isCursor);  // PNG inside
QByteArray radianceFile(const QImage& picture);                        // HDR without run lengths
QByteArray ddsFile(const QImage& picture);                             // DirectDraw surface, 24 bits
QByteArray ktxFile(const QImage& picture);  // KTX 1, one level; rows of whole words
QByteArray lbmFile(const QImage& picture);  // Amiga ILBM, 24 planes
QByteArray miffFile(const QImage& picture);
QByteArray jngFile(const QImage& picture);                 // a JPEG in PNG's chunks
QByteArray dcxFile(const std::vector<QByteArray>& pages);  // PCX pages

}  // namespace vantor::samples
