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
