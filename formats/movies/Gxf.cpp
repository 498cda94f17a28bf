// GXF movies. Source: SMPTE 360M.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kGxfMostFrames = std::uint64_t{1} << 32;

// Packets with marks at both ends of their heads, to the one that ends the stream.
Extent walkGxf(ByteView& view) {
    constexpr std::uint8_t kMap = 0xBC, kEndOfStream = 0xFB, kLast = 0xFD;
    constexpr std::uint64_t kHead = 16;
    std::uint64_t at = 0;
    for (std::uint64_t packets = 0; packets < kGxfMostFrames; ++packets) {
        const bool marked = view.matches(at, std::string_view("\0\0\0\0\1", 5)) &&
                            view.matches(at + 10, std::string_view("\0\0\0\0\xE1\xE2", 6));
        const auto kind = view.u8(at + 4 + 1).value_or(0);
        const auto bytes = view.be32(at + 6).value_or(0);
        if (!marked || (packets == 0 && kind != kMap))
            return packets == 0            ? unknownExtent()
                   : view.holds(at, kHead) ? damagedAt(view, at)
                                           : cutOffAt(view, view.size());
        if (bytes < kHead || kind > kLast)
            return damagedAt(view, at);
        at += bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (kind == kEndOfStream)
            return completeAt(view, at);
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kGxf = {
    .name = "GXF",
    .group = Group::Movies,
    .walk = walkGxf,
    .extensions = " GXF ",
    .large = true,
};

}  // namespace vantor
