// What is copied to be looked at: the bytes that saving would write, the ends of a long file first.
#include <gtest/gtest.h>

#include <algorithm>

#include "results/TrueCopy.h"
#include "tests/support/CountedReader.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

constexpr std::size_t kAt = 10;

// What a copy writes, and where.
class TrueCopyTest : public ::testing::Test {
  protected:
    TrueCopy copyOf(const CarvedRun& carved, const char* type = "WAV") {
        return {QLatin1String(type), carved, std::make_unique<ScriptedReader>(medium), watch};
    }
    TrueCopy::Write writer() {
        return [this](std::uint64_t at, std::span<const std::uint8_t> bytes) {
            const auto end = static_cast<qsizetype>(at + bytes.size());
            written.resize(std::max(written.size(), end), '?');
            std::copy(bytes.begin(), bytes.end(), written.begin() + static_cast<std::ptrdiff_t>(at));
            count += bytes.size();
            return true;
        };
    }

    ScriptedMedium medium{0};
    ReadWatch watch;
    QByteArray written;
    std::uint64_t count = 0;
};

TEST_F(TrueCopyTest, AShorterItemEndsWhereItsFileDoes) {
    const QByteArray file = wavFile(5000);
    medium = mediumWith(file, kAt, 100);
    TrueCopy copy = copyOf({{{kAt, 60}}, false});
    ASSERT_TRUE(copy.measure());
    EXPECT_EQ(copy.bytes(), 5000U);
    EXPECT_TRUE(copy.lengthIsKnown());
    EXPECT_TRUE(copy.isSmall());
    EXPECT_TRUE(copy.writeEnds(writer()));
    EXPECT_EQ(written, file);
    EXPECT_TRUE(copy.writeRest(writer()));
    EXPECT_EQ(count, 5000U) << "nothing twice";
}

TEST_F(TrueCopyTest, TheMediumIsClosed_WhenAllIsCopied) {
    medium = mediumWith(wavFile(5000), kAt, 100);
    std::atomic<int> open{0};
    TrueCopy copy(QStringLiteral("WAV"), {{{kAt, 60}}, false}, std::make_unique<CountedReader>(medium, open),
                  watch);
    ASSERT_TRUE(copy.measure() && copy.writeEnds(writer()));
    EXPECT_EQ(open, 1);
    ASSERT_TRUE(copy.writeRest(writer()));
    EXPECT_EQ(open, 0);
}

TEST_F(TrueCopyTest, AnItemThatWasCutShort_GoesOnToItsEnd) {
    const QByteArray file = wavFile(40'000);
    medium = mediumWith(file, kAt, 100);
    TrueCopy copy = copyOf({{{kAt, kAt + 3}}, false});
    ASSERT_TRUE(copy.measure());
    EXPECT_TRUE(copy.writeEnds(writer()));
    EXPECT_EQ(written, file);
}

TEST_F(TrueCopyTest, ASectorThatWasRefused_IsZeros_AndWhatFollowsKeepsItsPlace) {
    QByteArray file = wavFile(5000);
    medium = mediumWith(file, kAt, 100);
    medium.badForEver = {kAt + 2};
    TrueCopy copy = copyOf({{{kAt, kAt + 2}, {kAt + 3, kAt + 12}}, true});
    ASSERT_TRUE(copy.measure());
    EXPECT_TRUE(copy.writeEnds(writer()));
    EXPECT_EQ(written, file.replace(1024, 512, QByteArray(512, '\0')));
}

TEST_F(TrueCopyTest, BytesAtHandAreNotReadAgain) {
    const QByteArray file = wavFile(5120);
    medium = mediumWith(file, kAt, 100);
    TrueCopy copy = copyOf({{{kAt, kAt + 10}}, false});
    ASSERT_TRUE(copy.measure(file));
    EXPECT_TRUE(copy.writeEnds(writer()));
    EXPECT_EQ(written, file);
    EXPECT_EQ(medium.reads, 0U);
}

TEST_F(TrueCopyTest, ALongItem_BeginsWithItsEnds_AndIsFilledInOrder) {
    constexpr qsizetype kBytes = 60'000'000;
    const QByteArray file = longWavFile(kBytes);
    medium = emptyMediumWith(file, kAt, 120'000);
    TrueCopy copy = copyOf({{{kAt, kAt + 100}}, false});
    ASSERT_TRUE(copy.measure());
    EXPECT_FALSE(copy.isSmall());
    ASSERT_TRUE(copy.writeEnds(writer()));
    ASSERT_EQ(written.size(), kBytes);
    constexpr auto kHead = static_cast<qsizetype>(TrueCopy::kHeadBytes);
    EXPECT_EQ(written.first(kHead), file.first(kHead));
    EXPECT_EQ(written.last(15 << 20), file.last(15 << 20));
    EXPECT_LT(count, TrueCopy::kHeadBytes + TrueCopy::kTailBytes + 1);
    std::uint64_t next = TrueCopy::kHeadBytes;
    EXPECT_TRUE(copy.writeRest([&, write = writer()](std::uint64_t at, std::span<const std::uint8_t> bytes) {
        EXPECT_EQ(at, next);
        next = at + bytes.size();
        return write(at, bytes);
    }));
    EXPECT_TRUE(written == file);
    EXPECT_EQ(count, static_cast<std::uint64_t>(kBytes));
}

TEST_F(TrueCopyTest, AWatchThatWasEnded_LeavesNothingWrong) {
    const QByteArray file = wavFile(5000);
    medium = mediumWith(file, kAt, 100);
    TrueCopy copy = copyOf({{{kAt, kAt + 3}}, false});
    ASSERT_TRUE(copy.measure());
    watch.ended = true;
    EXPECT_FALSE(copy.writeEnds(writer()));
    EXPECT_TRUE(file.startsWith(written)) << "no zeros for what was not read";
    TrueCopy another = copyOf({{{kAt, kAt + 3}}, false});
    EXPECT_FALSE(another.measure());
}

TEST_F(TrueCopyTest, AnEndThatTakesTooMuchToFind_IsNotWaitedFor) {
    // Frames of a second each, as long as the medium.
    const QByteArray frame = QByteArray("\xff\xfb\x90\x64", 4) + QByteArray(413, '\x55');
    constexpr qsizetype kBytes = 72'000'000;
    medium = emptyMediumWith(frame.repeated(kBytes / frame.size()), 0, kBytes / 512 + 10);
    TrueCopy copy = copyOf({{{0, 40}}, false}, "MP3");
    ASSERT_TRUE(copy.measure());
    EXPECT_FALSE(copy.lengthIsKnown());
    EXPECT_EQ(copy.bytes(), TrueCopy::kMostWalkedBytes);
    EXPECT_LE(medium.reads, TrueCopy::kMostWalkedBytes / 512);
    ASSERT_TRUE(copy.writeEnds(writer()));
    EXPECT_TRUE(written.startsWith(frame.repeated(1000)));
}

}  // namespace
}  // namespace vantor
