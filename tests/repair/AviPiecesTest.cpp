// AVI movies whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include <QtEndian>
#include <random>

#include "repair/MovieCompletion.h"
#include "tests/repair/Photos.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::kClusterBytes;
using test::kClusterSectors;

QByteArray little(std::uint32_t value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray aviChunk(const char* name, const QByteArray& body) {
    return name + little(static_cast<std::uint32_t>(body.size())) + body + QByteArray(body.size() % 2, '\0');
}

QByteArray headerOf(std::uint32_t pictures, std::uint32_t allPictures) {
    const QByteArray main = QByteArray(16, '\0') + little(pictures) + QByteArray(36, '\0');
    const QByteArray extended = "odml" + aviChunk("dmlh", little(allPictures));
    return aviChunk("LIST", "hdrl" + aviChunk("avih", main) + aviChunk("LIST", extended));
}

using Chunks = std::vector<std::pair<const char*, QByteArray>>;

// `allPictures`: of which this is the first part.
QByteArray makeAvi(const Chunks& chunks, std::uint32_t allPictures = 0) {
    QByteArray data = "movi";
    QByteArray index;
    std::uint32_t pictures = 0;
    for (const auto& [name, body] : chunks) {
        index += name + little(16) + little(static_cast<std::uint32_t>(data.size())) +
                 little(static_cast<std::uint32_t>(body.size()));
        data += aviChunk(name, body);
        pictures += name[1] == '0' ? 1 : 0;
    }
    return aviChunk("RIFF", "AVI " + headerOf(pictures, std::max(pictures, allPictures)) +
                                aviChunk("LIST", data) + aviChunk("idx1", index));
}

// Pictures that nothing could decode, and sound.
Chunks noiseChunks(unsigned seed, int pictures) {
    std::mt19937 random(seed);
    Chunks chunks;
    for (int i = 0; i < pictures; ++i) {
        for (const char* const name : {"00dc", "01wb"}) {
            // Something begins in every cluster.
            QByteArray body(name[1] == '0' ? 2000 + static_cast<int>(random() % 1500) : 400, '\0');
            for (char& byte : body) {
                byte = static_cast<char>(random() % 255);
            }
            chunks.emplace_back(name, body);
        }
    }
    return chunks;
}

std::vector<std::optional<Assembly>> completedMovies(const test::ScatteredCard& card,
                                                     const std::vector<std::uint64_t>& starts) {
    const QByteArray bytes = card.bytes();
    test::MemoryReader reader(bytes);
    const std::atomic<int> goOn{0};
    CompletionProgress progress;
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    return MovieCompletion(reader, goOn, progress, noHelper).run(starts, {});
}

}  // namespace

TEST(AviPieces, TwoMoviesInTurn_ComeApart) {
    const QByteArray one = makeAvi(noiseChunks(1, 40));
    const QByteArray other = makeAvi(noiseChunks(2, 60));
    test::ScatteredCard card;
    std::vector<std::uint64_t> starts;
    for (qsizetype i = 0; i < std::max(clustersOf(one), clustersOf(other)); ++i) {
        for (const QByteArray* const movie : {&one, &other}) {
            const std::uint64_t first = i < clustersOf(*movie) ? card.put(*movie, i, i + 1) : 0;
            if (i == 0) {
                starts.push_back(first);
            }
        }
    }
    const auto found = completedMovies(card, starts);
    ASSERT_EQ(found.size(), 2U);
    ASSERT_TRUE(found[0] && found[1]);
    EXPECT_EQ(card.contentOf(*found[0]), one);
    EXPECT_EQ(card.contentOf(*found[1]), other);
    EXPECT_EQ(found[1]->proof, AssemblyProof::Proved);
}

// Nothing begins in the clusters of a large picture: where it was cut, its codes tell.
TEST(AviPieces, CutWithinAPicture_IsTheOneWithWhichItComesOutEven) {
    Chunks chunks;
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        chunks.emplace_back("00dc", test::makePhoto(seed));
    }
    const QByteArray movie = makeAvi(chunks);
    const QByteArray other = test::makePhoto(5);
    const qsizetype cut = clustersOf(movie) * 3 / 8;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, cut);
    card.put(other, 4, 10);
    card.put(movie, cut);
    const auto found = completedMovies(card, {first})[0];
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), movie);
    EXPECT_EQ(found->proof, AssemblyProof::Proved);
}

TEST(AviPieces, PieceThatIsGone_IsNotProved) {
    const QByteArray movie = makeAvi(noiseChunks(1, 40));
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, clustersOf(movie) / 2);
    card.putNoise(5);
    card.put(movie, clustersOf(movie) / 2 + 2);
    const auto found = completedMovies(card, {first});
    EXPECT_TRUE(!found[0] || found[0]->proof == AssemblyProof::Likely);
}

TEST(AviPieces, FirstPartOfALongerMovie_IsLeft) {
    const QByteArray movie = makeAvi(noiseChunks(1, 40), 90);
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, clustersOf(movie) / 2);
    card.putNoise(5);
    card.put(movie, clustersOf(movie) / 2);
    EXPECT_FALSE(completedMovies(card, {first})[0]);
}

}  // namespace vantor
