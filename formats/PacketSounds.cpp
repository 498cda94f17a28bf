// Sounds in blocks of told length, and music of trackers and consoles: True Audio, WavPack, XM, SPC.
// Sources: TTA1 format description; WavPack 4 & 5 binary file format; FastTracker 2 XM description; SPC file
// notes.
#include "formats/AudioTags.h"
#include "formats/Walkers.h"

namespace vantor {

Extent walkTrueAudio(ByteView& view) {
    constexpr std::uint64_t kHead = 22, kMostFrames = 1 << 22;
    if (!view.matches(0, std::string_view("TTA1\1\0", 6)))
        return unknownExtent();
    Cursor in(view, 10, Endian::Little);
    const std::uint64_t rate = in.u32(), samples = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    const std::uint64_t frame = rate * 256 / 245;  // samples
    if (frame == 0 || samples == 0 || samples / frame >= kMostFrames)
        return unknownExtent();
    const auto frames = (samples + frame - 1) / frame;
    auto end = kHead + frames * 4 + 4;
    for (std::uint64_t i = 0; i < frames; ++i) {
        const auto bytes = view.le32(kHead + i * 4);
        if (!bytes)
            return cutOffAt(view, view.size());
        end += *bytes;
    }
    return end > view.size() ? cutOffAt(view, view.size()) : completeAt(view, skipTrailingTags(view, end));
}

// Blocks that count samples up to the number that the first one tells.
Extent walkWavPack(ByteView& view) {
    constexpr std::uint64_t kHead = 32, kMostBlock = 16 * 1024 * 1024;
    constexpr std::uint32_t kLastChannels = 0x1000, kUntold = 0xFFFFFFFF;
    std::uint64_t at = 0;
    std::uint64_t all = kUntold;
    bool done = false;
    while (!done) {
        Cursor in(view, at + 4, Endian::Little);
        const std::uint64_t bytes = in.u32();
        const auto version = in.u16();
        in.skip(2);
        const std::uint64_t total = in.u32(), index = in.u32(), samples = in.u32();
        const auto flags = in.u32();
        const bool block = view.matches(at, "wvpk") && bytes + 8 >= kHead && bytes <= kMostBlock &&
                           version >= 0x402 && version <= 0x410;
        if (!in.ok() || !block) {
            if (at == 0)
                return unknownExtent();
            if (all == kUntold)
                return inexact(completeAt(view, skipTrailingTags(view, at)));
            return view.holds(at, kHead) ? damagedAt(view, at) : cutOffAt(view, view.size());
        }
        if (at == 0)
            all = total;
        at += 8 + bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        done = all != kUntold && samples != 0 && index + samples >= all && (flags & kLastChannels) != 0;
    }
    // The writer may close with a block that holds no samples.
    if (view.matches(at, "wvpk") && view.le32(at + 20) == 0U) {
        const auto end = at + 8 + view.le32(at + 4).value_or(0);
        at = end <= view.size() ? end : at;
    }
    return completeAt(view, skipTrailingTags(view, at));
}

namespace {

// Behind an instrument at `at` and the sounds of it; nothing when it is not all there.
std::optional<std::uint64_t> behindInstrument(ByteView& view, std::uint64_t at) {
    const auto bytes = view.le32(at);
    const auto sounds = view.le16(at + 27);
    if (!bytes || !sounds)
        return std::nullopt;
    auto next = at + *bytes;
    if (*sounds == 0)
        return next;
    const std::uint64_t head = view.le32(at + 29).value_or(0);
    auto end = next + head * *sounds;
    for (std::uint32_t i = 0; i < *sounds; ++i, next += head) {
        const auto length = view.le32(next);
        if (!length)
            return std::nullopt;
        end += *length;
    }
    return end;
}

}  // namespace

Extent walkExtendedModule(ByteView& view) {
    constexpr std::uint16_t kMostPatterns = 256, kMostInstruments = 255;
    if (!view.matches(0, "Extended Module: ") || view.u8(37) != 0x1A)
        return unknownExtent();
    Cursor in(view, 60, Endian::Little);
    std::uint64_t at = 60 + std::uint64_t{in.u32()};
    in.skip(6);
    const auto patterns = in.u16(), instruments = in.u16();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (patterns > kMostPatterns || instruments > kMostInstruments)
        return unknownExtent();
    for (std::uint16_t i = 0; i < patterns; ++i) {
        const auto head = view.le32(at);
        const auto bytes = view.le16(at + 7);
        if (!head || !bytes)
            return cutOffAt(view, view.size());
        if (*head < 9)
            return damagedAt(view, at);
        at += std::uint64_t{*head} + *bytes;
    }
    for (std::uint16_t i = 0; i < instruments; ++i) {
        const auto next = behindInstrument(view, at);
        if (!next)
            return cutOffAt(view, view.size());
        if (*next < at + 29)
            return damagedAt(view, at);
        at = *next;
    }
    return completeAt(view, at);
}

// The memory of a console's sound processor, and notes that may follow.
Extent walkConsoleSound(ByteView& view) {
    constexpr std::uint64_t kMemory = 66048;
    if (!view.matches(0, "SNES-SPC700 Sound File Data v0"))
        return unknownExtent();
    if (!view.matches(kMemory, "xid6"))
        return completeAt(view, kMemory);
    const auto notes = view.le32(kMemory + 4);
    return notes ? completeAt(view, kMemory + 8 + *notes) : cutOffAt(view, view.size());
}

}  // namespace vantor
