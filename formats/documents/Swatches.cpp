// Colour swatches (ASE): a counted row of blocks. Models as text share the ending. Palettes of Paint Shop
// Pro: lines of letters. Sources: public descriptions of Adobe Swatch Exchange, of the ASCII scene export,
// and of PAL.
#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

Extent walkSwatches(ByteView& view) {
    if (view.matches(0, "*3DSMAX_ASCIIEXPORT"))
        return walkText(view);
    constexpr std::uint64_t kHead = 12, kBlockHead = 6;
    constexpr std::uint32_t kMostBlocks = 1 << 20;
    if (!view.matches(0, "ASEF"))
        return unknownExtent();
    const auto blocks = view.be32(8);
    if (!blocks)
        return cutOffAt(view, view.size());
    if (*blocks > kMostBlocks)
        return damagedAt(view, kHead);
    std::uint64_t at = kHead;
    for (std::uint32_t i = 0; i < *blocks; ++i) {
        const auto kind = view.be16(at);
        const auto bytes = view.be32(at + 2);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (*kind != 1 && *kind != 0xC001 && *kind != 0xC002)
            return damagedAt(view, at);
        at += kBlockHead + *bytes;
    }
    return completeAt(view, at);
}

// A line of numbers.
struct PaletteLine {
    bool closed = false;
    std::uint64_t value = 0;    // where it is one number
    std::uint64_t letters = 0;  // before what ended it; none of one that is too long
};

PaletteLine paletteLine(TextReader& in) {
    constexpr std::uint64_t kMostLetters = 32;
    PaletteLine line;
    while (line.letters <= kMostLetters) {
        const int letter = in.next();
        if (letter == '\n') {
            line.closed = true;
            return line;
        }
        if (letter >= '0' && letter <= '9') {
            line.value = line.value * 10 + static_cast<std::uint64_t>(letter - '0');
        } else if (letter != ' ' && letter != '\t' && letter != '\r') {
            if (letter >= 0)
                in.back();
            return line;
        }
        ++line.letters;
    }
    line.letters = 0;
    return line;
}

// A version, a count, and so many lines of three numbers.
Extent walkPaintPalette(ByteView& view) {
    constexpr std::string_view kMark = "JASC-PAL";
    constexpr std::uint64_t kMostColours = 65536;
    if (!view.matches(0, kMark))
        return unknownExtent();
    TextReader in(view, behindLineEnd(view, kMark.size()));
    const auto version = paletteLine(in), count = paletteLine(in);
    bool whole = version.closed && version.value == 100 && count.closed && count.value <= kMostColours;
    bool closed = true;
    for (std::uint64_t i = 0; whole && i < count.value; ++i) {
        const auto line = paletteLine(in);
        closed = line.closed;
        whole = line.letters != 0 && (closed || i + 1 == count.value);
    }
    if (!whole)
        return in.at() >= view.size() ? cutOffAt(view, view.size()) : damagedAt(view, in.at());
    return closed ? completeAt(view, in.at()) : inexact(completeAt(view, in.at()));
}

}  // namespace

extern constexpr Format kPaintPalette = {
    .name = "Palette",
    .group = Group::Documents,
    .walk = walkPaintPalette,
    .extensions = " PSPPALETTE ",
};

extern constexpr Format kSwatches = {
    .name = "Swatches",
    .group = Group::Documents,
    .walk = walkSwatches,
    .extensions = " ASE ",
    .strongMagic = false,
};

}  // namespace vantor
