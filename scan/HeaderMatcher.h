// Finds which signature a sector begins with, at a cost that does not grow with the number of signatures.
#pragma once

#include <QStringList>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "media/SectorScreen.h"

namespace vantor {

// The compiled form of a pass's flat record array: start bytes with many headers are looked up by key, those
// with few are compared four at a time. Construction may take milliseconds; matching is const and allocates
// nothing.
class HeaderMatcher : public SectorScreen {
  public:
    explicit HeaderMatcher(const QStringList& records);

    // The first record, in list order, whose header stands in the sector by its position rule. `sector` holds
    // 512 bytes; bytes outside match nothing.
    std::optional<int> firstMatch(const std::uint8_t* sector) const;

    // A sector is worth a look when it has a match.
    void screen(const std::uint8_t* bytes, std::size_t count, std::uint8_t* looks) const override;

  private:
    struct Entry {
        std::uint32_t key;
        int record;
        std::uint32_t headerBegin;  // into m_headerBytes
        std::uint32_t headerLength;
    };

    // All headers with one start byte and one key length (their first 1 to 4 bytes).
    struct Probe {
        std::uint32_t start;
        std::uint32_t keyMask;
        std::uint32_t filterShift;   // what is left of the hash of a key is its bit in the filter
        std::uint32_t filterBegin;   // first word in m_filter
        std::vector<Entry> entries;  // by key, then by record
    };

    // Eight places, four bytes apart, and the four bytes wanted at each. A place that nobody asks for wants
    // bytes that hardly ever stand there; if they do, the look at the headers finds nothing.
    struct Block {
        std::uint32_t base;
        std::uint32_t usedLanes;  // a bit each
        std::array<std::uint32_t, 8> keys;
    };

    // One header at its start byte.
    struct Fixed {
        std::uint32_t start;
        Entry entry;
    };

    struct NarrowSearch {
        int record;
        std::uint32_t headerBegin;
        std::uint32_t headerLength;
    };

    static std::uint32_t filterBit(std::uint32_t key, const Probe& probe);
    static std::uint32_t loadKey(const std::uint8_t* sector, const Probe& probe);
    void compileFixed(const std::vector<Fixed>& headers);
    void addToProbe(const Fixed& header);
    void buildFilter(Probe& probe);
    void addToBlock(const Fixed& header);
    bool anyBlockHits(const std::uint8_t* sector) const;
    int bestOfList(const std::vector<Fixed>& headers, const std::uint8_t* sector, int best) const;
    int bestOf(const Probe& probe, std::uint32_t key, const std::uint8_t* sector, int best) const;
    bool narrowSearchMatches(const NarrowSearch& search, const std::uint8_t* sector) const;

    std::vector<std::uint8_t> m_headerBytes;
    std::vector<Probe> m_probes;
    std::vector<Block> m_blocks;
    std::vector<Fixed> m_rare;      // the headers behind the blocks, by record
    std::vector<Fixed> m_atTheEnd;  // headers too near the sector's end to load a key, by record
    std::vector<NarrowSearch> m_narrow;
    std::array<bool, 256> m_narrowFirstByte{};
    // A filter a probe, sized to its keys: most sectors are turned away by a bit each, without a look at any
    // header.
    std::vector<std::uint64_t> m_filter;
};

}  // namespace vantor
