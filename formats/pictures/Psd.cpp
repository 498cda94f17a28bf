// Photoshop documents (PSD, PSB): sections by length, then the flattened picture row by row.
// Source: Adobe Photoshop File Formats Specification.
#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

enum Compression : std::uint16_t { kRaw, kPackBits, kZip, kZipPredicted };

struct PsdHeader {
    bool large = false;
    std::uint64_t channels = 0;
    std::uint64_t height = 0;
    std::uint64_t width = 0;
    std::uint64_t depth = 0;
};

// Behind the packed rows whose lengths stand in a table at `at`; 0 where a row would be longer than packing
// can make it.
std::optional<std::uint64_t> packedEnd(ByteView& view, std::uint64_t at, const PsdHeader& header) {
    const std::size_t entry = header.large ? 4 : 2;
    const std::uint64_t rows = header.channels * header.height;
    // A run or a row of single bytes takes at most twice its length.
    const std::uint64_t mostInRow = 2 * ((header.width * header.depth + 7) / 8) + 2;
    std::uint64_t end = at + rows * entry;
    if (end > view.size())
        return end;
    for (std::uint64_t row = 0; row < rows; ++row) {
        const auto bytes = view.number(at + row * entry, entry, Endian::Big);
        if (!bytes)
            return std::nullopt;
        if (*bytes > mostInRow)
            return 0;
        end = addClamped(end, *bytes);
    }
    return end;
}

Extent walkPsd(ByteView& view) {
    const auto version = view.be16(4).value_or(0);
    if (!view.matches(0, "8BPS") || (version != 1 && version != 2))
        return unknownExtent();
    Cursor in(view, 12);
    PsdHeader header;
    header.large = version == 2;
    header.channels = in.u16();
    header.height = in.u32();
    header.width = in.u32();
    header.depth = in.u16();
    const bool depth = header.depth == 1 || header.depth == 8 || header.depth == 16 || header.depth == 32;
    if (!in.ok() || header.channels == 0 || header.channels > 56 || header.height == 0 ||
        header.height > 300'000 || header.width == 0 || header.width > 300'000 || !depth)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(header.width);
    facts.height = static_cast<std::uint32_t>(header.height);
    std::uint64_t at = 26;
    for (int section = 0; section < 3; ++section) {  // colour table, resources, layers
        const std::size_t digits = header.large && section == 2 ? 8 : 4;
        const auto bytes = view.number(at, digits, Endian::Big);
        if (!bytes)
            return cutOffAt(view, view.size(), facts);
        at = addClamped(at + digits, *bytes);
    }
    const auto compression = view.be16(at);
    if (!compression)
        return cutOffAt(view, view.size(), facts);
    at += 2;
    if (*compression == kRaw)
        return completeAt(
            view, at + header.channels * header.height * ((header.width * header.depth + 7) / 8), facts);
    if (*compression == kPackBits) {
        const auto end = packedEnd(view, at, header);
        if (end == 0)
            return damagedAt(view, at, facts);
        return end ? completeAt(view, *end, facts) : cutOffAt(view, at, facts);
    }
    if (*compression != kZip && *compression != kZipPredicted)
        return damagedAt(view, at - 2, facts);
    const auto result = inflateZlib(view, at, kAnyOutput);
    if (result.outcome == InflateOutcome::Cut)
        return cutOffAt(view, result.end, facts);
    return result.outcome == InflateOutcome::Done ? completeAt(view, result.end, facts)
                                                  : damagedAt(view, result.end, facts);
}

}  // namespace

extern constexpr Format kPsd = {
    .name = "PSD",
    .group = Group::Pictures,
    .walk = walkPsd,
    .extensions = " PSD PSB PDD ",
    .large = true,
};

}  // namespace vantor
