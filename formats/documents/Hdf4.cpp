// HDF of version 4: blocks of descriptors say where each object lies. Source: HDF4 specification and
// developer's guide (The HDF Group).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkHdf4(ByteView& view) {
    constexpr std::uint64_t kDescriptor = 12;
    constexpr std::uint32_t kAbsent = 0xFFFFFFFF;
    constexpr std::uint16_t kNull = 1;
    constexpr int kMostBlocks = 1 << 16;
    if (!view.matches(0, "\x0E\x03\x13\x01"))
        return unknownExtent();
    std::uint64_t end = 4;
    std::uint64_t block = 4;
    for (int i = 0; i < kMostBlocks && block != 0; ++i) {
        const auto descriptors = view.be16(block);
        const auto next = view.be32(block + 2);
        if (!descriptors || !next)
            return cutOffAt(view, view.size());
        const auto behind = block + 6 + *descriptors * kDescriptor;
        if (*descriptors == 0 || (*next != 0 && *next < behind))
            return damagedAt(view, block);
        for (auto at = block + 6; at < behind; at += kDescriptor) {
            const auto tag = view.be16(at);
            const auto place = view.be32(at + 4), bytes = view.be32(at + 8);
            if (!tag || !place || !bytes)
                return cutOffAt(view, view.size());
            if (*tag != kNull && *place != kAbsent && *bytes != kAbsent)
                end = std::max(end, std::uint64_t{*place} + *bytes);
        }
        end = std::max(end, behind);
        block = *next;
    }
    // The library makes its file longer by writing a zero behind the last object.
    if (!isSectorStart(end) && view.u8(end) == 0)
        return inexact(completeAt(view, end + 1));
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kHdf4 = {
    .name = "HDF4",
    .group = Group::Documents,
    .walk = walkHdf4,
    .extensions = " HDF ",
    .large = true,
};

}  // namespace vantor
