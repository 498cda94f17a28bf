// Creative Voice files (VOC). Source: Creative Voice file format description.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kCreativeVoiceMostBlocks = 1 << 20;

Extent walkVoice(ByteView& view) {
    constexpr std::uint8_t kDescribedSamples = 9, kLastKind = kDescribedSamples;
    if (!view.matches(0, "Creative Voice File\x1A"))
        return unknownExtent();
    std::uint64_t at = view.le16(20).value_or(0);
    if (at < 26 || at > 4096)
        return unknownExtent();
    std::uint8_t before = 0;  // kind of the last block
    for (std::uint32_t blocks = 0; blocks < kCreativeVoiceMostBlocks; ++blocks) {
        const auto kind = view.u8(at);
        if (!kind)
            return cutOffAt(view, view.size());
        if (*kind == 0)
            return completeAt(view, at + 1);
        const auto length = view.le32(at);
        if (*kind > kLastKind) {
            // One writer counts 4 of the 12 bytes that describe its samples.
            if (before == kDescribedSamples && view.u8(at + 8) == 0)
                return completeAt(view, at + 9);
            return damagedAt(view, at);
        }
        before = *kind;
        if (!length)
            return cutOffAt(view, view.size());
        at += 4 + (*length >> 8);
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kCreativeVoice = {
    .name = "Creative Voice",
    .group = Group::Sounds,
    .walk = walkVoice,
    .extensions = " VOC ",
};

}  // namespace vantor
