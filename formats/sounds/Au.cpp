// AU sounds. Source: Sun au(5).
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkAu(ByteView& view) {
    if (!view.matches(0, ".snd"))
        return unknownExtent();
    Cursor in(view, 4);
    const std::uint64_t head = in.u32(), bytes = in.u32();
    const auto encoding = in.u32();
    in.skip(4);
    const auto channels = in.u32();
    if (!in.ok() || head < 24 || head > 65536 || encoding == 0 || encoding > 64 || channels == 0 ||
        channels > 256)
        return unknownExtent();
    if (bytes == 0xFFFFFFFF)  // "not told"
        return unknownExtent();
    return completeAt(view, head + bytes);
}

}  // namespace

extern constexpr Format kAu = {
    .name = "AU",
    .group = Group::Sounds,
    .walk = walkAu,
    .extensions = " AU SND ",
};

}  // namespace vantor
