// GIF: blocks and their sub-blocks to the trailer. Source: GIF89a specification.
#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kScreenEnd = 13;
constexpr std::uint64_t kMostPadding = 4;  // stray zero bytes some writers leave between blocks

std::uint64_t colourTableBytes(std::uint8_t flags) {
    return (flags & 0x80) != 0 ? std::uint64_t{3} << ((flags & 7) + 1) : 0;
}

// Position behind a chain of sub-blocks, or nothing when the view ends inside it.
std::optional<std::uint64_t> skipSubBlocks(ByteView& view, std::uint64_t at) {
    for (;;) {
        const auto length = view.u8(at);
        if (!length)
            return std::nullopt;
        at += 1 + *length;
        if (*length == 0)
            return at;
    }
}

}  // namespace

Extent walkGif(ByteView& view) {
    if (!view.matches(0, "GIF87a") && !view.matches(0, "GIF89a"))
        return unknownExtent();
    Facts facts;
    facts.width = view.le16(6).value_or(0);
    facts.height = view.le16(8).value_or(0);
    std::uint64_t at = kScreenEnd + colourTableBytes(view.u8(10).value_or(0));
    bool sawPicture = false;
    std::uint64_t padding = 0;
    for (;;) {
        const auto kind = view.u8(at);
        if (!kind)
            return cutOffAt(view, at, facts);
        std::optional<std::uint64_t> next;
        if (*kind == 0x3B)
            return sawPicture ? completeAt(view, at + 1, facts) : damagedAt(view, at + 1, facts);
        if (*kind == 0x21) {
            next = skipSubBlocks(view, at + 2);
        } else if (*kind == 0x2C) {
            sawPicture = true;
            const auto flags = view.u8(at + 9);
            const auto codeBits = view.u8(at + 10 + colourTableBytes(flags.value_or(0)));
            if (flags && codeBits && (*codeBits < 1 || *codeBits > 11))
                return damagedAt(view, at, facts);
            next = skipSubBlocks(view, at + 11 + colourTableBytes(flags.value_or(0)));
        } else if (*kind == 0 && ++padding <= kMostPadding) {
            next = at + 1;
        } else {
            return damagedAt(view, at, facts);
        }
        if (!next)
            return cutOffAt(view, view.size(), facts);
        at = *next;
    }
}

}  // namespace vantor
