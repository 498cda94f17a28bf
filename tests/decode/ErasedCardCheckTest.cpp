// How little the look for an erased card asks of the card.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "decode/ErasedCardCheck.h"
#include "filesystem/ErasedCard.h"
#include "media/WindowedReader.h"

namespace vantor {
namespace {

// Every sector is full of its own number's last byte, or refused.
class Card final : public BlockSource {
  public:
    struct Asked {
        std::uint64_t bytes = 0;
        std::map<std::uint64_t, int> refusals;  // by sector
    };

    explicit Card(Asked& asked, std::set<std::uint64_t> bad = {}) : m_asked(asked), m_bad(std::move(bad)) {}

    std::uint64_t sectors() const override { return kSectors; }
    bool usable() override { return true; }
    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const auto end = m_bad.lower_bound(sector);
        const std::uint64_t most = std::min(sector + into.size() / kSectorBytes, kSectors);
        if (end != m_bad.end() && *end == sector) {
            ++m_asked.refusals[sector];
            return -1;
        }
        const std::uint64_t until = end != m_bad.end() ? std::min(*end, most) : most;
        std::fill(into.begin(), into.end(), std::uint8_t{0x41});
        m_asked.bytes += (until - sector) * kSectorBytes;
        return static_cast<std::int64_t>((until - sector) * kSectorBytes);
    }

    static constexpr std::uint64_t kSectors = 64 * 1024;

  private:
    Asked& m_asked;
    const std::set<std::uint64_t> m_bad;
};

TEST(ErasedCardCheck, ReadsThePlacesAlone_AndAllBehindIt) {
    Card::Asked asked;
    WindowedReader reader(std::make_unique<Card>(asked));
    EXPECT_FALSE(looksErased(reader, Card::kSectors));
    EXPECT_GE(asked.bytes, 33 * kSectorBytes) << "so many are written";
    EXPECT_LE(asked.bytes, kLooksForErasure * kSectorBytes);
    ASSERT_TRUE(reader.seek(0));
    for (std::uint64_t sector = 0; sector < Card::kSectors; ++sector) {
        ASSERT_TRUE(reader.read());
        ASSERT_EQ(reader.current()[0], 0x41) << "as the search reads it";
    }
}

TEST(ErasedCardCheck, OfARefusedPlace_AsksTwiceAndNoMore) {
    std::set<std::uint64_t> bad;
    for (std::uint64_t number = 0; number < kLooksForErasure; number += 8) {
        bad.insert(lookForErasure(number, Card::kSectors));
    }
    Card::Asked asked;
    WindowedReader reader(std::make_unique<Card>(asked, bad));
    EXPECT_FALSE(looksErased(reader, Card::kSectors));
    ASSERT_FALSE(asked.refusals.empty());
    for (const auto& [sector, refusals] : asked.refusals) {
        EXPECT_LE(refusals, 2) << sector;
    }
    ASSERT_TRUE(reader.seek(0));
    for (std::uint64_t sector = 0; sector < Card::kSectors; ++sector) {
        EXPECT_EQ(reader.read(), !bad.contains(sector));
        if (bad.contains(sector)) {
            ASSERT_TRUE(reader.seek(sector + 1));
        }
    }
    for (const auto& [sector, refusals] : asked.refusals) {
        EXPECT_LE(refusals, 2) << sector << ", the search included";
    }
}

}  // namespace
}  // namespace vantor
