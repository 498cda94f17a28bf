// Photos that only look whole: their pixels are another's in places, missing, or twice there.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "ContentExpectations.h"
#include "Corpus.h"
#include "Samples.h"

namespace vantor::test {
namespace {

// Bits, most significant first, with a zero stuffed behind each byte of ones.
class BitWriter {
  public:
    void put(unsigned value, unsigned bits) {
        while (bits-- > 0) {
            m_byte = static_cast<std::uint8_t>(m_byte << 1 | (value >> bits & 1));
            if (++m_used == 8)
                flush();
        }
    }
    Bytes done() {
        while (m_used != 0)
            put(1, 1);
        return m_bytes;
    }

  private:
    void flush() {
        m_bytes.push_back(m_byte);
        if (m_byte == 0xFF)
            m_bytes.push_back(0);
        m_byte = 0;
        m_used = 0;
    }
    Bytes m_bytes;
    std::uint8_t m_byte = 0;
    int m_used = 0;
};

// A baseline picture of 512 x 512 grey pixels; `interval` blocks between restart markers, 0: none.
Bytes photo(std::uint32_t seed, unsigned interval = 0) {
    constexpr unsigned kSide = 512, kBlocks = kSide / 8 * kSide / 8;
    constexpr int kCoefficients = 6;
    const auto table = [](int kind, int longer) {  // codes 0 and 10
        return Build()
            .be16(0xFFC4)
            .be16(21)
            .u8(static_cast<std::uint64_t>(kind))
            .u8(1)
            .u8(1)
            .fill(14)
            .u8(0)
            .u8(static_cast<std::uint64_t>(longer));
    };
    const Bytes random = noise(std::size_t{kBlocks} * (kCoefficients + 1), seed);
    Build file;
    file.be16(0xFFD8).be16(0xFFE0).be16(16).text("JFIF").fill(10);
    file.be16(0xFFDB).be16(67).fill(65, 1);
    file.be16(0xFFC0).be16(11).u8(8).be16(kSide).be16(kSide).u8(1).u8(1).u8(0x11).u8(0);
    file.add(table(0, 4)).add(table(0x10, 8));
    if (interval != 0)
        file.be16(0xFFDD).be16(4).be16(interval);
    file.be16(0xFFDA).be16(8).u8(1).u8(1).u8(0).u8(0).u8(63).u8(0);
    BitWriter bits;
    std::size_t next = 0;
    for (unsigned block = 0; block < kBlocks; ++block) {
        if (interval != 0 && block != 0 && block % interval == 0) {
            file.add(bits.done()).be16(0xFFD0 + (block / interval - 1) % 8);
            bits = {};
        }
        bits.put(2, 2);
        bits.put(random[next++] & 15U, 4);
        for (int i = 0; i < kCoefficients; ++i) {
            bits.put(2, 2);
            bits.put(random[next++], 8);
        }
        bits.put(0, 1);
    }
    return file.add(bits.done()).be16(0xFFD9);
}

TEST(Photos, WholeOnes_AreChecked) {
    for (const unsigned interval : {0U, 1U, 64U, 100U}) {
        expectWholeInside("JPG", photo(1, interval));
        EXPECT_GT(photo(1, interval).size(), 30'000U);
    }
}

TEST(Photos, SectorsOfAnotherPhoto_DoNotComeOutEven) {
    const Bytes other = photo(2);
    for (const unsigned interval : {0U, 64U}) {
        const Bytes whole = photo(1, interval);
        Bytes spoilt = whole;
        std::copy_n(other.begin() + 40 * kSector, kSector, spoilt.begin() + 20 * kSector);
        EXPECT_EQ(walkBytes("JPG", spoilt).verdict, Verdict::Damaged);
        std::fill_n(spoilt.begin() + 20 * kSector, kSector, 0);
        EXPECT_EQ(walkBytes("JPG", spoilt).verdict, Verdict::Damaged);
    }
}

TEST(Photos, DamagedInside_EndAtTheirOwnEnd) {
    const Bytes whole = photo(1);
    Bytes spoilt = whole;
    std::fill_n(spoilt.begin() + 20 * kSector, kSector, 0);
    const Extent extent = walkBytes("JPG", Build().add(spoilt).add(noise(5000, 4)));
    EXPECT_TRUE(extent.endFound);
    EXPECT_EQ(extent.end, whole.size());
}

TEST(Photos, MissingAndRepeatedUnits_AreDamage) {
    const Bytes whole = photo(1, 64);
    // From one restart marker to the next but seven: the markers still count on.
    std::vector<std::size_t> first;
    for (std::size_t i = 0; i + 1 < whole.size(); ++i) {
        if (whole[i] == 0xFF && whole[i + 1] == 0xD3)
            first.push_back(i);
    }
    ASSERT_GE(first.size(), 2U);
    Bytes shorter = whole;
    shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(first[0]),
                  shorter.begin() + static_cast<std::ptrdiff_t>(first[1]));
    expectSpoilt("JPG", shorter, shorter.size());
    Bytes longer = whole;
    longer.insert(longer.begin() + static_cast<std::ptrdiff_t>(first[1]),
                  whole.begin() + static_cast<std::ptrdiff_t>(first[0]),
                  whole.begin() + static_cast<std::ptrdiff_t>(first[1]));
    expectSpoilt("JPG", longer, longer.size());
}

TEST(Photos, ProgressiveOnesWithASectorOfAnother_AreNotComplete) {
    const Bytes whole = readFile(foreignFolder() / "imagemagick-progressive.jpg");
    expectWholeInside("JPG", whole);
    ASSERT_GT(whole.size(), 16 * kSector);
    // Behind the tables of the first scan, up to the last whole sector; in every kind of scan. The scan with
    // the last bits of the mean values has no codes, so anything may stand in it; here it fills one sector.
    int unnoticed = 0;
    for (std::size_t at = 2 * kSector; at + kSector < whole.size(); at += kSector) {
        Bytes zeroed = whole;
        std::fill_n(zeroed.begin() + static_cast<std::ptrdiff_t>(at), kSector, 0);
        for (const Bytes& spoilt : {overwritten(whole, at, at + kSector), zeroed})
            unnoticed += walkBytes("JPG", spoilt).verdict == Verdict::Complete ? 1 : 0;
    }
    EXPECT_LE(unnoticed, 1);
}

TEST(Photos, OfACodingThatIsNotFollowed_OnlyEndWhereTheySay) {
    // Of the sequential pictures those with arithmetic codes are not.
    Bytes arithmetic = photo(1);
    const std::array<std::uint8_t, 2> frame = {0xFF, 0xC0};
    const auto at = std::search(arithmetic.begin(), arithmetic.end(), frame.begin(), frame.end());
    ASSERT_NE(at, arithmetic.end());
    at[1] = 0xC9;
    expectWholeInside("JPG", arithmetic, false);
}

TEST(Photos, SecondOnesDirectlyBehind_BelongToTheFile) {
    Bytes first = photo(1);
    if (first.size() % kSector == 0)
        first = photo(3);
    ASSERT_NE(first.size() % kSector, 0U);
    const Bytes both = Build().add(first).add(photo(2));
    expectWholeInside("JPG", both);
    for (const Bytes& tail : {noise(3000, 5), Bytes(3000, 0)})
        EXPECT_EQ(walkBytes("JPG", Build().add(both).add(tail)).end, both.size());
    // In the next sector stands the next file.
    const Bytes apart = Build().add(first).to((first.size() / kSector + 1) * kSector).add(photo(2));
    EXPECT_EQ(walkBytes("JPG", apart).end, first.size());
    EXPECT_EQ(walkBytes("JPG", overwritten(both, both.size() - 9000, both.size() - 8000)).verdict,
              Verdict::Damaged);
}

}  // namespace
}  // namespace vantor::test
