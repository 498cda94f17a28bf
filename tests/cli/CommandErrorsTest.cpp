// What the command says, and exits with, when something is wrong.
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include "tests/cli/CommandRun.h"
#include "tests/cli/SmallCard.h"
#include "tests/support/Files.h"

namespace vantor {

TEST(Command, BadUsageIsTold) {
    for (const QStringList& arguments : {QStringList{},
                                         {"--mode", "music", "x"},
                                         {"--range", "5", "x"},
                                         {"a", "b"},
                                         {"--nonsense", "x"},
                                         {"--types", "JPG", "x"}}) {
        const CommandRun run = runCommand(arguments);
        EXPECT_EQ(run.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_FALSE(run.err.isEmpty());
    }
}

TEST(Command, RangeIsRefusedWithTheWizardsTexts) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const auto refusal = [&](const char* range) {
        const CommandRun run = runCommand({"--range", range, image});
        EXPECT_EQ(run.exitCode, 2);
        return run.err;
    };
    EXPECT_TRUE(refusal("x:5").contains("Please enter valid Start Sector value."));
    EXPECT_TRUE(refusal("5:").contains("Please enter valid End Sector value."));
    EXPECT_TRUE(refusal("0:65").contains("Maximum sector range exceeded"));
    EXPECT_TRUE(refusal("9:9").contains("End Sector should be greater than Start Sector."));
}

TEST(Command, UnknownTypeIsTold) {
    const QTemporaryDir folder;
    const CommandRun run = runCommand({"--mode", "rawfile", "--types", "NOSUCHTYPE", writeImage(folder)});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.err.contains("NOSUCHTYPE"));
}

TEST(Command, MediumThatCannotBeOpened) {
    const QTemporaryDir folder;
    ASSERT_EQ(::mkfifo(folder.filePath("pipe").toLocal8Bit().constData(), 0600), 0);
    for (const QString& medium : {folder.filePath("absent"), folder.path(), folder.filePath("pipe")}) {
        const CommandRun run = runCommand({"--list-json", medium});
        EXPECT_EQ(run.exitCode, 5) << medium.toStdString();
        ASSERT_EQ(run.json().size(), 1);
        EXPECT_EQ(run.json()[0]["end"], "open-error");
        EXPECT_EQ(run.json()[0]["alerts"].toArray()[0], "\nError in storage media reading.");
    }
}

TEST(Command, UnreadableMediumIsToldToOrdinaryUsers) {
    // Who may read everything is somebody else for a moment.
    QStringList nobody{QStringLiteral(VANTOR_CLI)};
    if (::geteuid() == 0) {
        nobody = QStringList{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"} + nobody;
        if (runCommand(nobody.mid(1) + QStringList{"--version"}, nobody.first()).exitCode != 0) {
            GTEST_SKIP() << "nobody else can run the command here";
        }
    }
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    QFile::setPermissions(image, {});
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    const CommandRun run = runCommand(nobody.mid(1) + QStringList{image}, nobody.first());
    EXPECT_EQ(run.exitCode, 5);
    EXPECT_TRUE(run.err.contains("You do not have the right to do this")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("You may not read this image file.")) << run.err.constData();
}

TEST(Command, EmptyCatalogueIsAReadError) {
    const QTemporaryDir folder;
    const CommandRun run =
        runCommand({"--catalogue", writeCatalogues(folder, {}), "--list-json", writeImage(folder)});
    EXPECT_EQ(run.exitCode, 4);
    EXPECT_EQ(run.json().last()["end"], "read-error");
}

TEST(Command, FolderWithoutCataloguesIsRefusedInEveryMode) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    for (const char* mode : {"photo", "video", "rawfile"}) {
        const CommandRun run = runCommand({"--mode", mode, "--catalogue", folder.filePath("typo"), image});
        EXPECT_EQ(run.exitCode, 2) << mode;
        EXPECT_TRUE(run.err.contains("typo holds no signature catalogue")) << run.err.constData();
        EXPECT_TRUE(run.out.isEmpty()) << run.out.constData();
    }
}

TEST(Command, ListThatCannotBeWrittenIsNoSuccess) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    process.start(VANTOR_CLI,
                  {"--list-json", "--catalogue", writeCatalogues(folder, record("JPG", "FFD8FFE0")), image});
    ASSERT_TRUE(process.waitForFinished(600000));
    EXPECT_EQ(process.exitCode(), 6);
    EXPECT_TRUE(process.readAllStandardError().contains("standard output"));
}

TEST(Command, RefusedTypesLeaveNoFolderBehind) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    EXPECT_EQ(
        runCommand({"--mode", "rawfile", "--types", "NOSUCHTYPE", "--save", folder.filePath("out"), image})
            .exitCode,
        2);
    EXPECT_FALSE(QFile::exists(folder.filePath("out")));
}

TEST(Command, MediumThatIsNotThereIsToldAsTyped) {
    const CommandRun run = runCommand({"nosuch.img"});
    EXPECT_EQ(run.exitCode, 5);
    EXPECT_TRUE(run.err.contains("“nosuch.img” is neither a file nor a storage medium of this machine."))
        << run.err.constData();
    EXPECT_FALSE(run.err.contains("/dev/nosuch")) << run.err.constData();
}

TEST(Command, NamesThatSpeakToATerminalAreSpeltOut) {
    const CommandRun run = runCommand({QStringLiteral("a\x1b[31m\u202egmi.img")});
    EXPECT_EQ(run.exitCode, 5);
    EXPECT_TRUE(run.err.contains("“a\\u001b[31m\\u202egmi.img”")) << run.err.constData();
    EXPECT_FALSE(run.err.contains('\x1b')) << run.err.constData();
}

TEST(Command, EmptyImageIsAReadError) {
    const QTemporaryDir folder;
    QFile empty(folder.filePath("empty.img"));
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.write("less than a sector");
    empty.close();
    const CommandRun run = runCommand({empty.fileName()});
    EXPECT_EQ(run.exitCode, 4);
    EXPECT_TRUE(run.err.contains(("“" + empty.fileName() + "” is empty").toUtf8())) << run.err.constData();
    EXPECT_EQ(runCommand({"--list-files", empty.fileName()}).exitCode, 4);
}

TEST(Command, DestinationThatCannotBeMade) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const CommandRun run = runCommand({"--save", image + "/inside/a/file", image});
    EXPECT_EQ(run.exitCode, 6);
    EXPECT_TRUE(run.err.contains("cannot be written to"));
}

TEST(Command, FullDestinationLosesNothingSilently) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder, "card.img", 4000);
    const QString full = folder.filePath("full");
    ASSERT_TRUE(QDir().mkpath(full));
    if (::mount("tmpfs", full.toLocal8Bit().constData(), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "needs root to mount a small file system";
    }
    const CommandRun run = runCommand({"--catalogue", writeCatalogues(folder, record("JPG", "FFD8FFE0")),
                                       "--no-thorough", "--save", full, image});
    const QStringList saved = filesUnder(full);
    ::umount(full.toLocal8Bit().constData());
    EXPECT_EQ(run.exitCode, 6);
    EXPECT_TRUE(run.err.contains("1 could not be saved")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("GND00002.JPG")) << run.err.constData();
    EXPECT_EQ(saved, QStringList{"JPG/GND00001.JPG"}) << "whole or absent, nothing in between";
}

TEST(Command, PackedImageIsToldBeforeItIsSearched) {
    const QTemporaryDir folder;
    QFile packed(folder.filePath("card.img.gz"));
    ASSERT_TRUE(packed.open(QIODevice::WriteOnly));
    packed.write(QByteArray("\x1F\x8B\x08\0", 4) + QByteArray(5000, 'z'));
    packed.close();
    const CommandRun run = runCommand({packed.fileName()});
    EXPECT_TRUE(run.err.contains("card.img.gz” is packed")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("Searched all the same")) << run.err.constData();
    EXPECT_TRUE(run.out.contains("found")) << run.out.constData();
}

}  // namespace vantor
