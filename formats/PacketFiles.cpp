// Files that are a row of records with nothing behind the last: network captures, repair data, weather
// reports. Sources: draft-ietf-opsawg-pcap and -pcapng; Parity Volume Set 2.0; WMO Manual on Codes (GRIB,
// BUFR).
#include <algorithm>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostRecords = std::uint64_t{1} << 32;

}  // namespace

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
    for (std::uint64_t records = 0; records < kMostRecords; ++records) {
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

Extent walkPcapNg(ByteView& view) {
    constexpr std::uint32_t kSection = 0x0A0D0D0A, kMostBlock = 64 * 1024 * 1024;
    Endian endian = Endian::Little;
    std::uint64_t at = 0;
    for (std::uint64_t blocks = 0; blocks < kMostRecords; ++blocks) {
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

// Messages of either kind follow each other; each says its length and closes with "7777".
Extent walkWeather(ByteView& view) {
    std::uint64_t at = 0;
    for (;;) {
        const bool grid = view.matches(at, "GRIB");
        const auto edition = view.u8(at + 7).value_or(0);
        if ((!grid && !view.matches(at, "BUFR")) || edition == 0 || edition > 4)
            break;
        const auto bytes = grid && edition == 2 ? view.be64(at + 8) : view.number(at + 4, 3, Endian::Big);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (*bytes < 16)
            return at != 0 ? damagedAt(view, at) : unknownExtent();
        const auto end = addClamped(at, *bytes);
        if (end > view.size())
            return cutOffAt(view, view.size());
        if (!view.matches(end - 4, "7777"))
            return damagedAt(view, at);
        at = end;
    }
    return at != 0 ? inexact(completeAt(view, at)) : unknownExtent();
}

}  // namespace vantor
