// NIfTI volumes. Source: NIfTI-1 header.
#include <bit>

#include "formats/Format.h"

namespace vantor {

namespace {

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

}  // namespace

extern constexpr Format kNifti = {
    .name = "NIfTI",
    .group = Group::Pictures,
    .walk = walkNifti,
    .extensions = " NII ",
    .large = true,
};

}  // namespace vantor
