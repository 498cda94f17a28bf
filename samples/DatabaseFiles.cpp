// Databases of one table.
#include <iterator>
#include <vector>

#include "samples/Bytes.h"
#include "samples/Documents.h"

namespace vantor::samples {

namespace {

constexpr qsizetype kPage = 4096;
constexpr qsizetype kFileHeader = 100;
constexpr int kTableLeaf = 13;

struct Place {
    const char* name;
    int photos;
};

constexpr Place kPlaces[] = {{"Harbour", 24},    {"Lavender fields", 31}, {"Alpine lake", 18},
                             {"Lighthouse", 12}, {"Old town", 44},        {"Autumn wood", 27}};

QByteArray variable(std::uint64_t value) {  // the format's varint, of up to two bytes here
    Bytes out;
    if (value > 127)
        out.u8(0x80 | value >> 7);
    return out.u8(value & 127).bytes();
}

// A record: the types of its values, then the values. Texts have type 13 + 2 × length, one-byte numbers
// type 1.
QByteArray record(const QByteArray& types, const QByteArray& values) {
    return variable(static_cast<std::uint64_t>(types.size()) + 1) + types + values;
}

QByteArray textType(const QByteArray& text) {
    return variable(13 + 2 * static_cast<std::uint64_t>(text.size()));
}

// A leaf page; its cells fill it from the end. The page's own header stands behind `before`.
QByteArray leafPage(const std::vector<QByteArray>& records, const QByteArray& before) {
    QByteArray cells;
    Bytes pointers;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const QByteArray cell =
            variable(static_cast<std::uint64_t>(records[i].size())) + variable(i + 1) + records[i];
        cells.prepend(cell);
        pointers.be16(static_cast<std::uint64_t>(kPage - cells.size()));
    }
    Bytes page;
    page.raw(before)
        .u8(kTableLeaf)
        .be16(0)
        .be16(records.size())
        .be16(static_cast<std::uint64_t>(kPage - cells.size()))
        .u8(0)
        .raw(pointers.bytes());
    return page.zeros(kPage - page.size() - cells.size()).raw(cells).bytes();
}

QByteArray fileHeader() {
    Bytes out;
    out.field("SQLite format 3", 16).be16(kPage).u8(1).u8(1).u8(0).u8(64).u8(32).u8(32);
    out.be32(1).be32(2).be32(0).be32(0).be32(1).be32(4).be32(0).be32(0).be32(1).be32(0).be32(0).be32(0).zeros(
        20);
    return out.be32(1).be32(3040000).bytes();
}

}  // namespace

QByteArray sqliteFile() {
    const QByteArray statement = "CREATE TABLE places(name TEXT, photos INTEGER)";
    const QByteArray table = "places";
    constexpr int kRootPage = 2;
    const QByteArray types =
        textType("table") + textType(table) + textType(table) + variable(1) + textType(statement);
    const QByteArray schema =
        record(types, "table" + table + table + QByteArray(1, char{kRootPage}) + statement);
    std::vector<QByteArray> rows;
    for (const Place& place : kPlaces)
        rows.push_back(record(textType(place.name) + variable(1),
                              QByteArray(place.name) + static_cast<char>(place.photos)));
    return leafPage({schema}, fileHeader()) + leafPage(rows, {});
}

QByteArray dbfFile() {
    constexpr int kNameWidth = 20;
    constexpr int kNumberWidth = 4;
    Bytes out;
    out.u8(3)
        .u8(124)
        .u8(6)
        .u8(1)
        .le32(std::size(kPlaces))
        .le16(32 + 2 * 32 + 1)
        .le16(1 + kNameWidth + kNumberWidth)
        .zeros(20);
    out.field("NAME", 11).text("C").le32(0).u8(kNameWidth).u8(0).zeros(14);
    out.field("PHOTOS", 11).text("N").le32(0).u8(kNumberWidth).u8(0).zeros(14).u8(13);
    for (const Place& place : kPlaces)
        out.text(" ")
            .field(place.name, kNameWidth, ' ')
            .raw(QByteArray::number(place.photos).rightJustified(kNumberWidth, ' '));
    return out.u8(0x1A).bytes();
}

}  // namespace vantor::samples
