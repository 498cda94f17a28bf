// PNG pictures whose clusters lie scattered over a medium.
#include <gtest/gtest.h>
#include <zlib.h>

#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::ScatteredCard;

QByteArray number(std::uint32_t value) {
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(value >> shift);
    }
    return bytes;
}

QByteArray chunk(const char* name, const QByteArray& data) {
    const QByteArray summed = name + data;
    const auto sum =
        ::crc32(0, reinterpret_cast<const Bytef*>(summed.constData()), static_cast<uInt>(summed.size()));
    return number(static_cast<std::uint32_t>(data.size())) + summed + number(static_cast<std::uint32_t>(sum));
}

// Data of any kind in chunks of that size: only sums are looked at.
QByteArray makePng(unsigned seed, qsizetype bytes, qsizetype chunkBytes) {
    std::mt19937 random(seed);
    QByteArray png = QByteArray::fromHex("89504e470d0a1a0a") + chunk("IHDR", QByteArray(13, '\1'));
    for (qsizetype at = 0; at < bytes; at += chunkBytes) {
        QByteArray data(std::min(chunkBytes, bytes - at), '\0');
        for (char& byte : data) {
            byte = static_cast<char>(random());
        }
        png += chunk("IDAT", data);
    }
    return png + chunk("IEND", {});
}

struct Layout {
    ScatteredCard card;
    std::uint64_t first = 0;
};

// In two pieces of about the same size, with something else between.
Layout inTwo(const QByteArray& png) {
    Layout layout;
    layout.first = layout.card.put(png, 0, clustersOf(png) / 2);
    layout.card.putNoise(7);
    layout.card.put(png, clustersOf(png) / 2);
    return layout;
}

}  // namespace

TEST(PngPieces, SmallChunks_AreJoined) {
    const QByteArray png = makePng(1, 100'000, 8192);
    const Layout layout = inTwo(png);
    const auto assembly = layout.card.completed(layout.first);
    ASSERT_TRUE(assembly);
    EXPECT_EQ(assembly->runs.size(), 2u);
    EXPECT_EQ(assembly->proof, AssemblyProof::Proved);
    EXPECT_EQ(layout.card.contentOf(*assembly), png);
}

TEST(PngPieces, OneLargeChunk_IsJoined) {
    const QByteArray png = makePng(2, 300'000, 300'000);
    const Layout layout = inTwo(png);
    const auto assembly = layout.card.completed(layout.first);
    ASSERT_TRUE(assembly);
    EXPECT_EQ(layout.card.contentOf(*assembly), png);
}

TEST(PngPieces, CrossedPictures_ComeApart) {
    test::expectToComeApart(makePng(3, 90'000, 8192), makePng(4, 120'000, 8192));
}

TEST(PngPieces, PieceGone_GivesNothing) {
    const QByteArray png = makePng(5, 100'000, 8192);
    // A cluster in which a chunk begins, and one within a chunk, where nothing but the sum tells.
    for (const qsizetype gone : {12, 13}) {
        ScatteredCard card;
        const std::uint64_t first = card.put(png, 0, gone);
        card.putNoise(7);
        card.put(png, gone + 1);
        EXPECT_FALSE(card.completed(first)) << gone;
    }
}

}  // namespace vantor
