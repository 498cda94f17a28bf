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
    constexpr qsizetype kHalf = PhotoMemory::kMostKeptBytes / 2 - 4096;
    PhotoMemory memory;
    std::vector<QByteArray> all;
    std::vector<const char*> places;
    for (int i = 0; i < 3; ++i) {
        all.push_back(memory.take(kHalf));
        places.push_back(all.back().constData());
    }
    QByteArray huge;
    huge.reserve(PhotoMemory::kMostKeptBytes + 1);
    memory.giveBack(std::move(huge));
    for (QByteArray& bytes : all) {
        memory.giveBack(std::move(bytes));
    }
    EXPECT_EQ(memory.take(0).constData(), places[1]);
    EXPECT_EQ(memory.take(0).constData(), places[0]);
    EXPECT_EQ(memory.take(0).capacity(), 0) << "neither the third nor the huge one was kept";
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

}  // namespace vantor
