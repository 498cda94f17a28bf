// AC-3 and enhanced AC-3: nothing but frames. Source: ETSI TS 102 366.
#include <algorithm>
#include <array>

#include "formats/AudioTags.h"
#include "formats/Crc.h"
#include "formats/Format.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

Extent walkAc3(ByteView& view) {
    static constexpr std::array<std::uint16_t, 19> kKilobits = {
        32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 448, 512, 576, 640};
    const auto frameBytes = [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.number(at, 6, Endian::Big).value_or(0);
        if (head >> 32 != 0x0B77)
            return 0;
        const auto version = head >> 3 & 31;
        if (version > 10 && version <= 16)  // enhanced: words less one
            return ((head >> 16 & 0x7FF) + 1) * 2;
        const auto rate = head >> 14 & 3, code = head >> 8 & 63;
        if (version > 10 || rate == 3 || code >= kKilobits.size() * 2)
            return 0;
        const std::uint64_t kilobits = kKilobits[code / 2];
        if (rate == 0)  // 48 kHz
            return kilobits * 4;
        if (rate == 2)  // 32 kHz
            return kilobits * 6;
        return (kilobits * 320 / 147 + code % 2) * 2;  // 44.1 kHz
    };
    const auto start = skipLeadingTag(view, 0);
    const auto isProved = [&](std::uint64_t at) {
        const auto bytes = static_cast<std::size_t>(frameBytes(at));
        const auto frame = view.window(at, bytes);
        std::uint16_t crc = 0;
        for (std::size_t i = 2; i < std::min(frame.size(), bytes); ++i)
            crc = crc16(crc, frame[i]);
        return bytes != 0 && frame.size() >= bytes && crc == 0;
    };
    // The checksum behind the sync word makes even a single frame trustworthy.
    const bool proved = isProved(start);
    FrameRow row;
    const Extent extent = walkFrames(view, start, proved ? 1 : kProofFrames, frameBytes, &row);
    // A frame cut short was made whole out of another file's bytes.
    if (proved && extent.verdict == Verdict::Complete && !isProved(row.last))
        return damagedAt(view, row.last);
    return extent;
}

}  // namespace

extern constexpr Format kAc3 = {
    .name = "AC-3",
    .group = Group::Sounds,
    .walk = walkAc3,
    .extensions = " AC3 EAC3 EC3 ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor
