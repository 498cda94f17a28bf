// What a genome browser keeps: packed sequences (2BIT), and values or features along them (BW, BB).
// Sources: the UCSC Genome Browser's pages on the .2bit format; W. Kent and others, "BigWig and BigBed"
// (2010).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kPackedMark = 0x1A412743, kValuesMark = 0x888FFC26, kFeaturesMark = 0x8789F2EB;

// Behind the sequence whose record begins at `at`; nothing where it is not wholly there.
std::optional<std::uint64_t> behindSequence(ByteView& view, std::uint64_t at, Endian endian) {
    const auto bases = view.number(at, 4, endian);
    at += 4;
    // Two lists of runs: of unknown bases, of those in small letters.
    for (int list = 0; list < 2; ++list) {
        const auto runs = view.number(at, 4, endian);
        if (!runs)
            return std::nullopt;
        at += 4 + *runs * 8;
    }
    at += 4;
    return bases ? std::optional(at + (*bases + 3) / 4) : std::nullopt;
}

Extent walkPackedSequences(ByteView& view) {
    constexpr std::uint64_t kHead = 16;
    constexpr std::uint64_t kMostSequences = 1U << 20;
    const auto endian = view.le32(0) == kPackedMark ? Endian::Little : Endian::Big;
    const auto version = view.number(4, 4, endian), sequences = view.number(8, 4, endian);
    if (view.number(0, 4, endian) != kPackedMark || version != 0 || !sequences || *sequences > kMostSequences)
        return unknownExtent();
    std::uint64_t end = kHead;
    std::uint64_t at = kHead;
    for (std::uint64_t i = 0; i < *sequences; ++i) {
        const auto name = view.u8(at);
        const auto place = name ? view.number(at + 1 + *name, 4, endian) : std::nullopt;
        const auto behind = place ? behindSequence(view, *place, endian) : std::nullopt;
        if (!behind)
            return cutOffAt(view, view.size());
        at += 1 + *name + 4;
        end = std::max({end, at, *behind});
    }
    return completeAt(view, end);
}

// Zoom levels come last, and behind the index of the last of them the mark once more.
Extent walkValuesAlongSequences(ByteView& view) {
    constexpr std::uint64_t kHead = 64, kZoom = 24;
    constexpr std::uint64_t kMostIndex = 64 * 1024 * 1024;
    const bool little = view.le32(0) == kValuesMark || view.le32(0) == kFeaturesMark;
    const auto endian = little ? Endian::Little : Endian::Big;
    const auto mark = view.number(0, 4, endian);
    if (mark != kValuesMark && mark != kFeaturesMark)
        return unknownExtent();
    const auto version = view.number(4, 2, endian), zooms = view.number(6, 2, endian);
    if (!zooms || *version < 3 || *version > 4 || *zooms > 32)
        return unknownExtent();
    std::uint64_t from = kHead + *zooms * kZoom;
    for (const std::uint64_t field : {8, 16, 24, 44})
        from = std::max(from, view.number(field, 8, endian).value_or(0));
    for (std::uint64_t i = 0; i < *zooms; ++i)
        from = std::max(from, view.number(kHead + i * kZoom + 16, 8, endian).value_or(0));
    const auto first = static_cast<std::uint8_t>(little ? *mark & 0xFF : *mark >> 24);
    const auto to = std::min(view.size(), addClamped(from, kMostIndex));
    auto sign = view.find(first, std::min(from, to), to);
    while (sign.found() && view.number(sign.at, 4, endian) != mark)
        sign = view.find(first, sign.at + 1, to);
    if (sign.found())
        return completeAt(view, sign.at + 4);
    return to == view.size() ? cutOffAt(view, view.size()) : damagedAt(view, from);
}

Extent walkGenome(ByteView& view) {
    const auto mark = view.le32(0);
    if (mark == kPackedMark || view.be32(0) == kPackedMark)
        return walkPackedSequences(view);
    return walkValuesAlongSequences(view);
}

}  // namespace

extern constexpr Format kGenome = {
    .name = "Genome",
    .group = Group::Documents,
    .walk = walkGenome,
    .extensions = " 2BIT BB ",
    .large = true,
};

}  // namespace vantor
