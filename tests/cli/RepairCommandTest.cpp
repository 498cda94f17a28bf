// Movies without an index, repaired by the command.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "repair/MovieRepair.h"
#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"
#include "tests/repair/Movies.h"

namespace vantor {
namespace {

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

}  // namespace

TEST(RepairCommand, MovieWithoutIndex_GetsATwinBesideIt) {
    const QTemporaryDir folder;
    const test::MadeMovie whole = test::makeMovie(test::plainPictures(30), true, 1);
    const test::MadeMovie other = test::makeMovie(test::plainPictures(50), true, 2);
    const QByteArray broken = other.withoutIndex();
    const QString card = folder.filePath("card.img");
    writeFile(card, QByteArray(64 * 512, '\0') + broken + QByteArray(64 * 512 - broken.size() % 512, '\0'));
    writeFile(folder.filePath("whole.mp4"), whole.bytes);
    const QString saved = folder.filePath("saved");
    const CommandRun run = runCommand({"--mode", "video", "--save", saved, "--repair-movies", "--reference",
                                       folder.filePath("whole.mp4"), card});
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("1 of 1 movies without an index repaired")) << run.out.constData();
    EXPECT_TRUE(QFile::exists(saved + "/MP4/MP400001.MP4")) << "the movie as it is";
    const QByteArray twin = contentsOf(saved + "/MP4/MP400001 repaired.MP4");
    ASSERT_FALSE(twin.isEmpty()) << run.out.constData();
    SpanSource source(test::asSpan(twin));
    EXPECT_FALSE(dataWithoutIndex(source));
    const auto readAgain = readReference(source);
    ASSERT_TRUE(readAgain) << "the pictures are where the new index says";
    EXPECT_TRUE(readAgain->sound);
    for (const IsoSample& picture : other.pictures) {
        const QByteArray bytes =
            broken.mid(static_cast<qsizetype>(picture.at), static_cast<qsizetype>(picture.bytes));
        EXPECT_TRUE(twin.contains(bytes));
    }
}

TEST(RepairCommand, ReferenceThatIsNone_IsRefusedBeforeTheSearch) {
    const QTemporaryDir folder;
    writeFile(folder.filePath("card.img"), QByteArray(64 * 512, '\0'));
    writeFile(folder.filePath("text"), "no movie");
    writeFile(folder.filePath("empty"), {});
    for (const char* const mode : {"photo", "video"}) {
        for (const QString& reference :
             {folder.filePath("text"), folder.filePath("empty"), QStringLiteral("/proc/kmsg")}) {
            const CommandRun run =
                runCommand({"-q", "--mode", mode, "--save", folder.filePath("saved"), "--repair-movies",
                            "--reference", reference, folder.filePath("card.img")});
            EXPECT_EQ(run.exitCode, 2) << mode << ' ' << reference.toStdString();
            // Who is not privileged cannot read the kernel's messages.
            EXPECT_TRUE(run.err.contains("is no whole MP4") || run.err.contains("cannot be read"))
                << run.err.constData();
            EXPECT_TRUE(run.out.isEmpty()) << run.out.constData();
        }
    }
}

TEST(RepairCommand, ReferenceThatCannotBeRead_IsToldBeforeTheSearch) {
    const QTemporaryDir folder;
    writeFile(folder.filePath("card.img"), QByteArray(64 * 512, '\0'));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath("pipe")).constData(), 0600), 0);
    for (const char* const name : {"nowhere", "pipe", "."}) {
        const CommandRun run =
            runCommand({"--mode", "video", "--save", folder.filePath("saved"), "--repair-movies",
                        "--reference", folder.filePath(name), folder.filePath("card.img")});
        EXPECT_EQ(run.exitCode, 2) << name;
        EXPECT_TRUE(run.err.contains("cannot be read")) << run.err.constData();
        EXPECT_TRUE(run.out.isEmpty()) << run.out.constData();
    }
}

}  // namespace vantor
