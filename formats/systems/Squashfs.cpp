// SquashFS images of version 4, as of firmware, live systems and packed applications. Source: "Squashfs
// Binary Format" of the kernel's documentation.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// The header tells the bytes that are used; the usual writer fills the last 4 KiB with zeros, for block
// devices.
Extent walkSquashfs(ByteView& view) {
    constexpr std::uint64_t kHeader = 96, kDevicePage = 4096;
    constexpr std::uint16_t kVersion = 4;
    if (!view.matches(0, "hsqs") || view.le16(28) != kVersion)
        return unknownExtent();
    const auto used = view.le64(40);
    if (!used || *used < kHeader)
        return unknownExtent();
    const auto padded = addClamped(*used, (kDevicePage - *used % kDevicePage) % kDevicePage);
    auto zeros = *used;
    while (zeros < padded && view.u8(zeros) == 0)
        ++zeros;
    // Only what is no filling shows that there is none.
    if (zeros == *used && view.u8(zeros))
        return completeAt(view, *used);
    return inexact(completeAt(view, zeros == padded ? padded : *used));
}

}  // namespace

extern constexpr Format kSquashfs = {
    .name = "SquashFS",
    .group = Group::Systems,
    .walk = walkSquashfs,
    .extensions = " SQSH ",
    .large = true,
};

}  // namespace vantor
