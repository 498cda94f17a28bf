// Searches that are kept in a file: gone on with, and refused where the file or the medium is another.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "tests/cli/CommandRun.h"
#include "tests/cli/SmallCard.h"

namespace vantor {
namespace {

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

class KeptSearch : public testing::Test {
  protected:
    void SetUp() override {
        QDir(folder.path()).mkpath("catalogue");
        write(folder.filePath("catalogue/ZelExt2.dll"), record("JPG", "FFD8FFE0"));
        write(folder.filePath("catalogue/ZelExt2Adv.dll"), record("TIF", "49492A00"));
        write(folder.filePath("catalogue/ZelRaw.dll"), record("PDF", "25504446"));
        QByteArray card(2000 * 512, 'z');
        for (qsizetype at : {4, 40, 900}) {
            card.replace(at * 512, 4, "\xFF\xD8\xFF\xE0");
            card.replace((at + 10) * 512, 4, QByteArray("II*\0", 4));
            card.replace((at + 20) * 512, 8, "%PDF-1.4");
        }
        write(image, card);
    }

    CommandRun run(const QStringList& arguments) const {
        return runCommand(QStringList{"--catalogue", folder.filePath("catalogue")} + arguments);
    }

    const QTemporaryDir folder;
    const QString image = folder.filePath("card.img");
    const QString kept = folder.filePath("kept search");
};

}  // namespace

TEST_F(KeptSearch, IsGoneOnWithByItsFileAlone) {
    const CommandRun plain = run({"--mode", "rawfile", "--range", "10:1500", "--list-json", image});
    ASSERT_EQ(plain.exitCode, 0);
    ASSERT_EQ(plain.json().size(), 4) << plain.out.toStdString();
    const CommandRun keeping =
        run({"--mode", "rawfile", "--range", "10:1500", "--list-json", "--session", kept, image});
    EXPECT_EQ(keeping.exitCode, 0);
    EXPECT_EQ(keeping.out, plain.out);
    const CommandRun resumed = run({"--list-json", "--resume", kept});
    EXPECT_EQ(resumed.exitCode, 0) << resumed.err.toStdString();
    EXPECT_EQ(resumed.out, plain.out);
}

TEST_F(KeptSearch, IsGoneOnWithFromAnotherFolder_AndBesideItsImage) {
    const QString relative = QDir::current().relativeFilePath(image);
    const CommandRun plain = run({"--list-json", "--session", kept, relative});
    ASSERT_EQ(plain.exitCode, 0);
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path() + "/catalogue"));
    const CommandRun resumed = run({"--list-json", "--resume", kept});
    EXPECT_EQ(resumed.exitCode, 0) << resumed.err.toStdString();
    EXPECT_EQ(resumed.out, plain.out);
    ASSERT_TRUE(QDir::setCurrent(before));

    const QString elsewhere = folder.filePath("elsewhere");
    ASSERT_TRUE(QDir().mkdir(elsewhere));
    ASSERT_TRUE(QFile::rename(image, elsewhere + "/card.img"));
    ASSERT_TRUE(QFile::rename(kept, elsewhere + "/kept"));
    const CommandRun moved = run({"--list-json", "--resume", elsewhere + "/kept"});
    EXPECT_EQ(moved.exitCode, 0) << moved.err.toStdString();
    EXPECT_EQ(moved.out, plain.out);
}

// Whatever bears that name in a later run is another.
TEST_F(KeptSearch, AnImageWhoseNameIsNoText_IsNotKeptByItsDescriptor) {
    const QByteArray path = QFile::encodeName(folder.path()) + "/c\xff.img";
    ASSERT_EQ(::rename(QFile::encodeName(image).constData(), path.constData()), 0);
    QProcess process;
    process.start("/bin/sh",
                  {"-c", "exec \"$0\" --catalogue \"$1\" --session \"$2\" \"$(printf \"$3/c\\377.img\")\"",
                   VANTOR_CLI, folder.filePath("catalogue"), kept, folder.path()});
    ASSERT_TRUE(process.waitForFinished(-1));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    EXPECT_FALSE(read(kept).contains("/proc/self"));
    EXPECT_TRUE(read(kept).contains(QFile::encodeName(folder.path())));
}

TEST_F(KeptSearch, SavesWhatItFinds_AlsoWhenGoneOnWith) {
    ASSERT_EQ(run({"--session", kept, image}).exitCode, 0);
    const QString out = folder.filePath("out");
    const CommandRun resumed = run({"--resume", kept, "--save", out, "--as-published"});
    EXPECT_EQ(resumed.exitCode, 0) << resumed.err.toStdString();
    EXPECT_TRUE(resumed.out.contains("6 found")) << resumed.out.toStdString();
    const QByteArray saved = read(out + "/JPG/GND00001.JPG");
    EXPECT_EQ(saved, read(image).sliced(4 * 512, saved.size()));
    EXPECT_EQ(saved.size(), 36 * 512);
}

// The names of the two files are soon mixed up.
TEST_F(KeptSearch, WhatElseLiesUnderItsName_Stays) {
    const QByteArray card = read(image);
    EXPECT_EQ(run({"--session", image, image}).exitCode, 6);
    const QString link = folder.filePath("link");
    ASSERT_TRUE(QFile::link(image, link));
    EXPECT_EQ(run({"--session", link, image}).exitCode, 6);
    write(kept, "A letter.");
    const CommandRun refused = run({"--session", kept, image});
    EXPECT_EQ(refused.exitCode, 6);
    EXPECT_TRUE(refused.err.contains("kept search: ")) << refused.err.toStdString();
    EXPECT_EQ(read(kept), "A letter.");
    EXPECT_EQ(read(image), card);
}

TEST_F(KeptSearch, AnotherMedium_IsRefused) {
    ASSERT_EQ(run({"--session", kept, image}).exitCode, 0);
    std::mt19937 random(1);
    QByteArray another(2000 * 512, 0);
    for (char& byte : another) {
        byte = static_cast<char>(random());
    }
    write(image, another);
    const CommandRun resumed = run({"--resume", kept});
    EXPECT_EQ(resumed.exitCode, 5);
    EXPECT_TRUE(resumed.err.contains("is not the medium that was searched")) << resumed.err.toStdString();
    write(image, another.first(512));
    EXPECT_EQ(run({"--resume", kept}).exitCode, 5);
}

TEST_F(KeptSearch, OtherCatalogues_AreRefused) {
    ASSERT_EQ(run({"--session", kept, image}).exitCode, 0);
    write(folder.filePath("catalogue/ZelExt2Adv.dll"), record("TIF", "4D4D002A"));
    const CommandRun resumed = run({"--resume", kept});
    EXPECT_EQ(resumed.exitCode, 5);
    EXPECT_TRUE(resumed.err.contains("signature catalogues")) << resumed.err.toStdString();
}

TEST_F(KeptSearch, AFileThatIsNone_IsRefusedByName) {
    ASSERT_EQ(run({"--session", kept, image}).exitCode, 0);
    const QByteArray whole = read(kept);
    write(kept, whole.chopped(1));
    const CommandRun cut = run({"--resume", kept});
    EXPECT_EQ(cut.exitCode, 2);
    EXPECT_TRUE(cut.err.contains("kept search: The file is damaged.")) << cut.err.toStdString();
    const CommandRun none = run({"--resume", image});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_TRUE(none.err.contains("It is not a search that this program has kept."))
        << none.err.toStdString();
    EXPECT_EQ(run({"--resume", folder.filePath("nowhere")}).exitCode, 2);
}

TEST_F(KeptSearch, WhatToSearchFor_StandsInTheFile) {
    ASSERT_EQ(run({"--session", kept, image}).exitCode, 0);
    for (const QStringList& wish :
         {QStringList{"--mode", "video"}, QStringList{"--range", "0:10"}, QStringList{"--no-thorough"}}) {
        EXPECT_EQ(run(wish + QStringList{"--resume", kept}).exitCode, 2) << wish.first().toStdString();
    }
}

TEST_F(KeptSearch, AFileThatCannotBeWritten_IsTold) {
    const CommandRun keeping = run({"--session", folder.filePath(QString(300, 'x')), image});
    EXPECT_EQ(keeping.exitCode, 6);
    EXPECT_TRUE(keeping.err.contains("could not be kept")) << keeping.err.toStdString();
    const CommandRun nowhere = run({"--session", folder.filePath("no/such/folder"), image});
    EXPECT_EQ(nowhere.exitCode, 6) << "what is asked for is known to fail";
    EXPECT_TRUE(nowhere.err.contains("cannot be written to")) << nowhere.err.toStdString();
    EXPECT_TRUE(nowhere.out.isEmpty());
}

TEST_F(KeptSearch, AFileThatIsAPipe_IsNotWaitedFor) {
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QStringList& use : {QStringList{"--session", pipe, image}, QStringList{"--resume", pipe}}) {
        const CommandRun refused = run(use);
        EXPECT_NE(refused.exitCode, 0);
        EXPECT_TRUE(refused.err.contains("it is no file")) << refused.err.toStdString();
    }
}

TEST_F(KeptSearch, ACircleOfLinks_StaysAsItIs) {
    const QString one = folder.filePath("one"), other = folder.filePath("other");
    ASSERT_TRUE(QFile::link(one, other));
    ASSERT_TRUE(QFile::link(other, one));
    EXPECT_EQ(run({"--session", one, image}).exitCode, 6);
    EXPECT_EQ(run({"--resume", one}).exitCode, 2);
    EXPECT_EQ(run({"--map", one, image}).exitCode, 5);
    EXPECT_TRUE(QFileInfo(one).isSymLink());
    EXPECT_TRUE(QFileInfo(other).isSymLink());
}

TEST_F(KeptSearch, AFileOfTheKernelsThatTellsWithoutEnd_IsNotWaitedFor) {
    const QString endless = QStringLiteral("/proc/kmsg");
    EXPECT_EQ(run({"--session", endless, image}).exitCode, 6);
    EXPECT_EQ(run({"--resume", endless}).exitCode, 2);
    EXPECT_EQ(run({"--map", endless, image}).exitCode, 5);
}

}  // namespace vantor
