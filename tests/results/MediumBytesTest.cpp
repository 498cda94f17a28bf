// The bytes of an item are those of the medium, however they are asked for.
#include <gtest/gtest.h>

#include "results/MediumBytes.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

class MediumBytesTest : public testing::Test {
  protected:
    ScriptedMedium medium = mediumWith({}, 0, 3000);
    ScriptedReader reader{medium};
    std::vector<std::uint8_t> memory;

    ItemSource source(const CarvedRun& carved) {
        return {carved, {}, [this] { return &reader; }, medium.bytes.size()};
    }
    QByteArray onMedium(std::uint64_t firstSector, qsizetype offset, qsizetype count) const {
        return {reinterpret_cast<const char*>(medium.bytes[firstSector].data()) + offset, count};
    }
    static QByteArray read(MediumBytes& bytes, std::uint64_t offset, qsizetype count) {
        QByteArray text(count, '\0');
        text.resize(static_cast<qsizetype>(bytes.read(
            offset, {reinterpret_cast<std::uint8_t*>(text.data()), static_cast<std::size_t>(count)})));
        return text;
    }
};

}  // namespace

TEST_F(MediumBytesTest, GoesOnBehindTheCarvedRunToTheMediumsEnd) {
    const ItemSource item = source({{{100, 110}}, false});
    MediumBytes bytes(item, memory);
    EXPECT_EQ(bytes.size(), 2900 * 512U);
    EXPECT_EQ(bytes.carvedBytes(), 10 * 512U);
    EXPECT_TRUE(read(bytes, 0, 2900 * 512) == onMedium(100, 0, 2900 * 512));
    EXPECT_TRUE(read(bytes, 2900 * 512 - 7, 100) == onMedium(100, 2900 * 512 - 7, 7)) << "a short read";
    EXPECT_EQ(medium.reads, 2900U) << "all in memory";
}

TEST_F(MediumBytesTest, AnyOrderOfReadingGivesTheSame) {
    const ItemSource item = source({{{3, 4}}, false});
    MediumBytes bytes(item, memory);
    std::mt19937 random(4);
    for (int i = 0; i < 300; ++i) {
        const auto offset = static_cast<qsizetype>(random() % (2997 * 512 - 5000));
        const auto count = static_cast<qsizetype>(random() % 5000);
        ASSERT_TRUE(read(bytes, static_cast<std::uint64_t>(offset), count) == onMedium(3, offset, count))
            << offset << " " << count;
    }
}

TEST_F(MediumBytesTest, BorrowedBytesComeFirst) {
    const QByteArray atHand(10 * 512, 'h');
    ItemSource item = source({{{100, 110}}, false});
    item.firstBytes = atHand;
    MediumBytes bytes(item, memory);
    EXPECT_TRUE(read(bytes, 5000, 1000) == QByteArray(120, 'h') + onMedium(110, 0, 880));
}

TEST_F(MediumBytesTest, WhatLiesBehindIsNotReadUnasked) {
    const ItemSource item = source({{{100, 110}}, false});
    MediumBytes bytes(item, memory);
    EXPECT_TRUE(read(bytes, 0, 10 * 512) == onMedium(100, 0, 10 * 512));
    EXPECT_EQ(medium.reads, 10U);
}

TEST_F(MediumBytesTest, BytesLookedAtStayWhereTheyAre) {
    const ItemSource item = source({{{100, 110}}, false});
    MediumBytes bytes(item, memory);
    EXPECT_TRUE(bytes.atHand(0).empty());
    read(bytes, 0, 600);
    const auto before = bytes.atHand(512);
    ASSERT_EQ(before.size(), 9 * 512U);
    read(bytes, 0, 2900 * 512);
    const auto after = bytes.atHand(512);
    EXPECT_EQ(after.data(), before.data());
    EXPECT_EQ(after.size(), 2899 * 512U);
    EXPECT_TRUE(QByteArrayView(before.data(), 9 * 512) == onMedium(101, 0, 9 * 512));
}

TEST_F(MediumBytesTest, UnknownMediumEndsWithTheCarvedRun) {
    ItemSource item = source({{{100, 110}}, false});
    item.mediumSectors = 0;
    EXPECT_EQ(MediumBytes(item, memory).size(), 10 * 512U);
}

TEST_F(MediumBytesTest, MediumThatCannotBeOpenedGivesNothing) {
    ItemSource item = source({{{100, 110}}, false});
    item.medium = [] { return nullptr; };
    MediumBytes bytes(item, memory);
    EXPECT_EQ(read(bytes, 0, 100), QByteArray());
    EXPECT_TRUE(bytes.gaveUp());
}

TEST_F(MediumBytesTest, RunsOutOfOrderStayAsTheyWereRead) {
    const ItemSource item = source({{{100, 102}, {50, 51}}, true});
    MediumBytes bytes(item, memory);
    EXPECT_TRUE(read(bytes, 0, 1536) == onMedium(100, 0, 1024) + onMedium(50, 0, 512));
    EXPECT_TRUE(read(bytes, 1536, 512) == onMedium(51, 0, 512));
}

}  // namespace vantor
