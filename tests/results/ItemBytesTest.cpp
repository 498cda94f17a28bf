// Which bytes of the medium are an item's, when the card's directory has a word in it.
#include <gtest/gtest.h>

#include "results/ItemBytes.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

constexpr std::uint64_t kCluster = 8;

// A medium of noise with the file's clusters at the places that are told, in their order.
ScriptedMedium mediumInPieces(const QByteArray& file, const std::vector<SectorRun>& runs,
                              std::size_t sectors = 1000) {
    ScriptedMedium medium = mediumWith({}, 0, sectors);
    qsizetype at = 0;
    for (const SectorRun& run : runs) {
        for (std::uint64_t sector = run.first; sector < run.end && at < file.size(); ++sector, at += 512) {
            const QByteArray bytes = file.mid(at, 512);
            medium.put(sector, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        }
    }
    return medium;
}

CardFile cardFile(const QString& name, std::uint64_t bytes, std::vector<SectorRun> runs, FileState state,
                  RunsKnownBy knownBy) {
    CardFile file;
    file.name = name;
    file.bytes = file.validBytes = bytes;
    file.runs = std::move(runs);
    file.state = state;
    file.runsKnownBy = knownBy;
    file.clusterSectors = kCluster;
    return file;
}

struct Look {
    ItemTruth truth;
    QByteArray bytes;
};

Look lookAt(ScriptedMedium& medium, const QString& type, CardTable table, SectorRun carved) {
    ScriptedReader reader(medium);
    ItemSource source{{{carved}, false}, {}, [&reader] { return &reader; }, medium.bytes.size()};
    source.hints.card = std::make_shared<const CardIndex>(std::move(table));
    std::vector<std::uint8_t> kept;
    ItemBytes bytes(source, kept);
    Look look{bytes.measure(type, true), {}};
    look.bytes.resize(static_cast<qsizetype>(look.truth.length.bytes));
    look.bytes.truncate(
        static_cast<qsizetype>(bytes.bytes().read(0, {reinterpret_cast<std::uint8_t*>(look.bytes.data()),
                                                      static_cast<std::size_t>(look.bytes.size())})));
    return look;
}

CardTable tableOf(const CardFile& file, std::vector<SectorRun> inUse = {}) {
    CardTable table;
    table.files = {file};
    table.inUse = std::move(inUse);
    return table;
}

}  // namespace

TEST(ItemBytes, EntryAndStructureThatAgreeGiveTheName) {
    const QByteArray wav = wavFile(20'000);
    ScriptedMedium medium = mediumInPieces(wav, {{80, 120}});
    const Look look =
        lookAt(medium, "WAV",
               tableOf(cardFile("SONG.WAV", 20'000, {{80, 120}}, FileState::Deleted, RunsKnownBy::Guess)),
               {80, 300});
    ASSERT_NE(look.truth.file, nullptr);
    EXPECT_EQ(look.truth.file->name, "SONG.WAV");
    EXPECT_FALSE(look.truth.assembly);
    EXPECT_EQ(look.bytes, wav);
}

TEST(ItemBytes, EntryOfAnotherLengthGivesNoName) {
    const QByteArray wav = wavFile(20'000);
    ScriptedMedium medium = mediumInPieces(wav, {{80, 120}});
    const Look look = lookAt(
        medium, "WAV",
        tableOf(cardFile("OLD.WAV", 17'000, {{80, 120}}, FileState::Deleted, RunsKnownBy::Guess)), {80, 300});
    EXPECT_EQ(look.truth.file, nullptr);
    EXPECT_EQ(look.bytes, wav);
}

// It was never finished: its own head speaks of more than the medium has.
TEST(ItemBytes, FileThatIsCutOffIsAsLongAsItsEntrySays) {
    const QByteArray wav = wavFile(600'000);
    ScriptedMedium medium = mediumInPieces(wav, {{80, 120}});
    const Look look =
        lookAt(medium, "WAV",
               tableOf(cardFile("SONG.WAV", 17'000, {{80, 120}}, FileState::Deleted, RunsKnownBy::Guess)),
               {80, medium.bytes.size()});
    EXPECT_EQ(look.truth.length.extent.verdict, Verdict::CutOff);
    ASSERT_NE(look.truth.file, nullptr);
    EXPECT_EQ(look.bytes, wav.left(17'000));
}

TEST(ItemBytes, ChainGivesThePieces) {
    const std::vector<SectorRun> runs{{80, 96}, {400, 408}, {200, 216}};
    const QByteArray wav = wavFile(20'000);
    ScriptedMedium medium = mediumInPieces(wav, runs);
    const Look look = lookAt(
        medium, "WAV", tableOf(cardFile("SONG.WAV", 20'000, runs, FileState::Deleted, RunsKnownBy::Chain)),
        {80, 300});
    ASSERT_TRUE(look.truth.assembly);
    EXPECT_EQ(look.truth.assembly->proof, AssemblyProof::Proved);
    EXPECT_TRUE(look.truth.assembly->byDirectory);
    EXPECT_EQ(look.bytes, wav);
    ASSERT_NE(look.truth.file, nullptr);
}

TEST(ItemBytes, ChainThatIsWrittenOverIsNotBelieved) {
    const std::vector<SectorRun> runs{{80, 96}, {400, 424}};
    ScriptedMedium medium = mediumInPieces(wavFile(20'000), {{80, 120}});
    const Look look = lookAt(
        medium, "WAV",
        tableOf(cardFile("SONG.WAV", 20'000, runs, FileState::Deleted, RunsKnownBy::Chain), {{400, 408}}),
        {80, 300});
    EXPECT_EQ(look.truth.file, nullptr);
    EXPECT_FALSE(look.truth.assembly);
}

// Nothing but the length in its head marks a sound's end, so that it is complete wherever it is carved.
TEST(ItemBytes, FileThatIsThereIsPassedByWhatWasWrittenRoundIt) {
    const QByteArray wav = wavFile(20'000);
    ScriptedMedium medium = mediumInPieces(wav, {{80, 96}, {104, 128}});
    CardTable table =
        tableOf(cardFile("SONG.WAV", 20'000, {{80, 120}}, FileState::Deleted, RunsKnownBy::Guess),
                {{96, 104}, {128, 300}});
    const Look look = lookAt(medium, "WAV", table, {80, 97});
    ASSERT_TRUE(look.truth.assembly);
    EXPECT_EQ(look.truth.assembly->proof, AssemblyProof::Likely);
    EXPECT_EQ(look.bytes, wav);
    ASSERT_NE(look.truth.file, nullptr);
    EXPECT_EQ(look.truth.file->name, "SONG.WAV");
    // Where the next free clusters may be another's, nobody knows the rest.
    table.files.push_back(cardFile("NEXT.WAV", 3'000, {{104, 110}}, FileState::Deleted, RunsKnownBy::Guess));
    const Look other = lookAt(medium, "WAV", table, {80, 97});
    EXPECT_FALSE(other.truth.assembly);
    EXPECT_EQ(verdictOf(other.truth), Verdict::Damaged);
}

TEST(ItemBytes, FileThatIsThereIsReadAsTheFileSystemHoldsIt) {
    const std::vector<SectorRun> runs{{80, 96}, {400, 416}};
    const QByteArray bytes = wavFile(10'000) + noise(3'000, 5);
    ScriptedMedium medium = mediumInPieces(bytes, runs);
    const Look look = lookAt(
        medium, "WAV",
        tableOf(cardFile("SONG", 13'000, runs, FileState::Live, RunsKnownBy::Chain), {{80, 96}, {400, 416}}),
        {80, 300});
    EXPECT_EQ(look.bytes, bytes) << "with what stands behind the end that the format knows";
    EXPECT_TRUE(look.truth.lengthIsTold);
}

TEST(ItemBytes, DirectoryTellsTheLengthThatTheFormatDoesNot) {
    const QByteArray bytes = noise(9'999, 7);
    ScriptedMedium medium = mediumInPieces(bytes, {{80, 104}});
    const CardFile file = cardFile("A.XYZ", 9'999, {{80, 104}}, FileState::Deleted, RunsKnownBy::Flag);
    const Look look = lookAt(medium, "XYZ", tableOf(file), {80, 300});
    EXPECT_EQ(look.bytes, bytes);
    EXPECT_EQ(verdictOf(look.truth), Verdict::Complete);
    // In the way of a guess lies something that is there: nothing is known then.
    CardFile guess = file;
    guess.runsKnownBy = RunsKnownBy::Guess;
    const Look blocked = lookAt(medium, "XYZ", tableOf(guess, {{88, 96}}), {80, 300});
    EXPECT_EQ(blocked.truth.file, nullptr);
    EXPECT_EQ(blocked.bytes.size(), 220 * 512);
}

TEST(ItemBytes, AsPublishedAsksNobody) {
    ScriptedMedium medium = mediumInPieces(wavFile(20'000), {{80, 120}});
    ScriptedReader reader(medium);
    ItemSource source{{{{80, 300}}, false}, {}, [&reader] { return &reader; }, medium.bytes.size(), true};
    source.hints.card = std::make_shared<const CardIndex>(
        tableOf(cardFile("SONG.WAV", 20'000, {{80, 120}}, FileState::Live, RunsKnownBy::Chain)));
    std::vector<std::uint8_t> kept;
    ItemBytes bytes(source, kept);
    EXPECT_EQ(bytes.measure("WAV", true).length.bytes, 220U * 512);
    EXPECT_EQ(bytes.truth().file, nullptr);
}

}  // namespace vantor
