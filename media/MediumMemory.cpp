// Thinning what is remembered, and comparing it.
#include "media/MediumMemory.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vantor {

namespace {

// Mounting a card sets a mark or two in its boot sector.
constexpr int kBootBytesThatChange = 8;

// Empty places look alike on all cards.
bool saysNothing(const std::uint8_t* sector) {
    return std::all_of(sector, sector + kSectorBytes,
                       [first = *sector](std::uint8_t b) { return b == first; });
}

bool isSame(std::uint64_t number, const std::uint8_t* remembered, const std::uint8_t* read) {
    if (number != 0) {
        return std::memcmp(remembered, read, kSectorBytes) == 0;
    }
    int changed = 0;
    for (std::size_t i = 0; i < kSectorBytes; ++i) {
        changed += remembered[i] != read[i] ? 1 : 0;
    }
    return changed <= kBootBytesThatChange;
}

}  // namespace

void MediumMemory::note(std::uint64_t firstSector, std::span<const std::uint8_t> bytes) {
    const std::lock_guard lock(m_mutex);
    const std::uint64_t end = firstSector + bytes.size() / kSectorBytes;
    const auto roundedUp = [this](std::uint64_t sector) {
        return (sector + m_stride - 1) / m_stride * m_stride;
    };
    for (std::uint64_t at = roundedUp(firstSector); at < end; at = roundedUp(at + 1)) {
        const std::uint8_t* const sector = bytes.data() + (at - firstSector) * kSectorBytes;
        if (saysNothing(sector)) {
            continue;
        }
        std::memcpy(m_sectors[at].data(), sector, kSectorBytes);
        while (m_sectors.size() > kMostSectors) {
            m_stride *= 2;
            std::erase_if(m_sectors, [this](const auto& entry) { return entry.first % m_stride != 0; });
        }
    }
}

bool MediumMemory::isEmpty() const {
    const std::lock_guard lock(m_mutex);
    return m_sectors.empty();
}

bool MediumMemory::agreesWith(BlockSource& medium) const {
    std::map<std::uint64_t, Sector> remembered;
    {
        // A medium that hangs must not hold up those who read it elsewhere.
        const std::lock_guard lock(m_mutex);
        remembered = m_sectors;
    }
    alignas(4096) Sector read;
    int same = 0, other = 0;
    for (const auto& [number, sector] : remembered) {
        if (medium.readAt(number, read) == static_cast<std::int64_t>(kSectorBytes)) {
            ++(isSame(number, sector.data(), read.data()) ? same : other);
        }
    }
    return same > 0 && same >= 3 * other;
}

std::optional<MediumPlace> MediumMemory::place() const {
    const std::lock_guard lock(m_mutex);
    return m_place;
}

void MediumMemory::setPlace(MediumPlace place) {
    const std::lock_guard lock(m_mutex);
    m_place = std::move(place);
}

}  // namespace vantor
