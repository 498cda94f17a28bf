// ASF, WMV, WMA: header, data and index objects by their size. Source: Advanced Systems Format
// specification 1.20.
#include <algorithm>
#include <array>

#include "formats/Dates.h"
#include "formats/Format.h"
#include "formats/PlayingTime.h"

namespace vantor {

namespace {

constexpr std::string_view kHeader("\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C", 16);
constexpr std::string_view kData("\x36\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C", 16);
constexpr std::string_view kAsfFile("\xA1\xDC\xAB\x8C\x47\xA9\xCF\x11\x8E\xE4\x00\xC0\x0C\x20\x53\x65", 16);
constexpr std::string_view kAsfStream("\x91\x07\xDC\xB7\xB7\xA9\xCF\x11\x8E\xE6\x00\xC0\x0C\x20\x53\x65", 16);
constexpr std::string_view kVideo("\xC0\xEF\x19\xBC\x4D\x5B\xCF\x11\xA8\xFD\x00\x80\x5F\x5C\x44\x2B", 16);
constexpr std::array<std::string_view, 4> kIndexes = {
    std::string_view("\x90\x08\x00\x33\xB1\xE5\xCF\x11\x89\xF4\x00\xA0\xC9\x03\x49\xCB", 16),
    std::string_view("\xD3\x29\xE2\xD6\xDA\x35\xD1\x11\x90\x34\x00\xA0\xC9\x03\x49\xBE", 16),
    std::string_view("\xF8\x03\xB1\xFE\xAD\x12\x64\x4C\x84\x0F\x2A\x1D\x2F\x7A\xD4\x8C", 16),
    std::string_view("\xD0\x3F\xB7\x3C\x4A\x0C\x03\x48\x95\x3D\xED\xF7\xB6\x22\x8F\x0C", 16)};

constexpr std::uint64_t kObjectHead = 24;  // identifier and size
constexpr std::uint64_t kDataHead = 50;    // of the data object
constexpr int kMostObjects = 512;

struct Properties {
    std::uint64_t fileBytes = 0;
    std::uint64_t packetBytes = 0;  // of every packet; 0 = they differ
    bool broadcast = false;         // sizes were not filled in
};

Properties readHeader(ByteView& view, std::uint64_t end, Facts& facts) {
    Properties properties;
    std::uint64_t at = 30;
    for (int i = 0; i < kMostObjects && at < end; ++i) {
        const auto bytes = view.le64(at + 16);
        if (!bytes || *bytes < kObjectHead)
            break;
        if (view.matches(at, kAsfFile)) {
            Cursor in(view, at + 40, Endian::Little);
            properties.fileBytes = in.u64();
            facts.taken = dateFromTicksSince1601(in.u64());
            const auto least = view.le32(at + 92), most = view.le32(at + 96);
            properties.packetBytes = least == most ? least.value_or(0) : 0;
            properties.broadcast = (view.le32(at + 88).value_or(0) & 1) != 0;
            // Counted from before the beginning, by so many milliseconds as are to be read ahead.
            const auto all = playingTimeMs(view.le64(at + 64).value_or(0), 10'000'000);
            facts.durationMs = properties.broadcast ? 0 : all - std::min(all, view.le64(at + 80).value_or(0));
        } else if (view.matches(at, kAsfStream) && view.matches(at + kObjectHead, kVideo)) {
            facts.width = view.le32(at + 78).value_or(0);
            facts.height = view.le32(at + 82).value_or(0);
        }
        at = addClamped(at, *bytes);
    }
    return properties;
}

bool isIndex(ByteView& view, std::uint64_t at) {
    for (const auto& index : kIndexes) {
        if (view.matches(at, index))
            return true;
    }
    return false;
}

enum class Packets { Untold, Missing, Found };

// Whether packets stand where they should, all beginning as the first does: at up to so many places, spread
// evenly. `firstBad` is where the first stretch without a packet may begin.
Packets lookAtPackets(ByteView& view, const Properties& properties, std::uint64_t from, std::uint64_t to,
                      std::uint64_t& firstBad) {
    constexpr std::uint64_t kPlaces = 256, kFewPackets = 4;
    const auto count = properties.packetBytes == 0 ? 0 : (to - std::min(from, to)) / properties.packetBytes;
    const auto first = view.number(from, 3, Endian::Big);
    // Error correction of two bytes that are zero leads every packet that writers make.
    if (count < kFewPackets || first != 0x820000U)
        return Packets::Untold;
    const auto places = std::min(count, kPlaces);
    std::uint64_t good = from;
    for (std::uint64_t place = 0; place < places; ++place) {
        const auto at = from + place * count / places * properties.packetBytes;
        if (view.number(at, 3, Endian::Big) != first) {
            firstBad = good;
            return Packets::Missing;
        }
        good = at + properties.packetBytes;
    }
    return Packets::Found;
}

// Behind the packets from `from` on, each beginning as the first does; `from` itself where nothing tells
// them.
std::uint64_t behindPackets(ByteView& view, const Properties& properties, std::uint64_t from) {
    const auto first = view.number(from, 3, Endian::Big);
    if (properties.packetBytes == 0 || first != 0x820000U)
        return from;
    while (view.number(from, 3, Endian::Big) == first && view.holds(from, properties.packetBytes))
        from += properties.packetBytes;
    return from;
}

Extent walkAsf(ByteView& view) {
    if (!view.matches(0, kHeader))
        return unknownExtent();
    Facts facts;
    std::uint64_t at = view.le64(16).value_or(0);
    if (at < 30)
        return damagedAt(view, 16);
    const Properties properties = readHeader(view, at, facts);
    if (!view.holds(at, kObjectHead))
        return cutOffAt(view, view.size(), facts);
    if (!view.matches(at, kData))
        return damagedAt(view, at, facts);
    const auto dataBytes = view.le64(at + 16).value_or(0);
    const auto packets = addClamped(at, kDataHead);
    // A recording that was never closed, or written to where nobody could come back to the head.
    const bool open = dataBytes <= kDataHead;
    at = open ? behindPackets(view, properties, packets) : addClamped(at, dataBytes);
    if (open && (at == packets || view.exhausted())) {
        Extent extent = unknownExtent();
        extent.facts = facts;
        return extent;
    }
    std::uint64_t firstBad = 0;
    const Packets found = properties.broadcast || open
                              ? Packets::Untold
                              : lookAtPackets(view, properties, packets, std::min(at, view.size()), firstBad);
    if (found == Packets::Missing)
        return damagedAt(view, firstBad, facts);
    for (int i = 0; i < kMostObjects && at < view.size(); ++i) {
        const auto bytes = view.le64(at + 16).value_or(0);
        const auto end = addClamped(at, bytes);
        // An object of a kind unknown here belongs to the file as long as the told length covers it.
        const bool covered = !properties.broadcast && !open && end <= properties.fileBytes;
        if (bytes < kObjectHead || (!isIndex(view, at) && !covered))
            break;
        at = end;
    }
    // Without its index, of which the told length knows.
    if (!properties.broadcast && !open && properties.fileBytes > view.size() && at <= view.size())
        return cutOffAt(view, view.size(), facts);
    const Extent whole = completeAt(view, at, facts);
    if (open)
        return inexact(whole);
    return found == Packets::Found ? withFrames(whole) : whole;
}

}  // namespace

extern constexpr Format kAsf = {
    .name = "ASF",
    .group = Group::Movies,
    .walk = walkAsf,
    .extensions = " ASF WMV WMA WM DVR-MS ",
    .large = true,
};

}  // namespace vantor
