// bzip2: the marks of its blocks are searched bit by bit; the checksum over all block checksums, told at the
// end, proves that none was missed. Source: the bzip2 format as described by J. Tsai (2016).
#include <bit>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kBlockMark = 0x314159265359;
constexpr std::uint64_t kEndMark = 0x177245385090;
constexpr std::uint64_t kMarkMask = 0xFFFFFFFFFFFF;
// A block holds at most 900,000 bytes before packing and grows by a few percent at worst.
constexpr std::uint64_t kMostBlockBytes = 1'100'000;

// 32 bits from bit position `bit` on.
std::optional<std::uint32_t> bits32(ByteView& view, std::uint64_t bit) {
    const auto bytes = view.number(bit / 8, bit % 8 == 0 ? 4 : 5, Endian::Big);
    if (!bytes)
        return std::nullopt;
    return static_cast<std::uint32_t>(bit % 8 == 0 ? *bytes : *bytes >> (8 - bit % 8));
}

enum class Mark { Block, End, None, Cut };

// The next mark at or behind bit `bit`, which moves behind it.
Mark findMark(ByteView& view, std::uint64_t& bit) {
    std::uint64_t at = bit / 8;
    const auto limit = at + kMostBlockBytes;
    const std::uint64_t first = bit;
    std::uint64_t recent = 0;
    while (at < limit) {
        const auto bytes = view.window(at);
        if (bytes.empty())
            return Mark::Cut;
        for (const auto byte : bytes) {
            recent = recent << 8 | byte;
            ++at;
            for (unsigned shift = 0; shift < 8; ++shift) {
                const auto mark = recent >> shift & kMarkMask;
                if (mark != kBlockMark && mark != kEndMark)
                    continue;
                const std::uint64_t behind = at * 8 - shift;
                if (behind < first + 48)
                    continue;
                bit = behind;
                return mark == kBlockMark ? Mark::Block : Mark::End;
            }
        }
    }
    return Mark::None;
}

bool beginsStream(ByteView& view, std::uint64_t at) {
    const auto level = view.u8(at + 3).value_or(0);
    const auto mark = view.number(at + 4, 6, Endian::Big);
    return view.matches(at, "BZh") && level >= '1' && level <= '9' &&
           (mark == kBlockMark || mark == kEndMark);
}

Extent walkBzip2(ByteView& view) {
    if (!beginsStream(view, 0))
        return unknownExtent();
    std::uint64_t at = 0;
    for (std::uint64_t streams = 0;; ++streams) {
        // As with gzip: what begins at a sector's start behind a lone stream is the next file.
        if (streams != 0 && (!beginsStream(view, at) || (streams == 1 && isSectorStart(at))))
            return completeAt(view, at);
        std::uint64_t bit = (at + 4) * 8;
        std::uint32_t combined = 0;
        Mark mark = findMark(view, bit);
        while (mark == Mark::Block) {
            combined = std::rotl(combined, 1) ^ bits32(view, bit).value_or(0);
            mark = findMark(view, bit);
        }
        const auto told = bits32(view, bit);
        if (mark == Mark::Cut || (mark == Mark::End && !told))
            return cutOffAt(view, view.size());
        if (mark == Mark::None)
            return damagedAt(view, bit / 8);
        at = (bit + 32 + 7) / 8;
        if (*told != combined)
            return damagedAt(view, at);
    }
}

}  // namespace

extern constexpr Format kBzip2 = {
    .name = "bzip2",
    .group = Group::Archives,
    .walk = walkBzip2,
    .extensions = " BZ2 TBZ TBZ2 ",
    .large = true,
};

}  // namespace vantor
