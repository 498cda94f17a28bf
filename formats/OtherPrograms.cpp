// Programs of other systems: Mach-O, WebAssembly, Java classes; and translation tables.
// Sources: Apple "OS X ABI Mach-O File Format Reference"; WebAssembly Core Specification 2.0; Java Virtual
// Machine Specification, chapter 4; GNU gettext manual ("The Format of GNU MO Files").
#include <algorithm>

#include "formats/Walkers.h"

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

}  // namespace

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

// Sections until what follows is none: a number, a length, and all but the first kind in a fixed order.
Extent walkWebAssembly(ByteView& view) {
    static constexpr std::uint8_t kOrder[] = {0, 1, 2, 3, 4, 6, 7, 8, 9, 11, 12, 10, 5};
    constexpr unsigned kMostGroups = 5;
    if (!view.matches(0, std::string_view("\0asm\1\0\0\0", 8)))
        return unknownExtent();
    std::uint64_t at = 8;
    std::uint8_t last = 0;
    for (;;) {
        const auto kind = view.u8(at);
        if (!kind || *kind >= std::size(kOrder) || (*kind != 0 && kOrder[*kind] <= last))
            break;
        std::uint64_t content = at + 1;
        const auto bytes = groupedNumber(view, content, kMostGroups);
        if (!bytes || *bytes == 0)
            break;
        at = content + *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        last = std::max(last, kOrder[*kind]);
    }
    return inexact(completeAt(view, at));
}

namespace {

// Bytes of a constant behind its tag; 0 for a tag that none bears. Texts tell their length.
std::uint64_t constantBytes(std::uint8_t tag) {
    switch (tag) {
        case 7:
        case 8:
        case 16:
        case 19:
        case 20:
            return 2;
        case 15:
            return 3;
        case 3:
        case 4:
        case 9:
        case 10:
        case 11:
        case 12:
        case 17:
        case 18:
            return 4;
        case 5:
        case 6:
            return 8;
        default:
            return 0;
    }
}

void skipAttributes(Cursor& in) {
    for (std::uint32_t left = in.u16(); left > 0 && in.ok(); --left) {
        in.skip(2);
        const auto bytes = in.u32();
        in.skip(bytes);
    }
}

}  // namespace

Extent walkJavaClass(ByteView& view) {
    Cursor in(view, 6);
    const auto version = in.u16();
    std::uint32_t constants = in.u16();
    if (!view.matches(0, "\xCA\xFE\xBA\xBE") || version < 45 || version > 99 || constants < 2)
        return unknownExtent();
    while (--constants > 0 && in.ok()) {
        constexpr std::uint8_t kText = 1, kLong = 5, kDouble = 6;
        const auto at = in.at();
        const auto tag = in.u8();
        const std::uint64_t bytes = tag == kText ? in.u16() : constantBytes(tag);
        if (in.ok() && tag != kText && bytes == 0)
            return damagedAt(view, at);
        in.skip(bytes);
        if ((tag == kLong || tag == kDouble) && constants > 1)
            --constants;  // takes two numbers
    }
    in.skip(6);
    const auto interfaces = in.u16();
    in.skip(std::uint64_t{interfaces} * 2);
    for (int kind = 0; kind < 2; ++kind) {  // fields, methods
        for (std::uint32_t left = in.u16(); left > 0 && in.ok(); --left) {
            in.skip(6);
            skipAttributes(in);
        }
    }
    skipAttributes(in);
    return in.ok() ? completeAt(view, in.at()) : cutOffAt(view, view.size());
}

// Two tables of texts and a hash table; every text is followed by a NUL.
Extent walkTranslations(ByteView& view) {
    constexpr std::uint32_t kMostTexts = 1 << 20;
    const bool little = view.matches(0, "\xDE\x12\x04\x95");
    if (!little && !view.matches(0, "\x95\x04\x12\xDE"))
        return unknownExtent();
    const auto endian = little ? Endian::Little : Endian::Big;
    Cursor in(view, 4, endian);
    const auto revision = in.u32(), texts = in.u32();
    const std::uint64_t tables[] = {in.u32(), in.u32()};
    const std::uint64_t hashes = in.u32(), hashTable = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (revision != 0 || texts == 0 || texts > kMostTexts)
        return unknownExtent();
    std::uint64_t end = std::max<std::uint64_t>(28, hashes != 0 ? hashTable + hashes * 4 : 0);
    for (const auto table : tables) {
        for (std::uint64_t i = 0; i < texts; ++i) {
            Cursor entry(view, table + i * 8, endian);
            const std::uint64_t bytes = entry.u32(), at = entry.u32();
            if (!entry.ok())
                return cutOffAt(view, view.size());
            end = std::max(end, at + bytes + 1);
        }
    }
    return completeAt(view, end);
}

}  // namespace vantor
