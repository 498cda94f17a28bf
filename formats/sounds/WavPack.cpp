// WavPack. Source: WavPack 4 & 5 binary file format.
#include "formats/AudioTags.h"
#include "formats/Format.h"

namespace vantor {

namespace {

// Blocks that count samples up to the number that the first one tells.
Extent walkWavPack(ByteView& view) {
    constexpr std::uint64_t kHead = 32, kMostBlock = 16 * 1024 * 1024;
    constexpr std::uint32_t kLastChannels = 0x1000, kUntold = 0xFFFFFFFF;
    std::uint64_t at = 0;
    std::uint64_t all = kUntold;
    bool done = false;
    while (!done) {
        Cursor in(view, at + 4, Endian::Little);
        const std::uint64_t bytes = in.u32();
        const auto version = in.u16();
        in.skip(2);
        const std::uint64_t total = in.u32(), index = in.u32(), samples = in.u32();
        const auto flags = in.u32();
        const bool block = view.matches(at, "wvpk") && bytes + 8 >= kHead && bytes <= kMostBlock &&
                           version >= 0x402 && version <= 0x410;
        if (!in.ok() || !block) {
            if (at == 0)
                return unknownExtent();
            if (all == kUntold)
                return inexact(completeAt(view, skipTrailingTags(view, at)));
            return view.holds(at, kHead) ? damagedAt(view, at) : cutOffAt(view, view.size());
        }
        if (at == 0)
            all = total;
        at += 8 + bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        done = all != kUntold && samples != 0 && index + samples >= all && (flags & kLastChannels) != 0;
    }
    // The writer may close with a block that holds no samples.
    if (view.matches(at, "wvpk") && view.le32(at + 20) == 0U) {
        const auto end = at + 8 + view.le32(at + 4).value_or(0);
        at = end <= view.size() ? end : at;
    }
    return completeAt(view, skipTrailingTags(view, at));
}

}  // namespace

extern constexpr Format kWavPack = {
    .name = "WavPack",
    .group = Group::Sounds,
    .walk = walkWavPack,
    .extensions = " WV WVC ",
};

}  // namespace vantor
