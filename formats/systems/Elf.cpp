// ELF programs; what their headers refer to ends them. Source: System V ABI.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr int kElfMostSections = 4096;

Extent walkElf(ByteView& view) {
    const auto kind = view.u8(4).value_or(0), order = view.u8(5).value_or(0);
    if (!view.matches(0,
                      "\x7F"
                      "ELF") ||
        kind < 1 || kind > 2 || order < 1 || order > 2)
        return unknownExtent();
    const bool wide = kind == 2;
    const auto endian = order == 1 ? Endian::Little : Endian::Big;
    const auto word = [&](std::uint64_t at) { return view.number(at, wide ? 8 : 4, endian).value_or(0); };
    const auto half = [&](std::uint64_t at) { return view.number(at, 2, endian).value_or(0); };
    const auto segments = word(wide ? 32 : 28), sections = word(wide ? 40 : 32);
    const std::uint64_t sizes = wide ? 54 : 42;
    const auto segmentBytes = half(sizes), segmentCount = half(sizes + 2);
    const auto sectionBytes = half(sizes + 4), sectionCount = half(sizes + 6);
    std::uint64_t end = std::max(addClamped(segments, segmentBytes * segmentCount),
                                 addClamped(sections, sectionBytes * sectionCount));
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(segmentCount, kElfMostSections); ++i) {
        const auto at = addClamped(segments, i * segmentBytes);
        end = std::max(end,
                       addClamped(word(addClamped(at, wide ? 8 : 4)), word(addClamped(at, wide ? 32 : 16))));
    }
    constexpr std::uint64_t kNoBits = 8;  // occupies no file space
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(sectionCount, 65536); ++i) {
        const auto at = addClamped(sections, i * sectionBytes);
        if (!view.holds(at, wide ? 64 : 40))
            break;
        if (view.number(at + 4, 4, endian) != kNoBits)
            end = std::max(end, addClamped(word(at + (wide ? 24 : 16)), word(at + (wide ? 32 : 20))));
    }
    if (end < 52)
        return damagedAt(view, 52);
    return inexact(completeAt(view, end));
}

}  // namespace

extern constexpr Format kElf = {
    .name = "ELF",
    .group = Group::Systems,
    .walk = walkElf,
    .extensions = " ELF SO O ",
};

}  // namespace vantor
