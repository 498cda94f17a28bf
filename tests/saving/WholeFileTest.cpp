// A file is there whole or not at all, and replaces none.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "saving/WholeFile.h"
#include "tests/saving/PoorFileSystem.h"
#include "tests/support/Files.h"

namespace vantor {
TEST(WholeFile, AppearsUnderItsNameOnlyWhenWhole) {
    const QTemporaryDir folder;
    {
        WholeFile file(folder.path());
        EXPECT_TRUE(file.write("half"));
        EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
    }
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty())
        << "nothing is left behind";
    WholeFile file(folder.path());
    file.write("whole");
    EXPECT_EQ(file.commit("a.txt"), folder.filePath("a.txt"));
    EXPECT_EQ(contentsOf(folder.filePath("a.txt")), "whole");
}

TEST(WholeFile, TakenNamesGetANumberBeforeTheExtension) {
    const QTemporaryDir folder;
    for (const char* expected : {"a.b.txt", "a.b (2).txt", "a.b (3).txt"}) {
        WholeFile file(folder.path());
        EXPECT_EQ(file.commit("a.b.txt"), folder.filePath(expected));
    }
    for (const char* expected : {"plain", "plain (2)"}) {
        WholeFile file(folder.path());
        EXPECT_EQ(file.commit("plain"), folder.filePath(expected));
    }
}

TEST(WholeFile, LongNames_KeepTheirExtensionBesideANumber) {
    const QTemporaryDir folder;
    const QString stem = QString(248, u'x') + QStringLiteral("1.");
    const QString longest = stem + QStringLiteral("jpeg");
    ASSERT_EQ(longest.size(), 254);
    for (const QString& expected : {longest, QString(246, u'x') + QStringLiteral(" (2).jpeg"),
                                    QString(246, u'x') + QStringLiteral(" (3).jpeg")}) {
        WholeFile file(folder.path());
        EXPECT_EQ(file.commit(longest), folder.filePath(expected)) << file.error().toStdString();
    }
    EXPECT_EQ(numberedName(QStringLiteral("a.jpg"), 2), QStringLiteral("a (2).jpg"));
    EXPECT_EQ(cutToComponent(QString(300, u'x')).size(), 255);
    // What is no extension is cut with the rest, and a character is never cut in two.
    EXPECT_EQ(cutToComponent(QStringLiteral("a.") + QString(300, u'x')),
              QStringLiteral("a.") + QString(253, u'x'));
    const QString pictures = QStringLiteral("\U0001F600").repeated(64);
    EXPECT_EQ(cutToComponent(pictures), pictures.left(2 * 63));
    EXPECT_EQ(numberedName(QStringLiteral(".hidden"), 2), QStringLiteral(".hidden (2)"));
}

// One after the other they would take as many tries as the square of their number.
TEST(WholeFile, NameThatIsTakenManyTimes_TakesFewTries) {
    const QTemporaryDir folder;
    QStringList names{QStringLiteral("a.txt")};
    for (int n = 2; n <= 3000; ++n) {
        names.append(QStringLiteral("a (%1).txt").arg(n));
    }
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    for (const char* expected : {"a (3001).txt", "a (3002).txt"}) {
        WholeFile file(folder.path());
        EXPECT_EQ(file.commit("a.txt"), folder.filePath(expected));
    }
}

TEST(WholeFile, MissingFolderIsAnError) {
    WholeFile file("/nowhere/at/all");
    EXPECT_FALSE(file.isGood());
    EXPECT_FALSE(file.commit("a").has_value());
    EXPECT_FALSE(file.error().isEmpty());
}

TEST(WholeFile, KeepsItsDate) {
    const QTemporaryDir folder;
    WholeFile file(folder.path());
    file.write("x");
    EXPECT_TRUE(file.setModificationTime(1'000'000'000));
    const auto path = file.commit("a");
    ASSERT_TRUE(path);
    EXPECT_EQ(QFileInfo(*path).lastModified().toSecsSinceEpoch(), 1'000'000'000);
}

TEST(WholeFile, DateGivenLater_IsTheFilesAndNotThatOfWhereALinkLeads) {
    const QTemporaryDir folder;
    for (const char* name : {"a", "elsewhere"}) {
        ASSERT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(QFile::link(folder.filePath("elsewhere"), folder.filePath("link")));
    const auto open = SavingFolder::open(folder.path());
    ASSERT_TRUE(open);
    setModificationTime(*open, "a", 1'000'000'000);
    setModificationTime(*open, "link", 1'000'000'000);
    EXPECT_EQ(QFileInfo(folder.filePath("a")).lastModified().toSecsSinceEpoch(), 1'000'000'000);
    EXPECT_NE(QFileInfo(folder.filePath("elsewhere")).lastModified().toSecsSinceEpoch(), 1'000'000'000);
}

TEST(LinkAs, SecondNameTakesNoOthersPlace) {
    const QTemporaryDir folder;
    WholeFile file(folder.path());
    file.write("x");
    const auto path = file.commit("a.txt");
    const auto open = SavingFolder::open(folder.path());
    ASSERT_TRUE(open);
    EXPECT_EQ(linkAs(*path, *open, "b.txt"), folder.filePath("b.txt"));
    EXPECT_EQ(linkAs(*path, *open, "b.txt"), folder.filePath("b (2).txt"));
    EXPECT_EQ(contentsOf(folder.filePath("b (2).txt")), "x");
    EXPECT_FALSE(linkAs(folder.filePath("absent"), *open, "c"));
}

TEST(Leftovers, OfDeadRunsGoAndThoseOfLivingOnesStay) {
    const QTemporaryDir folder;
    const QStringList names{".vantor-1a.part", ".vantor-2b.part", ".vantor-3c", "photo.part"};
    for (const QString& name : names) {
        ASSERT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }
    const FileDescriptor living(::open(QFile::encodeName(folder.filePath(names[1])).constData(), O_WRONLY));
    ASSERT_EQ(::flock(living.get(), LOCK_EX | LOCK_NB), 0);
    removeLeftovers(*SavingFolder::open(folder.path()));
    QDir left(folder.path());
    EXPECT_EQ(left.entryList(QDir::Files | QDir::Hidden, QDir::Name),
              (QStringList{".vantor-2b.part", ".vantor-3c", "photo.part"}));
}

// Cards and sticks know neither unnamed files nor second names, some drivers not even a rename that refuses.
class WholeFileOnPoorFileSystems : public testing::TestWithParam<test::PoorFileSystem::Has> {};

TEST_P(WholeFileOnPoorFileSystems, TakesItsNameAtTheEndAndReplacesNone) {
    const QTemporaryDir folder;
    const test::PoorFileSystem poor(GetParam());
    const auto hidden = [&] { return QDir(folder.path()).entryList({".*"}, QDir::Files | QDir::Hidden); };
    for (const char* text : {"one", "two"}) {
        WholeFile file(folder.path());
        ASSERT_TRUE(file.isGood()) << file.error().toStdString();
        EXPECT_EQ(hidden().size(), 1) << "written under a name of its own";
        file.write(text);
        removeLeftovers(*SavingFolder::open(folder.path()));
        EXPECT_EQ(hidden().size(), 1) << "a file that is being written is no leftover";
        ASSERT_TRUE(file.commit("a.jpg")) << file.error().toStdString();
    }
    EXPECT_EQ(contentsOf(folder.filePath("a.jpg")), "one");
    EXPECT_EQ(contentsOf(folder.filePath("a (2).jpg")), "two");
    { const WholeFile givenUp(folder.path()); }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

INSTANTIATE_TEST_SUITE_P(All, WholeFileOnPoorFileSystems,
                         testing::Values(test::PoorFileSystem::Has{false, true, false},
                                         test::PoorFileSystem::Has{false, false, true},
                                         test::PoorFileSystem::Has{false, false, false}));

}  // namespace vantor
