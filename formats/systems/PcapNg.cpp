// Network captures (pcapng): a row of blocks with nothing behind the last. Source: draft-ietf-opsawg-pcapng.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPcapNgMostRecords = std::uint64_t{1} << 32;

Extent walkPcapNg(ByteView& view) {
    constexpr std::uint32_t kSection = 0x0A0D0D0A, kMostBlock = 64 * 1024 * 1024;
    Endian endian = Endian::Little;
    std::uint64_t at = 0;
    for (std::uint64_t blocks = 0; blocks < kPcapNgMostRecords; ++blocks) {
        if (view.le32(at) == kSection)
            endian = view.le32(at + 8) == 0x1A2B3C4DU ? Endian::Little : Endian::Big;
        const bool section = view.le32(at) == kSection && view.number(at + 8, 4, endian) == 0x1A2B3C4DU;
        if (blocks == 0 && !section)
            return unknownExtent();
        const auto kind = view.number(at, 4, endian).value_or(0),
                   bytes = view.number(at + 4, 4, endian).value_or(0);
        const bool known = section || (kind >= 1 && kind <= 10) || (kind & 0x7FFFFFFF) == 0xBAD;
        if (!known || bytes < 12 || bytes % 4 != 0 || bytes > kMostBlock)
            break;
        if (at + bytes > view.size())
            return cutOffAt(view, view.size());
        if (view.number(at + bytes - 4, 4, endian) != bytes)  // stands at both ends
            return damagedAt(view, at);
        at += bytes;
    }
    return at != 0 ? inexact(completeAt(view, at)) : unknownExtent();
}

}  // namespace

extern constexpr Format kPcapNg = {
    .name = "pcapng",
    .group = Group::Systems,
    .walk = walkPcapNg,
    .extensions = " PCAPNG ",
    .large = true,
};

}  // namespace vantor
