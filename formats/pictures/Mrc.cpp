// MRC volumes. Source: MRC2014 (CCP-EM).
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkMrc(ByteView& view) {
    constexpr std::uint64_t kHead = 1024;
    if (!view.matches(208, "MAP D"))
        return unknownExtent();
    Cursor in(view, 0, Endian::Little);
    const std::uint64_t columns = in.u32(), rows = in.u32(), sections = in.u32();
    const auto mode = in.u32();
    const std::uint64_t extended = view.le32(92).value_or(0);
    const std::uint64_t bits = mode == 0                              ? 8
                               : mode == 1 || mode == 6 || mode == 12 ? 16
                               : mode == 2 || mode == 3               ? 32
                               : mode == 4                            ? 64
                               : mode == 101                          ? 4
                                                                      : 0;
    if (bits == 0 || columns == 0 || rows == 0 || sections == 0)
        return unknownExtent();
    const auto rowBytes = (columns * bits + 7) / 8;
    return completeAt(view, addClamped(kHead + extended, mulClamped(mulClamped(rowBytes, rows), sections)));
}

}  // namespace

extern constexpr Format kMrc = {
    .name = "MRC",
    .group = Group::Pictures,
    .walk = walkMrc,
    .extensions = " MRC CCP4 ",
    .strongMagic = false,
    .large = true,
};

}  // namespace vantor
