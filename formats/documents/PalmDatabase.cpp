// Palm databases and the books in them (MOBI, PalmDoc). Sources: Palm File Format Specification; public notes
// on PalmDoc.
#include <optional>

#include "formats/Format.h"

namespace vantor {

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

}  // namespace

extern constexpr Format kPalmDatabase = {
    .name = "Palm database",
    .group = Group::Documents,
    .walk = walkPalmDatabase,
    .extensions = " MOBI AZW AZW3 PRC PDB ",
};

}  // namespace vantor
