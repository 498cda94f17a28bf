// Network captures: pcap, a row of records with nothing behind the last, and those of Microsoft's Network
// Monitor 2. Sources: draft-ietf-opsawg-pcap; the Network Monitor SDK's page on CAPTUREFILE_HEADER_VALUES
// and FRAME.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPcapMostRecords = std::uint64_t{1} << 32;

// The head tells where the table of frames stands, and what else is kept, by place and length.
Extent walkMonitorCapture(ByteView& view) {
    constexpr std::uint64_t kHead = 72, kTable = 24, kFrameHead = 16;
    constexpr std::uint64_t kFields[] = {kTable, 32, 40, 56};  // user's data, comment, network
    const auto table = view.le32(kTable), tableBytes = view.le32(kTable + 4);
    if (!view.holds(0, kHead))
        return cutOffAt(view, view.size());
    // Without a table the capture was never closed.
    if (view.u8(5) != 2 || *table < kHead || *tableBytes == 0 || *tableBytes % 4 != 0)
        return unknownExtent();
    std::uint64_t end = 0;
    for (const auto field : kFields) {
        const auto place = view.le32(field).value_or(0), bytes = view.le32(field + 4).value_or(0);
        end = bytes != 0 ? std::max(end, std::uint64_t{place} + bytes) : end;
    }
    const auto last = view.le32(std::uint64_t{*table} + *tableBytes - 4);
    if (!last)
        return cutOffAt(view, view.size());
    if (*last < kHead)
        return damagedAt(view, kHead);
    // A frame's head ends with the bytes that were kept of it.
    const auto kept = view.le32(std::uint64_t{*last} + kFrameHead - 4);
    return kept ? completeAt(view, std::max(end, *last + kFrameHead + *kept)) : cutOffAt(view, view.size());
}

Extent walkPcap(ByteView& view) {
    if (view.matches(0, "GMBU"))
        return walkMonitorCapture(view);
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
