#include "filesystem/ErasedCard.h"

#include <algorithm>
#include <array>

namespace vantor {

namespace {

// A file system's own areas and a few files left on it take no more of the places.
constexpr std::size_t kMostWritten = 32;

bool isBlank(const std::array<std::uint8_t, 512>& sector) {
    return (sector[0] == 0x00 || sector[0] == 0xFF) &&
           std::all_of(sector.begin(), sector.end(), [&](std::uint8_t byte) { return byte == sector[0]; });
}

}  // namespace

// In steps that come by every place, far apart: files lie at the beginning of most cards.
std::uint64_t lookForErasure(std::uint64_t number, std::uint64_t sectors) {
    const std::uint64_t place = number * 97 % kLooksForErasure;
    return sectors / kLooksForErasure * place + sectors / (2 * kLooksForErasure);
}

std::vector<std::uint64_t> writtenPlaces(SectorSource& card) {
    std::vector<std::uint64_t> written;
    for (std::uint64_t i = 0; i < kLooksForErasure && written.size() <= kMostWritten; ++i) {
        const std::uint64_t sector = lookForErasure(i, card.sectors());
        std::array<std::uint8_t, 512> bytes;
        if (sector < card.sectors() && (!card.readAt(sector, bytes) || !isBlank(bytes))) {
            written.push_back(sector);
        }
    }
    return written;
}

bool isErased(const SectorSource& card, const std::vector<std::uint64_t>& written, const CardTable& table) {
    // Where there are few files, or were, none of the places need be theirs: the directory tells of them.
    const auto isUsed = [](const CardFile& file) {
        return file.bytes >= (file.state == FileState::Live ? kSmallestUsed : 1);
    };
    return card.sectors() >= kSmallestErased && written.size() <= kMostWritten &&
           std::none_of(table.files.begin(), table.files.end(), isUsed) &&
           std::all_of(written.begin(), written.end(),
                       [&](std::uint64_t sector) { return table.isInUse(sector); });
}

}  // namespace vantor
