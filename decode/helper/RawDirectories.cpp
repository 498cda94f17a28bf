// The bounded visit.
#include "decode/helper/RawDirectories.h"

#include <cstdint>
#include <vector>

namespace vantor::decode {

namespace {

constexpr std::uint16_t kSubDirectories = 330;
constexpr std::size_t kMostDirectories = 16;

void addSubDirectories(ByteView& view, const TiffHeader& header, const TiffEntry& entry,
                       std::vector<std::uint64_t>& directories) {
    for (std::uint64_t i = 0; i < entry.count && directories.size() < kMostDirectories; ++i) {
        const auto offset = readTiffNumber(view, header, entry, i);
        if (!offset) {
            return;
        }
        directories.push_back(*offset);
    }
}

}  // namespace

void visitDirectories(ByteView& view, const TiffHeader& header, DirectoryScope scope, const SeeEntry& see) {
    std::vector<std::uint64_t> directories{header.firstDirectory};
    for (std::size_t number = 0; number < directories.size(); ++number) {
        const auto directory = readTiffDirectory(view, header, directories[number]);
        const bool mayNameOthers = number == 0 || scope == DirectoryScope::All;
        for (std::uint64_t i = 0; directory && i < directory->entries; ++i) {
            const auto entry = readTiffEntry(view, header, *directory, i);
            if (!entry) {
                break;
            }
            if (!see(number, *entry)) {
                return;
            }
            if (mayNameOthers && entry->tag == kSubDirectories) {
                addSubDirectories(view, header, *entry, directories);
            }
        }
        const auto next =
            directory && scope == DirectoryScope::All ? readTiffNext(view, header, *directory) : std::nullopt;
        if (next.value_or(0) != 0 && directories.size() < kMostDirectories) {
            directories.push_back(*next);
        }
    }
}

}  // namespace vantor::decode
