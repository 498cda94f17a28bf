// SGI pictures (SGI, RGB, BW). Source: "The SGI Image File Format" 1.00.
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkSgi(ByteView& view) {
    constexpr std::uint64_t kHead = 512;
    Cursor in(view, 0);
    const auto magic = in.u16();
    const auto packed = in.u8(), bytes = in.u8();
    const std::uint64_t dimensions = in.u16(), width = in.u16();
    std::uint64_t height = in.u16(), planes = in.u16();
    if (!in.ok() || magic != 0x01DA || packed > 1 || bytes == 0 || bytes > 2 || dimensions == 0 ||
        dimensions > 3 || width == 0)
        return unknownExtent();
    height = dimensions == 1 ? 1 : height;
    planes = dimensions < 3 ? 1 : planes;
    if (height == 0 || planes == 0 || planes > 16)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    if (packed == 0)
        return completeAt(view, kHead + width * height * planes * bytes, facts);
    // Packed rows lie anywhere behind two tables: their places, their lengths.
    const std::uint64_t rows = height * planes, table = rows * 4;
    std::uint64_t end = kHead + 2 * table;
    // The tables are read in runs, so that the view does not hop between them for each row.
    std::array<std::uint64_t, 512> places{};
    for (std::uint64_t first = 0; first < rows; first += places.size()) {
        const auto run = std::min<std::uint64_t>(rows - first, places.size());
        Cursor starts(view, kHead + first * 4);
        for (std::size_t i = 0; i < run; ++i)
            places[i] = starts.u32();
        Cursor lengths(view, kHead + table + first * 4);
        for (std::size_t i = 0; i < run; ++i) {
            const std::uint64_t length = lengths.u32();
            if (!starts.ok() || !lengths.ok())
                return cutOffAt(view, view.size(), facts);
            if (places[i] < kHead + 2 * table || length > (width + 2) * 4)
                return damagedAt(view, end, facts);
            end = std::max(end, places[i] + length);
        }
    }
    return completeAt(view, end, facts);
}

}  // namespace

extern constexpr Format kSgi = {
    .name = "SGI",
    .group = Group::Pictures,
    .walk = walkSgi,
    .extensions = " SGI RGB RGBA BW ",
    .strongMagic = false,
};

}  // namespace vantor
