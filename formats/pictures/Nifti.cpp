// NIfTI volumes. Source: NIfTI-1 and NIfTI-2 headers.
#include <bit>

#include "formats/Format.h"

namespace vantor {

namespace {

// Where the values begin, how many there are, and the bits of each.
Extent niftiEnd(ByteView& view, std::uint64_t start, std::uint64_t values, std::uint64_t bits) {
    return completeAt(view, addClamped(start, addClamped(mulClamped(values, bits), 7) / 8));
}

// The second version: wider numbers in another order.
Extent walkNifti2(ByteView& view) {
    const auto endian = view.le32(0) == 540U ? Endian::Little : Endian::Big;
    Cursor in(view, 14, endian);
    const auto bits = in.u16();
    const auto dimensions = in.u64();
    if (dimensions == 0 || dimensions > 7 || bits == 0)
        return unknownExtent();
    std::uint64_t values = 1;
    for (std::uint64_t i = 0; i < dimensions; ++i)
        values = mulClamped(values, in.u64());
    const auto start = view.number(168, 8, endian);
    if (!in.ok() || !start)
        return cutOffAt(view, view.size());
    return *start >= 540 && *start < 1 << 24 ? niftiEnd(view, *start, values, bits) : unknownExtent();
}

Extent walkNifti(ByteView& view) {
    if (view.matches(4, std::string_view("n+2\0\r\n\x1A\n", 8)))
        return walkNifti2(view);
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
    return niftiEnd(view, static_cast<std::uint64_t>(start), values, bits);
}

}  // namespace

extern constexpr Format kNifti = {
    .name = "NIfTI",
    .group = Group::Pictures,
    .walk = walkNifti,
    .extensions = " NII ",
    .large = true,
};

}  // namespace vantor
