// Memory comes back only when nobody reads it any more, and never piles up.
#include <gtest/gtest.h>

#include <vector>

#include "scan/PhotoItemBuffer.h"
#include "scan/PhotoMemory.h"

namespace vantor {

TEST(PhotoMemory, GivesWhatWasGivenBack) {
    PhotoMemory memory;
    QByteArray bytes = memory.take(1000);
    EXPECT_TRUE(bytes.isEmpty());
    EXPECT_GE(bytes.capacity(), 1000);
    bytes.fill('x', 1000);
    const char* const place = bytes.constData();
    memory.giveBack(std::move(bytes));
    const QByteArray again = memory.take(500);
    EXPECT_TRUE(again.isEmpty());
    EXPECT_EQ(again.constData(), place);
    EXPECT_NE(memory.take(500).constData(), place) << "it is given once";
}

TEST(PhotoMemory, LeavesBytesAloneThatSomebodyHolds) {
    PhotoMemory memory;
    QByteArray bytes = memory.take(1000).append("a picture");
    const QByteArray held = bytes;
    memory.giveBack(std::move(bytes));
    QByteArray other = memory.take(1000);
    EXPECT_NE(other.constData(), held.constData());
    other.append("something else");
    EXPECT_EQ(held, "a picture");
}

TEST(PhotoMemory, MoreRoomThanWasGivenBackIsMade) {
    PhotoMemory memory;
    memory.giveBack(memory.take(1000));
    EXPECT_GE(memory.take(100'000).capacity(), 100'000);
}

TEST(PhotoMemory, KeepsNoMoreThanItsBound) {
    constexpr qsizetype kRoom = PhotoMemory::kMostRoom - 4096;
    constexpr qsizetype kMost = PhotoMemory::kMostKeptBytes / PhotoMemory::kMostRoom;
    PhotoMemory memory;
    std::vector<QByteArray> all;
    for (qsizetype i = 0; i <= kMost; ++i) {
        all.push_back(memory.take(kRoom));
    }
    for (QByteArray& bytes : all) {
        memory.giveBack(std::move(bytes));
    }
    qsizetype kept = 0;
    while (memory.take(0).capacity() != 0) {
        ++kept;
    }
    EXPECT_EQ(kept, kMost);
}

TEST(PhotoMemory, AHugePhotoIsNoMeasureForTheOthers) {
    PhotoMemory memory;
    EXPECT_LE(memory.take(qsizetype{1} << 30).capacity(), 2 * PhotoMemory::kMostRoom);
    QByteArray huge;
    huge.reserve(3 * PhotoMemory::kMostRoom);
    memory.giveBack(std::move(huge));
    EXPECT_EQ(memory.take(0).capacity(), 0);
}

TEST(PhotoMemory, ServesThePhotoBehindTheOneThatWasSaved) {
    PhotoMemory memory;
    PhotoItemBuffer photo(memory);
    const std::vector<std::uint8_t> ones(kSectorBytes, 1), twos(kSectorBytes, 2);
    photo.append(ones.data());
    QByteArray first = photo.bytes();
    photo.clear();
    photo.append(twos.data());
    const QByteArray second = photo.bytes();
    EXPECT_EQ(first, QByteArray(kSectorBytes, 1));
    const char* const place = first.constData();
    memory.giveBack(std::move(first));
    photo.clear();
    photo.append(ones.data());
    EXPECT_EQ(photo.bytes().constData(), place);
    EXPECT_EQ(photo.bytes(), QByteArray(kSectorBytes, 1));
    EXPECT_EQ(second, QByteArray(kSectorBytes, 2));
}

TEST(PhotoItemBuffer, HoldsWhatItWasGivenHoweverOftenItIsAskedForIt) {
    PhotoMemory memory;
    PhotoItemBuffer photo(memory);
    for (const int sectors : {3, 1000, 20}) {
        QByteArray expected;
        std::vector<QByteArray> held;
        for (int i = 0; i < sectors; ++i) {
            const std::vector<std::uint8_t> sector(kSectorBytes, static_cast<std::uint8_t>(i + sectors));
            photo.append(sector.data());
            expected.append(static_cast<qsizetype>(kSectorBytes), static_cast<char>(i + sectors));
            if (i % 7 == 2) {
                held.push_back(photo.bytes());
                ASSERT_EQ(held.back(), expected);
            }
        }
        ASSERT_EQ(photo.bytes(), expected);
        for (const QByteArray& earlier : held) {
            ASSERT_TRUE(expected.startsWith(earlier));
        }
        photo.clear();
        ASSERT_TRUE(photo.bytes().isEmpty());
    }
}

}  // namespace vantor
