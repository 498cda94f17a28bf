// Tables of SAS and Stata, whose heads tell how long they are. Sources: Library of Congress, "SAS7BDAT" and
// the published notes on it that it names; Stata manual, "dta: description of the file format" 117 to 119.
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

// Named parts; the last number of the map of their places is the file's length.
Extent walkStataTable(ByteView& view) {
    constexpr std::string_view kBeginning = "<stata_dta><header><release>", kMap = "<map>",
                               kEnd = "</stata_dta>";
    constexpr std::uint64_t kMostHeader = 1024, kLastPlace = 13 * 8;
    if (!view.matches(0, kBeginning))
        return unknownExtent();
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
};

}  // namespace vantor
