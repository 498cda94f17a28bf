// PAR2 repair data: a row of packets with nothing behind the last. Source: Parity Volume Set 2.0.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkRepairData(ByteView& view) {
    constexpr std::string_view kMagic("PAR2\0PKT", 8);
    constexpr std::uint64_t kLeastPacket = 64;
    std::uint64_t at = 0;
    while (view.matches(at, kMagic)) {
        const auto bytes = view.le64(at + 8);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (*bytes < kLeastPacket || *bytes % 4 != 0)
            return damagedAt(view, at);
        at = addClamped(at, *bytes);
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return at != 0 ? inexact(completeAt(view, at)) : unknownExtent();
}

}  // namespace

extern constexpr Format kPar2 = {
    .name = "PAR2",
    .group = Group::Archives,
    .walk = walkRepairData,
    .extensions = " PAR2 ",
    .large = true,
};

}  // namespace vantor
