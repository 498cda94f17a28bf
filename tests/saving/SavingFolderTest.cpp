// Folders below the destination are reached step by step, and never through what somebody planted there.
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>

#include "saving/SavingFolder.h"

namespace vantor {
namespace {

TEST(SavingFolder, MakesWhatIsAbsentAndOpensWhatIsThere) {
    const QTemporaryDir home;
    const auto folder = SavingFolder::open(home.path());
    ASSERT_TRUE(folder);
    for (int turn = 0; turn < 2; ++turn) {
        const auto below = folder->below("JPG/2026-05-17");
        ASSERT_TRUE(below);
        EXPECT_EQ(below->path(), home.filePath("JPG/2026-05-17"));
        EXPECT_TRUE(QDir(below->path()).exists());
        EXPECT_EQ(below->device(), folder->device());
    }
    EXPECT_FALSE(SavingFolder::open(home.filePath("absent")));
}

TEST(SavingFolder, TellsWhichItMadeAndRemovesEmptyOnesAlone) {
    const QTemporaryDir home, elsewhere;
    const auto folder = SavingFolder::open(home.path());
    ASSERT_TRUE(folder);
    QStringList made;
    ASSERT_TRUE(folder->below("DCIM/100CANON", &made));
    ASSERT_TRUE(folder->below("DCIM/101CANON", &made));
    EXPECT_EQ(made, QStringList({"DCIM", "DCIM/100CANON", "DCIM/101CANON"}));
    EXPECT_FALSE(folder->removeIfEmpty("DCIM"));
    EXPECT_TRUE(QDir(home.filePath("DCIM/100CANON")).exists());
    EXPECT_TRUE(folder->removeIfEmpty("DCIM/100CANON"));
    EXPECT_EQ(QDir(home.filePath("DCIM")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
              QStringList("101CANON"));
    ASSERT_TRUE(QDir(elsewhere.path()).mkpath("empty"));
    ASSERT_TRUE(QFile::link(elsewhere.path(), home.filePath("link")));
    EXPECT_FALSE(folder->removeIfEmpty("link/empty"));
    EXPECT_TRUE(QDir(elsewhere.filePath("empty")).exists());
}

TEST(SavingFolder, TheDestinationItselfMayBeALink) {
    const QTemporaryDir home;
    ASSERT_TRUE(QDir(home.path()).mkpath("real"));
    ASSERT_TRUE(QFile::link(home.filePath("real"), home.filePath("link")));
    const auto folder = SavingFolder::open(home.filePath("link"));
    ASSERT_TRUE(folder);
    EXPECT_TRUE(folder->below("JPG"));
    EXPECT_TRUE(QDir(home.filePath("real/JPG")).exists());
}

TEST(SavingFolder, NoPartOfTheWayBelowIsALink) {
    const QTemporaryDir home, elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), home.filePath("JPG")));
    ASSERT_TRUE(QDir(home.path()).mkpath("PNG"));
    ASSERT_TRUE(QFile::link(elsewhere.path(), home.filePath("PNG/2026-05-17")));
    const auto folder = SavingFolder::open(home.path());
    EXPECT_FALSE(folder->below("JPG"));
    EXPECT_TRUE(errno == ELOOP || errno == ENOTDIR) << errno;
    EXPECT_FALSE(folder->below("JPG/2026-05-17"));
    EXPECT_FALSE(folder->below("PNG/2026-05-17"));
    EXPECT_FALSE(folder->below("PNG/.."));
    EXPECT_TRUE(QDir(elsewhere.path()).isEmpty());
}

TEST(SavingFolder, NoPartOfTheWayBelowLiesOnAnotherFileSystem) {
    const QTemporaryDir home;
    ASSERT_TRUE(QDir(home.path()).mkpath("JPG"));
    const QByteArray place = QFile::encodeName(home.filePath("JPG"));
    if (::mount("none", place.constData(), "tmpfs", 0, nullptr) != 0) {
        GTEST_SKIP() << "nothing can be mounted here";
    }
    EXPECT_FALSE(SavingFolder::open(home.path())->below("JPG"));
    EXPECT_EQ(errno, EXDEV);
    ::umount2(place.constData(), MNT_DETACH);
}

}  // namespace
}  // namespace vantor
