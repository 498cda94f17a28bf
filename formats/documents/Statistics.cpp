// Tables of SAS and Stata, whose heads tell how long they are. Sources: Library of Congress, "SAS7BDAT" and
// the published notes on it that it names; Stata manual, "dta: description of the file format" 113 to 119.
#include "formats/Format.h"
#include "formats/ToldLength.h"

namespace vantor {

namespace {

// A header and pages of one size; two bytes tell how wide numbers are and where they stand.
Extent walkSasTable(ByteView& view) {
    constexpr std::string_view kMark = "\xC2\xEA\x81\x60\xB3\x14\x11\xCF\xBD\x92\x08\x00\x09\xC7\x31\x8C"_b;
    constexpr std::uint8_t kWide = 0x33;
    if (!view.matches(12, kMark))
        return unknownExtent();
    const std::uint64_t moved = view.u8(35) == kWide ? 4 : 0;
    const std::size_t digits = view.u8(32) == kWide ? 8 : 4;
    const auto endian = view.u8(37) == 1 ? Endian::Little : Endian::Big;
    const auto header = view.number(196 + moved, 4, endian), page = view.number(200 + moved, 4, endian),
               pages = view.number(204 + moved, digits, endian);
    if (!header || !page || !pages)
        return cutOffAt(view, view.size());
    if (*header < 288 || *page < 256)
        return unknownExtent();
    return completeAt(view, addClamped(*header, mulClamped(*page, *pages)));
}

// The number of bytes of a column's value, by its kind; 0 for none.
std::uint64_t stataBytes(std::uint8_t kind) {
    constexpr std::uint8_t kMostLetters = 244, kFirstNumber = 251;
    constexpr std::uint64_t kNumbers[] = {1, 2, 4, 4, 8};
    return kind <= kMostLetters ? kind : kind >= kFirstNumber ? kNumbers[kind - kFirstNumber] : 0;
}

// Versions 113 to 115: descriptions of the columns, the rows, and tables of names for values up to the end.
Extent walkOldStataTable(ByteView& view) {
    constexpr std::uint64_t kHead = 109, kName = 33, kLabel = 81, kShortFormat = 12, kFormat = 49,
                            kLabelsHead = 40, kMostLabels = 1 << 20;
    const auto version = view.u8(0).value_or(0), order = view.u8(1).value_or(0);
    if (version < 113 || version > 115 || order < 1 || order > 2 || view.le16(2) != 1U)
        return unknownExtent();
    const auto endian = order == 2 ? Endian::Little : Endian::Big;
    Cursor in(view, 4, endian);
    const std::uint64_t columns = in.u16(), rows = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    std::uint64_t row = 0;
    for (std::uint64_t i = 0; i < columns; ++i) {
        const auto kind = view.u8(kHead + i);
        if (!kind)
            return cutOffAt(view, view.size());
        if (stataBytes(*kind) == 0)
            return unknownExtent();
        row += stataBytes(*kind);
    }
    std::uint64_t at = kHead + columns * (1 + kName + 2 + kName + kLabel) + 2 +
                       columns * (version == 113 ? kShortFormat : kFormat);
    for (;;) {  // fields of later additions, of which the last has neither kind nor length
        const auto kind = view.u8(at);
        const auto bytes = view.number(at + 1, 4, endian);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        at = addClamped(at, 5 + *bytes);
        if (*kind == 0 && *bytes == 0)
            break;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    at = addClamped(at, mulClamped(row, rows));
    if (at > view.size())
        return cutOffAt(view, view.size());
    // A table tells its bytes, its name, and what it holds.
    for (;;) {
        const auto bytes = view.number(at, 4, endian), names = view.number(at + kLabelsHead, 4, endian),
                   letters = view.number(at + kLabelsHead + 4, 4, endian);
        if (!bytes || !names || !letters || *names > kMostLabels || *letters > kMostLabels * 256 ||
            *bytes != 8 + 8 * *names + *letters || !view.holds(at, kLabelsHead + *bytes))
            return inexact(completeAt(view, at));
        at += kLabelsHead + *bytes;
    }
}

// Named parts; the last number of the map of their places is the file's length.
Extent walkStataTable(ByteView& view) {
    constexpr std::string_view kBeginning = "<stata_dta><header><release>", kMap = "<map>",
                               kEnd = "</stata_dta>";
    constexpr std::uint64_t kMostHeader = 1024, kLastPlace = 13 * 8;
    if (!view.matches(0, kBeginning))
        return walkOldStataTable(view);
    const bool little = view.matches(kBeginning.size() + 3, "</release><byteorder>LSF");
    for (auto tag = view.find('<', kBeginning.size(), kMostHeader); tag.found();
         tag = view.find('<', tag.at + 1, kMostHeader)) {
        if (!view.matches(tag.at, kMap))
            continue;
        const auto length =
            view.number(tag.at + kMap.size() + kLastPlace, 8, little ? Endian::Little : Endian::Big);
        if (!length || *length > view.size())
            return cutOffAt(view, view.size());
        if (*length < kEnd.size() || !view.matches(*length - kEnd.size(), kEnd))
            return damagedAt(view, *length);
        return completeAt(view, *length);
    }
    return view.size() < kMostHeader ? cutOffAt(view, view.size()) : unknownExtent();
}

}  // namespace

extern constexpr Format kSasTable = {
    .name = "SAS table",
    .group = Group::Documents,
    .walk = walkSasTable,
    .extensions = " SAS7BDAT ",
};

extern constexpr Format kStataTable = {
    .name = "Stata table",
    .group = Group::Documents,
    .walk = walkStataTable,
    .extensions = " DTA ",
    .strongMagic = false,
};

}  // namespace vantor
