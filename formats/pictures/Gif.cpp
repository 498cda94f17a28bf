// GIF: blocks and their sub-blocks to the trailer. Source: GIF89a specification.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kScreenEnd = 13;
constexpr std::uint64_t kGifMostPadding = 4;  // stray zero bytes some writers leave between blocks

std::uint64_t colourTableBytes(std::uint8_t flags) {
    return (flags & 0x80) != 0 ? std::uint64_t{3} << ((flags & 7) + 1) : 0;
}

// An erased sector reads as a full block of ones, which no picture data is.
bool isErased(ByteView& view, std::uint64_t at) {
    constexpr std::size_t kBlock = 256;
    const auto block = view.window(at, kBlock);
    return block.size() >= kBlock &&
           std::all_of(block.begin(), block.begin() + kBlock, [](auto byte) { return byte == 0xFF; });
}

struct Skipped {
    std::uint64_t at = 0;  // behind the chain, or where it stopped
    Verdict verdict = Verdict::Complete;
};

Skipped skipSubBlocks(ByteView& view, std::uint64_t at) {
    for (;;) {
        const auto length = view.u8(at);
        if (!length)
            return {std::min(at, view.size()), Verdict::CutOff};
        if (*length == 0xFF && isErased(view, at))
            return {at, Verdict::Damaged};
        at += 1 + *length;
        if (*length == 0)
            return {at, Verdict::Complete};
    }
}

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
        Skipped next;
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
        } else if (*kind == 0 && ++padding <= kGifMostPadding) {
            next.at = at + 1;
        } else {
            return damagedAt(view, at, facts);
        }
        if (next.verdict == Verdict::CutOff)
            return cutOffAt(view, next.at, facts);
        if (next.verdict == Verdict::Damaged)
            return damagedAt(view, next.at, facts);
        at = next.at;
    }
}

}  // namespace

extern constexpr Format kGif = {
    .name = "GIF",
    .group = Group::Pictures,
    .walk = walkGif,
    .extensions = " GIF ",
    .checksContent = true,
};

}  // namespace vantor
