// Finds which signature a sector begins with, at a cost that does not grow with the number of signatures.
#pragma once

#include <QStringList>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace vantor {

// The compiled form of a pass's flat record array. Construction may take milliseconds; matching is const and
// allocates nothing.
class HeaderMatcher {
  public:
    explicit HeaderMatcher(const QStringList& records);

    // The first record, in list order, whose header stands in the sector by its position rule. `sector` holds
    // 512 bytes; bytes outside match nothing.
    std::optional<int> firstMatch(const std::uint8_t* sector) const;

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
        std::uint32_t salt;
        std::vector<Entry> entries;  // by key, then by record
    };

    struct NarrowSearch {
        int record;
        std::uint32_t headerBegin;
        std::uint32_t headerLength;
    };

    static constexpr std::uint32_t kFilterBits = 18;

    static std::uint32_t filterSlot(std::uint32_t key, std::uint32_t salt);
    static std::uint32_t loadKey(const std::uint8_t* sector, const Probe& probe);
    void addFixed(std::uint32_t start, const Entry& entry);
    int bestOf(const Probe& probe, std::uint32_t key, const std::uint8_t* sector, int best) const;
    bool narrowSearchMatches(const NarrowSearch& search, const std::uint8_t* sector) const;

    std::vector<std::uint8_t> m_headerBytes;
    std::vector<Probe> m_probes;
    std::vector<NarrowSearch> m_narrow;
    std::array<bool, 256> m_narrowFirstByte{};
    // One filter for all probes: most sectors are turned away by a bit each, without a look at any header.
    std::array<std::uint64_t, (1U << kFilterBits) / 64> m_filter{};
};

}  // namespace vantor
