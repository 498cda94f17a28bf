// AAC in the stream of digital television (LATM in LOAS): frames that tell their length. Source: ISO/IEC
// 14496-3, 1.7 (multiplex layer).
#include "formats/AudioTags.h"
#include "formats/Format.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

Extent walkLatm(ByteView& view) {
    const auto frameBytes = [&](std::uint64_t at) -> std::uint64_t {
        constexpr std::uint64_t kSync = 0x2B7, kHead = 3, kLeast = 2;
        const auto head = view.number(at, 3, Endian::Big).value_or(0);
        const auto length = head & 0x1FFF;
        return head >> 13 == kSync && length >= kLeast ? kHead + length : 0;
    };
    return walkFrames(view, skipLeadingTag(view, 0), kProofFrames, frameBytes);
}

}  // namespace

extern constexpr Format kLatm = {
    .name = "LATM",
    .group = Group::Sounds,
    .walk = walkLatm,
    .extensions = " LATM LOAS ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor
