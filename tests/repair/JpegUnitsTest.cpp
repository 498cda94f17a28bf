// Coded units of JPEG pictures, one by one.
#include <gtest/gtest.h>

#include "repair/JpegHead.h"
#include "repair/JpegUnits.h"
#include "tests/repair/Movies.h"
#include "tests/repair/Photos.h"

namespace vantor {
namespace {

using Outcome = JpegUnits::Outcome;
using test::asSpan;

constexpr std::uint64_t kSupplyBytes = 4096;

class ClustersOf final : public ClusterSupply {
  public:
    explicit ClustersOf(const QByteArray& file) : m_file(file) {}
    std::span<const std::uint8_t> cluster(std::uint64_t number) override {
        const auto at = static_cast<qsizetype>(number * kSupplyBytes);
        const auto bytes = asSpan(m_file);
        return at >= m_file.size()
                   ? std::span<const std::uint8_t>()
                   : bytes.subspan(static_cast<std::size_t>(at),
                                   static_cast<std::size_t>(std::min<qsizetype>(4096, m_file.size() - at)));
    }

  private:
    const QByteArray& m_file;
};

std::optional<JpegHead> headOf(const QByteArray& file) {
    SpanSource source(asSpan(file));
    ByteView view(source);
    return readJpegHead(view);
}

struct Reading {
    Outcome outcome = Outcome::Unit;
    std::uint64_t units = 0;
    std::uint64_t end = 0;
    SeamCost cost;
};

Reading readAll(const QByteArray& file) {
    const auto head = headOf(file);
    EXPECT_TRUE(head);
    ClustersOf supply(file);
    Reading reading;
    if (!head) {
        return reading;
    }
    JpegUnits units(*head, kSupplyBytes, supply);
    while ((reading.outcome = units.next()) == Outcome::Unit) {
        reading.cost.add(units.cost());
    }
    reading.units = units.place().unit;
    reading.end = reading.outcome == Outcome::Complete ? units.end() : 0;
    return reading;
}

// Blocks of grey, two bits each, a restart mark behind every one but the last.
QByteArray greyBlocks(const QByteArray& scan) {
    const QByteArray code = QByteArray::fromHex("01000000000000000000000000000000") + QByteArray(1, '\0');
    return QByteArray::fromHex("ffd8ffdb004300") + QByteArray(64, '\1') +
           QByteArray::fromHex("ffc0000b080008001801011100") +  // 24 by 8 samples
           QByteArray::fromHex("ffc4001400") + code + QByteArray::fromHex("ffc4001410") + code +
           QByteArray::fromHex("ffdd00040001") + QByteArray::fromHex("ffda0008010100003f00") + scan;
}

}  // namespace

TEST(JpegUnits, WholePhoto_EndsWithItsLastUnit) {
    const QByteArray photo = test::makePhoto(1);
    const Reading reading = readAll(photo);
    EXPECT_EQ(reading.outcome, Outcome::Complete);
    EXPECT_EQ(reading.units, 40u * 30u);
    EXPECT_EQ(reading.end, static_cast<std::uint64_t>(photo.size()));
    EXPECT_LT(reading.cost.own * 2, reading.cost.shifted) << "rows that join";
}

TEST(JpegUnits, PhotoCutShort_RunsOutOfData) {
    const QByteArray photo = test::makePhoto(1);
    EXPECT_EQ(readAll(photo.left(photo.size() / 8192 * 4096)).outcome, Outcome::OutOfData);
}

TEST(JpegUnits, UnitsLeftOver_AreNoEnd) {
    QByteArray photo = test::makePhoto(1);
    photo.insert(photo.size() - 2, QByteArray(4, '\x11'));
    const Reading reading = readAll(photo);
    EXPECT_EQ(reading.outcome, Outcome::Complete);
    EXPECT_EQ(reading.end, 0u);
}

TEST(JpegUnits, RestartMarksInOrder_AreReadOver) {
    const Reading reading = readAll(greyBlocks(QByteArray::fromHex("3fffd03fffd13fffd9")));
    EXPECT_EQ(reading.outcome, Outcome::Complete);
    EXPECT_EQ(reading.units, 3u);
    EXPECT_NE(reading.end, 0u);
}

TEST(JpegUnits, RestartMarkOutOfOrder_Breaks) {
    const Reading reading = readAll(greyBlocks(QByteArray::fromHex("3fffd03fffd23fffd9")));
    EXPECT_EQ(reading.outcome, Outcome::Broken);
    EXPECT_EQ(reading.units, 2u);
}

TEST(JpegUnits, ReadOnFromASnapshot_ComesToTheSameEnd) {
    const QByteArray photo = test::makePhoto(2);
    const auto head = headOf(photo);
    ASSERT_TRUE(head);
    ClustersOf supply(photo);
    JpegUnits units(*head, kSupplyBytes, supply);
    while (units.place().seen <= 5 * kSupplyBytes) {
        ASSERT_EQ(units.next(), Outcome::Unit);
    }
    JpegUnits::Snapshot before;
    units.snapshotBefore(before);
    EXPECT_LE(before.place.seen, 5 * kSupplyBytes) << "nothing of the next cluster";
    const auto lastCost = units.cost().own;
    JpegUnits again(*head, kSupplyBytes, supply);
    again.resume(before);
    ASSERT_EQ(again.next(), Outcome::Unit);
    EXPECT_EQ(again.cost().own, lastCost) << "the row above is known";
    Outcome outcome = Outcome::Unit;
    while (outcome == Outcome::Unit) {
        outcome = again.next();
    }
    EXPECT_EQ(outcome, Outcome::Complete);
    EXPECT_EQ(again.end(), static_cast<std::uint64_t>(photo.size()));
}

TEST(JpegHead, HeadCutOffAnywhere_IsNone) {
    const QByteArray photo = test::makePhoto(1);
    const auto head = headOf(photo);
    ASSERT_TRUE(head);
    for (std::uint64_t bytes = 0; bytes < head->scanAt; ++bytes) {
        EXPECT_FALSE(headOf(photo.left(static_cast<qsizetype>(bytes)))) << bytes;
    }
}

TEST(JpegHead, OtherCodings_AreNone) {
    QByteArray photo = test::makePhoto(1);
    const qsizetype frame = photo.indexOf(QByteArray::fromHex("ffc00011"));
    ASSERT_GT(frame, 0);
    photo[frame + 1] = '\xC2';
    EXPECT_FALSE(headOf(photo)) << "progressive";
}

}  // namespace vantor
