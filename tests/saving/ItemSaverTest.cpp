// What lands in the destination: how long, under which name, once.
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "saving/ItemSaver.h"
#include "tests/saving/PoorFileSystem.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

SavePolicy asPublished() {
    SavePolicy policy;
    policy.asPublished = true;
    return policy;
}

CarvedRun run(std::uint64_t first, std::uint64_t end) {
    return {{{first, end}}, false};
}

constexpr qsizetype kWavBytes = 100'000;  // 196 sectors

}  // namespace

TEST(ItemSaver, AsPublished_SavesTheSectorsReallyRead) {
    const QTemporaryDir folder;
    ScriptedMedium medium = letters(10);
    ScriptedReader reader(medium);
    const ItemSaver saver(folder.path(), asPublished());
    const SaveOutcome outcome = saver.saveRuns("JPG", "x.JPG", {{{2, 4}, {7, 8}}, true}, reader);
    ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
    EXPECT_EQ(outcome.path, folder.filePath("JPG/x.JPG"));
    EXPECT_EQ(contentsOf(outcome.path), QByteArray(512, 'c') + QByteArray(512, 'd') + QByteArray(512, 'h'));
    EXPECT_EQ(outcome.sectorsUnreadable, 0U);
}

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

TEST(ItemSaver, FolderThatCannotBeMadeIsTold) {
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath("JPG"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    ScriptedMedium medium = letters(4);
    ScriptedReader reader(medium);
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("JPG", "x", run(0, 2), reader);
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.error.contains("JPG"));
}

TEST(ItemSaver, FolderThatIsALinkIsNotFollowed) {
    const QTemporaryDir folder, card;
    ASSERT_TRUE(QFile::link(card.path(), folder.filePath("JPG")));
    ScriptedMedium medium = letters(4);
    ScriptedReader reader(medium);
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("JPG", "x", run(0, 2), reader);
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.error.contains("leads elsewhere")) << outcome.error.toStdString();
    EXPECT_TRUE(QDir(card.path()).isEmpty(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden));
}

TEST(ItemSaver, FilesAndTheirNamesAreFlushed) {
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    ScriptedMedium medium = letters(6);
    ScriptedReader reader(medium);
    const int before = test::flushesSoFar();
    ASSERT_TRUE(saver.saveRuns("T", "a", run(0, 2), reader).saved);
    ASSERT_TRUE(saver.saveRuns("T", "b", run(2, 4), reader).saved);
    EXPECT_EQ(test::flushesSoFar() - before, 2) << "each file";
    ASSERT_TRUE(saver.saveRuns("U", "c", run(4, 6), reader).saved);
    saver.flush();
    EXPECT_EQ(test::flushesSoFar() - before, 3 + 2) << "and each folder, once";
    saver.flush();
    EXPECT_EQ(test::flushesSoFar() - before, 3 + 2);
}

TEST(ItemSaver, FoldersThatItMadeAndThatHoldNothingGo_AndNoOthers) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("OLD"));
    const ItemSaver saver(folder.path());
    ScriptedMedium medium = letters(6);
    medium.badForEver = {0, 1};
    ScriptedReader reader(medium);
    for (const char* type : {"NEW", "OLD", "GOOD"}) {
        EXPECT_FALSE(saver.saveRuns(type, "a", run(0, 2), reader).saved);
    }
    ASSERT_TRUE(saver.saveRuns("GOOD", "b", run(2, 4), reader).saved);
    saver.flush();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList({"GOOD", "OLD"}));
    medium.badForEver.clear();
    EXPECT_TRUE(saver.saveRuns("NEW", "c", run(0, 2), reader).saved) << "made again";
}

TEST(ItemSaver, LeftoversOfAKilledRunGoWhereTheNextOneWrites) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("T"));
    ASSERT_TRUE(QFile(folder.filePath("T/.vantor-1a.part")).open(QIODevice::WriteOnly));
    ScriptedMedium medium = letters(2);
    ScriptedReader reader(medium);
    ASSERT_TRUE(ItemSaver(folder.path()).saveRuns("T", "a", run(0, 2), reader).saved);
    EXPECT_EQ(QDir(folder.filePath("T")).entryList(QDir::Files | QDir::Hidden), QStringList{"a"});
}

TEST(ItemSaver, AsksBeforeEachFileWhetherTheDestinationLiesOnTheMedium) {
    const QTemporaryDir folder;
    int asked = 0;
    const ItemSaver saver(folder.path(), {}, [&](const QString& destination) {
        EXPECT_EQ(destination, folder.path());
        return ++asked == 2;
    });
    ScriptedMedium medium = letters(6);
    ScriptedReader reader(medium);
    EXPECT_TRUE(saver.saveRuns("T", "a", run(0, 2), reader).saved);
    const SaveOutcome refused = saver.saveRuns("T", "b", run(2, 4), reader);
    EXPECT_FALSE(refused.saved);
    EXPECT_TRUE(refused.error.contains("on the medium")) << refused.error.toStdString();
    EXPECT_TRUE(saver.saveRuns("T", "c", run(4, 6), reader).saved);
    EXPECT_EQ(QDir(folder.filePath("T")).entryList(QDir::Files), (QStringList{"a", "c"}));
}

TEST(ItemSaver, FileEndsWhereItsFormatSays) {
    const QByteArray wav = wavFile(kWavBytes);
    ScriptedMedium medium = mediumWith(wav, 10, 400);
    const struct {
        CarvedRun carved;
        const char* what;
    } cases[] = {{run(10, 300), "foreign sectors behind it"},
                 {run(10, 60), "cut by the limit"},
                 {run(10, 11), "one sector"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const QTemporaryDir folder;
        ScriptedReader reader(medium);
        const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("WAV", "a.WAV", c.carved, reader);
        ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
        EXPECT_TRUE(contentsOf(outcome.path) == wav);
        EXPECT_EQ(outcome.bytes, static_cast<std::uint64_t>(kWavBytes));
        EXPECT_EQ(outcome.verdict, Verdict::Complete);
        EXPECT_TRUE(outcome.exactLength);
        EXPECT_EQ(outcome.sha256, QCryptographicHash::hash(wav, QCryptographicHash::Sha256));
    }
}

TEST(ItemSaver, BytesAtHandAreNotReadAgain) {
    const QByteArray wav = wavFile(kWavBytes);
    ScriptedMedium medium = mediumWith(wav, 10, 400);
    const QByteArray carved(reinterpret_cast<const char*>(medium.bytes[10].data()), 300 * 512);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const auto save = [&](qsizetype bytesAtHand) {
        const ItemSaver saver(folder.path());
        medium.reads = 0;
        return saver.save({"WAV",
                           QString::number(bytesAtHand),
                           {run(10, 10 + static_cast<std::uint64_t>(bytesAtHand) / 512),
                            QByteArrayView(carved).first(bytesAtHand), [&] { return &reader; }, 400}});
    };
    ASSERT_TRUE(save(300 * 512).saved);
    EXPECT_EQ(medium.reads, 0U);
    const SaveOutcome beyond = save(50 * 512);
    ASSERT_TRUE(beyond.saved);
    EXPECT_TRUE(contentsOf(beyond.path) == wav);
    EXPECT_GE(medium.reads, 146U);
    EXPECT_LE(medium.reads, 400U) << "each place once";
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

class SameBytes : public testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(Checksums, SameBytes, testing::Bool());

TEST_P(SameBytes, AreSavedOnce) {
    const QByteArray wav = wavFile(kWavBytes);
    const QByteArray other = wavFile(kWavBytes, 2);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    std::memcpy(medium.bytes.at(300).data(), wav.data(), static_cast<std::size_t>(wav.size()));
    std::memcpy(medium.bytes.at(700).data(), other.data(), static_cast<std::size_t>(other.size()));
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy policy;
    policy.checksums = GetParam();
    const ItemSaver saver(folder.path(), policy);
    const SaveOutcome first = saver.saveRuns("WAV", "a.WAV", run(10, 60), reader);
    const SaveOutcome again = saver.saveRuns("WAV", "b.WAV", run(300, 600), reader);
    const SaveOutcome sameSizeOnly = saver.saveRuns("WAV", "d.WAV", run(700, 701), reader);
    EXPECT_TRUE(sameSizeOnly.saved && !sameSizeOnly.duplicate);
    const SaveOutcome otherType = saver.saveRuns("RMI", "c.RMI", run(10, 60), reader);
    EXPECT_FALSE(first.duplicate);
    ASSERT_TRUE(again.saved && again.duplicate);
    EXPECT_EQ(again.path, first.path);
    ASSERT_TRUE(otherType.saved && otherType.duplicate);
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"RMI/c.RMI", "WAV/a.WAV", "WAV/d.WAV"}));
    struct stat one {
    }, second{};
    ::stat(first.path.toLocal8Bit().constData(), &one);
    ::stat(otherType.path.toLocal8Bit().constData(), &second);
    EXPECT_EQ(one.st_ino, second.st_ino) << "one file with two names";

    const SaveOutcome thirdTime = saver.saveRuns("RMI", "e.RMI", run(300, 600), reader);
    EXPECT_TRUE(thirdTime.duplicate);
    EXPECT_EQ(thirdTime.path, otherType.path) << "one name a type";

    SavePolicy keep;
    keep.skipDuplicates = false;
    ASSERT_TRUE(QDir(folder.path()).mkdir("all"));
    const ItemSaver keeper(folder.filePath("all"), keep);
    EXPECT_TRUE(keeper.saveRuns("WAV", "a.WAV", run(10, 60), reader).saved);
    EXPECT_FALSE(keeper.saveRuns("WAV", "b.WAV", run(300, 600), reader).duplicate);
    EXPECT_EQ(filesUnder(folder.filePath("all")), QStringList({"WAV/a.WAV", "WAV/b.WAV"}));
}

TEST_P(SameBytes, FilesThatOnlyBeginAlikeAreBothSaved) {
    QByteArray wav = wavFile(kWavBytes);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    wav.back() = static_cast<char>(wav.back() + 1);
    std::memcpy(medium.bytes.at(300).data(), wav.data(), static_cast<std::size_t>(wav.size()));
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy policy;
    policy.checksums = GetParam();
    const ItemSaver saver(folder.path(), policy);
    saver.saveRuns("WAV", "a.WAV", run(10, 60), reader);
    const SaveOutcome second = saver.saveRuns("WAV", "b.WAV", run(300, 600), reader);
    EXPECT_FALSE(second.duplicate);
    ASSERT_TRUE(second.saved);
    EXPECT_TRUE(contentsOf(second.path) == wav);
}

// The checksum of a file tells whether it was asked for: most files of one size need none.
TEST(ItemSaver, FilesOfOneSizeThatBeginDifferentlyAreNotSummedUp) {
    const QByteArray wav = wavFile(kWavBytes);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    const QByteArray other = wavFile(kWavBytes, 2);
    std::memcpy(medium.bytes.at(300).data(), other.data(), static_cast<std::size_t>(other.size()));
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy policy;
    policy.checksums = false;
    const ItemSaver saver(folder.path(), policy);
    EXPECT_TRUE(saver.saveRuns("WAV", "a.WAV", run(10, 60), reader).saved);
    const SaveOutcome second = saver.saveRuns("WAV", "b.WAV", run(300, 600), reader);
    EXPECT_TRUE(second.saved);
    EXPECT_TRUE(second.sha256.isEmpty());
}

TEST(ItemSaver, DateTakenIsTheFilesTimeAndOnRequestItsName) {
    ScriptedMedium medium = mediumWith(tiffFile(64, 48, "2026:05:17 14:03:22"), 5, 60);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const SaveOutcome plain = ItemSaver(folder.path()).saveRuns("TIF", "G1.TIF", run(5, 60), reader);
    ASSERT_TRUE(plain.saved);
    EXPECT_EQ(plain.path, folder.filePath("TIF/G1.TIF"));
    EXPECT_EQ(QFileInfo(plain.path).lastModified(), QDateTime(QDate(2026, 5, 17), QTime(14, 3, 22)));
    EXPECT_EQ(plain.width, 64U);
    EXPECT_EQ(plain.height, 48U);
    SavePolicy policy;
    policy.folders = SaveFolders::Date;
    const QTemporaryDir other;
    const SaveOutcome dated = ItemSaver(other.path(), policy).saveRuns("TIF", "G1.TIF", run(5, 60), reader);
    EXPECT_EQ(dated.path, other.filePath("TIF/2026-05-17/2026-05-17 14.03.22 G1.TIF"));
    const SaveOutcome again = ItemSaver(other.path()).saveRuns("TIF", "G1.TIF", run(5, 60), reader);
    EXPECT_EQ(again.path, dated.path) << "there already, by date";
}

TEST(ItemSaver, SmallOnesAreLeftOutOnRequest) {
    ScriptedMedium medium = mediumWith(tiffFile(64, 48, "2026:05:17 14:03:22"), 5, 60);
    ScriptedReader reader(medium);
    const auto save = [&](const SavePolicy& policy) {
        const QTemporaryDir folder;
        return ItemSaver(folder.path(), policy).saveRuns("TIF", "G1.TIF", run(5, 60), reader);
    };
    SavePolicy policy;
    policy.minPixels = 64;
    EXPECT_TRUE(save(policy).saved);
    policy.minPixels = 65;
    EXPECT_EQ(save(policy).leftOut, LeftOut::TooSmall);
    policy = {};
    policy.minBytes = 64 * 48;
    EXPECT_TRUE(save(policy).saved);
    policy.minBytes = 10'000;
    EXPECT_EQ(save(policy).leftOut, LeftOut::TooSmall);
}

TEST(ItemSaver, DestinationThatWentAwayIsNotMadeAgain) {
    const QTemporaryDir folder;
    ScriptedMedium medium = letters(4);
    ScriptedReader reader(medium);
    const QString destination = folder.filePath("card/out");
    const ItemSaver saver(destination);
    EXPECT_FALSE(saver.saveRuns("T", "a", run(0, 2), reader).saved) << "nor made by itself";
    EXPECT_FALSE(QFileInfo::exists(destination));
    ASSERT_TRUE(QDir().mkpath(destination));
    ASSERT_TRUE(saver.saveRuns("T", "a", run(0, 2), reader).saved);
    ASSERT_TRUE(QDir(destination).removeRecursively());
    const SaveOutcome outcome = saver.saveRuns("T", "b", run(0, 2), reader);
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.error.contains("no longer there")) << outcome.error.toStdString();
    EXPECT_FALSE(QFileInfo::exists(destination));
}

TEST(ItemSaver, DestinationThatWasPulledOutIsNotWrittenBesideItsPlace) {
    const QTemporaryDir folder;
    const QByteArray mountPoint = folder.path().toLocal8Bit();
    if (::mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=1m") != 0) {
        GTEST_SKIP() << "needs root to mount a file system";
    }
    ScriptedMedium medium = letters(4);
    ScriptedReader reader(medium);
    const ItemSaver saver(folder.path());
    EXPECT_TRUE(saver.saveRuns("T", "a", run(0, 2), reader).saved);
    ASSERT_EQ(::umount(mountPoint.constData()), 0);
    EXPECT_FALSE(saver.saveRuns("T", "b", run(0, 2), reader).saved);
    EXPECT_TRUE(filesUnder(folder.path()).isEmpty());
}

TEST(ItemSaver, PartsOfAStreamGoNoFurtherThanTheyWereCarved) {
    // AC-3 frames of 48 kHz, 32 kbit/s: 128 bytes each, so that each fourth begins a sector.
    QByteArray stream;
    for (int frame = 0; frame < 4000; ++frame) {
        stream += QByteArray("\x0B\x77\0\0\0\x40\x40\0", 8) + QByteArray(120, 'x');
    }
    ScriptedMedium medium = mediumWith(stream, 10, 1200);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    const SaveOutcome whole = saver.saveRuns("AC3", "a.AC3", run(10, 12), reader);
    ASSERT_EQ(whole.verdict, Verdict::Complete);
    ASSERT_EQ(whole.bytes, static_cast<std::uint64_t>(stream.size()));
    const SaveOutcome part = saver.saveRuns("AC3", "b.AC3", run(20, 22), reader);
    ASSERT_TRUE(part.saved);
    EXPECT_EQ(part.bytes, 2 * 512U);
    // What is of another kind is no part of it, however far the first was believed to reach.
    const SaveOutcome other = saver.saveRuns("EAC3", "c.EAC3", run(20, 22), reader);
    EXPECT_EQ(other.bytes, static_cast<std::uint64_t>(stream.size()) - 10 * 512U);
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

TEST(ItemSaver, ZerosInPlaceOfUnreadableSectorsMakeNoDuplicate) {
    ScriptedMedium medium = letters(24);
    medium.bytes[14] = medium.bytes[4];
    medium.badForEver = {5, 6, 7, 15, 16, 17};
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    ASSERT_TRUE(saver.saveRuns("T", "a", run(4, 8), reader).saved);
    const SaveOutcome other = saver.saveRuns("T", "b", run(14, 18), reader);
    EXPECT_TRUE(other.saved);
    EXPECT_FALSE(other.duplicate) << "only their first sectors were read";
    const SaveOutcome again = saver.saveRuns("T", "a", run(4, 8), reader);
    EXPECT_TRUE(again.duplicate) << "the same place, as badly read";
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"T/a", "T/b"}));
    medium.badForEver.clear();
    EXPECT_FALSE(saver.saveRuns("T", "a", run(4, 8), reader).duplicate) << "all of it can be read now";
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"T/a", "T/a (2)", "T/b"}));
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

TEST(ItemSaver, FilesFromAnEarlierRecoveryAreKnownByTheirBytes) {
    const QByteArray wav = wavFile(kWavBytes);
    const QByteArray other = wavFile(kWavBytes, 2);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    std::memcpy(medium.bytes.at(300).data(), other.data(), static_cast<std::size_t>(other.size()));
    medium.badForEver = {710};
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const auto saveAll = [&] {
        const ItemSaver saver(folder.path());
        int duplicates = 0;
        for (const auto& [name, at] : {std::pair{"a.WAV", 10}, {"b.WAV", 300}}) {
            const auto first = static_cast<std::uint64_t>(at);
            const SaveOutcome outcome = saver.saveRuns("WAV", name, run(first, first + 2), reader);
            EXPECT_TRUE(outcome.saved) << outcome.error.toStdString();
            duplicates += outcome.duplicate ? 1 : 0;
        }
        const SaveOutcome partly = saver.saveRuns("T", "c", run(705, 715), reader);
        EXPECT_TRUE(partly.saved);
        return duplicates + (partly.duplicate ? 1 : 0);
    };
    EXPECT_EQ(saveAll(), 0);
    const QStringList files{"T/c", "WAV/a.WAV", "WAV/b.WAV"};
    EXPECT_EQ(filesUnder(folder.path()), files);
    EXPECT_EQ(saveAll(), 3);
    EXPECT_EQ(filesUnder(folder.path()), files) << "no second copies";
    // Another file of that name and size is no reason to lose this one.
    QFile changed(folder.filePath("WAV/b.WAV"));
    ASSERT_TRUE(changed.open(QIODevice::ReadWrite) && changed.seek(kWavBytes - 1) && changed.putChar('!'));
    changed.close();
    EXPECT_EQ(saveAll(), 2);
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"T/c", "WAV/a.WAV", "WAV/b (2).WAV", "WAV/b.WAV"}));
}

}  // namespace vantor
