// Zstandard files. Source: RFC 8878.
#include "formats/Format.h"
#include "formats/archives/PackedFrames.h"

namespace vantor {

namespace {

std::optional<PackedFrame> zstandardFrame(ByteView& view, std::uint64_t at) {
    constexpr std::uint32_t kMostBlock = 128 * 1024;
    constexpr int kMostEmpty = 8;  // in a row: zeros look like blocks of nothing
    if (!view.matches(at, "\x28\xB5\x2F\xFD"))
        return skippableFrame(view, at);
    const auto flags = view.u8(at + 4);
    if (!flags)
        return cutFrame(view);
    if ((*flags & 8) != 0)
        return std::nullopt;
    const bool single = (*flags & 0x20) != 0;
    static constexpr std::uint64_t kIdBytes[] = {0, 1, 2, 4}, kSizeBytes[] = {0, 2, 4, 8};
    const std::uint64_t sizeBytes = single && *flags >> 6 == 0 ? 1 : kSizeBytes[*flags >> 6];
    at += 5 + (single ? 0 : 1) + kIdBytes[*flags & 3] + sizeBytes;
    int empty = 0;
    for (bool last = false; !last;) {
        const auto head = view.number(at, 3, Endian::Little);
        if (!head)
            return cutFrame(view);
        const auto kind = *head >> 1 & 3, bytes = *head >> 3;
        empty = bytes == 0 ? empty + 1 : 0;
        if (kind == 3 || bytes > kMostBlock || empty > kMostEmpty)
            return PackedFrame{PackedFrame::State::Broken, at};
        last = (*head & 1) != 0;
        at += 3 + (kind == 1 ? 1 : bytes);  // one byte stands for a run
    }
    return PackedFrame{PackedFrame::State::Whole, at + ((*flags & 4) != 0 ? 4U : 0U)};
}

Extent walkZstandard(ByteView& view) {
    return walkPackedFrames(view, zstandardFrame);
}

}  // namespace

extern constexpr Format kZstandard = {
    .name = "Zstandard",
    .group = Group::Archives,
    .walk = walkZstandard,
    .extensions = " ZST TZST ",
    .large = true,
};

}  // namespace vantor
