// NITF pictures. Source: MIL-STD-2500C.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkNitf(ByteView& view) {
    constexpr std::uint64_t kLengthAt = 342, kDigits = 12;
    if (!view.matches(0, "NITF02.10") && !view.matches(0, "NSIF01.00"))
        return unknownExtent();
    std::uint64_t bytes = 0;
    for (std::uint64_t i = 0; i < kDigits; ++i) {
        const auto digit = view.u8(kLengthAt + i);
        if (!digit)
            return cutOffAt(view, view.size());
        if (*digit < '0' || *digit > '9')
            return unknownExtent();
        bytes = bytes * 10 + (*digit - '0');
    }
    constexpr std::uint64_t kUnset = 999'999'999'999, kLeast = 388;
    return bytes < kLeast || bytes == kUnset ? unknownExtent() : completeAt(view, bytes);
}

}  // namespace

extern constexpr Format kNitf = {
    .name = "NITF",
    .group = Group::Pictures,
    .walk = walkNitf,
    .extensions = " NTF NITF ",
    .strongMagic = false,
};

}  // namespace vantor
