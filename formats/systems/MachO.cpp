// Mach-O programs. Source: Apple "OS X ABI Mach-O File Format Reference".
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostCommands = 4096, kMostProcessors = 20;

struct MachKind {
    bool wide;
    Endian endian;
};

std::optional<MachKind> machAt(ByteView& view, std::uint64_t at) {
    const auto magic = view.be32(at).value_or(0);
    const bool little = magic == 0xCFFAEDFE || magic == 0xCEFAEDFE;
    if (!little && magic != 0xFEEDFACF && magic != 0xFEEDFACE)
        return std::nullopt;
    return MachKind{magic == 0xCFFAEDFE || magic == 0xFEEDFACF, little ? Endian::Little : Endian::Big};
}

// The furthest byte that a load command refers to.
std::uint64_t reachOfCommand(ByteView& view, std::uint64_t at, const MachKind& kind) {
    const auto word = [&](std::uint64_t offset, std::size_t bytes = 4) {
        return view.number(at + offset, bytes, kind.endian).value_or(0);
    };
    switch (word(0)) {
        case 0x01:  // segment
            return word(32) + word(36);
        case 0x19:  // segment of 64 bits
            return addClamped(word(40, 8), word(48, 8));
        case 0x02:  // symbols and their names
            return std::max(word(8) + word(12) * (kind.wide ? 16 : 12), word(16) + word(20));
        case 0x1D:  // code signature and other data for the linker
        case 0x1E:
        case 0x26:
        case 0x29:
        case 0x2B:
        case 0x80000033:
        case 0x80000034:
            return word(8) + word(12);
        default:
            return 0;
    }
}

Extent walkMach(ByteView& view, const MachKind& kind) {
    Cursor in(view, 16, kind.endian);
    const auto commands = in.u32();
    const std::uint64_t bytes = in.u32(), head = kind.wide ? 32 : 28;
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (commands == 0 || commands > kMostCommands || bytes < commands * 8)
        return unknownExtent();
    std::uint64_t at = head, end = head + bytes;
    for (std::uint32_t i = 0; i < commands; ++i) {
        const auto length = view.number(at + 4, 4, kind.endian);
        if (!length)
            return cutOffAt(view, view.size());
        if (*length < 8 || at + *length > head + bytes)
            return damagedAt(view, at);
        end = std::max(end, reachOfCommand(view, at, kind));
        at += *length;
    }
    return inexact(completeAt(view, end));
}

Extent walkMachO(ByteView& view) {
    if (const auto kind = machAt(view, 0))
        return walkMach(view, *kind);
    // One program for several processors.
    const auto count = view.be32(4).value_or(0);
    if (!view.matches(0, "\xCA\xFE\xBA\xBE") || count == 0 || count > kMostProcessors)
        return unknownExtent();
    std::uint64_t end = 8 + std::uint64_t{count} * 20;
    for (std::uint64_t i = 0; i < count; ++i) {
        Cursor in(view, 8 + i * 20 + 8);
        const std::uint64_t at = in.u32(), bytes = in.u32();
        if (!in.ok() || at >= view.size())
            return cutOffAt(view, view.size());
        if (!machAt(view, at) && !view.matches(at, "!<arch>"))
            return damagedAt(view, end);
        end = std::max(end, at + bytes);
    }
    return inexact(completeAt(view, end));
}

}  // namespace

extern constexpr Format kMachO = {
    .name = "Mach-O",
    .group = Group::Systems,
    .walk = walkMachO,
    .extensions = " MACHO DYLIB ",
    .strongMagic = false,
};

}  // namespace vantor
