// AMR speech, narrow and wide band: nothing but frames. Source: RFC 4867.
#include <array>

#include "formats/Format.h"
#include "formats/PlayingTime.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

Extent walkAmr(ByteView& view) {
    static constexpr std::array<std::uint8_t, 16> kNarrow = {13, 14, 16, 18, 20, 21, 27, 32,
                                                             6,  0,  0,  0,  0,  0,  0,  1};
    static constexpr std::array<std::uint8_t, 16> kWide = {18, 24, 33, 37, 41, 47, 51, 59,
                                                           61, 6,  0,  0,  0,  0,  1,  1};
    const bool wide = view.matches(0, "#!AMR-WB\n");
    if (!wide && !view.matches(0, "#!AMR\n"))
        return unknownExtent();
    const auto frameBytes = [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.u8(at).value_or(0xFF);
        // A bad-quality frame of the lowest rate looks like the zeros of an empty sector: take it for these.
        if ((head & 0x83) != 0 || head == 0)
            return 0;
        return (wide ? kWide : kNarrow)[head >> 3 & 15];
    };
    constexpr std::uint64_t kFramesPerSecond = 50;
    FrameRow row;
    Extent extent = walkFrames(view, wide ? 9 : 6, 1, frameBytes, &row);
    extent.facts.durationMs = playingTimeMs(row.frames, kFramesPerSecond);
    return extent;
}

}  // namespace

extern constexpr Format kAmr = {
    .name = "AMR",
    .group = Group::Sounds,
    .walk = walkAmr,
    .extensions = " AMR AWB ",
    .frameStream = true,
};

}  // namespace vantor
