// Bi-level pictures of JBIG1, as fax and printer programs write them: a header of twenty bytes, then coded
// stripes that each end with a mark. Source: ITU-T T.82, section 6.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kJbigHead = 20;
constexpr std::uint64_t kLeastReach = 4096, kMostReach = 64 * 1024 * 1024;

// Stripes that the header announces: one of each layer and plane for each row of stripes; 0 where it is none.
// Between two marks stand no more bytes than twice those of a stripe's pixels.
std::uint64_t stripesTold(ByteView& view, Facts& facts, std::uint64_t& mostBetween) {
    constexpr std::uint8_t kMostLayers = 36, kOwnTable = 0x02, kFixedTable = 0x04;
    constexpr std::uint32_t kMostSide = 1U << 20;
    constexpr std::uint64_t kMostStripes = 1U << 22;
    Cursor in(view);
    const std::uint64_t first = in.u8(), last = in.u8(), planes = in.u8(), filling = in.u8();
    const auto width = in.u32(), height = in.u32(), lines = in.u32();
    const auto reachAside = in.u8(), reachUp = in.u8(), order = in.u8(), options = in.u8();
    if (!in.ok() || last > kMostLayers || first > last || planes == 0 || filling != 0 || reachAside > 127 ||
        reachUp != 0 || (order & 0xF0) != 0 || (options & 0x80) != 0 ||
        (options & (kOwnTable | kFixedTable)) == kOwnTable)
        return 0;
    if (width == 0 || width > kMostSide || height == 0 || height > kMostSide || lines == 0 || last > 31)
        return 0;
    facts.width = width;
    facts.height = height;
    mostBetween = kLeastReach + std::uint64_t{width} / 4 * std::min(lines, height);
    // The lowest layer has this many rows of stripes, and so has every other.
    const std::uint64_t lowest = (height + (std::uint64_t{1} << last) - 1) >> last;
    const std::uint64_t rows = (lowest + lines - 1) / lines;
    const std::uint64_t stripes = rows * (last - first + 1) * planes;
    return stripes <= kMostStripes ? stripes : 0;
}

Extent walkJbig(ByteView& view) {
    constexpr std::uint8_t kEscape = 0xFF;
    enum : std::uint8_t { Stuffed = 0, Normal = 2, Reset = 3, NewLength = 5, Moved = 6, Comment = 7 };
    Facts facts;
    std::uint64_t mostBetween = 0;
    const auto stripes = stripesTold(view, facts, mostBetween);
    if (stripes == 0)
        return unknownExtent();
    std::uint64_t at = kJbigHead;
    for (std::uint64_t done = 0; done < stripes;) {
        const auto reach = addClamped(at, std::min(mostBetween, kMostReach));
        const auto mark = view.find(kEscape, at, std::min(reach, view.size()));
        if (!mark.found() && !mark.stopped() && reach < view.size())
            return damagedAt(view, at, facts);
        const auto kind = mark.found() ? view.u8(mark.at + 1) : std::nullopt;
        if (!kind)
            return cutOffAt(view, view.size(), facts);
        at = mark.at + 2;
        switch (*kind) {
            case Stuffed:
                break;
            case Normal:
            case Reset:
                ++done;
                break;
            case NewLength:
                at += 4;
                break;
            case Moved:
                at += 6;
                break;
            case Comment:
                at = addClamped(at + 4, view.be32(at).value_or(0));
                break;
            default:
                return damagedAt(view, mark.at, facts);
        }
    }
    return completeAt(view, at, facts);
}

}  // namespace

extern constexpr Format kJbig = {
    .name = "JBIG",
    .group = Group::Pictures,
    .walk = walkJbig,
    .extensions = " JBG ",
    .strongMagic = false,
};

}  // namespace vantor
