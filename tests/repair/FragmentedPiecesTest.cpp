// Movies in fragments whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/MovieCompletion.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/Movies.h"

namespace vantor {
namespace {

using test::picturesOfManySizes;

constexpr qsizetype kFragmentClusterBytes = 4096;
constexpr std::uint64_t kFragmentClusterSectors = 8;
constexpr int kPicturesAFragment = 10;

// Ten pictures a fragment, and a list of fragments behind the last where it is wanted.
QByteArray makeFragmented(unsigned seed, int pictures, bool withList, qsizetype firstBytes = 0) {
    const ReferenceTrack shape = test::videoTrack();
    IndexedTrack track;
    track.described = &shape;
    track.video = true;
    track.chunks.push_back({0, 1});  // a track without any is not written
    track.sizes.push_back(1);
    BoxWriter index;
    index.bytes(writeIndex({track}));
    {
        const auto extends = index.box("mvex");
        const auto defaults = index.box("trex");
        index.u32(0).u32(1).u32(1).u32(0).u32(0).u32(0);
    }
    QByteArray moov = index.taken();
    qToBigEndian(static_cast<quint32>(moov.size()), moov.data());
    BoxWriter out;
    {
        const auto type = out.box("ftyp");
        out.bytes("isom").u32(512).bytes("isomavc1");
    }
    out.bytes(moov);
    std::mt19937 random(seed);
    auto specs = picturesOfManySizes(pictures, seed);
    if (firstBytes != 0) {
        specs.front().bytes = static_cast<int>(firstBytes);
    }
    for (int first = 0, number = 1; first < pictures; first += kPicturesAFragment, ++number) {
        QByteArray data;
        std::vector<std::uint32_t> sizes;
        for (int i = first; i < std::min(pictures, first + kPicturesAFragment); ++i) {
            const QByteArray picture = test::pictureBytes(specs[static_cast<std::size_t>(i)], random);
            sizes.push_back(static_cast<std::uint32_t>(picture.size()));
            data += picture;
        }
        const auto headBytes = static_cast<std::uint32_t>(8 + 16 + 8 + 16 + 20 + 4 * sizes.size());
        {
            const auto fragment = out.box("moof");
            {
                const auto head = out.box("mfhd");
                out.u32(0).u32(static_cast<std::uint32_t>(number));
            }
            const auto part = out.box("traf");
            {
                const auto head = out.box("tfhd");
                out.u32(0x020000).u32(1);
            }
            const auto run = out.box("trun");
            out.u32(0x201).u32(static_cast<std::uint32_t>(sizes.size())).u32(headBytes + 8);
            for (const std::uint32_t bytes : sizes) {
                out.u32(bytes);
            }
        }
        const auto body = out.box("mdat");
        out.bytes(data);
    }
    if (withList) {
        const auto list = out.box("mfra");
        {
            const auto table = out.box("tfra");
            out.u32(0).u32(1).u32(0).u32(0);
        }
        const auto end = out.box("mfro");
        out.u32(0).u32(8 + 24 + 16);
    }
    return out.taken();
}

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
    for (const auto& found : MovieCompletion(reader, goOn, progress, noHelper).run(card.starts, {})) {
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

}  // namespace vantor
