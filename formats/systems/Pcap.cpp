// Network captures (pcap): a row of records with nothing behind the last. Source: draft-ietf-opsawg-pcap.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPcapMostRecords = std::uint64_t{1} << 32;

Extent walkPcap(ByteView& view) {
    constexpr std::uint64_t kHead = 24, kRecord = 16, kMostPacket = 262144;
    constexpr std::uint32_t kMostApart = 400 * 86400;  // seconds between the first packet and any other
    const auto magic = view.le32(0);
    const bool little = magic == 0xA1B2C3D4 || magic == 0xA1B23C4D;
    const bool nano = magic == 0xA1B23C4D || magic == 0x4D3CB2A1;
    if (!little && magic != 0xD4C3B2A1 && magic != 0x4D3CB2A1)
        return unknownExtent();
    const auto endian = little ? Endian::Little : Endian::Big;
    if (view.number(4, 2, endian) != 2U)
        return unknownExtent();
    const auto most = std::max<std::uint64_t>(kMostPacket, view.number(16, 4, endian).value_or(0) & 0xFFFFFF);
    std::uint64_t at = kHead;
    std::uint32_t first = 0;
    for (std::uint64_t records = 0; records < kPcapMostRecords; ++records) {
        Cursor in(view, at, endian);
        const auto seconds = in.u32(), fraction = in.u32(), bytes = in.u32(), original = in.u32();
        if (records == 0)
            first = seconds;
        const auto apart = seconds > first ? seconds - first : first - seconds;
        const bool plausible = original != 0 && bytes <= original && bytes <= most && apart <= kMostApart &&
                               fraction < (nano ? 1'000'000'000U : 1'000'000U);
        if (!in.ok() || !plausible)
            break;
        if (at + kRecord + bytes > view.size())
            return cutOffAt(view, view.size());
        at += kRecord + bytes;
    }
    return view.holds(0, kHead) ? inexact(completeAt(view, at)) : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kPcap = {
    .name = "pcap",
    .group = Group::Systems,
    .walk = walkPcap,
    .extensions = " PCAP ",
    .large = true,
};

}  // namespace vantor
