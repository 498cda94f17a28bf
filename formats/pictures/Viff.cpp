// Pictures of the Khoros system (VIFF). Source: Khoros manual, "The Visualization/Image File Format".
#include "formats/Format.h"

namespace vantor {

namespace {

// Bytes of one value of a storage type; 0 for none. Bits are counted by the caller.
std::uint64_t viffValueBytes(std::uint32_t storage) {
    switch (storage) {
        case 1:
            return 1;
        case 2:
            return 2;
        case 4:
        case 5:
            return 4;
        case 6:
        case 9:
            return 8;
        case 10:
            return 16;
        default:
            return 0;
    }
}

// A header of 1,024 bytes, the colour map and the values.
Extent walkViff(ByteView& view) {
    constexpr std::uint64_t kHeader = 1024, kMostSide = 1 << 20;
    if (!view.matches(0, "\xAB\1\1"))
        return unknownExtent();
    const auto order = view.u8(4).value_or(0);
    Cursor in(view, 520, order == 4 || order == 8 ? Endian::Little : Endian::Big);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    in.skip(28);  // what rows are cut into, place, size of a pixel, kind and dimensions of places
    const std::uint64_t images = in.u32(), bands = in.u32();
    const auto storage = in.u32(), packing = in.u32(), mapScheme = in.u32(), mapStorage = in.u32();
    const std::uint64_t mapRows = in.u32(), mapColumns = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    const auto bytes = viffValueBytes(storage);
    if (facts.width == 0 || facts.width > kMostSide || facts.height == 0 || facts.height > kMostSide ||
        images == 0 || bands == 0 || packing != 0 || (storage != 0 && bytes == 0))
        return unknownExtent();
    const std::uint64_t row = storage == 0 ? (facts.width + 7ULL) / 8 : facts.width * bytes;
    const std::uint64_t map =
        mapScheme == 0 ? 0 : mulClamped(mulClamped(mapRows, mapColumns), viffValueBytes(mapStorage));
    const auto values = mulClamped(mulClamped(row * facts.height, bands), images);
    return completeAt(view, addClamped(kHeader, addClamped(map, values)), facts);
}

}  // namespace

extern constexpr Format kViff = {
    .name = "VIFF",
    .group = Group::Pictures,
    .walk = walkViff,
    .extensions = " VIFF XV ",
    .strongMagic = false,
};

}  // namespace vantor
