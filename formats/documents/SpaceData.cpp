// Data of space science (CDF), plain and packed. Source: NASA "CDF Internal Format Description", version 3.
#include "formats/Format.h"
#include "formats/ToldLength.h"

namespace vantor {

namespace {

// The first record of a plain file tells where the one stands that tells the file's length; that of a packed
// one where its last record stands.
Extent walkSpaceData(ByteView& view) {
    constexpr std::uint64_t kFirst = 8, kLengthInGlobal = 36;
    constexpr std::uint32_t kDescriptor = 1, kGlobal = 2, kPacked = 10, kPacking = 11;
    const bool plain = view.matches(0, "\xCD\xF3\0\1\0\0\xFF\xFF"_b);
    if (!plain && !view.matches(0, "\xCD\xF3\0\1\xCC\xCC\0\1"_b))
        return unknownExtent();
    const auto kind = view.be32(kFirst + 8);
    const auto place = view.be64(kFirst + 12);
    if (!kind || !place)
        return cutOffAt(view, view.size());
    if (*kind != (plain ? kDescriptor : kPacked))
        return damagedAt(view, kFirst);
    const auto next = view.be32(addClamped(*place, 8));
    if (!next)
        return cutOffAt(view, view.size());
    if (*next != (plain ? kGlobal : kPacking))
        return damagedAt(view, *place);
    const auto told = view.be64(*place + (plain ? kLengthInGlobal : 0));
    if (!told)
        return cutOffAt(view, view.size());
    return completeAt(view, plain ? *told : addClamped(*place, *told));
}

}  // namespace

extern constexpr Format kSpaceData = {
    .name = "CDF",
    .group = Group::Documents,
    .walk = walkSpaceData,
    .extensions = " CDF ",
};

}  // namespace vantor
