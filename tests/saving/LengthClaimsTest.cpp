// Headers that claim the medium take nothing from the files among them.
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QTemporaryDir>

#include "results/MyImageObject.h"
#include "saving/SaveJob.h"
#include "saving/SaveQueue.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

constexpr std::uint64_t kSectors = 24'000;
constexpr std::uint64_t kJunk = 100;       // headers, a sector each
constexpr std::uint64_t kGoodAt = 10'000;  // ten files of forty sectors
constexpr std::uint64_t kGood = 10, kGoodSectors = 40;

// Each says that it is eight megabytes long; nothing in it can be checked.
QByteArray junkHeader() {
    return longWavFile(8'000'000).left(512);
}

QByteArray goodFile(std::uint64_t number) {
    return wavFile(kGoodSectors * 512 - 100, static_cast<unsigned>(number + 7));
}

ScriptedMedium hostileMedium() {
    ScriptedMedium medium(kSectors);
    for (std::uint64_t i = 0; i < kJunk; ++i) {
        std::memcpy(medium.bytes.at(i).data(), junkHeader().constData(), 512);
    }
    for (std::uint64_t i = 0; i < kGood; ++i) {
        const QByteArray file = goodFile(i);
        std::memcpy(medium.bytes.at(kGoodAt + i * kGoodSectors).data(), file.constData(),
                    static_cast<std::size_t>(file.size()));
    }
    return medium;
}

// The found items, as a search tells them.
std::vector<SectorRun> foundRuns() {
    std::vector<SectorRun> runs;
    for (std::uint64_t i = 0; i < kJunk; ++i) {
        runs.push_back({i, i + 1});
    }
    for (std::uint64_t i = 0; i < kGood; ++i) {
        runs.push_back({kGoodAt + i * kGoodSectors, kGoodAt + (i + 1) * kGoodSectors});
    }
    return runs;
}

std::uint64_t bytesUnder(const QString& folder) {
    std::uint64_t sum = 0;
    for (const QString& file : filesUnder(folder)) {
        sum += static_cast<std::uint64_t>(QFileInfo(folder + u'/' + file).size());
    }
    return sum;
}

void expectGoodFiles(const QString& folder) {
    for (std::uint64_t i = 0; i < kGood; ++i) {
        EXPECT_TRUE(contentsOf(folder + QStringLiteral("/WAV/%1.WAV").arg(kJunk + i)) == goodFile(i)) << i;
    }
}

SaveJob jobFor(ScriptedMedium& medium, const QString& folder) {
    SaveRequest request;
    std::size_t index = 0;
    for (const SectorRun& run : foundRuns()) {
        const QString name = QStringLiteral("%1.WAV").arg(index);
        std::shared_ptr<MyImageObject> item = MyImageObject::initWithImage_data({}, name, name);
        item->setOrigin(QStringLiteral("WAV"), {{run}, false}, run);
        request.items.push_back({index++, std::move(item)});
    }
    request.saver = std::make_shared<const ItemSaver>(folder);
    request.openMedium = [&medium] { return std::make_unique<ScriptedReader>(medium); };
    request.destination = folder;
    return SaveJob(std::move(request));
}

}  // namespace

TEST(LengthClaims, HeadersThatClaimTheMediumDoNotFillTheDestination) {
    const QTemporaryDir folder;
    ScriptedMedium medium = hostileMedium();
    SaveJob job = jobFor(medium, folder.path());
    job.run();
    expectGoodFiles(folder.path());
    EXPECT_LE(bytesUnder(folder.path()), 3 * kSectors * 512);
    EXPECT_EQ(job.report().items.size(), kJunk + kGood);
    for (std::size_t i = 0; i < job.report().items.size(); ++i) {
        EXPECT_TRUE(job.report().items[i].outcome.saved) << i;
        EXPECT_EQ(job.report().indexes[i], i) << "in the order of the request";
    }
    EXPECT_EQ(job.progress().share, job.total());
    EXPECT_EQ(job.progress().done, kJunk + kGood);
}

TEST(LengthClaims, SoItIsBesideASearch) {
    const QTemporaryDir folder;
    ScriptedMedium medium = hostileMedium();
    std::set<std::size_t> told;
    SaveQueue queue(
        folder.path(), {}, [&] { return std::make_unique<ScriptedReader>(medium); },
        [&](const SaveTask& task, const SaveOutcome& outcome) {
            EXPECT_TRUE(outcome.saved) << outcome.error.toStdString();
            EXPECT_EQ(task.name, QStringLiteral("%1.WAV").arg(task.place));
            EXPECT_TRUE(told.insert(task.place).second);
        });
    std::size_t index = 0;
    for (const SectorRun& run : foundRuns()) {
        queue.add({QStringLiteral("WAV"), QStringLiteral("%1.WAV").arg(index++), {{run}, false}, {}});
    }
    queue.finish();
    EXPECT_EQ(told.size(), kJunk + kGood);
    expectGoodFiles(folder.path());
    EXPECT_LE(bytesUnder(folder.path()), 3 * kSectors * 512);
}

TEST(LengthClaims, WhereRoomIsShort_FilesThatClaimLittleComeFirst) {
    const QTemporaryDir folder;
    if (::mount("tmpfs", folder.path().toLocal8Bit().constData(), "tmpfs", 0, "size=8000k") != 0) {
        GTEST_SKIP() << "needs root to mount a file system";
    }
    ScriptedMedium medium = hostileMedium();
    SaveJob job = jobFor(medium, folder.path());
    job.run();
    expectGoodFiles(folder.path());
    ASSERT_EQ(::umount(folder.path().toLocal8Bit().constData()), 0);
}

TEST(LengthClaims, TypesThatShareAHeaderShareTheClaim) {
    const QTemporaryDir folder;
    ScriptedMedium medium = emptyMediumWith(longWavFile(8'000'000), 10, kSectors);
    ScriptedReader reader(medium);
    const ItemSaver saver(folder.path());
    const QStringList types{"WAV", "RMI", "W64", "BWF", "RF64", "WAVE"};
    for (const QString& type : types) {
        const SaveOutcome outcome = saver.saveRuns(type, "a." + type, {{{10, 11}}, false}, reader);
        EXPECT_EQ(outcome.bytes, 8'000'000U) << type.toStdString();
        EXPECT_EQ(outcome.verdict, Verdict::Complete);
    }
}

TEST(LengthClaims, AnotherRoundOfTheSameItemsIsGrantedAsMuch) {
    ScriptedMedium medium = emptyMediumWith(longWavFile(8'000'000), 10, kSectors);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    for (int round = 0; round < 4; ++round) {
        saver.beginRound();
        EXPECT_EQ(saver.saveRuns("WAV", "a.WAV", {{{10, 11}}, false}, reader).bytes, 8'000'000U);
        // Another reaches into it.
        EXPECT_EQ(saver.saveRuns("T", "b", {{{20, 21}}, false}, reader).bytes, 512U);
    }
}

TEST(LengthClaims, PartsOfAStreamTakeNothingFromTheWhole) {
    // AC-3 frames of 128 bytes, so that each fourth begins a sector and may look like a file's beginning.
    QByteArray stream;
    for (int frame = 0; frame < 8000; ++frame) {
        stream += QByteArray("\x0B\x77\0\0\0\x40\x40\0", 8) + QByteArray(120, 'x');
    }
    ScriptedMedium medium = mediumWith(stream, 10, 2200);
    const QTemporaryDir folder;
    SaveQueue queue(
        folder.path(), {}, [&] { return std::make_unique<ScriptedReader>(medium); },
        [&](const SaveTask& task, const SaveOutcome& outcome) {
            EXPECT_EQ(outcome.bytes, task.place == 0 ? static_cast<std::uint64_t>(stream.size()) : 100 * 512U)
                << task.place;
        });
    for (std::uint64_t part = 0; part < 20; ++part) {
        const SectorRun run{10 + part * 100, 10 + (part + 1) * 100};
        queue.add({QStringLiteral("AC3"), QStringLiteral("%1.AC3").arg(part), {{run}, false}, {}});
    }
    queue.finish();
    EXPECT_TRUE(contentsOf(folder.filePath("AC3/0.AC3")) == stream);
}

TEST(LengthClaims, FilesOfWhichMuchWasCarvedComeBeforeJunk) {
    const QTemporaryDir folder;
    constexpr std::uint64_t kFileAt = 2000;
    const QByteArray good = longWavFile(10'000'000);
    ScriptedMedium medium = emptyMediumWith(good, kFileAt, kSectors);
    std::vector<SectorRun> runs;
    for (std::uint64_t i = 0; i < kJunk; ++i) {
        std::memcpy(medium.bytes.at(i).data(), junkHeader().constData(), 512);
        runs.push_back({i, i + 1});
    }
    runs.push_back({kFileAt, kFileAt + 1000});
    SaveQueue queue(
        folder.path(), {}, [&] { return std::make_unique<ScriptedReader>(medium); },
        [](const SaveTask&, const SaveOutcome&) {});
    for (const SectorRun& run : runs) {
        queue.add({QStringLiteral("WAV"), QStringLiteral("%1.WAV").arg(run.first), {{run}, false}, {}});
    }
    queue.finish();
    EXPECT_TRUE(contentsOf(folder.filePath("WAV/2000.WAV")) == good);
}

CarvedRun sectorsFrom(std::uint64_t first, std::uint64_t count) {
    return {{{first, first + count}}};
}

TEST(WaitingClaims, WholeOnesComeFirst_AmongThemThoseOfWhichMuchWasCarved) {
    WaitingClaims waiting;
    waiting.add(1, 5'000, sectorsFrom(0, 10), false);
    waiting.add(2, 900'000, sectorsFrom(5'000, 1'000), true);
    waiting.add(3, 100'000, sectorsFrom(10'000, 10), true);
    waiting.add(4, 100'000, sectorsFrom(20'000, 10), true);
    waiting.add(5, 10'000, sectorsFrom(30'000, 1'000), false);
    EXPECT_EQ(waiting.take(), (std::vector<std::size_t>{2, 3, 4, 5, 1}));
    EXPECT_TRUE(waiting.take().empty());
}

TEST(WaitingClaims, WhatBeginsAtOnePlaceKeepsItsOrder) {
    WaitingClaims waiting;
    waiting.add(1, 40'000, sectorsFrom(24, 4), false);
    waiting.add(2, 40'000, sectorsFrom(24, 8), false);
    waiting.add(3, 40'000, sectorsFrom(90, 6), false);
    EXPECT_EQ(waiting.take(), (std::vector<std::size_t>{1, 2, 3}));
}

}  // namespace vantor
