// Databases and mail stores that tell or show their length: SQLite, Outlook PST, Access MDB, Palm databases
// (MOBI). Sources: SQLite file format; [MS-PST]; public notes on the Jet page layout; Palm File Format
// Specification.

#include "formats/Walkers.h"

namespace vantor {

Extent walkSqlite(ByteView& view) {
    if (!view.matches(0, std::string_view("SQLite format 3\0", 16)))
        return unknownExtent();
    std::uint64_t page = view.be16(16).value_or(0);
    if (page == 1)
        page = 65536;
    if (page < 512 || (page & (page - 1)) != 0)
        return damagedAt(view, 16);
    const auto changes = view.be32(24), pages = view.be32(28), validFor = view.be32(92);
    // Writers before 3.7.0 leave the count alone; it is valid only when both counters agree.
    if (!pages || *pages == 0 || changes != validFor)
        return unknownExtent();
    return completeAt(view, page * *pages);
}

Extent walkPst(ByteView& view) {
    if (!view.matches(0, "!BDN"))
        return unknownExtent();
    const auto version = view.le16(10).value_or(0);
    const bool wide = version >= 23;
    const auto end = wide ? view.le64(0xB8) : view.number(0xA8, 4, Endian::Little);
    if (!end)
        return cutOffAt(view, view.size());
    if ((!wide && version != 14 && version != 15) || *end < 0x200)
        return unknownExtent();
    return completeAt(view, *end);
}

Extent walkJetDatabase(ByteView& view) {
    const bool jet = view.matches(4, std::string_view("Standard Jet DB\0", 16));
    const bool ace = view.matches(4, std::string_view("Standard ACE DB\0", 16));
    if (!view.matches(0, std::string_view("\0\x01\0\0", 4)) || (!jet && !ace))
        return unknownExtent();
    const std::uint64_t page = view.u8(0x14) == 0 ? 2048 : 4096;
    // Every page in use names its kind in the first byte, and 1 in the second; runs of free pages stand
    // between.
    constexpr std::uint8_t kLastKind = 10;
    constexpr std::uint64_t kMostFreePages = 256;
    std::uint64_t end = page;
    for (std::uint64_t at = page; view.holds(at, page) && at - end <= kMostFreePages * page; at += page) {
        const auto kind = view.u8(at).value_or(0), mark = view.u8(at + 1).value_or(0);
        if (kind >= 1 && kind <= kLastKind && mark == 1)
            end = at + page;
        else if (kind != 0 || mark != 0)
            break;
    }
    const bool torn = view.holds(end, 1) && !view.holds(end, page);
    return inexact(torn ? cutOffAt(view, view.size()) : completeAt(view, end));
}

Extent walkPalmDatabase(ByteView& view) {
    constexpr std::string_view kLastRecord = "\xE9\x8E\x0D\x0A";
    if (!view.matches(60, "BOOKMOBI"))
        return unknownExtent();
    const std::uint64_t records = view.be16(76).value_or(0);
    std::uint64_t last = 0;
    for (std::uint64_t i = 0; i < records; ++i) {
        const auto at = view.be32(78 + i * 8);
        if (!at)
            return cutOffAt(view, view.size());
        if (*at < last)
            return damagedAt(view, last);
        last = *at;
    }
    if (last > view.size() || !view.holds(last, kLastRecord.size()))
        return cutOffAt(view, view.size());
    // Only the last record's start is told; in these books it is a mark of four bytes.
    return view.matches(last, kLastRecord) ? completeAt(view, last + kLastRecord.size()) : unknownExtent();
}

}  // namespace vantor
