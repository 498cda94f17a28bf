// Movies in fragments whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/MovieCompletion.h"
#include "tests/repair/FragmentedMovies.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/Movies.h"

namespace vantor {
namespace {

using test::makeFragmented;
using test::picturesOfManySizes;

constexpr qsizetype kFragmentClusterBytes = 4096;
constexpr std::uint64_t kFragmentClusterSectors = 8;

// Where the clusters of both lie in turn, from the eighth cluster of the medium on.
struct InTurn {
    QByteArray medium;
    std::vector<std::uint64_t> starts{8 * kFragmentClusterSectors, 9 * kFragmentClusterSectors};
};

InTurn inTurn(const QByteArray& one, const QByteArray& other) {
    InTurn card;
    card.medium.resize((std::max(one.size(), other.size()) / kFragmentClusterBytes + 30) * 2 *
                       kFragmentClusterBytes);
    std::mt19937 random(9);
    for (char& byte : card.medium) {
        byte = static_cast<char>(random());
    }
    const QByteArray* const movies[] = {&one, &other};
    for (qsizetype which = 0; which < 2; ++which) {
        for (qsizetype at = 0; at < movies[which]->size(); at += kFragmentClusterBytes) {
            const QByteArray piece = movies[which]->mid(at, kFragmentClusterBytes);
            card.medium.replace(8 * kFragmentClusterBytes + 2 * at + which * kFragmentClusterBytes,
                                piece.size(), piece);
        }
    }
    return card;
}

struct Completed {
    QByteArray bytes;
    AssemblyProof proof = AssemblyProof::Likely;
};

std::vector<std::optional<Completed>> completedOf(const InTurn& card) {
    test::MemoryReader reader(card.medium);
    const std::atomic<int> goOn{0};
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    std::vector<std::optional<Completed>> all;
    for (const auto& found : MovieCompletion(reader, goOn, progress, noHelper).run(card.starts, {}, {})) {
        if (!found) {
            all.emplace_back();
            continue;
        }
        Completed movie;
        movie.proof = found->proof;
        for (const SectorRun& run : found->runs) {
            movie.bytes += card.medium.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                                           static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
        }
        movie.bytes.truncate(static_cast<qsizetype>(found->bytes));
        all.emplace_back(movie);
    }
    return all;
}

}  // namespace

TEST(FragmentedPieces, TwoMoviesInTurn_ComeApart) {
    const QByteArray one = makeFragmented(1, 203, true);
    const QByteArray other = makeFragmented(2, 187, true);
    const auto found = completedOf(inTurn(one, other));
    ASSERT_TRUE(found[0] && found[1]);
    EXPECT_EQ(found[0]->bytes, one);
    EXPECT_EQ(found[0]->proof, AssemblyProof::Proved);
    EXPECT_EQ(found[1]->bytes, other);
    EXPECT_EQ(found[1]->proof, AssemblyProof::Proved);
}

// The head of the first fragment behind the next one's: sizes and numbers are of two clusters.
TEST(FragmentedPieces, HeadOverTwoClusters_IsJoined) {
    const QByteArray probe = makeFragmented(1, 203, true);
    const qsizetype second = probe.indexOf("moof", probe.indexOf("moof") + 4) - 4;
    const qsizetype wanted =
        second / kFragmentClusterBytes * kFragmentClusterBytes + 2 * kFragmentClusterBytes - 40;
    const int firstPicture = picturesOfManySizes(203, 1).front().bytes;
    const QByteArray one = makeFragmented(1, 203, true, firstPicture + wanted - second);
    ASSERT_EQ(one.indexOf("moof", one.indexOf("moof") + 4) - 4, wanted);
    const auto found = completedOf(inTurn(one, makeFragmented(2, 187, true)));
    ASSERT_TRUE(found[0]);
    EXPECT_EQ(found[0]->bytes, one);
    EXPECT_EQ(found[0]->proof, AssemblyProof::Proved);
}

// Where nothing tells that the last fragment is the last, another may be missing.
TEST(FragmentedPieces, WithoutAListOfFragments_NothingIsProved) {
    const QByteArray one = makeFragmented(1, 203, false);
    const auto found = completedOf(inTurn(one, makeFragmented(2, 187, true)));
    ASSERT_TRUE(found[0]);
    EXPECT_EQ(found[0]->bytes, one);
    EXPECT_EQ(found[0]->proof, AssemblyProof::Likely);
}

TEST(FragmentedPieces, FragmentThatIsGone_EndsWhatIsProved) {
    const QByteArray one = makeFragmented(1, 203, true);
    InTurn card = inTurn(one, makeFragmented(2, 187, true));
    qsizetype at = -1;
    for (int i = 0; i < 6; ++i) {
        at = one.indexOf("moof", at + 1);
    }
    const qsizetype cluster = at / kFragmentClusterBytes;
    card.medium.replace((8 + 2 * cluster) * kFragmentClusterBytes, kFragmentClusterBytes,
                        QByteArray(kFragmentClusterBytes, '\0'));
    const auto found = completedOf(card);
    EXPECT_TRUE(!found[0] || found[0]->proof == AssemblyProof::Likely);
}

// As where one of another recording has come to lie at its place.
TEST(FragmentedPieces, FragmentOfAnotherNumber_IsNotOfTheMovie) {
    QByteArray one = makeFragmented(1, 203, true);
    const QByteArray other = makeFragmented(2, 187, true);
    const auto before = completedOf(inTurn(one, other));
    ASSERT_TRUE(before[0]);
    ASSERT_EQ(before[0]->proof, AssemblyProof::Proved);
    qsizetype at = -1;
    for (int i = 0; i < 6; ++i) {
        at = one.indexOf("mfhd", at + 1);
    }
    ASSERT_EQ(one.at(at + 11), 6);
    one[at + 11] = 16;
    const auto found = completedOf(inTurn(one, other));
    EXPECT_TRUE(!found[0] || found[0]->proof == AssemblyProof::Likely);
    ASSERT_TRUE(found[1]);
    EXPECT_EQ(found[1]->bytes, other);
}

}  // namespace vantor
