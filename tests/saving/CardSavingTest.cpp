// Items that come back under the names, in the folders and at the times that the card's directory tells.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>

#include "results/ResultRow.h"
#include "results/ToldFiles.h"
#include "saving/ItemSaver.h"
#include "saving/ToldItem.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

constexpr std::int64_t kChanged = 1'780'000'000;

CardFile cardFile(const QString& folder, const QString& name, std::uint64_t bytes, SectorRun run,
                  FileState state = FileState::Deleted) {
    CardFile file;
    file.folder = folder;
    file.name = name;
    file.bytes = file.validBytes = bytes;
    file.runs = {run};
    file.state = state;
    file.modified = kChanged;
    file.clusterSectors = 8;
    return file;
}

std::shared_ptr<const CardIndex> indexOf(std::vector<CardFile> files) {
    CardTable table;
    table.files = std::move(files);
    return std::make_shared<const CardIndex>(std::move(table));
}

class CardSaving : public ::testing::Test {
  protected:
    FoundItem item(const QString& type, const QString& name, SectorRun run,
                   std::shared_ptr<const CardIndex> card) {
        FoundItem found{
            type, name, {{{run}, false}, {}, [this] { return &m_reader; }, m_medium.bytes.size()}};
        found.source.hints.card = std::move(card);
        return found;
    }
    QString path(const QString& relative) const { return m_folder.filePath(relative); }

    const QByteArray m_wav = wavFile(20'000);
    const QTemporaryDir m_folder;
    ScriptedMedium m_medium = mediumWith(m_wav, 80, 1000);
    ScriptedReader m_reader{m_medium};
};

}  // namespace

TEST_F(CardSaving, NamedItemLiesInItsFolderWithItsTime) {
    const ItemSaver saver(m_folder.path());
    const auto card = indexOf({cardFile("MUSIC/2026", "SONG.WAV", 20'000, {80, 120})});
    const SaveOutcome outcome = saver.save(item("WAV", "WAV00001.WAV", {80, 300}, card));
    ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
    EXPECT_EQ(outcome.path, path("MUSIC/2026/SONG.WAV"));
    EXPECT_EQ(contentsOf(outcome.path), m_wav);
    EXPECT_EQ(QFileInfo(outcome.path).lastModified().toSecsSinceEpoch(), kChanged);
    ASSERT_NE(outcome.original, nullptr);
    EXPECT_EQ(originalPath(*outcome.original), "MUSIC/2026/SONG.WAV");
}

// Clusters of eight sectors, so that none begins in the third.
TEST_F(CardSaving, WhatBeginsInsideAFileThatTheCardTells_IsItsPart) {
    m_medium.put(400, {"\xFF\xD8\xFF\xE0\0\x10JFIF\0\1", 12});  // and noise behind
    for (const bool isWhole : {true, false}) {
        const std::uint64_t first = isWhole ? 80 : 400;
        const QString type = isWhole ? "WAV" : "JPG";
        for (const FileState state : {FileState::Live, FileState::Deleted}) {
            const QTemporaryDir folder;
            const ItemSaver saver(folder.path());
            const auto card = indexOf({cardFile("A", "A." + type, 20'000, {first, first + 40}, state)});
            const SaveOutcome holder = saver.save(item(type, "a", {first, first + 100}, card));
            ASSERT_TRUE(holder.saved);
            ASSERT_EQ(holder.verdict == Verdict::Complete, isWhole);
            const auto behind = [&](std::uint64_t sectors) {
                return saver.save(item("MDF", "b.MDF", {first + sectors, first + sectors + 50}, card));
            };
            const SaveOutcome inside = behind(3);
            const bool isPart = isWhole || state == FileState::Live;
            EXPECT_EQ(inside.leftOut, isPart ? LeftOut::Part : LeftOut::No) << isWhole;
            EXPECT_EQ(inside.partOf, isPart ? QStringLiteral("a") : QString());
            EXPECT_TRUE(behind(8).saved) << "where a cluster begins";
            EXPECT_TRUE(behind(41).saved) << "behind it";
        }
    }
}

TEST_F(CardSaving, NumbersOfATableThatIsThere_AreNoFile) {
    CardTable table;
    table.fileSystems = {{FileSystemKind::Fat32, true, 10, 500, 120, 8, {}, {42, 100}},
                         {FileSystemKind::Fat32, false, 10, 500, 300, 8, {}, {200, 250}}};
    const auto card = std::make_shared<const CardIndex>(table);
    SavePolicy published;
    published.asPublished = true;
    const auto leftOut = [&](const QString& type, std::uint64_t sector, const SavePolicy& policy = {}) {
        const QTemporaryDir folder;
        return ItemSaver(folder.path(), policy).save(item(type, "a", {sector, sector + 5}, card)).leftOut;
    };
    for (const std::uint64_t inside : {42, 99}) {
        EXPECT_EQ(leftOut("MDF", inside), LeftOut::Unsound) << inside;
        EXPECT_EQ(leftOut("MDF", inside, published), LeftOut::No) << inside;
    }
    for (const std::uint64_t other : {41, 100, 220}) {
        EXPECT_EQ(leftOut("MDF", other), LeftOut::No) << other;
    }
    EXPECT_EQ(leftOut("WAV", 80), LeftOut::No) << "whole: the table was never written there";
}

TEST_F(CardSaving, UnnamedItemLiesInTheFolderOfItsType) {
    const ItemSaver saver(m_folder.path());
    const auto card = indexOf({cardFile("MUSIC", "OLD.WAV", 19'000, {80, 120})});
    EXPECT_EQ(saver.save(item("WAV", "WAV00001.WAV", {80, 300}, card)).path, path("WAV/WAV00001.WAV"));
}

TEST_F(CardSaving, SameNamesOfDifferentFilesAreNumbered) {
    const QByteArray other = wavFile(10'000, 2);
    m_medium.put(400, {other.constData(), 512});
    for (int sector = 0; sector < 20; ++sector) {
        const QByteArray bytes = other.mid(sector * 512, 512);
        m_medium.put(static_cast<std::size_t>(400 + sector),
                     {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    }
    const ItemSaver saver(m_folder.path());
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120}),
                               cardFile("MUSIC", "SONG.WAV", 10'000, {400, 424})});
    EXPECT_EQ(saver.save(item("WAV", "a.WAV", {80, 300}, card)).path, path("MUSIC/SONG.WAV"));
    EXPECT_EQ(saver.save(item("WAV", "b.WAV", {400, 500}, card)).path, path("MUSIC/SONG (2).WAV"));
}

TEST_F(CardSaving, CopiesOnTheCardKeepTheirTimes) {
    for (int sector = 0; sector < 40; ++sector) {
        const QByteArray bytes = m_wav.mid(sector * 512, 512);
        m_medium.put(static_cast<std::size_t>(400 + sector),
                     {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    }
    const ItemSaver saver(m_folder.path());
    CardFile copy = cardFile("COPY", "SAME.WAV", 20'000, {400, 440});
    copy.modified = kChanged + 100;
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120}), copy});
    for (const SectorRun run : {SectorRun{80, 300}, SectorRun{400, 500}}) {
        EXPECT_TRUE(saver.save(item("WAV", "a.WAV", run, card)).saved);
    }
    for (const auto& [name, time] :
         {std::pair("MUSIC/SONG.WAV", kChanged), std::pair("COPY/SAME.WAV", kChanged + 100)}) {
        EXPECT_EQ(contentsOf(path(name)), m_wav) << name;
        EXPECT_EQ(QFileInfo(path(name)).lastModified().toSecsSinceEpoch(), time) << name;
    }
}

TEST_F(CardSaving, TypesThatShareAHeaderGiveOneFileOfThatName) {
    const ItemSaver saver(m_folder.path());
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120})});
    EXPECT_TRUE(saver.save(item("WAV", "a.WAV", {80, 300}, card)).saved);
    const SaveOutcome again = saver.save(item("AVI", "a.AVI", {80, 300}, card));
    EXPECT_TRUE(again.duplicate);
    EXPECT_EQ(filesUnder(m_folder.path()), QStringList{"MUSIC/SONG.WAV"});
}

TEST_F(CardSaving, SavedAgainLaterIsKnownByItsPlace) {
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120})});
    EXPECT_FALSE(ItemSaver(m_folder.path()).save(item("WAV", "a.WAV", {80, 300}, card)).duplicate);
    EXPECT_TRUE(ItemSaver(m_folder.path()).save(item("WAV", "a.WAV", {80, 300}, card)).duplicate);
    EXPECT_EQ(filesUnder(m_folder.path()), QStringList{"MUSIC/SONG.WAV"});
}

TEST_F(CardSaving, FileInTheWayOfACardsFolderSendsTheItemToItsType) {
    QFile inTheWay(path("MUSIC"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120})});
    EXPECT_EQ(ItemSaver(m_folder.path()).save(item("WAV", "a.WAV", {80, 300}, card)).path,
              path("WAV/SONG.WAV"));
}

TEST_F(CardSaving, FolderOfTheCardThatIsALinkIsNotFollowed) {
    const QTemporaryDir elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), path("MUSIC")));
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120})});
    EXPECT_EQ(ItemSaver(m_folder.path()).save(item("WAV", "a.WAV", {80, 300}, card)).path,
              path("WAV/SONG.WAV"));
    EXPECT_TRUE(filesUnder(elsewhere.path()).isEmpty());
}

// Behind a stream lies another, so that the first seems to go on: only the directory tells them apart.
TEST_F(CardSaving, StreamBehindAnotherIsAsLongAsTheDirectorySays) {
    const QByteArray frames =
        (QByteArray("\x0B\x77\0\0\0\x40\x40\0", 8) + QByteArray(120, 'x')).repeated(40000);
    m_medium = mediumWith(frames, 10, 10'200);
    const auto card = indexOf(
        {cardFile("A", "A.AC3", 104 * 512, {10, 114}), cardFile("A", "B.AC3", 800 * 512, {114, 914})});
    const ItemSaver saver(m_folder.path());
    EXPECT_EQ(saver.save(item("AC3", "a.AC3", {10, 12}, card)).path, path("A/A.AC3"));
    m_medium.reads = 0;
    const SaveOutcome second = saver.save(item("AC3", "b.AC3", {114, 116}, card));
    EXPECT_LT(m_medium.reads, 5'000U) << "followed no further than that";
    EXPECT_EQ(second.path, path("A/B.AC3"));
    EXPECT_EQ(second.bytes, 800U * 512);
    EXPECT_EQ(second.verdict, Verdict::Complete);
}

// Found under the name of another type of the same format, as transport streams are.
TEST_F(CardSaving, PartsOfAFileThatHasToWait_ComeBehindIt) {
    const QByteArray frames =
        (QByteArray("\x0B\x77\0\0\0\x40\x40\0", 8) + QByteArray(120, 'x')).repeated(4000);
    m_medium = mediumWith(frames, 10, 1200);
    const auto card = indexOf({cardFile("A", "A.AC3", 800 * 512, {10, 810})});
    const ItemSaver saver(m_folder.path());
    const auto save = [&](const QString& type, SectorRun run, bool mayWait) {
        FoundItem found = item(type, type, run, card);
        found.mayWait = mayWait;
        return saver.save(found);
    };
    const SaveOutcome whole = save("AC3", {10, 12}, true);
    ASSERT_TRUE(whole.later) << "claims far more than was carved";
    EXPECT_TRUE(whole.comesFirst());
    EXPECT_EQ(whole.bytes, 800U * 512);
    const SaveOutcome part = save("EAC3", {21, 23}, true);
    EXPECT_TRUE(part.later);
    EXPECT_FALSE(part.comesFirst());
    saver.beginSecondRound();
    ASSERT_TRUE(save("AC3", {10, 12}, false).saved);
    EXPECT_EQ(save("EAC3", {21, 23}, false).leftOut, LeftOut::Part);
}

TEST_F(CardSaving, OnlyWhatIsLostLeavesOutWhatIsStillThere) {
    SavePolicy policy;
    policy.lostOnly = true;
    const ItemSaver saver(m_folder.path(), policy);
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120}, FileState::Live)});
    EXPECT_EQ(saver.save(item("WAV", "a.WAV", {80, 300}, card)).leftOut, LeftOut::StillThere);
    EXPECT_EQ(saver.save(item("WAV", "inside.WAV", {88, 300}, card)).leftOut, LeftOut::StillThere)
        << "what begins within such a file is a part of it";
    EXPECT_TRUE(saver.save(item("WAV", "b.WAV", {120, 300}, card)).saved);
}

TEST_F(CardSaving, WhatTheCardTellsLaterIsGivenToWhatIsSavedAlready) {
    const ItemSaver saver(m_folder.path());
    SaveOutcome outcome = saver.save(item("WAV", "a.WAV", {80, 300}, nullptr));
    ASSERT_EQ(outcome.path, path("WAV/a.WAV"));
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120})});
    saver.saveAsOnCard(item("WAV", "a.WAV", {80, 300}, card), outcome);
    EXPECT_EQ(outcome.path, path("MUSIC/SONG.WAV"));
    EXPECT_FALSE(outcome.duplicate);
    EXPECT_EQ(filesUnder(m_folder.path()), QStringList{"MUSIC/SONG.WAV"});
    EXPECT_EQ(contentsOf(outcome.path), m_wav);
    EXPECT_EQ(QFileInfo(outcome.path).lastModified().toSecsSinceEpoch(), kChanged);
}

TEST_F(CardSaving, WhatLiesInItsPlaceFromEarlierIsNotDoubledLater) {
    const auto card = indexOf({cardFile("MUSIC", "SONG.WAV", 20'000, {80, 120})});
    ASSERT_TRUE(ItemSaver(m_folder.path()).save(item("WAV", "a.WAV", {80, 300}, card)).saved);
    const ItemSaver saver(m_folder.path());
    SaveOutcome outcome = saver.save(item("WAV", "a.WAV", {80, 300}, nullptr));
    saver.saveAsOnCard(item("WAV", "a.WAV", {80, 300}, card), outcome);
    EXPECT_TRUE(outcome.duplicate);
    EXPECT_EQ(filesUnder(m_folder.path()), QStringList{"MUSIC/SONG.WAV"});
}

TEST_F(CardSaving, WhatOnlyTheDirectoryTellsIsSavedAsItSays) {
    const ItemSaver saver(m_folder.path());
    const auto card = indexOf(
        {cardFile("NOTES", "a.txt", 700, {400, 408}), cardFile("MUSIC", "OTHER.WAV", 5'000, {80, 90})});
    const auto told = [&](std::size_t index) {
        const std::shared_ptr<const CardFile> file(card, &card->table().files[index]);
        FoundItem found = item("TXT", file->name, {}, card);
        found.type = pathExtension(file->name).toUpper();
        found.source.carved = runsOf(*file);
        found.source.hints.told = file;
        return saver.save(found);
    };
    const SaveOutcome text = told(0);
    EXPECT_EQ(text.path, path("NOTES/a.txt"));
    EXPECT_EQ(QFileInfo(text.path).size(), 700);
    EXPECT_EQ(told(1).leftOut, LeftOut::Unsound) << "a longer file begins there";
}

TEST_F(CardSaving, WhatADirectoryHoldsItselfIsSavedFromThere) {
    // Nothing of it is read: the sectors of the medium hold something else.
    const QByteArray text = QByteArray("the card tells of files that are gone ").repeated(16);
    for (const FileState state : {FileState::Live, FileState::Deleted}) {
        CardFile note = cardFile("NOTES", state == FileState::Live ? "here.txt" : "gone.txt",
                                 static_cast<std::uint64_t>(text.size()), {80, 82}, state);
        note.contents = text.leftJustified(1024, '\0');
        CardTable table;
        table.files = {note};
        table.inUse = {{70, 100}};  // the file records
        const auto card = std::make_shared<const CardIndex>(std::move(table));
        const auto files = toldOnly(card, {}, {{0, 1000}, [](const QString&) { return true; }});
        ASSERT_EQ(files.size(), 1u);
        const ItemSaver saver(m_folder.path());
        const SaveOutcome outcome = saver.save(toldItem(files.front(), card, m_reader));
        ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
        EXPECT_EQ(outcome.path, path("NOTES/" + note.name));
        EXPECT_EQ(contentsOf(outcome.path), text);
        EXPECT_EQ(card->isLiveAt(80), state == FileState::Live);
        // It takes no place from what was found.
        EXPECT_FALSE(card->tellsOf(80));
    }
}

TEST_F(CardSaving, WhatHasHolesOrIsPackedIsSavedAsItWas) {
    CardFile sparse = cardFile("A", "sparse.img", 4096 + 700, {80, 84});
    sparse.runs.push_back({90, 92});
    sparse.holes = {{4, 8}};
    // A unit of eight sectors in one, a whole one, one of zeros, and one that is nonsense.
    const char packed[] = {0x05, char(0xB0), 0x08, 'a', 'b', 'c', char(0xFA), 0x2F, 0, 0};
    m_medium.put(600, {packed, sizeof packed});
    m_medium.put(620, "no chunk");
    CardFile units = cardFile("A", "packed.txt", 28 * 512 + 1, {600, 601});
    units.runs.push_back({88, 96});
    units.runs.push_back({620, 621});
    units.holes = {{1, 8}, {16, 24}, {25, 32}};
    units.unitSectors = 8;
    CardFile legible = units;
    legible.name = "legible.txt";
    legible.bytes = legible.validBytes = 24 * 512;
    for (CardFile* const file : {&sparse, &units, &legible}) {
        file->runsKnownBy = RunsKnownBy::Record;
    }
    const auto card = indexOf({sparse, units, legible});
    EXPECT_FALSE(card->tellsOf(600));
    const ItemSaver saver(m_folder.path());
    std::vector<SaveOutcome> saved;
    for (const CardFile& file : card->table().files) {
        saved.push_back(saver.save(toldItem(std::shared_ptr<const CardFile>(card, &file), card, m_reader)));
        ASSERT_TRUE(saved.back().saved) << saved.back().error.toStdString();
    }
    EXPECT_EQ(saved[0].path, path("A/sparse.img"));
    EXPECT_EQ(contentsOf(saved[0].path), m_wav.first(2048) + QByteArray(2048, '\0') + m_wav.mid(5120, 700));
    const QByteArray first = QByteArray("abc").repeated(1366).first(4096);
    const QByteArray whole = first + m_wav.mid(4096, 4096) + QByteArray(4096, '\0');
    EXPECT_EQ(contentsOf(saved[1].path), whole + QByteArray(4 * 512 + 1, '\0'));
    EXPECT_EQ(saved[1].sectorsUnreadable, 5u);
    EXPECT_EQ(saved[1].verdict, Verdict::Damaged);
    EXPECT_EQ(contentsOf(saved[2].path), whole);
    EXPECT_EQ(saved[2].sectorsUnreadable, 0u);
    EXPECT_EQ(saved[2].runs, units.runs);
}

TEST_F(CardSaving, PiecesThatTheCardTellsLaterReplaceWhatWasSaved) {
    // The second half lies elsewhere.
    for (std::size_t sector = 0; sector < 20; ++sector) {
        std::swap(m_medium.bytes[100 + sector], m_medium.bytes[500 + sector]);
    }
    const ItemSaver saver(m_folder.path());
    SaveOutcome outcome = saver.save(item("WAV", "a.WAV", {80, 300}, nullptr));
    ASSERT_TRUE(outcome.saved);
    CardFile file = cardFile("MUSIC", "SONG.WAV", 20'000, {80, 100});
    file.runs.push_back({500, 520});
    file.runsKnownBy = RunsKnownBy::Chain;
    saver.saveAsOnCard(item("WAV", "a.WAV", {80, 300}, indexOf({file})), outcome);
    EXPECT_EQ(filesUnder(m_folder.path()), QStringList{"MUSIC/SONG.WAV"});
    EXPECT_EQ(contentsOf(outcome.path), m_wav);
    EXPECT_EQ(outcome.pieces, 2U);
}

}  // namespace vantor
