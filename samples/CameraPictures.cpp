// What cameras write: Exif in JPEG, two JPEG in one, a sensor's raw values.
#include <algorithm>

#include "samples/Bytes.h"
#include "samples/Encoding.h"
#include "samples/Pictures.h"
#include "samples/Tiff.h"

namespace vantor::samples {

namespace {

// A JPEG's start, this segment in place of its JFIF header, and the rest.
QByteArray withSegment(const QByteArray& jpeg, int marker, const QByteArray& content) {
    const auto byteAt = [&](qsizetype at) { return uchar(jpeg[at]); };
    const qsizetype rest = byteAt(3) == 0xE0 ? 4 + (byteAt(4) << 8 | byteAt(5)) : 2;
    return Bytes().raw(jpeg.left(2)).be16(marker).be16(content.size() + 2).raw(content).raw(jpeg.mid(rest));
}

}  // namespace

QByteArray withExif(const QByteArray& jpeg, const QImage& picture, const ExifNotes& notes) {
    constexpr qsizetype kFirst = 8;
    const QByteArray small =
        writtenByQt("jpg", picture.scaled(160, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation), 70);
    const auto takenAt = characters(notes.takenAt);
    std::vector<Field> camera = {{0x010F, kAscii, characters("VANTOR")},
                                 {0x0110, kAscii, characters("SAMPLE 100")},
                                 {0x0112, kShort, {notes.isTurned ? 6 : 1}},
                                 {0x011A, kRational, {72, 1}},
                                 {0x011B, kRational, {72, 1}},
                                 {0x0128, kShort, {2}},
                                 {0x0132, kAscii, takenAt},
                                 {0x0213, kShort, {2}},
                                 {0x8769, kLong, {0}}};
    const std::vector<Field> shot = {{0x829A, kRational, {1, 250}},
                                     {0x829D, kRational, {56, 10}},
                                     {0x8827, kShort, {100}},
                                     {0x9000, kUndefined, characters("0230", false)},
                                     {0x9003, kAscii, takenAt},
                                     {0x9004, kAscii, takenAt},
                                     {0x9101, kUndefined, {1, 2, 3, 0}},
                                     {0x9209, kShort, {16}},
                                     {0x920A, kRational, {50, 10}},
                                     {0xA000, kUndefined, characters("0100", false)},
                                     {0xA001, kShort, {1}},
                                     {0xA002, kLong, {picture.width()}},
                                     {0xA003, kLong, {picture.height()}}};
    std::vector<Field> thumbnail = {
        {0x0103, kShort, {6}}, {0x0201, kLong, {0}}, {0x0202, kLong, {small.size()}}};
    const qsizetype shotAt = kFirst + directoryBytes(camera);
    const qsizetype thumbnailAt = shotAt + directoryBytes(shot);
    camera.back().values = {shotAt};
    thumbnail[1].values = {thumbnailAt + directoryBytes(thumbnail)};
    return withSegment(jpeg, 0xFFE1,
                       QByteArray("Exif\0\0", 6) + tiffHeader(Order::Big) +
                           directory(Order::Big, camera, kFirst, thumbnailAt) +
                           directory(Order::Big, shot, shotAt) +
                           directory(Order::Big, thumbnail, thumbnailAt) + small);
}

QByteArray mpoFile(const QByteArray& left, const QByteArray& right) {
    constexpr qsizetype kOffsetsFrom = 2 + 4 + 4;  // behind the start, the marker and length, and "MPF"
    const auto indexed = [&](qsizetype leftBytes) {
        const Bytes entries = Bytes()
                                  .be32(0x20020002)
                                  .be32(leftBytes)
                                  .be32(0)
                                  .be32(0)
                                  .be32(0x00020002)
                                  .be32(right.size())
                                  .be32(leftBytes - kOffsetsFrom)
                                  .be32(0);
        const std::vector<Field> index = {{0xB000, kUndefined, characters("0100", false)},
                                          {0xB001, kLong, {2}},
                                          {0xB002, kUndefined, characters(entries, false)}};
        return withSegment(left, 0xFFE2,
                           QByteArray("MPF\0", 4) + tiffHeader(Order::Big) + directory(Order::Big, index, 8));
    };
    return indexed(indexed(0).size()) + right;
}

QByteArray dngFile(const QImage& picture) {
    constexpr int kColourFilterArray = 32803;
    // What a sensor with red, green / green, blue filters would have seen, roughly undoing the display's
    // gamma.
    Bytes sensor;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int value = picture.constScanLine(y)[x * 3 + y % 2 + x % 2];
            sensor.le16(value * value);
        }
    }
    std::vector<Field> fields = {
        {0x00FE, kLong, {0}},
        {0x0100, kLong, {picture.width()}},
        {0x0101, kLong, {picture.height()}},
        {0x0102, kShort, {16}},
        {0x0103, kShort, {1}},
        {0x0106, kShort, {kColourFilterArray}},
        {0x010F, kAscii, characters("VANTOR")},
        {0x0110, kAscii, characters("SAMPLE 100")},
        {0x0111, kLong, {0}},
        {0x0112, kShort, {1}},
        {0x0115, kShort, {1}},
        {0x0116, kLong, {picture.height()}},
        {0x0117, kLong, {sensor.size()}},
        {0x011C, kShort, {1}},
        {0x828D, kShort, {2, 2}},
        {0x828E, kByte, {0, 1, 1, 2}},
        {0xC612, kByte, {1, 1, 0, 0}},
        {0xC613, kByte, {1, 1, 0, 0}},
        {0xC614, kAscii, characters("VANTOR SAMPLE 100")},
        {0xC61D, kLong, {65025}},
        // From the standard observer's colours to linear sRGB, in hundredths.
        {0xC621,
         kSignedRational,
         {324, 100, -154, 100, -50, 100, -97, 100, 188, 100, 4, 100, 6, 100, -20, 100, 106, 100}},
        {0xC628, kRational, {1, 1, 1, 1, 1, 1}},
        {0xC65A, kShort, {21}}};
    fields[8].values = {8 + directoryBytes(fields)};
    return tiffHeader(Order::Little) + directory(Order::Little, fields, 8) + sensor;
}

}  // namespace vantor::samples
