// The bounded walk.
#include "decode/helper/TiffDirectory.h"

#include <optional>
#include <vector>

#include "decode/helper/ByteView.h"

namespace vantor::decode {

namespace {

constexpr std::uint16_t kSubDirectories = 0x014a;
constexpr std::uint16_t kTypeShort = 3;
constexpr std::size_t kMostDirectories = 16;
constexpr std::uint64_t kMostEntries = 1024;
constexpr std::uint64_t kEntryBytes = 12;

struct Walk {
    QByteArrayView bytes;
    ByteOrder order;
    std::vector<std::uint64_t> directories;

    std::optional<std::uint64_t> number(std::uint64_t at, int width) const {
        return readUnsigned(bytes, at, width, order);
    }

    void addSubDirectories(const TiffEntry& entry) {
        for (std::uint32_t i = 0; i < entry.count && directories.size() < kMostDirectories; ++i) {
            const auto offset =
                entry.count == 1 ? entry.value : number(entry.value + std::uint64_t{4} * i, 4);
            if (!offset) {
                return;
            }
            directories.push_back(*offset);
        }
    }
};

std::optional<TiffEntry> entryAt(const Walk& walk, std::uint64_t at) {
    const auto tag = walk.number(at, 2);
    const auto type = walk.number(at + 2, 2);
    const auto count = walk.number(at + 4, 4);
    const auto value = walk.number(at + 8, type == kTypeShort && count == 1 ? 2 : 4);
    if (!tag || !type || !count || !value) {
        return std::nullopt;
    }
    return TiffEntry{static_cast<std::uint16_t>(*tag), static_cast<std::uint32_t>(*count),
                     static_cast<std::uint32_t>(*value)};
}

}  // namespace

bool walkTiff(QByteArrayView bytes, const std::function<bool(const TiffEntry&)>& see) {
    const bool little = hasText(bytes, 0, "II");
    if (!little && !hasText(bytes, 0, "MM")) {
        return false;
    }
    Walk walk{bytes, little ? ByteOrder::Little : ByteOrder::Big, {}};
    const auto first = walk.number(4, 4);
    if (!first) {
        return false;
    }
    walk.directories.push_back(*first);
    for (std::size_t i = 0; i < walk.directories.size(); ++i) {
        const std::uint64_t start = walk.directories[i];
        const std::uint64_t entries = std::min(walk.number(start, 2).value_or(0), kMostEntries);
        for (std::uint64_t n = 0; n < entries; ++n) {
            const auto entry = entryAt(walk, start + 2 + n * kEntryBytes);
            if (!entry) {
                break;
            }
            if (!see(*entry)) {
                return true;
            }
            if (entry->tag == kSubDirectories && i == 0) {
                walk.addSubDirectories(*entry);
            }
        }
    }
    return true;
}

}  // namespace vantor::decode
