// The private file behind a preview: what is in it, when it is made, and how it goes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

#include "results/TrueCopy.h"
#include "tests/support/SmallFiles.h"
#include "window/preview/WholePreview.h"

namespace vantor {
namespace {

constexpr std::size_t kFirst = 10;

class WholePreviewTest : public ::testing::Test {
  protected:
    // The preview file holds the sectors [kFirst, end) as they stand.
    WholePreviewRequest requestFor(const QByteArray& file, std::size_t sectors, std::size_t end) {
        medium = emptyMediumWith(file, kFirst, sectors);
        WholePreviewRequest request;
        request.type = QStringLiteral("WAV");
        request.carved = {{{kFirst, end}}, false};
        request.start = kFirst;
        request.previewFile = folder.filePath(QStringLiteral("dprv.WAV"));
        request.faithful = true;
        request.folder = folder.path();
        QFile preview(request.previewFile);
        EXPECT_TRUE(preview.open(QIODevice::WriteOnly));
        preview.write(reinterpret_cast<const char*>(medium.bytes.at(kFirst).data()),
                      static_cast<qint64>((end - kFirst) * kSectorBytes));
        return request;
    }
    void begin(const WholePreviewRequest& request) {
        whole->begin(request, std::make_unique<ScriptedReader>(medium));
    }
    QByteArray shown() const {
        QFile file(whole->path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("absent");
    }
    QStringList privateFolders() const {
        return QDir(folder.path()).entryList({QStringLiteral("shown-*")}, QDir::Dirs);
    }

    QTemporaryDir folder;
    ScriptedMedium medium{0};
    std::unique_ptr<WholePreview> whole = std::make_unique<WholePreview>();
};

TEST_F(WholePreviewTest, HoldsTheItemAtItsOwnLength_UnderTheNameOfThePreviewFile) {
    const QByteArray file = wavFile(5000);
    begin(requestFor(file, 100, 60));
    EXPECT_EQ(whole->bytes(), 5000U);
    EXPECT_TRUE(whole->lengthIsKnown());
    EXPECT_FALSE(whole->isToBeFilled());
    EXPECT_EQ(shown(), file);
    EXPECT_EQ(QFileInfo(whole->path()).fileName(), QStringLiteral("dprv.WAV"));
    EXPECT_EQ(QFileInfo(QFileInfo(whole->path()).path()).permissions() &
                  (QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther),
              QFile::Permissions());
    whole.reset();
    EXPECT_EQ(privateFolders(), QStringList());
    EXPECT_TRUE(QFileInfo::exists(folder.filePath(QStringLiteral("dprv.WAV"))));
}

TEST_F(WholePreviewTest, IsNotMade_WhereThePreviewFileIsAsGood) {
    begin(requestFor(wavFile(5120), 100, kFirst + 10));
    EXPECT_EQ(whole->bytes(), 5120U);
    EXPECT_EQ(whole->path(), QString());
    EXPECT_EQ(medium.reads, 0U) << "all of it was copied";
}

TEST_F(WholePreviewTest, APreviewFileThatStumbled_IsNotTrusted) {
    const QByteArray file = wavFile(5120);
    WholePreviewRequest request = requestFor(file, 100, kFirst + 10);
    QFile spoilt(request.previewFile);
    ASSERT_TRUE(spoilt.open(QIODevice::ReadWrite) && spoilt.seek(600) && spoilt.write("spoilt") == 6);
    spoilt.close();
    request.faithful = false;
    begin(request);
    EXPECT_EQ(shown(), file);
}

TEST_F(WholePreviewTest, ALongItem_HasHolesUntilItIsFilled) {
    const QByteArray file = longWavFile(60'000'000);
    begin(requestFor(file, 120'000, 60));
    ASSERT_TRUE(whole->isToBeFilled());
    QFile opened(whole->path());
    ASSERT_TRUE(opened.open(QIODevice::ReadOnly));
    EXPECT_EQ(opened.size(), file.size());
    EXPECT_EQ(::lseek(opened.handle(), 0, SEEK_HOLE), static_cast<off_t>(TrueCopy::kHeadBytes));
    EXPECT_TRUE(opened.seek(file.size() - 1000));
    EXPECT_EQ(opened.read(1000), file.last(1000));
    EXPECT_TRUE(whole->fill());
    EXPECT_EQ(::lseek(opened.handle(), 0, SEEK_HOLE), static_cast<off_t>(file.size()));
    EXPECT_TRUE(shown() == file);
}

TEST_F(WholePreviewTest, AFillThatIsCancelled_EndsSoon) {
    begin(requestFor(longWavFile(60'000'000), 120'000, 60));
    const std::uint64_t before = medium.reads;
    medium.beforeRead = [&](std::uint64_t read) {
        if (read == before + 100) {
            whole->cancel();
        }
    };
    EXPECT_FALSE(whole->fill());
    EXPECT_EQ(medium.reads, before + 101);
}

TEST_F(WholePreviewTest, AFullDisk_LeavesThePreviewFile_AndTheLengthIsToldAllTheSame) {
    WholePreviewRequest request = requestFor(wavFile(5000), 100, 60);
    request.freeBytes = [](const QString&) { return WholePreview::kLeastFreeBytes + 4999; };
    begin(request);
    EXPECT_EQ(whole->path(), QString());
    EXPECT_EQ(whole->bytes(), 5000U);
    EXPECT_EQ(privateFolders(), QStringList());
}

TEST_F(WholePreviewTest, ADiskThatFillsUp_KeepsItsRest) {
    WholePreviewRequest request = requestFor(longWavFile(160'000'000), 320'000, 60);
    bool filling = false;
    request.freeBytes = [&](const QString&) {
        return WholePreview::kLeastFreeBytes + (filling ? 0 : 1 << 30);
    };
    begin(request);
    filling = true;
    EXPECT_FALSE(whole->fill());
}

TEST_F(WholePreviewTest, AnItemOfUnknownSectors_IsLeftToThePreviewFile) {
    WholePreviewRequest request = requestFor(wavFile(5000), 100, 60);
    request.carved = {};
    begin(request);
    EXPECT_EQ(whole->path(), QString());
    EXPECT_EQ(whole->bytes(), std::nullopt);
}

TEST_F(WholePreviewTest, WhatAKilledProgramLeft_Goes_AndWhatALivingOneHas_Stays) {
    begin(requestFor(wavFile(5000), 100, 60));
    const QString left = folder.filePath(QStringLiteral("shown-killed"));
    ASSERT_TRUE(QDir().mkpath(left));
    ASSERT_TRUE(QFile(left + QStringLiteral("/dprv.MP4")).open(QIODevice::WriteOnly));
    const pid_t child = fork();
    if (child == 0) {
        auto* const lock = new QLockFile(left + QStringLiteral("/lock"));
        lock->setStaleLockTime(0);
        _exit(lock->tryLock(0) ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_EQ(privateFolders().size(), 2);
    WholePreview::clearLeftovers(folder.path());
    EXPECT_FALSE(QFileInfo::exists(left));
    EXPECT_EQ(privateFolders().size(), 1);
    EXPECT_EQ(shown(), wavFile(5000));
}

}  // namespace
}  // namespace vantor
