// Sounds in blocks that tell their own length: Core Audio and Creative Voice. Sources: Apple Core Audio
// Format Specification 1.0; Creative Voice file format description.
#include <algorithm>
#include <array>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostBlocks = 1 << 20;

constexpr std::array<std::string_view, 16> kCoreAudioChunks = {"desc", "data", "kuki", "pakt", "strg", "mark",
                                                               "regn", "inst", "midi", "ovvw", "peak", "edct",
                                                               "info", "uuid", "free", "chan"};

}  // namespace

Extent walkCoreAudio(ByteView& view) {
    if (!view.matches(0, std::string_view("caff\0\1", 6)) || !view.matches(8, "desc"))
        return unknownExtent();
    bool data = false;
    std::uint64_t at = 8;
    for (std::uint32_t chunks = 0; chunks < kMostBlocks; ++chunks) {
        const auto isHere = [&](std::string_view name) { return view.matches(at, name); };
        const auto bytes = view.be64(at + 4);
        if (!bytes || std::none_of(kCoreAudioChunks.begin(), kCoreAudioChunks.end(), isHere)) {
            if (data)
                return completeAt(view, at);
            return bytes ? damagedAt(view, at) : cutOffAt(view, view.size());
        }
        if (*bytes == ~std::uint64_t{0})  // "to the end of the file", while it is being recorded
            return unknownExtent();
        data = data || isHere("data");
        at = addClamped(at + 12, *bytes);
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return damagedAt(view, at);
}

Extent walkVoice(ByteView& view) {
    constexpr std::uint8_t kDescribedSamples = 9, kLastKind = kDescribedSamples;
    if (!view.matches(0, "Creative Voice File\x1A"))
        return unknownExtent();
    std::uint64_t at = view.le16(20).value_or(0);
    if (at < 26 || at > 4096)
        return unknownExtent();
    std::uint8_t before = 0;  // kind of the last block
    for (std::uint32_t blocks = 0; blocks < kMostBlocks; ++blocks) {
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

}  // namespace vantor
