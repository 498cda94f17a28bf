// Databases and mail stores that tell or show their length: SQLite, Outlook PST, Access MDB, Palm databases
// (MOBI, PalmDoc). Sources: SQLite file format; [MS-PST]; public notes on the Jet page layout; Palm File
// Format Specification; public notes on PalmDoc.
#include <optional>

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

namespace {

// Records of a Palm database; nothing when the list is not whole or not in order.
struct PalmRecords {
    std::uint64_t count = 0;
    std::uint64_t last = 0;  // where the last begins
    bool ordered = true;
};

constexpr std::uint64_t palmRecordEntry(std::uint64_t index) {
    return 78 + index * 8;
}

std::optional<PalmRecords> palmRecords(ByteView& view) {
    PalmRecords records;
    records.count = view.be16(76).value_or(0);
    for (std::uint64_t i = 0; i < records.count; ++i) {
        const auto at = view.be32(palmRecordEntry(i));
        if (!at)
            return {};
        records.ordered = records.ordered && *at >= records.last;
        records.last = records.ordered ? *at : records.last;
    }
    return records;
}

// Where the packed text from `at` on has come to `bytes` bytes; nothing when the view ends first. A code
// stands for itself, for the next few bytes, for bytes before it, or for a blank and a letter.
std::optional<std::uint64_t> endOfPackedText(ByteView& view, std::uint64_t at, std::uint64_t bytes) {
    constexpr std::uint8_t kMostPlain = 8, kFirstEarlier = 0x80, kFirstBlank = 0xC0;
    for (std::uint64_t done = 0; done < bytes;) {
        const auto code = view.u8(at);
        if (!code)
            return {};
        const bool plain = *code >= 1 && *code <= kMostPlain;
        const bool earlier = *code >= kFirstEarlier && *code < kFirstBlank;
        done += plain                  ? *code
                : earlier              ? (view.u8(at + 1).value_or(0) & 7U) + 3
                : *code >= kFirstBlank ? 2
                                       : 1;
        at += plain ? 1U + *code : earlier ? 2U : 1U;
    }
    return at <= view.size() ? std::optional(at) : std::nullopt;
}

// A text in pieces of equal size, behind a record that says how long it is; bookmarks may follow.
Extent walkPalmText(ByteView& view) {
    constexpr std::uint64_t kBookmark = 20;
    const auto records = palmRecords(view);
    if (!records)
        return cutOffAt(view, view.size());
    Cursor in(view, view.be32(palmRecordEntry(0)).value_or(0));
    const auto packing = in.u16();
    in.skip(2);
    const std::uint64_t bytes = in.u32(), pieces = in.u16(), pieceBytes = in.u16();
    if (!in.ok())
        return cutOffAt(view, view.size());
    const bool fits = pieces != 0 && bytes > (pieces - 1) * pieceBytes && bytes <= pieces * pieceBytes;
    if (!records->ordered || records->count <= pieces || !fits || (packing != 1 && packing != 2))
        return unknownExtent();
    if (records->count > pieces + 1)
        return completeAt(view, records->last + kBookmark);
    const std::uint64_t rest = bytes - (pieces - 1) * pieceBytes;
    const auto end = packing == 1 ? records->last + rest : endOfPackedText(view, records->last, rest);
    return end ? completeAt(view, *end) : cutOffAt(view, view.size());
}

}  // namespace

Extent walkPalmDatabase(ByteView& view) {
    constexpr std::string_view kLastRecord = "\xE9\x8E\x0D\x0A";
    if (view.matches(60, "TEXtREAd"))
        return walkPalmText(view);
    if (!view.matches(60, "BOOKMOBI"))
        return unknownExtent();
    const auto records = palmRecords(view);
    if (!records)
        return cutOffAt(view, view.size());
    const std::uint64_t last = records->last;
    if (!records->ordered)
        return damagedAt(view, last);
    if (last > view.size() || !view.holds(last, kLastRecord.size()))
        return cutOffAt(view, view.size());
    // Only the last record's start is told; in these books it is a mark of four bytes.
    return view.matches(last, kLastRecord) ? completeAt(view, last + kLastRecord.size()) : unknownExtent();
}

}  // namespace vantor
