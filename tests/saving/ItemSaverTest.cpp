// What lands in the destination: how long, under which name.
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "saving/ItemSaver.h"
#include "tests/saving/CarvedRuns.h"
#include "tests/saving/PoorFileSystem.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

SavePolicy asPublished() {
    SavePolicy policy;
    policy.asPublished = true;
    return policy;
}

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

TEST(ItemSaver, FolderThatCannotBeMadeIsTold) {
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath("JPG"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    ScriptedMedium medium = letters(4);
    ScriptedReader reader(medium);
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("JPG", "x", run(0, 2), reader);
    EXPECT_FALSE(outcome.saved);
    EXPECT_EQ(outcome.error, folder.path() + "/JPG is not a folder.");
}

TEST(ItemSaver, DiskThatTurnsReadOnly_IsToldAndKeepsWhatIsSaved) {
    const QTemporaryDir home;
    const QByteArray disk = QFile::encodeName(home.path());
    if (::mount("none", disk.constData(), "tmpfs", 0, "size=1m") != 0) {
        GTEST_SKIP() << "nothing can be mounted here";
    }
    ScriptedMedium medium = letters(8);
    ScriptedReader reader(medium);
    const ItemSaver saver(home.path());
    EXPECT_TRUE(saver.saveRuns("JPG", "x", run(0, 2), reader).saved);
    ASSERT_EQ(::mount("none", disk.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    const SaveOutcome file = saver.saveRuns("JPG", "y", run(2, 4), reader);
    const SaveOutcome folder = saver.saveRuns("PNG", "z", run(4, 6), reader);
    EXPECT_EQ(contentsOf(home.filePath("JPG/x")).size(), 1024);
    EXPECT_EQ(QDir(home.filePath("JPG")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
              QStringList("x"));
    ::umount2(disk.constData(), MNT_DETACH);
    EXPECT_FALSE(file.saved);
    EXPECT_EQ(file.error, "The disk can only be read");
    EXPECT_FALSE(folder.saved);
    EXPECT_EQ(folder.error,
              "The folder " + home.path() + "/PNG cannot be created: The disk can only be read");
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

}  // namespace vantor