#include "repair/ArchivePlaces.h"

#include <algorithm>
#include <cstring>

#include "formats/ByteSource.h"

namespace vantor {

ArchivePlaces archivePlaces(MediumBlocks& medium, const std::atomic<int>& stop) {
    constexpr std::size_t kSignBytes = 4;
    constexpr std::size_t kReach = ArchiveEnd::kBytes - 1;
    constexpr std::size_t kMostOfAKind = 1'000'000;
    ArchivePlaces places;
    const auto look = [&](std::span<const std::uint8_t> bytes, std::uint64_t at) {
        for (std::size_t i = 0; i + kSignBytes <= bytes.size(); ++i) {
            const void* const found = std::memchr(bytes.data() + i, 'P', bytes.size() - i);
            if (found == nullptr) {
                break;
            }
            i = static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - bytes.data());
            if (i + kSignBytes > bytes.size()) {
                break;
            }
            if (bytes[i + 1] != 'K') {
                continue;
            }
            if (bytes[i + 2] == 3 && bytes[i + 3] == 4 && places.members.size() < kMostOfAKind) {
                places.members.push_back(at + i);
            } else if (bytes[i + 2] == 5 && bytes[i + 3] == 6 && places.ends.size() < kMostOfAKind &&
                       i + ArchiveEnd::kBytes <= bytes.size()) {
                SpanSource source(bytes.subspan(i, ArchiveEnd::kBytes));
                ByteView view(source);
                if (const auto end = archiveEndAt(view, 0)) {
                    places.ends.push_back({at + i, *end});
                }
            }
        }
    };
    medium.lookThrough(kReach, stop, look);
    std::sort(places.members.begin(), places.members.end());
    places.members.erase(std::unique(places.members.begin(), places.members.end()), places.members.end());
    std::sort(places.ends.begin(), places.ends.end(),
              [](const auto& a, const auto& b) { return a.at < b.at; });
    return places;
}

}  // namespace vantor
