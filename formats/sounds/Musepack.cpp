// Musepack, versions 7 and 8. Source: Musepack SV7/SV8 notes.
#include <array>

#include "formats/AudioTags.h"
#include "formats/Format.h"

namespace vantor {

namespace {

// Version 8: named packets, each with its length in groups of seven bits, to the one that ends the stream.
Extent walkMusepack8(ByteView& view) {
    std::uint64_t at = 4;
    for (;;) {
        std::array<std::uint8_t, 2> name{};
        if (!view.copy(at, name))
            return cutOffAt(view, view.size());
        std::uint64_t bytes = 0;
        std::uint64_t digits = 0;
        for (bool more = true; more && digits < 8; ++digits) {
            const auto digit = view.u8(at + 2 + digits).value_or(0);
            bytes = bytes << 7 | (digit & 0x7F);
            more = (digit & 0x80) != 0;
        }
        const bool letters = name[0] >= 'A' && name[0] <= 'Z' && name[1] >= 'A' && name[1] <= 'Z';
        if (!letters || bytes < 2 + digits)
            return damagedAt(view, at);
        at = addClamped(at, bytes);
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (name[0] == 'S' && name[1] == 'E')
            return completeAt(view, skipTrailingTags(view, at));
    }
}

// Version 7: the told number of frames, each led by its length in 20 bits. Bits run through 32-bit words that
// are stored low byte first.
Extent walkMusepack7(ByteView& view) {
    constexpr std::uint64_t kFirstFrameBit = 25 * 8;
    constexpr std::uint32_t kMostFrames = 1 << 24;  // five days
    const auto frames = view.le32(4).value_or(0);
    if (frames == 0 || frames > kMostFrames)
        return unknownExtent();
    std::uint64_t bit = kFirstFrameBit;
    for (std::uint32_t frame = 0; frame < frames; ++frame) {
        const auto word = bit / 32 * 4;
        const auto high = view.le32(word), low = view.le32(word + 4);
        if (!high)
            return cutOffAt(view, view.size());
        const auto both = std::uint64_t{*high} << 32 | low.value_or(0);
        bit += 20 + (both >> (44 - bit % 32) & 0xFFFFF);
    }
    constexpr std::uint64_t kLastFrameBits = 11;  // how much of the last frame sounds
    const auto end = (bit + kLastFrameBits + 31) / 32 * 4;
    if (end > view.size())
        return cutOffAt(view, view.size());
    return inexact(completeAt(view, skipTrailingTags(view, end)));
}

Extent walkMusepack(ByteView& view) {
    if (view.matches(0, "MPCK"))
        return walkMusepack8(view);
    const bool version7 = view.matches(0, "MP+") && (view.u8(3).value_or(0) & 15) == 7;
    return version7 ? walkMusepack7(view) : unknownExtent();
}

}  // namespace

extern constexpr Format kMusepack = {
    .name = "Musepack",
    .group = Group::Sounds,
    .walk = walkMusepack,
    .extensions = " MPC MP+ ",
};

}  // namespace vantor
