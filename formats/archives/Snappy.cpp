// Snappy packed files (SZ): chunks that tell their length. Source: Snappy framing format description.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::string_view kBeginning("\xFF\x06\0\0sNaPpY", 10);

Extent walkSnappy(ByteView& view) {
    constexpr std::uint8_t kPacked = 0, kPlain = 1, kLeastSkipped = 0x80, kStream = 0xFF;
    constexpr std::uint64_t kSum = 4, kMostPlain = 65536 + kSum, kMostPacked = 76490 + kSum;
    if (!view.matches(0, kBeginning))
        return unknownExtent();
    std::uint64_t at = kBeginning.size();
    for (;;) {
        const auto kind = view.u8(at);
        const auto bytes = view.number(at + 1, 3, Endian::Little);
        if (!kind || !bytes)
            return inexact(at == view.size() ? completeAt(view, at) : cutOffAt(view, at));
        const bool data = (*kind == kPacked && *bytes > kSum && *bytes <= kMostPacked) ||
                          (*kind == kPlain && *bytes > kSum && *bytes <= kMostPlain);
        const bool skipped = *kind >= kLeastSkipped && *kind != kStream && *bytes != 0;
        // Streams may be joined, but what begins at a sector is the next file.
        const bool joined = view.matches(at, kBeginning) && !isSectorStart(at);
        if (!data && !skipped && !joined)
            return inexact(completeAt(view, at));
        // Noise passes for a skipped chunk half of the time: one must be followed by another or by the end.
        const auto next = at + 4 + *bytes;
        if (next > view.size())
            return skipped ? inexact(completeAt(view, at)) : cutOffAt(view, view.size());
        if (skipped && next != view.size() && view.u8(next).value_or(2) > kPlain)
            return inexact(completeAt(view, at));
        at = next;
    }
}

}  // namespace

extern constexpr Format kSnappy = {
    .name = "Snappy",
    .group = Group::Archives,
    .walk = walkSnappy,
    .extensions = " SZ ",
    .large = true,
};

}  // namespace vantor
