// FITS pictures and tables of astronomers. Source: FITS Standard 4.0 (IAU).
#include <algorithm>
#include <span>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

constexpr std::uint64_t kFitsBlock = 2880;
constexpr std::uint64_t kFitsCard = 80;

// What one header says of the data behind it.
struct FitsHeader {
    std::uint64_t end = 0;  // behind the header's last block, or behind its last card of one that is broken
    bool broken = false;    // by something else than text
    std::uint64_t dataBytes = 0;
    Facts facts;
};

// Cards are of the printable characters alone.
bool isFitsCard(std::span<const std::uint8_t> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](auto byte) { return byte >= 0x20 && byte < 0x7F; });
}

std::optional<FitsHeader> fitsHeader(ByteView& view, std::uint64_t start) {
    constexpr std::uint64_t kMostCards = 36 * 4096;
    std::uint64_t bits = 0, axes = 0, pixels = 1, parameters = 0, groups = 1, axis = 0;
    bool grouped = false;
    FitsHeader header;
    for (std::uint64_t card = 0; card < kMostCards; ++card) {
        const auto at = start + card * kFitsCard;
        const auto bytes = view.window(at, kFitsCard);
        if (bytes.size() < kFitsCard)
            return std::nullopt;
        if (!isFitsCard(bytes.first(kFitsCard))) {
            header.end = at;
            header.broken = true;
            return header;
        }
        // The sign of the bits per value only tells whole numbers from others.
        if (const auto valueBits = numberBehind(view, at, "BITPIX  = "))
            bits = *valueBits;
        else if (const auto count = numberBehind(view, at, "NAXIS   = "))
            axes = *count;
        else if (view.matches(at, "NAXIS") && axis < axes) {
            const auto value = numberBehind(view, at + 8, "= ").value_or(0);
            grouped = grouped || (axis == 0 && value == 0);
            (axis == 0 ? header.facts.width : header.facts.height) =
                static_cast<std::uint32_t>(axis < 2 ? value : std::uint64_t{header.facts.height});
            pixels = mulClamped(pixels, axis == 0 && value == 0 ? 1 : value);
            ++axis;
        } else if (const auto heap = numberBehind(view, at, "PCOUNT  = "))
            parameters = *heap;
        else if (const auto times = numberBehind(view, at, "GCOUNT  = "))
            groups = *times;
        else if (view.matches(at, "END     ")) {
            header.end = start + (card * kFitsCard / kFitsBlock + 1) * kFitsBlock;
            // A first axis of no length stands for groups, or for no data at all.
            const bool none = axes == 0 || (grouped && groups == 1 && parameters == 0);
            header.dataBytes =
                none ? 0 : mulClamped(mulClamped(addClamped(pixels, parameters), groups), bits / 8);
            return header;
        }
    }
    return std::nullopt;
}

// Header, data, header, data: all in blocks.
Extent walkFits(ByteView& view) {
    constexpr int kMostUnits = 4096;
    if (!view.matches(0, "SIMPLE  =                    T"))
        return unknownExtent();
    Facts facts;
    std::uint64_t at = 0;
    for (int units = 0; units < kMostUnits; ++units) {
        const auto header = fitsHeader(view, at);
        if (!header)
            return cutOffAt(view, view.size(), facts);
        if (facts.width == 0)
            facts = header->facts;
        if (header->broken)
            return damagedAt(view, header->end, facts);
        const auto blocks = addClamped(header->dataBytes, kFitsBlock - 1) / kFitsBlock;
        at = addClamped(header->end, mulClamped(blocks, kFitsBlock));
        if (at > view.size())
            return cutOffAt(view, view.size(), facts);
        if (!view.matches(at, "XTENSION"))
            return completeAt(view, at, facts);
    }
    return damagedAt(view, at, facts);
}

}  // namespace

extern constexpr Format kFits = {
    .name = "FITS",
    .group = Group::Pictures,
    .walk = walkFits,
    .extensions = " FITS FTS ",
    .large = true,
};

}  // namespace vantor
