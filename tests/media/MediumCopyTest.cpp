// A medium that is copied while others read it.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstring>
#include <mutex>
#include <random>
#include <set>
#include <vector>

#include "media/CopyMapFile.h"
#include "media/MediumCopy.h"
#include "media/RawDevice.h"
#include "tests/media/NumberedDrive.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

class MediumCopies : public testing::Test {
  protected:
    std::shared_ptr<MediumCopy> copyOf(NumberedDrive& drive, const std::vector<SectorRun>& refused = {}) {
        QString why;
        auto file = CopyFile::open(m_image, drive.sectors, &why);
        EXPECT_TRUE(file) << why.toStdString();
        if (!file) {
            return nullptr;
        }
        return MediumCopy::make(
            std::move(file),
            [&drive](const StopRequest&) -> std::unique_ptr<BlockSource> {
                const std::lock_guard lock(drive.mutex);
                return drive.pulled ? nullptr : std::make_unique<NumberedSource>(drive);
            },
            refused);
    }

    std::shared_ptr<MediumCopy> wholeCopyOf(NumberedDrive& drive) {
        auto copy = copyOf(drive);
        copy->copy({{0, drive.sectors}});
        return copy;
    }

    // The sectors of [first, end) that a search in their order does not get.
    static std::set<std::uint64_t> missing(const NumberedDrive& drive, SectorReader& reader,
                                           std::uint64_t first, std::uint64_t end) {
        std::set<std::uint64_t> refused;
        reader.seek(first);
        for (std::uint64_t sector = first; sector < end; ++sector) {
            if (!reader.read()) {
                refused.insert(sector);
                reader.seek(sector + 1);
                continue;
            }
            if (reader.position() != sector + 1) {
                // Not to be passed over: still the place before.
                refused.insert(sector);
                reader.seek(sector + 1);
                continue;
            }
            std::uint64_t content = 0;
            std::memcpy(&content, reader.current(), sizeof(content));
            EXPECT_EQ(content, drive.contentOf(sector));
        }
        return refused;
    }
    static std::set<std::uint64_t> missing(const NumberedDrive& drive, SectorReader& reader) {
        return missing(drive, reader, 0, drive.sectors);
    }

    // Of the image on the disk, against its map.
    void expectImageHolds(const NumberedDrive& drive) {
        const auto map = loadCopyMap(m_image + ".map");
        ASSERT_TRUE(map);
        QFile image(m_image);
        ASSERT_TRUE(image.open(QIODevice::ReadOnly));
        for (std::uint64_t sector = 0; sector < drive.sectors; ++sector) {
            if (map->at(sector * kSectorBytes).state == CopyState::Copied) {
                image.seek(static_cast<qint64>(sector * kSectorBytes));
                std::uint64_t content = 0;
                ASSERT_EQ(image.read(reinterpret_cast<char*>(&content), sizeof(content)), 8);
                ASSERT_EQ(content, drive.contentOf(sector));
            }
        }
    }

    const QTemporaryDir m_folder;
    const QString m_image = m_folder.filePath("card.img");
};

}  // namespace

TEST_F(MediumCopies, TheMediumIsReadOnceWhoeverReadsTheCopy) {
    NumberedDrive drive(10'000);
    auto copy = wholeCopyOf(drive);
    for (int pass = 0; pass < 3; ++pass) {
        const auto reader = copy->openReader();
        ASSERT_TRUE(reader);
        EXPECT_EQ(reader->mediumSectors(), drive.sectors);
        EXPECT_TRUE(missing(drive, *reader).empty());
    }
    EXPECT_EQ(copy->progress().copied, drive.sectors);
    copy.reset();
    EXPECT_EQ(drive.sectorsGiven, drive.sectors);
    expectImageHolds(drive);
    const auto map = loadCopyMap(m_image + ".map");
    ASSERT_TRUE(map);
    EXPECT_EQ(map->bytesIn(CopyState::Copied), map->bytes());
}

TEST_F(MediumCopies, WhatIsReadIsWhatTheMediumGivesSectorForSector) {
    std::mt19937 random(17);
    for (int round = 0; round < 12; ++round) {
        NumberedDrive drive(30'000);
        for (int zone = 0; zone < 8; ++zone) {
            const std::uint64_t first = random() % drive.sectors,
                                length = 1 + random() % (zone == 0 ? 1800 : 30);
            for (std::uint64_t sector = first; sector < std::min(drive.sectors, first + length); ++sector) {
                drive.bad.insert(sector);
            }
        }
        auto copy = wholeCopyOf(drive);
        for (int pass = 0; pass < 2; ++pass) {
            const auto reader = copy->openReader();
            ASSERT_TRUE(reader);
            EXPECT_EQ(missing(drive, *reader), drive.bad) << round;
            EXPECT_FALSE(reader->isGone());
        }
        copy.reset();
        for (const auto& [sector, times] : drive.refused) {
            EXPECT_LE(times, 2) << "sector " << sector << " was asked for so often";
        }
        EXPECT_EQ(drive.sectorsGiven, drive.sectors - drive.bad.size());
        expectImageHolds(drive);
        QFile::remove(m_image);
        QFile::remove(m_image + ".map");
    }
}

TEST_F(MediumCopies, WhatIsKnownToBeRefusedIsNotAskedFor) {
    NumberedDrive drive(10'000);
    for (std::uint64_t sector = 4100; sector < 4170; ++sector) {
        drive.bad.insert(sector);
    }
    drive.bad.insert(7000);
    // One of them is not known yet; what lies behind the medium is of no account.
    auto copy = copyOf(drive, {{4100, 4170}, {20'000, 30'000}, {~std::uint64_t{0} - 1, ~std::uint64_t{0}}});
    copy->copy({{0, drive.sectors}});
    {
        const auto reader = copy->openReader();
        ASSERT_TRUE(reader);
        EXPECT_EQ(missing(drive, *reader), drive.bad);
    }
    copy.reset();
    EXPECT_EQ(drive.refused.size(), 1u);
    EXPECT_EQ(drive.refused.begin()->first, 7000u);
    EXPECT_EQ(drive.sectorsGiven, drive.sectors - drive.bad.size());
    expectImageHolds(drive);

    // What a copy has it keeps, whatever a search knows.
    const auto again = copyOf(drive, {{0, 9000}});
    EXPECT_EQ(again->progress().copied, drive.sectors - drive.bad.size());
}

TEST_F(MediumCopies, AfterAPullOutAllThatWasReadIsThereAndTheCopyGoesOn) {
    NumberedDrive drive(40'000);
    for (std::uint64_t sector = 3000; sector < 5000; ++sector) {
        drive.bad.insert(sector);
    }
    drive.pulledAfter = 40;
    std::set<std::uint64_t> lost;
    {
        const auto copy = wholeCopyOf(drive);
        const auto reader = copy->openReader();
        ASSERT_TRUE(reader);
        lost = missing(drive, *reader);
        EXPECT_TRUE(reader->isGone());
        EXPECT_EQ(copy->progress().state, CopyProgress::State::MediumGone);
        EXPECT_EQ(drive.sectorsGiven + lost.size(), drive.sectors) << "something that was read is not there";
        EXPECT_LT(*lost.begin(), *lost.rbegin());
        EXPECT_FALSE(lost.contains(8000)) << "behind the bad zone";
        // Later readers too have what was read.
        const auto later = copy->openReader();
        ASSERT_TRUE(later);
        EXPECT_EQ(missing(drive, *later), lost);
    }
    expectImageHolds(drive);
    const std::uint64_t before = drive.sectorsGiven;
    drive.pulled = false;
    drive.pulledAfter = ~std::uint64_t{0};
    {
        const auto copy = wholeCopyOf(drive);
        const auto reader = copy->openReader();
        ASSERT_TRUE(reader);
        EXPECT_EQ(missing(drive, *reader), drive.bad);
    }
    const auto compared = std::uint64_t{MediumMemory::kMostSectors};
    EXPECT_LE(drive.sectorsGiven, drive.sectors - drive.bad.size() + compared);
    EXPECT_GT(drive.sectorsGiven, before);
    expectImageHolds(drive);
}

TEST_F(MediumCopies, TheSameMediumPutBackIsGoneOnWithByTheNextReader) {
    NumberedDrive drive(20'000);
    drive.pulledAfter = 10;
    const auto copy = wholeCopyOf(drive);
    EXPECT_FALSE(missing(drive, *copy->openReader()).empty());
    {
        const std::lock_guard lock(drive.mutex);
        drive.pulled = false;
        drive.pulledAfter = ~std::uint64_t{0};
    }
    const auto reader = copy->openReader();
    EXPECT_TRUE(missing(drive, *reader).empty());
}

TEST_F(MediumCopies, ACopyOfAnotherMediumIsNotGoneOnWith) {
    NumberedDrive drive(5'000);
    EXPECT_TRUE(missing(drive, *wholeCopyOf(drive)->openReader()).empty());
    const QByteArray before = contentsOf(m_image);
    NumberedDrive other(5'000);
    other.salt = 99;
    {
        const auto copy = wholeCopyOf(other);
        EXPECT_EQ(copy->openReader(), nullptr);
        EXPECT_EQ(copy->progress().state, CopyProgress::State::OtherMedium);
        EXPECT_TRUE(copy->progress().trouble.contains("is a copy of another medium"));
    }
    EXPECT_EQ(contentsOf(m_image), before);
    QString why;
    EXPECT_EQ(CopyFile::open(m_image, 5'001, &why), nullptr);
    EXPECT_TRUE(why.contains("of another size")) << why.toStdString();
}

TEST_F(MediumCopies, WhatLiesBesideThePlanIsReadWhenItIsAskedFor) {
    NumberedDrive drive(20'000);
    auto copy = copyOf(drive);
    copy->copy({{0, 1000}});
    const auto reader = copy->openReader();
    EXPECT_TRUE(missing(drive, *reader, 0, 1000).empty());
    EXPECT_TRUE(missing(drive, *reader, 15'000, 15'010).empty());
    copy->pause();
    EXPECT_TRUE(missing(drive, *copy->openReader(), 7'000, 7'010).empty());
    EXPECT_LE(copy->progress().copied, 1000U + 4 * CopyPlan::kPiece);
}

TEST_F(MediumCopies, AStopEndsTheWaitForADeviceThatHangs) {
    NumberedDrive drive(5'000);
    drive.gateShut = true;
    auto copy = wholeCopyOf(drive);
    {
        const auto reader = copy->openReader([&drive] {
            const std::lock_guard lock(drive.mutex);
            return drive.isWaiting;
        });
        ASSERT_TRUE(reader);
        EXPECT_FALSE(reader->read());
        EXPECT_TRUE(reader->isGone());
    }
    {
        const std::lock_guard lock(drive.mutex);
        drive.gateShut = false;
        drive.gateMoves.notify_all();
    }
    copy->copy({{0, drive.sectors}});
    EXPECT_TRUE(missing(drive, *copy->openReader()).empty());
}

TEST_F(MediumCopies, AFullDiskEndsTheCopyAndNotTheSearch) {
    NumberedDrive drive(20'000);
    drive.bad = {500, 15'000, 15'002};
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto ignored = ::signal(SIGXFSZ, SIG_IGN);
    struct rlimit small = before;
    small.rlim_cur = 4'000'000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    {
        const auto copy = wholeCopyOf(drive);
        for (int pass = 0; pass < 2; ++pass) {
            const auto reader = copy->openReader();
            ASSERT_TRUE(reader);
            EXPECT_EQ(missing(drive, *reader), drive.bad);
        }
        EXPECT_EQ(copy->progress().state, CopyProgress::State::CannotWrite);
        EXPECT_TRUE(copy->progress().trouble.contains("is read from the medium"));
    }
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    ::signal(SIGXFSZ, ignored);
    expectImageHolds(drive);
    const auto map = loadCopyMap(m_image + ".map");
    EXPECT_GT(map->bytesIn(CopyState::Copied), 0U);
    EXPECT_LE(map->bytesIn(CopyState::Copied), 4'000'000U);
}

TEST_F(MediumCopies, NothingIsWrittenOverAndNoTwoWriteTheSame) {
    QFile mine(m_image);
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.write("mine");
    mine.close();
    QString why;
    EXPECT_EQ(CopyFile::open(m_image, 100, &why), nullptr);
    EXPECT_TRUE(why.contains("is there already")) << why.toStdString();
    EXPECT_EQ(contentsOf(m_image), "mine");
    QFile::remove(m_image);

    ASSERT_FALSE(storeCopyMap(m_folder.filePath("card.map"), CopyMap(512)));
    EXPECT_EQ(CopyFile::open(m_image, 100, &why), nullptr);
    EXPECT_TRUE(why.contains("belongs to another copy")) << why.toStdString();
    QFile::remove(m_folder.filePath("card.map"));

    // As a program leaves it that is killed at its very beginning.
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.close();
    const auto first = CopyFile::open(m_image, 100, &why);
    ASSERT_TRUE(first) << why.toStdString();
    EXPECT_EQ(CopyFile::open(m_image, 100, &why), nullptr);
    EXPECT_TRUE(why.contains("by another search")) << why.toStdString();
    EXPECT_EQ(CopyFile::open(m_folder.path(), 100, &why), nullptr);
    EXPECT_EQ(CopyFile::open(m_folder.filePath("absent/card.img"), 100, &why), nullptr);
}

TEST_F(MediumCopies, ZerosTakeNoRoomAndAreZeros) {
    QString why;
    const auto file = CopyFile::open(m_image, 4096, &why);
    ASSERT_TRUE(file);
    const std::vector<std::uint8_t> zeros(1024 * 1024), ones(512, 1);
    ASSERT_TRUE(file->writeAt(0, zeros));
    ASSERT_TRUE(file->writeAt(2048, ones));
    ASSERT_TRUE(file->writeAt(2048, std::span(zeros).first(512)));
    std::vector<std::uint8_t> read(512, 7);
    EXPECT_EQ(file->readAt(2048, read), 512);
    EXPECT_EQ(read, std::vector<std::uint8_t>(512, 0)) << "zeros over what was there are written";
    EXPECT_EQ(file->readAt(100, read), 512);
    EXPECT_EQ(read, std::vector<std::uint8_t>(512, 0));
    EXPECT_EQ(file->readAt(2049, read), -1);
}

TEST_F(MediumCopies, TheRescueToolGoesOnWithOurCopyAndWeWithIts) {
    const QString tool = QStandardPaths::findExecutable("ddrescue");
    if (tool.isEmpty()) {
        GTEST_SKIP() << "ddrescue (package gddrescue) is not installed";
    }
    NumberedDrive drive(20'000);
    const QString card = m_folder.filePath("card");
    {
        QFile whole(card);
        ASSERT_TRUE(whole.open(QIODevice::WriteOnly));
        std::vector<char> bytes(drive.sectors * kSectorBytes);
        NumberedSource(drive).readAt(0, {reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size()});
        whole.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    drive.requests = 0;
    drive.pulledAfter = 12;
    EXPECT_FALSE(missing(drive, *wholeCopyOf(drive)->openReader()).empty());
    const QString map = m_image + ".map";
    const auto ours = loadCopyMap(map);
    ASSERT_TRUE(ours);
    EXPECT_GT(ours->bytesIn(CopyState::NotTried), 0U);
    ASSERT_EQ(QProcess::execute(tool, {"-q", "-s", "8000000", card, m_image, map}), 0);
    const auto its = loadCopyMap(map);
    ASSERT_TRUE(its);
    EXPECT_EQ(its->bytesIn(CopyState::Copied), 8'000'000U);

    drive.pulled = false;
    drive.pulledAfter = ~std::uint64_t{0};
    drive.sectorsGiven = 0;
    EXPECT_TRUE(missing(drive, *wholeCopyOf(drive)->openReader()).empty());
    EXPECT_EQ(contentsOf(m_image), contentsOf(card));
    EXPECT_LE(drive.sectorsGiven, drive.sectors - 8'000'000 / kSectorBytes + MediumMemory::kMostSectors);
}

}  // namespace vantor
