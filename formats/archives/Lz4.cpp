// LZ4 files. Source: LZ4 Frame Format 1.6, with its section on the legacy frame.
#include "formats/Format.h"
#include "formats/archives/PackedFrames.h"

namespace vantor {

namespace {

// The frame of the first versions: blocks of up to 8 MiB each, without an end mark.
PackedFrame lz4LegacyFrame(ByteView& view, std::uint64_t at) {
    constexpr std::uint32_t kUnpacked = 8 << 20, kMostBlock = kUnpacked + kUnpacked / 255 + 16;
    for (at += 4;;) {
        const auto bytes = view.le32(at);
        if (!bytes || *bytes == 0 || *bytes > kMostBlock)
            return {PackedFrame::State::Whole, at};
        if (!view.holds(at + 4, *bytes))
            return cutFrame(view);
        at += 4 + std::uint64_t{*bytes};
    }
}

// Nothing when no frame begins at `at`.
std::optional<PackedFrame> lz4Frame(ByteView& view, std::uint64_t at) {
    if (view.matches(at, "\x02\x21\x4C\x18"))
        return lz4LegacyFrame(view, at);
    if (!view.matches(at, "\x04\x22\x4D\x18"))
        return skippableFrame(view, at);
    const auto flags = view.u8(at + 4), block = view.u8(at + 5);
    if (!flags || !block)
        return cutFrame(view);
    const unsigned sizeCode = *block >> 4;
    if (*flags >> 6 != 1 || (*flags & 2) != 0 || (*block & 0x8F) != 0 || sizeCode < 4)
        return std::nullopt;
    const std::uint64_t mostBlock = std::uint64_t{1} << (8 + 2 * sizeCode);  // 64 KiB to 4 MiB
    const std::uint64_t checksum = (*flags & 0x10) != 0 ? 4 : 0;
    at += 7 + ((*flags & 8) != 0 ? 8 : 0) + ((*flags & 1) != 0 ? 4 : 0);
    for (;;) {
        const auto told = view.le32(at);
        if (!told)
            return cutFrame(view);
        const std::uint64_t bytes = *told & 0x7FFFFFFF;
        if (bytes > mostBlock)
            return PackedFrame{PackedFrame::State::Broken, at};
        at += 4;
        if (*told == 0)
            return PackedFrame{PackedFrame::State::Whole, at + ((*flags & 4) != 0 ? 4U : 0U)};
        at += bytes + checksum;
    }
}

Extent walkLz4(ByteView& view) {
    return walkPackedFrames(view, lz4Frame);
}

}  // namespace

extern constexpr Format kLz4 = {
    .name = "LZ4",
    .group = Group::Archives,
    .walk = walkLz4,
    .extensions = " LZ4 ",
    .large = true,
};

}  // namespace vantor
