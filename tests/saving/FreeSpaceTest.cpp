// What does not fit at the destination is refused before a byte of it is written.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "saving/FreeSpace.h"
#include "tests/saving/PoorFileSystem.h"

namespace vantor {
namespace {

constexpr std::uint64_t kFourGiB = std::uint64_t{4} << 30;

TEST(FreeSpace, OnFat_AFileOfFourGiBIsRefused) {
    const QTemporaryDir folder;
    test::PoorFileSystem::Has has;
    has.longFiles = false;
    const test::PoorFileSystem fat(has);
    const auto refusal = refuseForSpace(folder.path(), kFourGiB);
    ASSERT_TRUE(refusal);
    EXPECT_TRUE(refusal->contains("FAT file system")) << refusal->toStdString();
    EXPECT_TRUE(refusal->contains(folder.path())) << refusal->toStdString();
    EXPECT_FALSE(refuseForSpace(folder.path() + "/not/there/yet", kFourGiB).value_or("").isEmpty());
    EXPECT_FALSE(refuseForSpace(folder.path(), kFourGiB - 1).value_or("").contains("FAT"));
}

TEST(FreeSpace, Elsewhere_LengthAloneIsNoReason) {
    const QTemporaryDir folder;
    EXPECT_FALSE(refuseForSpace(folder.path(), kFourGiB).value_or("").contains("FAT"));
}

TEST(FreeSpace, MoreThanIsFree_IsRefused) {
    const QTemporaryDir folder;
    const auto free = freeBytesAt(folder.path());
    ASSERT_TRUE(free);
    const auto refusal = refuseForSpace(folder.path(), *free * 2 + 1);
    ASSERT_TRUE(refusal);
    EXPECT_TRUE(refusal->contains("not enough room")) << refusal->toStdString();
}

}  // namespace
}  // namespace vantor
