// AAC in ADTS frames. Source: ISO/IEC 13818-7.
#include "formats/AudioTags.h"
#include "formats/Format.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

Extent walkAdts(ByteView& view) {
    const auto start = skipLeadingTag(view, 0);
    constexpr std::uint32_t kSameKind = 0xFFFEFDC0;  // sync, version, layer, profile, rate, channels
    const auto first = view.be32(start).value_or(0);
    const auto rate = first >> 10 & 15;
    if (first >> 20 != 0xFFF || (first >> 17 & 3) != 0 || rate > 12)
        return unknownExtent();
    return walkFrames(view, start, start != 0 ? 1 : kProofFrames, [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.number(at, 6, Endian::Big).value_or(0);
        const auto bytes = head >> 5 & 0x1FFF;
        return ((head >> 16 ^ first) & kSameKind) == 0 && bytes >= 7 ? bytes : 0;
    });
}

}  // namespace

extern constexpr Format kAdts = {
    .name = "ADTS",
    .group = Group::Sounds,
    .walk = walkAdts,
    .extensions = " AAC ADTS ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor
