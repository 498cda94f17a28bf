// Cards that were erased, and those that only look empty here and there.
#include <gtest/gtest.h>

#include "filesystem/ErasedCard.h"
#include "tests/filesystem/CardImage.h"

namespace vantor {
namespace {

class ErasedCard : public testing::TestWithParam<int> {
  protected:
    ErasedCard() {
        std::fill(m_card.bytes.begin(), m_card.bytes.end(), static_cast<std::uint8_t>(GetParam()));
        m_exfat.clusterSectors = 8;
        m_exfat.clusters = 2000;
        formatExfat(m_card, m_exfat);
    }
    bool erased() {
        const auto written = writtenPlaces(m_card);
        return isErased(m_card, written, readCard(m_card));
    }

    ExfatPlaces m_exfat;
    MemoryCard m_card{16100};
};

TEST_P(ErasedCard, OnlyItsFileSystem_IsErased) {
    EXPECT_TRUE(erased());
    EXPECT_LE(m_card.sectorsRead, 2000u);
}

// What cameras and desktops leave on a card that nobody has used since it was formatted.
TEST_P(ErasedCard, SmallFilesThatAreThere_AreNothingToFind) {
    putBytes(m_card, m_exfat.sectorOf(5), exfatSet({"INDEX.DAT", 10, kSmallestUsed - 1}));
    for (std::size_t sector = m_exfat.sectorOf(10); sector < m_exfat.sectorOf(13); ++sector) {
        m_card.bytes[sector * 512 + 100] = 1;
    }
    EXPECT_TRUE(erased());
}

TEST_P(ErasedCard, PhotosThatAreThere_AreOfACardInUse) {
    putBytes(m_card, m_exfat.sectorOf(5), exfatSet({"IMG_0001.JPG", 10, 40 * 4096}));
    for (std::size_t sector = m_exfat.sectorOf(10); sector < m_exfat.sectorOf(50); ++sector) {
        m_card.bytes[sector * 512 + 100] = 1;
    }
    EXPECT_FALSE(writtenPlaces(m_card).empty());
    EXPECT_FALSE(erased());
}

TEST_P(ErasedCard, OnePhotoBetweenThePlacesLookedAt_IsOfACardInUse) {
    putBytes(m_card, m_exfat.sectorOf(5), exfatSet({"IMG_0001.JPG", 10, kSmallestUsed}));
    EXPECT_FALSE(erased());
}

TEST_P(ErasedCard, FileThatIsGone_IsSomethingToFind) {
    ExfatFile gone{"IMG_0001.JPG", 10, 4096};
    gone.deleted = true;
    putBytes(m_card, m_exfat.sectorOf(5), exfatSet(gone));
    m_card.bytes[m_exfat.sectorOf(10) * 512] = 1;
    EXPECT_FALSE(erased());
}

TEST_P(ErasedCard, SomethingElseWritten_IsNotErased) {
    for (std::size_t sector = 9000; sector < 9200; ++sector) {
        m_card.bytes[sector * 512 + 511] = 1;
    }
    EXPECT_FALSE(erased());
}

INSTANTIATE_TEST_SUITE_P(Both, ErasedCard, testing::Values(0x00, 0xFF));

TEST(ErasedCardOfFewSectors, IsNeverCalledSo) {
    MemoryCard card(1000);
    EXPECT_FALSE(isErased(card, writtenPlaces(card), {}));
}

}  // namespace
}  // namespace vantor
