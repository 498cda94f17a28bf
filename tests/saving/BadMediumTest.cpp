// What is saved of a medium that refuses sectors or goes away.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "saving/ItemSaver.h"
#include "tests/saving/CarvedRuns.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

TEST(ItemSaver, RefusedSectorKeepsItsPlace) {
    const QTemporaryDir folder;
    ScriptedMedium medium = letters(10);
    medium.badForEver = {4};
    ScriptedReader reader(medium);
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("T", "x", {{{2, 4}, {5, 6}}, true}, reader);
    ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
    EXPECT_EQ(contentsOf(outcome.path),
              QByteArray(512, 'c') + QByteArray(512, 'd') + QByteArray(512, '\0') + QByteArray(512, 'f'));
    EXPECT_EQ(outcome.sectorsUnreadable, 1U);
}

TEST(ItemSaver, UnreadableSectorsBecomeZerosAndAreCounted) {
    const QTemporaryDir folder;
    ScriptedMedium medium = letters(6);
    medium.badForEver = {3};
    ScriptedReader reader(medium);
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("T", "x", {{{2, 6}}, false}, reader);
    ASSERT_TRUE(outcome.saved);
    EXPECT_EQ(outcome.sectorsUnreadable, 1U);
    EXPECT_EQ(contentsOf(outcome.path),
              QByteArray(512, 'c') + QByteArray(512, '\0') + QByteArray(512, 'e') + QByteArray(512, 'f'));
}

TEST(ItemSaver, UnreadableSectorMakesAWholeFileADamagedOne) {
    ScriptedMedium medium = mediumWith(wavFile(kWavBytes), 10, 400);
    medium.badForEver = {100};
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("WAV", "a.WAV", run(10, 60), reader);
    ASSERT_TRUE(outcome.saved);
    EXPECT_EQ(outcome.verdict, Verdict::Damaged);
    EXPECT_EQ(outcome.sectorsUnreadable, 1U);
    EXPECT_EQ(outcome.bytes, static_cast<std::uint64_t>(kWavBytes));
}

TEST(ItemSaver, UnreadableSectorDoesNotEndAFileWhoseEndNothingMarks) {
    ScriptedMedium medium = mediumWith(QByteArray(60 * 512, 'x'), 10, 80);
    medium.badForEver = {30};
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("TXT", "a.TXT", run(10, 60), reader);
    ASSERT_TRUE(outcome.saved);
    EXPECT_EQ(outcome.verdict, Verdict::Damaged);
    EXPECT_EQ(outcome.bytes, 50 * 512U);
}

TEST(ItemSaver, LongUnreadableStretchBehindTheCarvedRunEndsTheFile) {
    ScriptedMedium medium = mediumWith(wavFile(kWavBytes), 10, 400);
    for (std::uint64_t sector = 100; sector < 300; ++sector) {
        medium.badForEver.insert(sector);
    }
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("WAV", "a.WAV", run(10, 60), reader);
    ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
    EXPECT_EQ(outcome.verdict, Verdict::CutOff);
    EXPECT_EQ(outcome.bytes, 90 * 512U);
    EXPECT_EQ(outcome.sectorsUnreadable, 0U);
}

// One reader that loses its medium at the given sector.
class VanishingReader : public ScriptedReader {
  public:
    VanishingReader(ScriptedMedium& medium, std::uint64_t goneFrom)
        : ScriptedReader(medium), m_goneFrom(goneFrom) {}
    bool isGone() override { return m_gone; }

  protected:
    bool fetch() override {
        m_gone = m_gone || position() >= m_goneFrom;
        return !m_gone && ScriptedReader::fetch();
    }

  private:
    const std::uint64_t m_goneFrom;
    bool m_gone = false;
};

TEST(ItemSaver, ItemOfWhichNothingCanBeRead_FailsAndIsNoDuplicate) {
    ScriptedMedium medium = letters(24);
    for (std::uint64_t sector = 4; sector < 16; ++sector) {
        medium.badForEver.insert(sector);
    }
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    for (const std::uint64_t first : {4U, 8U, 12U}) {
        const SaveOutcome outcome = saver.saveRuns("T", "x", run(first, first + 4), reader);
        EXPECT_FALSE(outcome.saved || outcome.duplicate);
        EXPECT_EQ(outcome.error, QStringLiteral("None of its sectors could be read"));
    }
    EXPECT_TRUE(filesUnder(folder.path()).isEmpty());
    SavePolicy picky;
    picky.skipUnsound = true;
    picky.minBytes = 1 << 20;
    const SaveOutcome unseen = ItemSaver(folder.path(), picky).saveRuns("JPG", "x", run(4, 8), reader);
    EXPECT_EQ(unseen.leftOut, LeftOut::No) << "nobody looked at it";
    EXPECT_FALSE(unseen.error.isEmpty());
}

TEST(ItemSaver, MediumThatGoesAway_LeavesWhatWasReadAndFailsTheRest) {
    ScriptedMedium medium = letters(20);
    VanishingReader reader(medium, 6);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    const SaveOutcome first = saver.saveRuns("T", "a", run(4, 8), reader);
    ASSERT_TRUE(first.saved);
    EXPECT_TRUE(first.mediumGone);
    EXPECT_EQ(first.verdict, Verdict::CutOff);
    EXPECT_EQ(contentsOf(first.path), QByteArray(512, 'e') + QByteArray(512, 'f'));
    const SaveOutcome second = saver.saveRuns("T", "b", run(10, 14), reader);
    EXPECT_FALSE(second.saved);
    EXPECT_EQ(second.error, QStringLiteral("The medium cannot be read any more"));
}

// As the photo in progress when a card is pulled out: two sectors, one refused, one more, then nothing.
TEST(ItemSaver, BytesInMemoryOutliveTheMedium) {
    const QByteArray published = QByteArray(512, 'a') + QByteArray(512, 'b') + QByteArray(512, 'b') +
                                 QByteArray(512, 'd') + QByteArray(3 * 512, 'd');
    const CarvedRun carved{{{4, 6}, {7, 8}}, true, {{2, 3}, {4, 7}}};
    const QByteArray expected =
        QByteArray(512, 'a') + QByteArray(512, 'b') + QByteArray(512, '\0') + QByteArray(512, 'd');
    ScriptedMedium medium = letters(20);
    VanishingReader pulled(medium, 0);
    for (const bool opens : {false, true}) {
        const QTemporaryDir folder;
        const auto open = [&]() -> SectorReader* { return opens ? &pulled : nullptr; };
        const SaveOutcome outcome =
            ItemSaver(folder.path()).save({"T", "x", {carved, published, open, opens ? 20U : 0U}});
        ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
        EXPECT_EQ(contentsOf(outcome.path), expected);
        EXPECT_EQ(outcome.sectorsUnreadable, 1U);
    }
    ScriptedReader whole(medium);
    const QTemporaryDir folder;
    const SaveOutcome outcome =
        ItemSaver(folder.path()).save({"T", "x", {carved, published, [&] { return &whole; }, 8}});
    EXPECT_EQ(contentsOf(outcome.path),
              QByteArray(512, 'a') + QByteArray(512, 'b') + QByteArray(512, 'g') + QByteArray(512, 'd'));
    EXPECT_EQ(medium.reads, 1U) << "only what memory does not hold";
}

TEST(ItemSaver, BadZoneIsPassedOverAndWhatLiesBehindIsRead) {
    constexpr std::uint64_t kFirst = 10, kZone = 1000, kZoneEnd = 6000, kEnd = 9010;
    const QByteArray wav = wavFile(static_cast<qsizetype>((kEnd - kFirst) * 512));
    ScriptedMedium medium = mediumWith(wav, kFirst, 9100);
    for (std::uint64_t sector = kZone; sector < kZoneEnd; ++sector) {
        medium.badForEver.insert(sector);
    }
    QByteArray expected = wav;
    const auto at = static_cast<qsizetype>((kZone - kFirst) * 512);
    const auto count = static_cast<qsizetype>((kZoneEnd - kZone) * 512);
    expected.replace(at, count, QByteArray(count, '\0'));
    for (const std::uint64_t carvedEnd : {kEnd, kFirst + 20}) {
        const QTemporaryDir folder;
        ScriptedReader reader(medium);
        medium.reads = 0;
        const SaveOutcome outcome =
            ItemSaver(folder.path()).saveRuns("WAV", "a.WAV", run(kFirst, carvedEnd), reader);
        ASSERT_TRUE(outcome.saved);
        EXPECT_TRUE(contentsOf(outcome.path) == expected);
        EXPECT_EQ(outcome.sectorsUnreadable, kZoneEnd - kZone);
        EXPECT_LT(medium.reads, 9100 - kFirst - (kZoneEnd - kZone) + 60) << "few refusals";
    }
}

}  // namespace
}  // namespace vantor
