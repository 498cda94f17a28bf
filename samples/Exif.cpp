// Exif: a TIFF structure inside a JPEG segment; all offsets count from the TIFF header.
#include "samples/Exif.h"

#include <vector>

#include "samples/Bytes.h"
#include "samples/JpegEncoder.h"

namespace vantor::samples {

namespace {

constexpr int kAscii = 2;
constexpr int kShort = 3;
constexpr int kLong = 4;
constexpr int kRational = 5;

struct Entry {
    int tag;
    int type;
    std::uint32_t count;
    QByteArray value;  // in place when it fits into four bytes, else stored behind the directory
};

Entry text(int tag, const QByteArray& value) {
    return {tag, kAscii, static_cast<std::uint32_t>(value.size() + 1), value + QByteArray(1, '\0')};
}
Entry number(int tag, int value) {
    return {tag, kShort, 1, Bytes().be16(static_cast<std::uint64_t>(value)).bytes()};
}
Entry offset(int tag, qsizetype value) {
    return {tag, kLong, 1, Bytes().be32(static_cast<std::uint64_t>(value)).bytes()};
}
Entry rational(int tag, std::uint32_t top, std::uint32_t bottom) {
    return {tag, kRational, 1, Bytes().be32(top).be32(bottom).bytes()};
}

qsizetype sizeOf(const std::vector<Entry>& entries) {
    qsizetype size = 2 + 12 * static_cast<qsizetype>(entries.size()) + 4;
    for (const Entry& entry : entries) {
        if (entry.value.size() > 4)
            size += (entry.value.size() + 1) & ~qsizetype{1};
    }
    return size;
}

QByteArray directory(const std::vector<Entry>& entries, qsizetype at, qsizetype next) {
    Bytes table;
    Bytes values;
    const qsizetype valuesAt = at + 2 + 12 * static_cast<qsizetype>(entries.size()) + 4;
    table.be16(entries.size());
    for (const Entry& entry : entries) {
        table.be16(static_cast<std::uint64_t>(entry.tag))
            .be16(static_cast<std::uint64_t>(entry.type))
            .be32(entry.count);
        if (entry.value.size() <= 4) {
            table.field(entry.value, 4);
            continue;
        }
        table.be32(static_cast<std::uint64_t>(valuesAt + values.size()));
        values.raw(entry.value).alignTo(2);
    }
    return table.be32(static_cast<std::uint64_t>(next)).raw(values.bytes()).bytes();
}

}  // namespace

QByteArray exifSegment(const ExifNotes& notes) {
    constexpr qsizetype kFirstDirectory = 8;
    std::vector<Entry> camera = {
        text(0x010F, notes.make),    text(0x0110, notes.model), number(0x0112, notes.orientation),
        rational(0x011A, 72, 1),     rational(0x011B, 72, 1),   number(0x0128, 2),
        text(0x0132, notes.takenAt), number(0x0213, 2),         offset(0x8769, 0)};
    const std::vector<Entry> shot = {rational(0x829A, 1, 250),
                                     rational(0x829D, 56, 10),
                                     number(0x8827, 100),
                                     {0x9000, 7, 4, "0230"},
                                     text(0x9003, notes.takenAt),
                                     text(0x9004, notes.takenAt),
                                     {0x9101, 7, 4, QByteArray("\1\2\3\0", 4)},
                                     number(0x9209, 16),
                                     rational(0x920A, 50, 10),
                                     {0xA000, 7, 4, "0100"},
                                     number(0xA001, 1),
                                     offset(0xA002, notes.width),
                                     offset(0xA003, notes.height)};
    const qsizetype shotAt = kFirstDirectory + sizeOf(camera);
    const qsizetype smallAt = shotAt + sizeOf(shot);
    camera.back() = offset(0x8769, shotAt);
    std::vector<Entry> small = {number(0x0103, 6),       rational(0x011A, 72, 1),
                                rational(0x011B, 72, 1), number(0x0128, 2),
                                offset(0x0201, 0),       offset(0x0202, notes.thumbnail.size())};
    small[4] = offset(0x0201, smallAt + sizeOf(small));
    const bool hasSmall = !notes.thumbnail.isEmpty();

    Bytes out;
    out.text("Exif").be16(0).text("MM").be16(42).be32(kFirstDirectory);
    out.raw(directory(camera, kFirstDirectory, hasSmall ? smallAt : 0)).raw(directory(shot, shotAt, 0));
    if (hasSmall)
        out.raw(directory(small, smallAt, 0)).raw(notes.thumbnail);
    return jpegSegment(0xE1, out.bytes());
}

}  // namespace vantor::samples
