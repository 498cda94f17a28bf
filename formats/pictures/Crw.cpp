// Canon CRW raw pictures: the directory stands at the very end, which has to be searched. Source: the CIFF
// specification 1.0 (Canon, 1997).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kCrwMostSearch = 256 * 1024 * 1024;  // no camera of these makes wrote larger files

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

Extent walkCrw(ByteView& view) {
    constexpr std::uint64_t kMostEntries = 64;
    const std::uint64_t heap = view.le32(2).value_or(0);
    if (!view.matches(0, "II") || !view.matches(6, "HEAPCCDR") || heap < 14 || heap > 4096)
        return unknownExtent();
    const auto limit = std::min(view.size(), kCrwMostSearch);
    constexpr std::size_t kReach = 2 + kMostEntries * 10 + 4;
    std::uint64_t at = heap;
    while (at < limit) {
        const auto bytes = view.window(at, kReach);
        if (bytes.size() < 16)
            break;
        const std::size_t most = bytes.size() > kReach ? bytes.size() - kReach : bytes.size() - 15;
        const std::uint8_t* const counts =
            bytes.data();  // unchecked, since this looks at every byte of a card
        std::size_t passed = most;
        for (std::size_t i = 0; i < most; ++i) {
            const std::size_t entries = counts[i];
            if (counts[i + 1] != 0 || entries == 0 || entries > kMostEntries)
                continue;
            const std::size_t tail = i + 2 + entries * 10;
            if (tail + 4 > bytes.size())
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

}  // namespace

extern constexpr Format kCrw = {
    .name = "CRW",
    .group = Group::Pictures,
    .walk = walkCrw,
    .extensions = " CRW ",
};

}  // namespace vantor
