// TrueType and OpenType fonts, and collections of them. Source: OpenType specification 1.9.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint16_t kMostTables = 256;
constexpr std::uint32_t kMostFonts = 1024;

bool isFontAt(ByteView& view, std::uint64_t at) {
    return view.matches(at, std::string_view("\0\1\0\0", 4)) || view.matches(at, "OTTO") ||
           view.matches(at, "true") || view.matches(at, "typ1");
}

// How far the tables of the font at `at` reach; 0 for no font.
std::uint64_t endOfTables(ByteView& view, std::uint64_t at) {
    const auto tables = view.be16(at + 4).value_or(0);
    if (!isFontAt(view, at) || tables == 0 || tables > kMostTables)
        return 0;
    std::uint64_t end = at + 12 + std::uint64_t{tables} * 16;
    for (std::uint64_t i = 0; i < tables; ++i) {
        Cursor in(view, at + 12 + i * 16);
        for (int letter = 0; letter < 4; ++letter) {
            const auto byte = in.u8();
            if (in.ok() && (byte < ' ' || byte > '~'))
                return 0;
        }
        in.skip(4);
        const std::uint64_t offset = in.u32(), bytes = in.u32();
        end = std::max(end, offset + bytes);
    }
    return end;
}

// Tables are padded to four bytes, the last one mostly too.
Extent afterPadding(ByteView& view, std::uint64_t end) {
    const std::uint64_t padded = (end + 3) / 4 * 4;
    const bool zeros = view.holds(end, padded - end) &&
                       view.number(end, static_cast<std::size_t>(padded - end), Endian::Big) == 0U;
    return inexact(completeAt(view, zeros ? padded : end));
}

Extent walkFont(ByteView& view) {
    if (!view.matches(0, "ttcf")) {
        const auto end = endOfTables(view, 0);
        return end != 0 ? afterPadding(view, end) : unknownExtent();
    }
    const auto version = view.be32(4).value_or(0), fonts = view.be32(8).value_or(0);
    if (version >> 16 < 1 || version >> 16 > 2 || fonts == 0 || fonts > kMostFonts)
        return unknownExtent();
    std::uint64_t end = 12 + std::uint64_t{fonts} * 4;
    if (version >> 16 == 2 && view.matches(end, "DSIG"))
        end = std::uint64_t{view.be32(end + 8).value_or(0)} + view.be32(end + 4).value_or(0);
    for (std::uint64_t i = 0; i < fonts; ++i) {
        const auto at = view.be32(12 + i * 4);
        if (!at || *at >= view.size())
            return cutOffAt(view, view.size());
        const auto last = endOfTables(view, *at);
        if (last == 0)
            return view.holds(*at, 12) ? damagedAt(view, end) : cutOffAt(view, view.size());
        end = std::max(end, last);
    }
    return afterPadding(view, end);
}

}  // namespace

extern constexpr Format kFont = {
    .name = "Font",
    .group = Group::Documents,
    .walk = walkFont,
    .extensions = " TTF OTF TTC OTC ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
