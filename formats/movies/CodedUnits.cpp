// Bare streams of H.264 and H.265, as recorders of surveillance cameras leave them: coded units, each behind
// a start code. Sources: ITU-T H.264 and H.265, 7.3.1, 7.4.1 and annex B.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kFewUnits = 4;                      // fewer do not make a stream
constexpr std::uint64_t kMostUnitBytes = 16 * 1024 * 1024;  // beyond all coded pictures

// What the bytes behind a start code say of the unit.
enum class Unit : std::uint8_t { None, Coded, Opening };

Unit avcUnit(ByteView& view, std::uint64_t at) {
    const auto head = view.u8(at).value_or(0x80);
    const auto type = head & 31, importance = head >> 5;
    const bool aside = type == 6 || (type >= 9 && type <= 12);  // no picture depends on these
    const bool basic = type == 5 || type == 7 || type == 8;     // and on these at least one
    const bool known = (type >= 1 && type <= 15) || (type >= 19 && type <= 21);
    if ((head & 0x80) != 0 || !known || (aside && importance != 0) || (basic && importance == 0))
        return Unit::None;
    return type == 7 || type == 9 ? Unit::Opening : Unit::Coded;
}

Unit hevcUnit(ByteView& view, std::uint64_t at) {
    const auto head = view.be16(at).value_or(0x8000);
    const auto type = head >> 9 & 63;
    const bool known = type <= 9 || (type >= 16 && type <= 21) || (type >= 32 && type <= 40) || type >= 62;
    if ((head & 0x8000) != 0 || !known || (head & 7) == 0)
        return Unit::None;
    return (type >= 32 && type <= 33) || type == 35 ? Unit::Opening : Unit::Coded;
}

// How a unit ends: at its last byte and the first of the next unit's start code, or at bytes that no unit
// holds.
struct UnitEnd {
    std::uint64_t end = 0;
    std::uint64_t next = 0;  // behind the next start code; 0 = none
    bool isEnd = false;      // of the stream: zeros that no start code follows, or the end of all
};

UnitEnd findUnitEnd(ByteView& view, std::uint64_t from) {
    const auto limit = std::min(view.size(), addClamped(from, kMostUnitBytes));
    auto zero = view.find(0, from, limit);
    for (; zero.found(); zero = view.find(0, zero.at + 1, limit)) {
        if (view.u8(zero.at + 1) != std::uint8_t{0})
            continue;
        auto behind = zero.at + 2;
        while (behind < limit && view.u8(behind) == std::uint8_t{0})
            ++behind;
        const auto byte = view.u8(behind);
        if (byte == std::uint8_t{1})
            return {zero.at, behind + 1, false};
        if (!byte || behind != zero.at + 2)
            return {zero.at, 0, true};
        // A three keeps two zeros apart from what a start code would make of the byte behind it.
        if (byte != std::uint8_t{3} || view.u8(behind + 1).value_or(0) > 3)
            return {zero.at, 0, false};
        zero.at = behind;
    }
    return {zero.at, 0, !zero.stopped() && limit == view.size()};
}

template <Unit (*kUnit)(ByteView&, std::uint64_t)>
Extent walkUnits(ByteView& view) {
    const std::uint64_t lead = view.matches(0, {"\0\0\1", 3}) ? 3 : 4;
    if (lead == 4 && !view.matches(0, {"\0\0\0\1", 4}))
        return unknownExtent();
    std::uint64_t at = lead, longest = 0;
    for (std::uint64_t units = 0;; ++units) {
        const Unit unit = kUnit(view, at);
        const auto [end, next, isEnd] = unit != Unit::None ? findUnitEnd(view, at + 1) : UnitEnd{at};
        if (units < kFewUnits && (unit == Unit::None || next == 0 || (units == 0 && unit != Unit::Opening)))
            return unknownExtent();
        if (isEnd)
            return inexact(completeAt(view, end));
        // What no unit holds is another's: the last one ended before it, and nothing tells where.
        if (next == 0)
            return inexact(cutOffAt(view, std::min(end, addClamped(at, longest))));
        // A stream that begins at a sector's start, behind a filled one, is the next file.
        const auto code = next - lead;
        if (units >= kFewUnits && isSectorStart(code) && code > end && kUnit(view, next) == Unit::Opening)
            return inexact(completeAt(view, end));
        longest = std::max(longest, end - at);
        at = next;
    }
}

}  // namespace

extern constexpr Format kAvcUnits = {
    .name = "H.264 stream",
    .group = Group::Movies,
    .walk = walkUnits<avcUnit>,
    .extensions = " H264 264 AVC ",
    .strongMagic = false,
    .large = true,
    .frameStream = true,
    .mayNotTellEnd = true,
};

extern constexpr Format kHevcUnits = {
    .name = "H.265 stream",
    .group = Group::Movies,
    .walk = walkUnits<hevcUnit>,
    .extensions = " H265 265 HEVC ",
    .strongMagic = false,
    .large = true,
    .frameStream = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
