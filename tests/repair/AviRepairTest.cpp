// AVI movies whose index was never written.
#include <gtest/gtest.h>

#include <QtEndian>

#include "formats/Registry.h"
#include "repair/AviRepair.h"
#include "tests/repair/Avis.h"
#include "tests/repair/Movies.h"
#include "tests/repair/Photos.h"

namespace vantor {
namespace {

using test::asSpan;
using test::aviChunk;
using test::makeAvi;

std::optional<RepairedMovie> repairedAvi(const QByteArray& movie) {
    SpanSource source(asSpan(movie));
    return repairAvi(source);
}

QByteArray aviTwinOf(const QByteArray& broken, const RepairedMovie& movie) {
    return movie.head +
           broken.mid(static_cast<qsizetype>(movie.data.from),
                      static_cast<qsizetype>(movie.data.to - movie.data.from)) +
           movie.index;
}

Extent extentOf(const QByteArray& movie) {
    SpanSource source(asSpan(movie));
    ByteView view(source);
    return formatFor("AVI")->walk(view);
}

test::Chunks jpegChunks(int pictures) {
    test::Chunks chunks;
    for (int i = 0; i < pictures; ++i) {
        chunks.emplace_back("00dc", test::makePhoto(static_cast<unsigned>(i), 96, 64));
        chunks.emplace_back("01wb", QByteArray(400, static_cast<char>(i)));
    }
    return chunks;
}

std::uint32_t numberIn(const QByteArray& bytes, const char* name, qsizetype behind) {
    return qFromLittleEndian<quint32>(bytes.constData() + bytes.indexOf(name) + behind);
}

}  // namespace

TEST(AviRepair, CutOffInAPicture_AllWholeOnesPlay) {
    const QByteArray movie = makeAvi(jpegChunks(10));
    qsizetype cut = 0;
    for (int i = 0; i < 7; ++i) {
        cut = movie.indexOf("00dc", cut + 1);
    }
    const QByteArray broken = movie.left(cut + 300);
    const auto repaired = repairedAvi(broken);
    ASSERT_TRUE(repaired);
    EXPECT_EQ(repaired->pictures, 6U);
    EXPECT_DOUBLE_EQ(repaired->pictureSeconds, 6.0 / 25);
    EXPECT_DOUBLE_EQ(repaired->soundSeconds, 6 * 400 / 10000.0);
    const QByteArray twin = aviTwinOf(broken, *repaired);
    const Extent extent = extentOf(twin);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, static_cast<std::uint64_t>(twin.size()));
    EXPECT_EQ(numberIn(twin, "avih", 24), 6U);
    EXPECT_EQ(numberIn(twin, "vids", 32), 6U);
    EXPECT_EQ(numberIn(twin, "auds", 32), 2400U);
    EXPECT_EQ(numberIn(twin, "dmlh", 8), 6U);
    EXPECT_EQ(repaired->index.size(), 8 + 12 * 16);
}

TEST(AviRepair, LengthsThatWereNeverWritten_AreFilledIn) {
    QByteArray broken = makeAvi(jpegChunks(4));
    broken.truncate(broken.indexOf("idx1"));
    broken.replace(4, 4, QByteArray(4, '\0'));
    broken.replace(broken.indexOf("movi") - 4, 4, QByteArray(4, '\0'));
    // Prepared for more.
    broken += QByteArray(4096, '\0');
    const auto repaired = repairedAvi(broken);
    ASSERT_TRUE(repaired);
    EXPECT_EQ(repaired->pictures, 4U);
    EXPECT_EQ(extentOf(aviTwinOf(broken, *repaired)).verdict, Verdict::Complete);
}

TEST(AviRepair, PictureWithForeignBytes_EndsTheMovie) {
    QByteArray broken = makeAvi(jpegChunks(6));
    broken.truncate(broken.indexOf("idx1"));
    qsizetype at = 0;
    for (int i = 0; i < 4; ++i) {
        at = broken.indexOf("00dc", at + 1);
    }
    broken.replace(at + 200, 300, QByteArray("\xFF\xE5", 2).repeated(150));
    const auto repaired = repairedAvi(broken);
    ASSERT_TRUE(repaired);
    EXPECT_EQ(repaired->pictures, 3U);
}

TEST(AviRepair, PicturesOfMpeg4_TellWhereReadingCanBegin) {
    test::Chunks chunks;
    for (const char kind : {'\x10', '\x50', '\x90', '\x20'}) {
        chunks.emplace_back("00dc", QByteArray("\0\0\1\xB6", 4) + kind + QByteArray(40, kind));
    }
    QByteArray broken = makeAvi(chunks);
    broken.truncate(broken.indexOf("idx1"));
    const auto repaired = repairedAvi(broken);
    ASSERT_TRUE(repaired);
    const std::vector<int> begins = {1, 0, 0, 1};
    for (qsizetype i = 0; i < 4; ++i) {
        EXPECT_EQ(repaired->index.at(8 + 16 * i + 4) == 0x10, begins[static_cast<std::size_t>(i)] != 0) << i;
    }
}

// Beyond its first gigabyte a movie goes on in parts of their own, which the first index knows nothing of.
TEST(AviRepair, CutOffInALaterPart_HasThePicturesOfAll) {
    QByteArray more = "movi";
    for (const auto& [name, body] : jpegChunks(5)) {
        more += aviChunk(name, body);
    }
    const QByteArray first = makeAvi(jpegChunks(6), 11);
    const QByteArray second = aviChunk("RIFF", "AVIX" + aviChunk("LIST", more));
    for (const bool counted : {true, false}) {
        QByteArray broken = first + second;
        broken.truncate(broken.lastIndexOf("00dc") + 300);
        if (!counted) {
            broken.replace(first.size() + 4, 4, QByteArray(4, '\0'));
            broken.replace(first.size() + 16, 4, QByteArray(4, '\0'));
        }
        const auto repaired = repairedAvi(broken);
        ASSERT_TRUE(repaired) << counted;
        EXPECT_EQ(repaired->pictures, 10U) << counted;
        const QByteArray twin = aviTwinOf(broken, *repaired);
        ASSERT_EQ(repaired->index.size(), 8 + 20 * 16);
        const auto from = twin.indexOf("movi");
        for (qsizetype entry = 8; entry < repaired->index.size(); entry += 16) {
            const QByteArray name = repaired->index.mid(entry, 4);
            const auto at = qFromLittleEndian<quint32>(repaired->index.constData() + entry + 8);
            EXPECT_EQ(twin.mid(from + at, 4), name) << entry;
        }
    }
    EXPECT_FALSE(repairedAvi(first)) << "whole as far as it knows";
}

// The end of the first part's list is none of a chunk behind it.
TEST(AviRepair, ChunkCutOffInALaterPart_IsNotTaken) {
    const QByteArray picture = QByteArray("\0\0\1\xB6\x10", 5) + QByteArray(495, '\x20');
    const QByteArray first = makeAvi({{"00dc", picture}, {"00dc", picture}}, 5);
    const QByteArray more = aviChunk("00dc", picture) + aviChunk("00dc", picture) + aviChunk("00dc", picture);
    const QByteArray second = aviChunk("RIFF", "AVIX" + aviChunk("LIST", "movi" + more));
    // The last picture's bytes are another file's.
    const QByteArray broken = (first + second).chopped(250) + QByteArray(4096, '\x77');
    const auto repaired = repairedAvi(broken.first((first + second).size() + 300));
    ASSERT_TRUE(repaired);
    EXPECT_EQ(repaired->pictures, 5U) << "up to where its list ends";
    const auto cut = repairedAvi((first + second).chopped(508 + 400) + QByteArray(4096, '\x77'));
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->pictures, 3U);
}

TEST(AviRepair, WholeMoviesAndOtherFiles_AreLeft) {
    for (const QByteArray& bytes : {makeAvi(jpegChunks(3)), test::makePhoto(1), QByteArray("RIFF")}) {
        SpanSource source(asSpan(bytes));
        EXPECT_FALSE(isAviWithoutIndex(source));
        EXPECT_FALSE(repairedAvi(bytes));
    }
    QByteArray empty = makeAvi({});
    empty.truncate(empty.indexOf("idx1"));
    EXPECT_FALSE(repairedAvi(empty));
}

}  // namespace vantor
