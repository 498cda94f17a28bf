// Camera raw formats that are no TIFF: Fujifilm RAF and Minolta MRW tell their parts up front; Canon CRW and
// Sigma X3F keep the directory at the very end, which has to be searched. Sources: public descriptions of the
// four formats; the CIFF specification 1.0 (Canon, 1997) for CRW.
#include <algorithm>

#include "formats/TiffDirectory.h"
#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostSearch = 256 * 1024 * 1024;  // no camera of these makes wrote larger files

}  // namespace

Extent walkRaf(ByteView& view) {
    if (!view.matches(0, "FUJIFILMCCD-RAW "))
        return unknownExtent();
    std::uint64_t end = 0;
    for (const std::uint64_t field : {84, 92, 100}) {  // preview, raw directory, raw data
        const std::uint64_t at = view.be32(field).value_or(0), bytes = view.be32(field + 4).value_or(0);
        if (at != 0)
            end = std::max(end, at + bytes);
    }
    if (end <= 108)
        return damagedAt(view, 108);
    Facts facts;
    constexpr std::uint64_t kToExif = 12;  // behind SOI, APP1 head and "Exif\0\0"
    addTiffFacts(view, std::uint64_t{view.be32(84).value_or(0)} + kToExif, facts);
    return completeAt(view, end, facts);
}

Extent walkMrw(ByteView& view) {
    if (!view.matches(0, std::string_view("\0MRM", 4)))
        return unknownExtent();
    const std::uint64_t pixels = 8 + std::uint64_t{view.be32(4).value_or(0)};
    Facts facts;
    std::uint64_t bits = 0;
    std::uint64_t sensor = 0;
    constexpr int kMostBlocks = 64;
    std::uint64_t at = 8;
    for (int blocks = 0; blocks < kMostBlocks && at + 8 <= pixels; ++blocks) {
        if (view.matches(at, std::string_view("\0PRD", 4))) {
            Cursor in(view, at + 16);
            facts.height = in.u16();
            facts.width = in.u16();
            in.skip(4);
            bits = in.u8();
            sensor = std::uint64_t{facts.height} * facts.width;
        } else if (view.matches(at, std::string_view("\0TTW", 4))) {
            Facts exif;
            addTiffFacts(view, at + 8, exif);
            facts.taken = exif.taken;
        }
        at += 8 + std::uint64_t{view.be32(at + 4).value_or(0)};
    }
    if (sensor == 0 || (bits != 12 && bits != 16))
        return damagedAt(view, pixels, facts);
    return completeAt(view, pixels + sensor * bits / 8, facts);
}

namespace {

// Whether the directory of a CIFF heap that starts at `heap` stands at `at` and is closed by its own
// position.
bool isHeapEnd(ByteView& view, std::uint64_t heap, std::uint64_t at, std::uint64_t entries) {
    if (view.le32(at + 2 + entries * 10) != static_cast<std::uint32_t>(at - heap))
        return false;
    for (std::uint64_t i = 0; i < entries; ++i) {
        Cursor in(view, at + 2 + i * 10, Endian::Little);
        constexpr std::uint16_t kInDirectory = 0x4000;  // the value stands in the entry
        const auto kind = in.u16();
        const std::uint64_t bytes = in.u32(), offset = in.u32();
        if (!in.ok() || ((kind & kInDirectory) == 0 && offset + bytes > at - heap))
            return false;
    }
    return true;
}

}  // namespace

Extent walkCrw(ByteView& view) {
    constexpr std::uint64_t kMostEntries = 64;
    const std::uint64_t heap = view.le32(2).value_or(0);
    if (!view.matches(0, "II") || !view.matches(6, "HEAPCCDR") || heap < 14 || heap > 4096)
        return unknownExtent();
    const auto limit = std::min(view.size(), kMostSearch);
    constexpr std::size_t kReach = 2 + kMostEntries * 10 + 4;
    std::uint64_t at = heap;
    while (at < limit) {
        const auto bytes = view.window(at, kReach);
        if (bytes.size() < 16)
            break;
        const std::size_t most = bytes.size() > kReach ? bytes.size() - kReach : bytes.size() - 15;
        std::size_t passed = most;
        for (std::size_t i = 0; i < most; ++i) {
            const std::size_t entries = bytes[i] | bytes[i + 1] << 8;
            const std::size_t tail = i + 2 + entries * 10;
            if (entries == 0 || entries > kMostEntries || tail + 4 > bytes.size())
                continue;
            const auto told =
                static_cast<std::uint32_t>(bytes[tail] | bytes[tail + 1] << 8 | bytes[tail + 2] << 16 |
                                           static_cast<std::uint32_t>(bytes[tail + 3]) << 24);
            if (told != static_cast<std::uint32_t>(at + i - heap))
                continue;
            if (isHeapEnd(view, heap, at + i, entries))
                return completeAt(view, at + tail + 4);
            passed = i + 1;  // the window moved: look again from the next position
            break;
        }
        at += passed;
    }
    return at + 16 >= view.size() ? cutOffAt(view, view.size()) : unknownExtent();
}

Extent walkX3f(ByteView& view) {
    if (!view.matches(0, "FOVb"))
        return unknownExtent();
    const auto limit = std::min(view.size(), kMostSearch);
    constexpr std::uint64_t kMostEntries = 256;
    auto mark = view.find('S', 4, limit);
    for (; mark.found(); mark = view.find('S', mark.at + 1, limit)) {
        if (!view.matches(mark.at, "SECd"))
            continue;
        const std::uint64_t entries = view.le32(mark.at + 8).value_or(0);
        const auto end = mark.at + 12 + entries * 12;
        // The directory is closed by its own position.
        if (entries != 0 && entries <= kMostEntries && view.le32(end) == static_cast<std::uint32_t>(mark.at))
            return completeAt(view, end + 4);
    }
    if (mark.stopped())
        return cutOffAt(view, mark.at);
    return limit == view.size() ? cutOffAt(view, view.size()) : unknownExtent();
}

}  // namespace vantor
