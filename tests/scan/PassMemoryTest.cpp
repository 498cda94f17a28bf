// What one pass remembers for the next, and what that costs.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <set>

#include "scan/PassMemory.h"
#include "tests/support/Records.h"

namespace vantor {
namespace {

const QStringList& someRecords() {
    static const QStringList records = recordsOf({{"JPG", "4142", "1", "1000"}});
    return records;
}

const std::vector<std::uint8_t> kSomeBytes(512, 0x41);

}  // namespace

TEST(SectorBits, AnyMembers_AreFoundInOrder) {
    std::mt19937_64 random(5);
    for (const std::uint64_t spread : {3U, 17U, 400U, 100000U}) {
        SectorBits bits;
        std::set<std::uint64_t> members;
        for (std::uint64_t sector = random() % 100000; members.size() < 20000;
             sector += 1 + random() % spread) {
            bits.append(sector);
            members.insert(sector);
        }
        std::uint64_t found = 0;
        for (std::uint64_t at = bits.firstFrom(0); at != SectorBits::kNone; at = bits.firstFrom(at + 1)) {
            ASSERT_TRUE(members.contains(at));
            ++found;
        }
        ASSERT_EQ(found, members.size());
        for (int n = 0; n < 5000; ++n) {
            const std::uint64_t asked = random() % (*members.rbegin() + 100);
            const auto next = members.lower_bound(asked);
            ASSERT_EQ(bits.firstFrom(asked), next == members.end() ? SectorBits::kNone : *next);
        }
    }
}

TEST(SectorBits, DenseMembers_CostABitASector) {
    SectorBits bits;
    constexpr std::uint64_t kSectors = std::uint64_t{1} << 24;  // 8 GiB
    for (std::uint64_t sector = 0; sector < kSectors; sector += 2) {
        bits.append(sector);
    }
    // 2^31 sectors of one terabyte stay below 300 MB at this rate.
    EXPECT_LT(static_cast<double>(bits.bytes()) * 128, 300e6);
    EXPECT_EQ(bits.firstFrom(kSectors - 3), kSectors - 2);
    EXPECT_EQ(bits.firstFrom(kSectors - 1), SectorBits::kNone);
}

TEST(SectorBits, FewMembers_CostLittle) {
    SectorBits bits;
    for (std::uint64_t sector = 0; sector < std::uint64_t{1} << 31; sector += 100000) {
        bits.append(sector);
    }
    EXPECT_LT(bits.bytes(), std::size_t{8} << 20);
}

TEST(PassMemory, QuietIsWhatWasReadAndNotMarked) {
    PassMemory memory(someRecords(), 100);
    for (const std::uint64_t sector : {10U, 11U, 12U, 13U, 20U, 21U}) {
        memory.note(sector, sector == 12 ? kLookLater : kLookNow, kSomeBytes.data());
    }
    EXPECT_EQ(memory.quietUntil(9), 9U);
    EXPECT_EQ(memory.quietUntil(10), 12U);
    EXPECT_EQ(memory.quietUntil(11), 12U);
    EXPECT_EQ(memory.quietUntil(12), 12U);
    EXPECT_EQ(memory.quietUntil(13), 14U);
    EXPECT_EQ(memory.quietUntil(14), 14U);
    EXPECT_EQ(memory.quietUntil(20), 22U);
    EXPECT_EQ(memory.quietUntil(1000), 1000U);
}

TEST(PassMemory, SectorsThatNoScreenSaw_AreNeverQuiet) {
    PassMemory memory(someRecords(), 100);
    memory.note(5, kAllLooks, kSomeBytes.data());
    EXPECT_EQ(memory.quietUntil(5), 5U);
}

TEST(PassMemory, KeepsTheBytesThatTheLaterPassLooksAt_AsLongAsThereIsRoom) {
    PassMemory memory(someRecords(), 100);
    std::vector<std::uint8_t> bytes(512);
    const auto note = [&](std::uint64_t sector, std::uint8_t looks) {
        std::memcpy(bytes.data(), &sector, sizeof sector);
        memory.note(sector, looks, bytes.data());
    };
    const auto isKept = [&](std::uint64_t sector) {
        const std::uint8_t* const kept = memory.bytesOf(sector);
        return kept != nullptr && std::memcmp(kept, &sector, sizeof sector) == 0;
    };
    note(7, kLookLater);
    note(8, kLookNow);
    note(9, kLookLater);
    EXPECT_TRUE(isKept(7));
    EXPECT_EQ(memory.bytesOf(8), nullptr);
    EXPECT_TRUE(isKept(9));
    std::uint64_t sector = 10;
    for (; sector < 8 + PassMemory::kMostKept; ++sector) {
        note(sector, kLookLater);
    }
    EXPECT_TRUE(isKept(sector - 1));
    note(sector, kLookLater);
    EXPECT_EQ(memory.bytesOf(sector), nullptr);
    EXPECT_EQ(memory.quietUntil(sector), sector) << "then the medium is asked";
}

TEST(PassMemory, AnotherMediumOrOtherRecords_AreNotWhatItIsFor) {
    const PassMemory memory(someRecords(), 100);
    EXPECT_TRUE(memory.isFor(someRecords(), 100));
    EXPECT_FALSE(memory.isFor(someRecords(), 101));
    EXPECT_FALSE(memory.isFor(recordsOf({{"JPG", "4143", "1", "1000"}}), 100));
}

TEST(PassMemory, ItsScreen_LooksForBothPasses) {
    const PassMemory memory(recordsOf({{"JPG", "4142", "1", "1000"}, {"GIF", "47", "1", "1"}}), 100);
    // A catalogue may end within a record.
    const QStringList now = recordsOf({{"PNG", "4344", "1", "1000"}, {"X", "41", "1", "1"}}) << "half";
    const auto screen = memory.screenBeside(std::make_shared<const HeaderMatcher>(now), now);
    std::vector<std::uint8_t> bytes(5 * 512);
    bytes[0] = 0x41;
    bytes[1] = 0x42;
    bytes[512] = 0x43;
    bytes[513] = 0x44;
    bytes[1024] = 0x41;
    bytes[4 * 512] = 0x47;
    std::vector<std::uint8_t> looks(5, 0x80);
    screen->screen(bytes.data(), 5, looks.data());
    EXPECT_EQ(looks, (std::vector<std::uint8_t>{kLookNow | kLookLater, kLookNow, kLookNow, 0, kLookLater}));
}

}  // namespace vantor
