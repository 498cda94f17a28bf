// A medium in memory whose sectors and faults a test writes down.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

#include "media/SectorReader.h"

namespace vantor {

struct ScriptedMedium {
    using Sector = std::array<std::uint8_t, kSectorBytes>;

    explicit ScriptedMedium(std::size_t sectors) : bytes(sectors) {}

    // Puts text (or bytes) into a sector from a byte on.
    ScriptedMedium& put(std::size_t sector, std::string_view text, std::size_t at = 0) {
        std::memcpy(bytes.at(sector).data() + at, text.data(), text.size());
        return *this;
    }
    ScriptedMedium& fill(std::size_t sector, std::uint8_t value) {
        bytes.at(sector).fill(value);
        return *this;
    }

    std::vector<Sector> bytes;
    std::set<std::uint64_t> badForEver;
    std::map<std::uint64_t, int> badTimes;  // sector: how many reads of it still fail
    bool seekAfterFailureFails = false;
    std::uint64_t reads = 0;                             // that were asked for, failed ones included
    std::function<void(std::uint64_t read)> beforeRead;  // with the number of the read, from 0
};

// Sectors of "aaa...", "bbb...", and so on.
inline ScriptedMedium letters(std::size_t sectors) {
    ScriptedMedium medium(sectors);
    for (std::size_t i = 0; i < sectors; ++i) {
        medium.fill(i, static_cast<std::uint8_t>('a' + i));
    }
    return medium;
}

// Sectors that hold data in which no header begins, so that every one is searched.
inline ScriptedMedium dataMedium(std::size_t sectors) {
    ScriptedMedium medium(sectors);
    for (std::size_t i = 0; i < sectors; ++i) {
        medium.fill(i, 0x7A);
    }
    return medium;
}

// A plain reader: one sector a read, nothing ahead. The medium outlives it.
class ScriptedReader : public SectorReader {
  public:
    explicit ScriptedReader(ScriptedMedium& medium) : m_medium(medium) {}

    std::uint64_t mediumSectors() const override { return m_medium.bytes.size(); }

  protected:
    bool fetch() override {
        if (m_medium.beforeRead) {
            m_medium.beforeRead(m_medium.reads);
        }
        ++m_medium.reads;
        m_failed = true;
        const std::uint64_t sector = position();
        if (sector >= m_medium.bytes.size() || m_medium.badForEver.contains(sector)) {
            return false;
        }
        if (const auto bad = m_medium.badTimes.find(sector);
            bad != m_medium.badTimes.end() && bad->second > 0) {
            --bad->second;
            return false;
        }
        m_failed = false;
        handOver(m_medium.bytes[sector].data(), 1);
        return true;
    }

    bool moveTo(std::uint64_t) override { return !(m_failed && m_medium.seekAfterFailureFails); }

  private:
    ScriptedMedium& m_medium;
    bool m_failed = false;
};

}  // namespace vantor
