// Archives whose clusters lie scattered over a medium.
#include <gtest/gtest.h>
#include <zlib.h>

#include <random>

#include "repair/ArchiveCompletion.h"
#include "repair/ArchiveDirectory.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::ScatteredCard;

struct MemberSpec {
    qsizetype bytes = 0;
    bool packed = true;
    bool sizesFollow = false;
    std::uint16_t method = 0xFFFF;  // told in place of the real one
};

QByteArray little(std::uint64_t value, int bytes) {
    QByteArray out;
    for (int i = 0; i < bytes; ++i) {
        out += static_cast<char>(value >> 8 * i);
    }
    return out;
}

QByteArray deflated(const QByteArray& content) {
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    QByteArray out(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(content.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.constData()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return out;
}

QByteArray makeArchive(unsigned seed, const std::vector<MemberSpec>& specs) {
    std::mt19937 random(seed);
    QByteArray file;
    QByteArray directory;
    for (std::size_t i = 0; i < specs.size(); ++i) {
        QByteArray content(specs[i].bytes, '\0');
        for (char& byte : content) {
            byte = static_cast<char>(random() % 64);
        }
        const QByteArray name = "part" + QByteArray::number(static_cast<int>(i)) + ".xml";
        const auto sum = ::crc32(0, reinterpret_cast<const Bytef*>(content.constData()),
                                 static_cast<uInt>(content.size()));
        const QByteArray stored = specs[i].packed ? deflated(content) : content;
        const std::uint16_t method = specs[i].method != 0xFFFF ? specs[i].method : specs[i].packed ? 8 : 0;
        const QByteArray sums = little(sum, 4) + little(static_cast<std::uint64_t>(stored.size()), 4) +
                                little(static_cast<std::uint64_t>(content.size()), 4);
        const QByteArray shared = little(20, 2) + little(specs[i].sizesFollow ? 8 : 0, 2) +
                                  little(method, 2) + little(0x5A210000, 4);
        const QByteArray lengths = little(static_cast<std::uint64_t>(name.size()), 2) + little(0, 2);
        directory += "PK\1\2" + little(20, 2) + shared + sums + lengths + little(0, 10) +
                     little(static_cast<std::uint64_t>(file.size()), 4) + name;
        file += "PK\3\4" + shared + (specs[i].sizesFollow ? QByteArray(12, '\0') : sums) + lengths + name +
                stored;
        if (specs[i].sizesFollow) {
            file += "PK\7\10" + sums;
        }
    }
    const auto at = static_cast<std::uint64_t>(file.size());
    const std::uint64_t count = specs.size();
    return file + directory + "PK\5\6" + little(0, 4) + little(count, 2) + little(count, 2) +
           little(static_cast<std::uint64_t>(directory.size()), 4) + little(at, 4) + little(0, 2);
}

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

const std::vector<MemberSpec> kDocument = {{2000}, {90'000}, {30'000, false}, {500}, {60'000, true, true},
                                           {4000}};

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

// A picture within an archive begins anywhere; a file of its own keeps its place.
TEST(ArchivePieces, WholeFilesBetween_KeepTheirPlaces) {
    const QByteArray archive = makeArchive(1, kDocument);
    const QByteArray other = makeArchive(2, {{9000, false}});
    ScatteredCard card;
    const std::uint64_t first = card.put(archive, 0, 4);
    const std::uint64_t between = card.put(other);
    card.put(archive, 4);
    const SectorRun whole{between, between + static_cast<std::uint64_t>(clustersOf(other)) * 8};
    const auto found = completedArchive(card, {first}, {whole, {first + 3, first + 6}});
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), archive);
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
