// AAC in ADTS frames. Source: ISO/IEC 13818-7.
#include <array>

#include "formats/AudioTags.h"
#include "formats/Format.h"
#include "formats/PlayingTime.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

Extent walkAdts(ByteView& view) {
    static constexpr std::array<std::uint32_t, 13> kRates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                                             22050, 16000, 12000, 11025, 8000,  7350};
    constexpr std::uint64_t kSamplesOfFrame = 1024;
    const auto start = skipLeadingTag(view, 0);
    constexpr std::uint32_t kSameKind = 0xFFFEFDC0;  // sync, version, layer, profile, rate, channels
    const auto first = view.be32(start).value_or(0);
    const auto rate = first >> 10 & 15;
    if (first >> 20 != 0xFFF || (first >> 17 & 3) != 0 || rate >= kRates.size())
        return unknownExtent();
    const auto frameBytes = [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.number(at, 6, Endian::Big).value_or(0);
        const auto bytes = head >> 5 & 0x1FFF;
        return ((head >> 16 ^ first) & kSameKind) == 0 && bytes >= 7 ? bytes : 0;
    };
    FrameRow row;
    Extent extent = walkFrames(view, start, start != 0 ? 1 : kProofFrames, frameBytes, &row);
    extent.facts.durationMs = playingTimeMs(row.frames * kSamplesOfFrame, kRates[rate]);
    return extent;
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
