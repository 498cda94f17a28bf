#include "results/LaidOutReader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "filesystem/Lznt1.h"
#include "results/CardIndex.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostAtOnce = 128;  // sectors

}  // namespace

LaidOutReader::LaidOutReader(const CardFile& file, SectorReader& medium)
    : m_medium(medium),
      m_sectors((dataBytesOf(file) + kSectorBytes - 1) / kSectorBytes),
      m_unit(file.unitSectors) {
    auto hole = file.holes.begin();
    std::uint64_t at = 0;
    const auto passHoles = [&] {
        for (; hole != file.holes.end() && hole->first == at; ++hole) {
            m_stretches.push_back({at, hole->end, 0, true});
            at = hole->end;
        }
    };
    for (SectorRun run : file.runs) {
        while (run.first < run.end) {
            passHoles();
            const std::uint64_t room = hole == file.holes.end() ? run.end - run.first : hole->first - at;
            const std::uint64_t count = std::min(room, run.end - run.first);
            m_stretches.push_back({at, at + count, run.first, false});
            at += count;
            run.first += count;
        }
    }
    passHoles();
}

std::vector<LaidOutReader::Stretch>::const_iterator LaidOutReader::stretchAt(std::uint64_t sector) const {
    return std::upper_bound(m_stretches.begin(), m_stretches.end(), sector,
                            [](std::uint64_t at, const Stretch& one) { return at < one.end; });
}

// Those of the file's sectors that have a place, one behind the other; false when one cannot be read.
bool LaidOutReader::readPlaced(const SectorRun& sectors, std::uint8_t* into) {
    for (auto one = stretchAt(sectors.first); one != m_stretches.end() && one->first < sectors.end; ++one) {
        const std::uint64_t from = std::max(one->first, sectors.first);
        const std::uint64_t end = std::min(one->end, sectors.end);
        for (std::uint64_t at = from; at < end && !one->isHole; ++at, into += kSectorBytes) {
            const std::uint64_t place = one->place + (at - one->first);
            if ((m_medium.position() != place && !m_medium.seek(place)) || !m_medium.read()) {
                return false;
            }
            std::memcpy(into, m_medium.current(), kSectorBytes);
        }
    }
    return true;
}

// Whether some of its sectors have a place and some have none.
bool LaidOutReader::isPacked(const SectorRun& unit) const {
    bool hasPlace = false;
    bool hasHole = false;
    for (auto one = stretchAt(unit.first); one != m_stretches.end() && one->first < unit.end; ++one) {
        hasPlace = hasPlace || !one->isHole;
        hasHole = hasHole || one->isHole;
    }
    return hasPlace && hasHole;
}

bool LaidOutReader::readUnit(const SectorRun& unit) {
    std::vector<std::uint8_t> packed((unit.end - unit.first) * kSectorBytes);
    m_next.resize(packed.size());
    if (unit.first == m_illegible || !readPlaced(unit, packed.data()) || !unpackLznt1(packed, m_next)) {
        m_illegible = unit.first;
        return false;
    }
    return true;
}

bool LaidOutReader::fetch() {
    const std::uint64_t at = position();
    const auto here = stretchAt(at);
    if (at >= m_sectors || here == m_stretches.end()) {
        return false;
    }
    const std::uint64_t unitFirst = m_unit == 0 ? at : at - at % m_unit;
    const SectorRun unit{unitFirst, unitFirst + (m_unit == 0 ? kMostAtOnce : m_unit)};
    if (m_unit != 0 && isPacked(unit)) {
        if (!readUnit(unit)) {
            return false;
        }
        std::swap(m_bytes, m_next);
        handOver(m_bytes.data() + (at - unit.first) * kSectorBytes, std::min(m_sectors, unit.end) - at);
        return true;
    }
    std::uint64_t end = std::min({m_sectors, here->end, unit.end});
    m_next.assign((end - at) * kSectorBytes, 0);
    for (std::uint64_t sector = at; sector < end; ++sector) {
        if (!readPlaced({sector, sector + 1}, m_next.data() + (sector - at) * kSectorBytes)) {
            end = sector;  // what was read until then is good
        }
    }
    if (end == at) {
        return false;
    }
    std::swap(m_bytes, m_next);
    handOver(m_bytes.data(), end - at);
    return true;
}

}  // namespace vantor
