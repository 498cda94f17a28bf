// Programs: PE and DOS executables, ELF; what their headers refer to ends them.
// Sources: Microsoft PE/COFF specification; System V ABI (ELF).
#include <algorithm>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr int kMostSections = 4096;

// The loadable part of a DOS program, told in pages of 512 bytes.
std::uint64_t dosEnd(ByteView& view) {
    const std::uint64_t last = view.le16(2).value_or(0), pages = view.le16(4).value_or(0);
    if (pages == 0 || last >= 512)
        return 0;
    return last == 0 ? pages * 512 : (pages - 1) * 512 + last;
}

}  // namespace

Extent walkExecutable(ByteView& view) {
    if (!view.matches(0, "MZ"))
        return unknownExtent();
    const std::uint64_t pe = view.le32(60).value_or(0);
    if (pe < 64 || !view.matches(pe, std::string_view("PE\0\0", 4))) {
        const auto end = dosEnd(view);
        return end >= 64 ? inexact(completeAt(view, end)) : unknownExtent();
    }
    Cursor in(view, pe + 6, Endian::Little);
    const auto sections = in.u16();
    in.skip(4);
    const std::uint64_t symbols = in.u32(), symbolCount = in.u32(), optionalBytes = in.u16();
    in.skip(2);
    const std::uint64_t optional = in.at();
    const auto wide = in.u16() == 0x20B;
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (sections == 0 || sections > kMostSections)
        return unknownExtent();
    const std::uint64_t table = optional + optionalBytes;
    std::uint64_t end = table + std::uint64_t{sections} * 40;
    for (std::uint64_t i = 0; i < sections; ++i) {
        Cursor section(view, table + i * 40 + 16, Endian::Little);
        const std::uint64_t bytes = section.u32(), at = section.u32();
        if (!section.ok())
            return cutOffAt(view, view.size());
        if (at != 0 && bytes != 0)
            end = std::max(end, at + bytes);
    }
    if (symbols != 0) {
        const auto strings = symbols + symbolCount * 18;
        end = std::max(end, strings + view.le32(strings).value_or(0));
    }
    // Signatures are the one directory that counts from the file's start.
    const std::uint64_t directory = optional + (wide ? 112 : 96) + 4 * 8;
    if (directory + 8 <= table) {
        const std::uint64_t at = view.le32(directory).value_or(0),
                            bytes = view.le32(directory + 4).value_or(0);
        end = std::max(end, at != 0 ? at + bytes : 0);
    }
    // What installers append is told nowhere.
    return inexact(completeAt(view, end));
}

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
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(segmentCount, kMostSections); ++i) {
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

}  // namespace vantor
