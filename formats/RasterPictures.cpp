// Pictures and volumes whose length follows from their header: Sun raster, PAM, FITS, NIfTI, MRC.
// Sources: Sun rasterfile(5); pam(5); FITS Standard 4.0 (IAU); NIfTI-1 header; MRC2014 (CCP-EM).
#include <bit>
#include <string>

#include "formats/Walkers.h"

namespace vantor {

Extent walkSunRaster(ByteView& view) {
    if (view.be32(0) != 0x59A66A95)
        return unknownExtent();
    Cursor in(view, 4);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    const std::uint64_t depth = in.u32(), told = in.u32();
    const auto type = in.u32();
    in.skip(4);
    const std::uint64_t colours = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (facts.width == 0 || facts.height == 0 || (depth != 1 && depth != 8 && depth != 24 && depth != 32) ||
        type > 5 || colours > 1 << 20)
        return unknownExtent();
    // Old files leave the length out; their rows are padded to sixteen bits.
    constexpr std::uint32_t kPacked = 2;
    if (told == 0 && type == kPacked)
        return unknownExtent();
    const std::uint64_t rows = mulClamped((facts.width * depth + 15) / 16 * 2, facts.height);
    return completeAt(view, addClamped(32 + colours, told != 0 ? told : rows), facts);
}

namespace {

// The number behind `name`, blanks and a sign at the beginning of a line; nothing for another line.
std::optional<std::uint64_t> numberBehind(ByteView& view, std::uint64_t at, std::string_view name) {
    constexpr std::uint64_t kMost = 1ULL << 40;
    if (!view.matches(at, name))
        return std::nullopt;
    at += name.size();
    while (view.u8(at) == ' ' || view.u8(at) == '-')
        ++at;
    std::uint64_t value = 0;
    for (auto digit = view.u8(at); digit && *digit >= '0' && *digit <= '9' && value < kMost;
         digit = view.u8(++at))
        value = value * 10 + (*digit - '0');
    return value;
}

}  // namespace

Extent walkPam(ByteView& view) {
    constexpr std::uint64_t kLongestHead = 4096;
    if (!view.matches(0, "P7\n"))
        return unknownExtent();
    std::uint64_t width = 0, height = 0, depth = 0, most = 0;
    for (std::uint64_t at = 3; at < kLongestHead; at = view.find('\n', at, kLongestHead).at + 1) {
        if (!view.u8(at))
            return cutOffAt(view, view.size());
        width = numberBehind(view, at, "WIDTH ").value_or(width);
        height = numberBehind(view, at, "HEIGHT ").value_or(height);
        depth = numberBehind(view, at, "DEPTH ").value_or(depth);
        most = numberBehind(view, at, "MAXVAL ").value_or(most);
        if (!view.matches(at, "ENDHDR\n"))
            continue;
        if (width == 0 || height == 0 || depth == 0 || most == 0)
            return unknownExtent();
        Facts facts;
        facts.width = static_cast<std::uint32_t>(width);
        facts.height = static_cast<std::uint32_t>(height);
        const auto samples = mulClamped(mulClamped(width, height), depth);
        return completeAt(view, addClamped(at + 7, mulClamped(samples, most > 255 ? 2 : 1)), facts);
    }
    return unknownExtent();
}

namespace {

constexpr std::uint64_t kFitsBlock = 2880;
constexpr std::uint64_t kFitsCard = 80;

// What one header says of the data behind it.
struct FitsHeader {
    std::uint64_t end = 0;  // behind the header's last block
    std::uint64_t dataBytes = 0;
    Facts facts;
};

std::optional<FitsHeader> fitsHeader(ByteView& view, std::uint64_t start) {
    constexpr std::uint64_t kMostCards = 36 * 4096;
    std::uint64_t bits = 0, axes = 0, pixels = 1, parameters = 0, groups = 1, axis = 0;
    bool grouped = false;
    FitsHeader header;
    for (std::uint64_t card = 0; card < kMostCards; ++card) {
        const auto at = start + card * kFitsCard;
        if (!view.holds(at, kFitsCard))
            return std::nullopt;
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

}  // namespace

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
        const auto blocks = addClamped(header->dataBytes, kFitsBlock - 1) / kFitsBlock;
        at = addClamped(header->end, mulClamped(blocks, kFitsBlock));
        if (at > view.size())
            return cutOffAt(view, view.size(), facts);
        if (!view.matches(at, "XTENSION"))
            return completeAt(view, at, facts);
    }
    return damagedAt(view, at, facts);
}

Extent walkNifti(ByteView& view) {
    const bool little = view.le32(0) == 348U;
    if ((!little && view.be32(0) != 348U) || !view.matches(344, std::string_view("n+1\0", 4)))
        return unknownExtent();
    const auto endian = little ? Endian::Little : Endian::Big;
    Cursor in(view, 40, endian);
    const auto dimensions = in.u16();
    if (dimensions == 0 || dimensions > 7)
        return unknownExtent();
    std::uint64_t values = 1;
    for (int i = 0; i < dimensions; ++i)
        values = mulClamped(values, in.u16());
    const auto bits = view.number(72, 2, endian).value_or(0);
    const auto start =
        std::bit_cast<float>(static_cast<std::uint32_t>(view.number(108, 4, endian).value_or(0)));
    if (!(start >= 348) || start > 1 << 24 || bits == 0)
        return unknownExtent();
    return completeAt(
        view, addClamped(static_cast<std::uint64_t>(start), addClamped(mulClamped(values, bits), 7) / 8));
}

Extent walkMrc(ByteView& view) {
    constexpr std::uint64_t kHead = 1024;
    if (!view.matches(208, "MAP D"))
        return unknownExtent();
    Cursor in(view, 0, Endian::Little);
    const std::uint64_t columns = in.u32(), rows = in.u32(), sections = in.u32();
    const auto mode = in.u32();
    const std::uint64_t extended = view.le32(92).value_or(0);
    const std::uint64_t bits = mode == 0                              ? 8
                               : mode == 1 || mode == 6 || mode == 12 ? 16
                               : mode == 2 || mode == 3               ? 32
                               : mode == 4                            ? 64
                               : mode == 101                          ? 4
                                                                      : 0;
    if (bits == 0 || columns == 0 || rows == 0 || sections == 0)
        return unknownExtent();
    const auto rowBytes = (columns * bits + 7) / 8;
    return completeAt(view, addClamped(kHead + extended, mulClamped(mulClamped(rowBytes, rows), sections)));
}

}  // namespace vantor
