// Sound files that tell their length in a header: AU, MIDI, Monkey's Audio, Musepack. Sources: Sun au(5);
// Standard MIDI Files 1.0; Musepack SV7/SV8 notes.
#include <array>

#include "formats/AudioTags.h"
#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr int kMostChunks = 1 << 16;

}  // namespace

Extent walkAu(ByteView& view) {
    if (!view.matches(0, ".snd"))
        return unknownExtent();
    Cursor in(view, 4);
    const std::uint64_t head = in.u32(), bytes = in.u32();
    const auto encoding = in.u32();
    in.skip(4);
    const auto channels = in.u32();
    if (!in.ok() || head < 24 || head > 65536 || encoding == 0 || encoding > 64 || channels == 0 ||
        channels > 256)
        return unknownExtent();
    if (bytes == 0xFFFFFFFF)  // "not told"
        return unknownExtent();
    return completeAt(view, head + bytes);
}

Extent walkMidi(ByteView& view) {
    if (!view.matches(0, "MThd"))
        return unknownExtent();
    Cursor in(view, 4);
    std::uint64_t at = 8 + std::uint64_t{in.u32()};
    in.skip(2);
    const auto tracks = in.u16();
    if (!in.ok() || at < 14 || at > 64 || tracks == 0)
        return unknownExtent();
    for (std::uint32_t seen = 0, chunks = 0; seen < tracks && chunks < kMostChunks; ++chunks) {
        const auto bytes = view.be32(at + 4);
        if (!bytes)
            return cutOffAt(view, at);
        if (view.matches(at, "MTrk"))
            ++seen;
        else if ((view.u8(at).value_or(0) & 0xC0) != 0x40)  // chunks of other kinds are named by letters
            return damagedAt(view, at);
        at += 8 + std::uint64_t{*bytes};
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return completeAt(view, at);
}

Extent walkMonkeysAudio(ByteView& view) {
    constexpr std::uint16_t kFirstWithDescriptor = 3980;
    if (!view.matches(0, "MAC ") || view.le16(4).value_or(0) < kFirstWithDescriptor)
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const std::uint64_t descriptor = in.u32(), header = in.u32(), seekTable = in.u32(), headerData = in.u32();
    const std::uint64_t frames = in.u64();
    const std::uint64_t tail = in.u32();
    if (!in.ok() || descriptor < 52 || descriptor > 4096 || header > 4096)
        return unknownExtent();
    const auto end = addClamped(frames, descriptor + header + seekTable + headerData + tail);
    if (end > view.size())
        return cutOffAt(view, view.size());
    return completeAt(view, skipTrailingTags(view, end));
}

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

}  // namespace

Extent walkMusepack(ByteView& view) {
    if (view.matches(0, "MPCK"))
        return walkMusepack8(view);
    const bool version7 = view.matches(0, "MP+") && (view.u8(3).value_or(0) & 15) == 7;
    return version7 ? walkMusepack7(view) : unknownExtent();
}

}  // namespace vantor
