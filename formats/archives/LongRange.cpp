// Files packed by looking far back (LRZ, version 0.6): chunks of two streams, whose blocks tell where the
// next of their stream begins. Source: the format's page in the packer's documents ("magic header").
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

struct Chunk {
    std::uint64_t start;  // of the streams' first heads, from which places are counted
    unsigned width;       // of its numbers, in bytes
    std::uint64_t headBytes() const { return 1 + 3 * std::uint64_t{width}; }
};

enum class ChunkState { Whole, Cut, Broken };

// Follows the blocks of the stream whose first head stands at `at`; `end` grows to behind the last of them.
ChunkState followBlocks(ByteView& view, const Chunk& chunk, std::uint64_t at, std::uint64_t& end) {
    constexpr std::uint8_t kPlain = 3, kLastKind = 8;
    for (;;) {
        const auto kind = view.u8(at);
        const auto packed = view.number(at + 1, chunk.width, Endian::Little);
        const auto next = view.number(at + 1 + 2 * std::uint64_t{chunk.width}, chunk.width, Endian::Little);
        if (!kind || !packed || !next)
            return ChunkState::Cut;
        if (*kind < kPlain || *kind > kLastKind)
            return ChunkState::Broken;
        end = std::max(end, addClamped(at + chunk.headBytes(), *packed));
        if (*next == 0)
            return ChunkState::Whole;
        const auto place = addClamped(chunk.start, *next);
        if (place < at + chunk.headBytes())
            return ChunkState::Broken;
        at = place;
    }
}

Extent walkLongRange(ByteView& view) {
    constexpr std::uint64_t kHead = 24, kSum = 16;
    constexpr std::uint8_t kMinor = 6;
    const auto summed = view.u8(21), ciphered = view.u8(22);
    if (!view.matches(0, "LRZI") || view.u8(4) != 0 || view.u8(5) != kMinor || !ciphered || *ciphered != 0)
        return unknownExtent();
    for (std::uint64_t at = kHead;;) {
        const auto width = view.u8(at), last = view.u8(at + 1);
        if (!width || !last)
            return cutOffAt(view, view.size());
        if (*width == 0 || *width > 8 || *last > 1)
            return damagedAt(view, at);
        const Chunk chunk{at + 2 + *width, *width};
        std::uint64_t end = chunk.start + 2 * chunk.headBytes();
        for (const std::uint64_t first : {chunk.start, chunk.start + chunk.headBytes()}) {
            const auto state = followBlocks(view, chunk, first, end);
            if (state != ChunkState::Whole)
                return state == ChunkState::Cut ? cutOffAt(view, view.size()) : damagedAt(view, at);
        }
        if (*last == 1)
            return completeAt(view, addClamped(end, *summed == 1 ? kSum : 0));
        if (!view.holds(0, end))
            return cutOffAt(view, view.size());
        at = end;
    }
}

}  // namespace

extern constexpr Format kLongRange = {
    .name = "LRZ",
    .group = Group::Archives,
    .walk = walkLongRange,
    .extensions = " LRZ ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
