// The copy of sectors with its failures.
#include <gtest/gtest.h>

#include <atomic>
#include <string>

#include "results/PreviewCopy.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

// The first byte of every sector copied.
std::string copied(ScriptedMedium& medium, std::uint64_t start, std::uint64_t end) {
    ScriptedReader reader(medium);
    const std::atomic<int> stop{0};
    std::string firsts;
    copyPreviewSectors(reader, start, end, stop, [&](const std::uint8_t* sector) {
        firsts += static_cast<char>(sector[0]);
        return true;
    });
    return firsts;
}

}  // namespace

TEST(PreviewCopy, CopiesUpToTheEndSector) {
    ScriptedMedium medium = letters(10);
    EXPECT_EQ(copied(medium, 0, 3), "abc");
    EXPECT_EQ(copied(medium, 4, 7), "efg");
    EXPECT_EQ(copied(medium, 4, 4), "");
    EXPECT_EQ(copied(medium, 7, 4), "");
}

namespace {

// Notes where it is positioned.
class SeekingReader : public ScriptedReader {
  public:
    using ScriptedReader::ScriptedReader;
    std::vector<std::uint64_t> seeks;

  protected:
    bool moveTo(std::uint64_t sector) override {
        seeks.push_back(sector);
        return ScriptedReader::moveTo(sector);
    }
};

}  // namespace

TEST(PreviewCopy, OnlyAnItemBehindTheBeginning_IsSought) {
    ScriptedMedium medium = letters(10);
    const std::atomic<int> stop{0};
    const auto nothing = [](const std::uint8_t*) { return true; };
    SeekingReader fromBeginning(medium), fromBehind(medium);
    copyPreviewSectors(fromBeginning, 0, 3, stop, nothing);
    EXPECT_EQ(fromBeginning.seeks, std::vector<std::uint64_t>());
    copyPreviewSectors(fromBehind, 4, 6, stop, nothing);
    EXPECT_EQ(fromBehind.seeks, std::vector<std::uint64_t>{4});
}

TEST(PreviewCopy, SaysWhetherItHoldsWhatStandsThere) {
    ScriptedMedium medium = letters(10);
    std::atomic<int> stop{0};
    const auto copy = [&](bool written) {
        ScriptedReader reader(medium);
        return copyPreviewSectors(reader, 2, 6, stop, [&](const std::uint8_t*) { return written; });
    };
    EXPECT_TRUE(copy(true));
    EXPECT_FALSE(copy(false));
    stop = 1;
    EXPECT_FALSE(copy(true));
    stop = 0;
    medium.badTimes[5] = 1;
    EXPECT_FALSE(copy(true)) << "the last sector is one behind";
}

TEST(PreviewCopy, UnreadableSectorRepeatsTheLastGoodBytes) {
    ScriptedMedium medium = letters(10);
    medium.badForEver = {3};
    // The sector fails, and fails again one later; then the stream is past it and one behind.
    EXPECT_EQ(copied(medium, 1, 8), "bcccefg");
}

TEST(PreviewCopy, NothingGoodBeforeAFailureGivesZeros) {
    ScriptedMedium medium = letters(4);
    medium.badTimes[0] = 1;
    EXPECT_EQ(copied(medium, 0, 3), std::string("\0ab", 3));
}

TEST(PreviewCopy, StopsOnRequestAndOnAWriteError) {
    ScriptedMedium medium = letters(10);
    ScriptedReader reader(medium);
    std::atomic<int> stop{0};
    int written = 0;
    copyPreviewSectors(reader, 0, 10, stop, [&](const std::uint8_t*) {
        stop = ++written == 4 ? 1 : 0;
        return true;
    });
    EXPECT_EQ(written, 4);
    stop = 0;
    ScriptedReader again(medium);
    copyPreviewSectors(again, 0, 10, stop, [&](const std::uint8_t*) { return ++written < 7; });
    EXPECT_EQ(written, 7) << "the write that failed was the last";
}

}  // namespace vantor
