// Images of discs and systems: ISO 9660, Apple disk images, Windows images, Android sparse images, evidence
// images, packed discs of consoles. Sources: ECMA-119; public notes on the "koly" trailer; Microsoft WIM
// format; Android sparse image header; Expert Witness Compression Format notes; Microsoft VHD
// specification 1.0; VDI header notes; CISO header notes.
#include <algorithm>

#include "formats/Walkers.h"

namespace vantor {

// Begins with the disc's first sector, or with the volume record sixteen of them later.
Extent walkDiscImage(ByteView& view) {
    constexpr std::uint64_t kRecordAt = 16 * 2048;
    constexpr std::string_view kRecord("\1CD001\1\0", 8);
    const bool fromRecord = view.matches(0, kRecord);
    const std::uint64_t record = fromRecord ? 0 : kRecordAt;
    if (!fromRecord && !view.matches(kRecordAt, kRecord))
        return unknownExtent();
    const auto blocks = view.le32(record + 80), blocksAgain = view.be32(record + 84);
    const auto bytes = view.le16(record + 128), bytesAgain = view.be16(record + 130);
    if (!blocksAgain || !bytesAgain)
        return cutOffAt(view, view.size());
    const std::uint64_t all = std::uint64_t{*blocks} * *bytes;
    if (blocks != blocksAgain || bytes != bytesAgain || *bytes < 512 || all <= kRecordAt + 2048)
        return unknownExtent();
    return inexact(completeAt(view, all - (fromRecord ? kRecordAt : 0)));
}

// Only its last 512 bytes tell what it is; they say where the parts before them end.
Extent walkAppleDiskImage(ByteView& view) {
    constexpr std::string_view kTrailer("koly\0\0\0\4\0\0\2\0", 12);
    constexpr std::uint64_t kTrailerBytes = 512, kMostSearch = 256 * 1024 * 1024, kMostBetween = 1 << 20;
    const auto limit = std::min(view.size(), kMostSearch);
    for (auto mark = view.find('k', 0, limit); mark.found(); mark = view.find('k', mark.at + 1, limit)) {
        const auto at = mark.at;
        if (!view.matches(at, kTrailer))
            continue;
        const auto data = addClamped(view.be64(at + 24).value_or(0), view.be64(at + 32).value_or(0));
        const auto list = addClamped(view.be64(at + 216).value_or(0), view.be64(at + 224).value_or(0));
        const auto last = std::max(data, list);
        if (last != 0 && last <= at && at - last <= kMostBetween)
            return completeAt(view, at + kTrailerBytes);
    }
    return unknownExtent();
}

Extent walkWindowsImage(ByteView& view) {
    constexpr std::uint64_t kHead = 208;
    if (!view.matches(0, std::string_view("MSWIM\0\0\0\xD0\0\0\0", 12)))
        return unknownExtent();
    std::uint64_t end = kHead;
    for (const std::uint64_t resource : {48, 72, 96, 124}) {  // lookup table, XML, boot metadata, checksums
        const auto bytes = view.number(resource, 7, Endian::Little), at = view.le64(resource + 8);
        if (!at)
            return cutOffAt(view, view.size());
        end = std::max(end, *bytes != 0 ? addClamped(*at, *bytes) : 0);
    }
    return end > kHead ? completeAt(view, end) : unknownExtent();
}

Extent walkSparseImage(ByteView& view) {
    if (!view.matches(0, std::string_view("\x3A\xFF\x26\xED\1\0", 6)))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const std::uint64_t head = in.u16(), chunkHead = in.u16();
    in.skip(8);
    const auto chunks = in.u32();
    if (!in.ok() || head < 28 || chunkHead < 12 || chunks == 0)
        return in.ok() ? unknownExtent() : cutOffAt(view, view.size());
    std::uint64_t at = head;
    for (std::uint32_t i = 0; i < chunks; ++i) {
        const auto kind = view.le16(at);
        const auto bytes = view.le32(at + 8);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (*kind < 0xCAC1 || *kind > 0xCAC4 || *bytes < chunkHead)
            return damagedAt(view, at);
        at += *bytes;
    }
    return completeAt(view, at);
}

// Sections that each name the place of the next; the last names its own.
Extent walkEvidence(ByteView& view) {
    constexpr std::uint64_t kHead = 13, kSection = 76;
    constexpr std::uint32_t kMostSections = 1 << 16;
    if (!view.matches(0, std::string_view("EVF\x09\r\n\xFF\0", 8)))
        return unknownExtent();
    std::uint64_t at = kHead;
    for (std::uint32_t sections = 0; sections < kMostSections; ++sections) {
        const auto next = view.le64(at + 16);
        if (!next || !view.holds(at, kSection))
            return cutOffAt(view, view.size());
        if (view.matches(at, std::string_view("done\0", 5)) ||
            view.matches(at, std::string_view("next\0", 5)))
            return completeAt(view, at + kSection);
        if (*next < at + kSection)
            return damagedAt(view, at);
        at = *next;
    }
    return damagedAt(view, at);
}

Extent walkVirtualBoxDisk(ByteView& view) {
    if (!view.matches(64, std::string_view("\x7F\x10\xDA\xBE\1\0\1\0", 8)))
        return unknownExtent();
    const auto data = view.le32(0x158), block = view.le32(0x178), blocks = view.le32(0x184);
    if (!data || !block || !blocks)
        return cutOffAt(view, view.size());
    if (*data < 512 || *block < 512)
        return unknownExtent();
    return completeAt(view, *data + std::uint64_t{*block} * *blocks);
}

// Of growing size: a copy of the trailer stands at the beginning, the trailer behind the last block.
Extent walkVirtualPcDisk(ByteView& view) {
    constexpr std::string_view kTrailer = "conectix";
    constexpr std::uint64_t kSector = 512, kHeadAt = 512, kHead = 1024;
    constexpr std::uint32_t kMostBlocks = 1 << 22, kUnused = 0xFFFFFFFF;
    if (!view.matches(0, kTrailer) || view.be64(16) != kHeadAt || !view.matches(kHeadAt, "cxsparse"))
        return unknownExtent();
    const auto table = view.be64(kHeadAt + 16);
    const auto blocks = view.be32(kHeadAt + 28), block = view.be32(kHeadAt + 32);
    if (!table || !blocks || !block)
        return cutOffAt(view, view.size());
    if (*table < kHeadAt + kHead || *table > view.size() || *blocks > kMostBlocks || *block < kSector)
        return unknownExtent();
    const auto upToSector = [](std::uint64_t bytes) { return (bytes + kSector - 1) / kSector * kSector; };
    const std::uint64_t stored = *block + upToSector((*block / kSector + 7) / 8);
    auto end = upToSector(*table + std::uint64_t{*blocks} * 4);
    for (std::uint64_t i = 0; i < *blocks; ++i) {
        const auto sector = view.be32(*table + i * 4);
        if (!sector)
            return cutOffAt(view, view.size());
        if (*sector != kUnused)
            end = std::max(end, *sector * kSector + stored);
    }
    const bool closed = view.matches(end, kTrailer);
    return closed || end + kSector > view.size() ? completeAt(view, end + kSector) : damagedAt(view, end);
}

// The last entry of the index is the end.
Extent walkPackedDisc(ByteView& view) {
    constexpr std::uint64_t kHead = 24;
    if (!view.matches(0, "CISO"))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const auto plain = in.u64();
    const std::uint64_t block = in.u32();
    in.skip(1);
    const auto shift = in.u8();
    if (!in.ok() || plain == 0 || block < 512 || block > 1 << 20 || plain > std::uint64_t{1} << 40 ||
        shift > 16)
        return in.ok() ? unknownExtent() : cutOffAt(view, view.size());
    const auto last = kHead + (plain + block - 1) / block * 4;
    const auto place = view.le32(last);
    if (!place)
        return cutOffAt(view, view.size());
    const auto end = std::uint64_t{*place & 0x7FFFFFFF} << shift;
    return end > last ? completeAt(view, end) : damagedAt(view, last);
}

}  // namespace vantor
