// lzop files. Sources: lzop(1) and public notes on its header.
#include "formats/Format.h"
#include "formats/archives/PackedFrames.h"

namespace vantor {

namespace {

std::optional<PackedFrame> lzopMember(ByteView& view, std::uint64_t at) {
    constexpr std::string_view kMagic("\x89LZO\0\r\n\x1A\n", 9);
    constexpr std::uint32_t kMostBlock = 64 * 1024 * 1024;
    if (!view.matches(at, kMagic))
        return std::nullopt;
    Cursor in(view, at + kMagic.size());
    const bool recent = in.u16() >= 0x0940;
    in.skip(recent ? 6 : 3);  // library, what reads it, method and level
    const auto flags = in.u32();
    in.skip((flags & 0x800 ? 4U : 0U) + (recent ? 12U : 8U));  // filter, mode, time
    const auto name = in.u8();
    in.skip(std::uint64_t{name} + 4);
    if ((flags & 0x40) != 0) {
        const auto extra = in.u32();
        in.skip(std::uint64_t{extra} + 4);
    }
    const std::uint64_t plainSums = ((flags & 1) != 0 ? 4U : 0U) + ((flags & 0x100) != 0 ? 4U : 0U);
    const std::uint64_t packedSums = ((flags & 2) != 0 ? 4U : 0U) + ((flags & 0x200) != 0 ? 4U : 0U);
    while (in.ok()) {
        const auto start = in.at();
        const auto plain = in.u32();
        if (in.ok() && plain == 0)
            return PackedFrame{PackedFrame::State::Whole, in.at()};
        const auto packed = in.u32();
        if (in.ok() && (packed == 0 || packed > plain || plain > kMostBlock))
            return PackedFrame{PackedFrame::State::Broken, start};
        in.skip(plainSums + (packed < plain ? packedSums : 0) + packed);
    }
    return cutFrame(view);
}

Extent walkLzop(ByteView& view) {
    return walkPackedFrames(view, lzopMember);
}

}  // namespace

extern constexpr Format kLzop = {
    .name = "lzop",
    .group = Group::Archives,
    .walk = walkLzop,
    .extensions = " LZO ",
    .large = true,
};

}  // namespace vantor
