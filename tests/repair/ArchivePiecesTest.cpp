// Archives whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/ArchiveCompletion.h"
#include "repair/ArchiveDirectory.h"
#include "repair/ArchivePieces.h"
#include "tests/repair/Archives.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::kDocument;
using test::makeArchive;
using test::ScatteredCard;

std::optional<Assembly> completedArchive(const ScatteredCard& card, std::vector<std::uint64_t> broken,
                                         const std::vector<SectorRun>& whole = {}) {
    const QByteArray bytes = card.bytes();
    test::MemoryReader reader(bytes);
    const std::atomic<int> goOn{0};
    CompletionProgress progress;
    std::optional<Assembly> found;
    ArchiveCompletion(reader, goOn, progress).run(broken, whole, [&](std::size_t i, const Assembly& pieces) {
        if (i == 0) {
            found = pieces;
        }
    });
    return found;
}

}  // namespace

TEST(ArchivePieces, TwoPieces_AreJoinedWhereverTheCutIs) {
    const QByteArray archive = makeArchive(1, kDocument);
    for (qsizetype cut = 1; cut < clustersOf(archive); ++cut) {
        ScatteredCard card;
        const std::uint64_t first = card.put(archive, 0, cut);
        card.putNoise(7);
        card.put(archive, cut);
        const auto found = completedArchive(card, {first});
        ASSERT_TRUE(found) << cut;
        EXPECT_EQ(card.contentOf(*found), archive) << cut;
        EXPECT_EQ(found->proof, AssemblyProof::Proved) << cut;
    }
}

TEST(ArchivePieces, TwoArchivesInTurn_ComeApart) {
    const QByteArray one = makeArchive(1, kDocument);
    const QByteArray other = makeArchive(2, kDocument);
    ScatteredCard card;
    std::uint64_t firsts[2] = {};
    for (qsizetype i = 0; i < std::max(clustersOf(one), clustersOf(other)); ++i) {
        const std::uint64_t a = card.put(one, i, i + 1);
        const std::uint64_t b = card.put(other, i, i + 1);
        if (i == 0) {
            firsts[0] = a;
            firsts[1] = b;
        }
    }
    for (const bool swapped : {false, true}) {
        const auto found = completedArchive(card, {firsts[swapped ? 1 : 0], firsts[swapped ? 0 : 1]});
        ASSERT_TRUE(found) << swapped;
        EXPECT_EQ(card.contentOf(*found), swapped ? other : one);
        EXPECT_EQ(found->proof, AssemblyProof::Proved);
    }
}

TEST(ArchivePieces, PieceThatIsGone_GivesNothing) {
    const QByteArray archive = makeArchive(1, kDocument);
    const qsizetype clusters = clustersOf(archive);
    for (qsizetype gone = 1; gone < clusters - 1; ++gone) {
        ScatteredCard card;
        const std::uint64_t first = card.put(archive, 0, gone);
        card.putNoise(3);
        card.put(archive, gone + 1);
        EXPECT_FALSE(completedArchive(card, {first})) << gone;
    }
}

// A wrong byte that breaks no code and no length: only the sum tells.
TEST(ArchivePieces, SumThatIsWrong_GivesNothing) {
    QByteArray archive = makeArchive(1, {{2000}, {90'000, false}, {4000}});
    archive[50'000] = static_cast<char>(archive[50'000] ^ 1);
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 5);
    card.putNoise(7);
    card.put(archive, 5);
    EXPECT_FALSE(completedArchive(card, {first}));
}

// What cannot be unpacked is placed by where it begins and ends alone.
TEST(ArchivePieces, MemberThatCannotBeChecked_ProvesNothing) {
    const QByteArray archive = makeArchive(1, {{90'000}, {30'000, false, false, 99}, {90'000}});
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 3);
    card.putNoise(7);
    card.put(archive, 3);
    const auto found = completedArchive(card, {first});
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), archive);
    EXPECT_EQ(found->proof, AssemblyProof::Likely);
}

// What stands behind the directory and in front of a member's content has no sum.
TEST(ArchivePieces, ClusterThatNoSumIsOf_ProvesNothing) {
    const QByteArray plain = makeArchive(1, kDocument);
    QByteArray withComment = plain + QByteArray(9000, 'c');
    withComment.replace(plain.size() - 2, 2, test::little(9000, 2));
    for (const QByteArray& archive : {plain, withComment}) {
        ScatteredCard card;
        const std::uint64_t first = card.put(archive, 0, 3);
        card.putNoise(7);
        card.put(archive, 3);
        const auto found = completedArchive(card, {first});
        ASSERT_TRUE(found);
        EXPECT_EQ(card.contentOf(*found), archive);
        EXPECT_EQ(found->proof, archive == plain ? AssemblyProof::Proved : AssemblyProof::Likely);
    }
}

// Each directory is looked for once, however many archives there are.
TEST(ArchivePieces, DirectoriesOfOthers_CostTheFirstSearchAlone) {
    const QByteArray archive = makeArchive(1, kDocument);
    const QByteArray tail = makeArchive(2, std::vector<test::MemberSpec>(200, {40, false}));
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 3);
    for (int i = 0; i < 40; ++i) {
        card.put(tail, 2);
    }
    const QByteArray bytes = card.bytes();
    test::MemoryReader reader(bytes);
    const std::atomic<int> goOn{0};
    MediumBlocks blocks(reader);
    const FreeClusters grid({0, 8}, reader.mediumSectors());
    const ArchivePlaces places = archivePlaces(blocks, goOn);
    ASSERT_EQ(places.ends.size(), 40U);
    ArchivePieces pieces(blocks, grid, places, goOn);
    ArchiveEffort effort;
    EXPECT_FALSE(pieces.assemble(first / 8, effort));
    const std::uint64_t spent = ArchiveEffort::kOfAll - effort.left;
    EXPECT_GT(spent, 40U * 200U);
    EXPECT_FALSE(pieces.assemble(first / 8, effort));
    EXPECT_LT(ArchiveEffort::kOfAll - effort.left - spent, spent / 20);
}

TEST(ArchivePieces, EffortThatIsUsedUp_EndsTheSearch) {
    const QByteArray archive = makeArchive(1, kDocument);
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 3);
    card.putNoise(7);
    card.put(archive, 3);
    const QByteArray bytes = card.bytes();
    test::MemoryReader reader(bytes);
    const std::atomic<int> goOn{0};
    MediumBlocks blocks(reader);
    const FreeClusters grid({0, 8}, reader.mediumSectors());
    const ArchivePlaces places = archivePlaces(blocks, goOn);
    ArchiveEffort little{1000};
    EXPECT_FALSE(ArchivePieces(blocks, grid, places, goOn).assemble(first / 8, little));
    EXPECT_EQ(little.left, 0U);
    ArchiveEffort enough;
    EXPECT_TRUE(ArchivePieces(blocks, grid, places, goOn).assemble(first / 8, enough));
    EXPECT_LT(enough.left, ArchiveEffort::kOfAll);
}

// A picture within an archive begins anywhere; a file of its own keeps its place.
// Between the pieces of one member, which could not be cut twice otherwise.
TEST(ArchivePieces, WholeFilesBetween_KeepTheirPlaces) {
    const QByteArray archive = makeArchive(1, kDocument);
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 4);
    std::vector<SectorRun> whole{{first + 3, first + 6}};
    qsizetype from = 4;
    for (const qsizetype to : {qsizetype{8}, clustersOf(archive)}) {
        const QByteArray other = makeArchive(static_cast<unsigned>(to), {{9000, false}});
        const std::uint64_t between = card.put(other);
        whole.push_back({between, between + static_cast<std::uint64_t>(clustersOf(other)) * 8});
        card.put(archive, from, to);
        from = to;
    }
    const auto found = completedArchive(card, {first}, whole);
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), archive);
    EXPECT_FALSE(completedArchive(card, {first})) << "where these may be its own too";
}

// A member that happens to begin with a sector is taken for an archive.
TEST(ArchivePieces, MembersThatLookLikeArchives_HideNoClusters) {
    const QByteArray archive = makeArchive(1, kDocument);
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 5);
    card.putNoise(7);
    card.put(archive, 5);
    const auto found = completedArchive(card, {first, first + 3, first + 12 * 8, first + 80 * 8});
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), archive);
}

TEST(ArchiveDirectory, NumbersThatCannotBe_AreRefused) {
    const QByteArray archive = makeArchive(1, kDocument);
    const qsizetype end = archive.lastIndexOf("PK\5\6");
    const auto membersOf = [&](qsizetype at, char byte) {
        QByteArray changed = archive;
        changed[at] = byte;
        SpanSource source({reinterpret_cast<const std::uint8_t*>(changed.constData()),
                           static_cast<std::size_t>(changed.size())});
        ByteView view(source);
        const auto record = archiveEndAt(view, static_cast<std::uint64_t>(end));
        return record ? archiveMembers(view, *record) : std::nullopt;
    };
    EXPECT_TRUE(membersOf(end, 'P'));
    EXPECT_FALSE(membersOf(end + 4, 1));      // a part of several
    EXPECT_FALSE(membersOf(end + 10, 9));     // more members in all than here
    EXPECT_FALSE(membersOf(end + 15, 0x7F));  // a directory beyond the file
    const qsizetype record = archive.indexOf("PK\1\2");
    EXPECT_FALSE(membersOf(record + 23, 0x7F));  // a member longer than what there is for it
    EXPECT_FALSE(membersOf(record + 28, 99));    // a name into the next record
    EXPECT_FALSE(membersOf(record + 42, 1));     // nothing begins the file
}

}  // namespace vantor
