// Telling kinds of pictures apart by their bytes.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "decode/helper/PictureKind.h"
#include "decode/helper/SensorData.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;
using decode::handlersFor;
using Handlers = QList<QByteArray>;

QByteArray littleEndian(std::uint32_t value, int bytes) {
    QByteArray text;
    for (int i = 0; i < bytes; ++i) {
        text.append(static_cast<char>(value >> (8 * i)));
    }
    return text;
}

QByteArray entry(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::uint32_t value) {
    return littleEndian(tag, 2) + littleEndian(type, 2) + littleEndian(count, 4) + littleEndian(value, 4);
}

QByteArray tiffOf(const QList<QByteArray>& entries) {
    QByteArray bytes("II*\0\x08\0\0\0", 8);
    bytes += littleEndian(static_cast<std::uint32_t>(entries.size()), 2);
    for (const QByteArray& one : entries) {
        bytes += one;
    }
    return bytes + littleEndian(0, 4);
}

TEST(PictureKind, CommonPictures_ByTheirMarks) {
    const QImage image = twoColours({8, 8});
    EXPECT_EQ(handlersFor(encoded(image, "jpeg"), ""), Handlers{"jpeg"});
    EXPECT_EQ(handlersFor(encoded(image, "png"), "jpg"), Handlers{"png"});
    EXPECT_EQ(handlersFor(encoded(image, "bmp"), ""), Handlers{"bmp"});
    EXPECT_EQ(handlersFor(encoded(image, "webp"), ""), Handlers{"webp"});
    EXPECT_EQ(handlersFor(encoded(image, "tiff"), "").front(), "tiff");
    EXPECT_EQ(handlersFor(QByteArray("\0\0\0\x18"
                                     "ftypheic",
                                     12),
                          ""),
              Handlers{"vantor-heif"});
    EXPECT_EQ(handlersFor(QByteArray("\0\0\0\x18"
                                     "ftypcrx ",
                                     12),
                          ""),
              Handlers{"vantor-raw"});
}

TEST(PictureKind, Drawings_ByTheirFirstElement) {
    EXPECT_EQ(handlersFor("<svg xmlns='http://www.w3.org/2000/svg'/>", ""), Handlers{"svg"});
    EXPECT_EQ(handlersFor("\xef\xbb\xbf<?xml version='1.0'?>\n<!-- drawn -->\n<svg/>", ""), Handlers{"svg"});
    EXPECT_TRUE(handlersFor("<html>", "svg").isEmpty());
    EXPECT_TRUE(handlersFor("words <svg/>", "svg").isEmpty());
    EXPECT_TRUE(handlersFor("<x>" + QByteArray(5000, ' ') + "<svg/>", "svg").isEmpty());
}

TEST(PictureKind, WhatIsNoPicture_IsNeverTried) {
    EXPECT_TRUE(handlersFor("%PDF-1.4", "pdf").isEmpty());
    EXPECT_TRUE(handlersFor(QByteArray("\0\0\0\x18"
                                       "ftypisom",
                                       12),
                            "")
                    .isEmpty());
    EXPECT_TRUE(handlersFor("", "").isEmpty());
    EXPECT_TRUE(handlersFor(QByteArray(4096, '\0'), "").isEmpty());
}

TEST(PictureKind, MarklessFormats_OnlyByTheItemsType) {
    const QByteArray bytes("\0\0\x0a\0", 4);
    EXPECT_EQ(handlersFor(QByteArray("\0\0\2\0", 4), "tga"), (Handlers{"cur", "vantor-tga"}));
    EXPECT_TRUE(handlersFor(bytes, "").isEmpty());
    EXPECT_EQ(handlersFor(bytes, "tga"), Handlers{"vantor-tga"});
    EXPECT_EQ(handlersFor("P6\n1 1\n255\nabc", "pnm"), Handlers{"ppm"});
    EXPECT_TRUE(handlersFor("P6\n1 1\n255\nabc", "txt").isEmpty());
}

// The library looks plugins up by what their .json says, the decoder asks by its own names.
TEST(PictureKind, OurOwnHandlers_AreThoseThatThePluginsOffer) {
    QStringList offered;
    for (const QString& path : filesBelow(QStringLiteral(VANTOR_SOURCE_DIR "/decode/plugins"))) {
        if (path.endsWith(QLatin1String(".json"))) {
            for (const QJsonValue& key :
                 QJsonDocument::fromJson(bytesOfFile(path)).object()[QLatin1String("Keys")].toArray()) {
                offered.append(key.toString());
            }
        }
    }
    offered.sort();
    QStringList asked;
    for (const QByteArray& handler : decode::allHandlers()) {
        if (handler.startsWith("vantor-")) {
            asked.append(QString::fromLatin1(handler));
        }
    }
    EXPECT_FALSE(asked.isEmpty());
    EXPECT_EQ(asked, offered);
}

TEST(PictureKind, TiffWithSensorData_IsRawOnly) {
    EXPECT_TRUE(decode::isTiffBasedRaw(tiffOf({entry(0x0106, 3, 1, 32803)})));
    EXPECT_TRUE(decode::isTiffBasedRaw(tiffOf({entry(0x0103, 3, 1, 34713)})));
    EXPECT_TRUE(decode::isTiffBasedRaw(tiffOf({entry(0xc612, 1, 4, 0x0104)})));
    EXPECT_FALSE(decode::isTiffBasedRaw(tiffOf({entry(0x0106, 3, 1, 2), entry(0x0103, 3, 1, 5)})));
    EXPECT_EQ(handlersFor(tiffOf({entry(0x0106, 3, 1, 32803)}), ""), Handlers{"vantor-raw"});
}

TEST(PictureKind, SensorDataInASubDirectory_IsFound) {
    QByteArray bytes = tiffOf({entry(0x0106, 3, 1, 2), entry(0x014a, 4, 1, 200)});
    bytes.resize(200, '\0');
    bytes += littleEndian(1, 2) + entry(0x0106, 3, 1, 32803);
    EXPECT_TRUE(decode::isTiffBasedRaw(bytes));
}

// The same in the form with offsets of 64 bits: number, kind, how many, and the value.
QByteArray bigEntry(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::uint32_t value) {
    return littleEndian(tag, 2) + littleEndian(type, 2) + littleEndian(count, 4) + littleEndian(0, 4) +
           littleEndian(value, 4) + littleEndian(0, 4);
}

QByteArray bigTiffOf(const QList<QByteArray>& entries) {
    QByteArray bytes("II+\0\x08\0\0\0\x10\0\0\0\0\0\0\0", 16);
    bytes += littleEndian(static_cast<std::uint32_t>(entries.size()), 4) + littleEndian(0, 4);
    return bytes + entries.join() + QByteArray(8, '\0');
}

TEST(PictureKind, BigTiffWithSensorData_IsRawOnly) {
    EXPECT_TRUE(decode::isTiffBasedRaw(bigTiffOf({bigEntry(0x0106, 3, 1, 32803)})));
    EXPECT_TRUE(decode::isTiffBasedRaw(bigTiffOf({bigEntry(0xc612, 1, 4, 0x0104)})));
    EXPECT_FALSE(decode::isTiffBasedRaw(bigTiffOf({bigEntry(0x0106, 3, 1, 2), bigEntry(0x0103, 3, 1, 5)})));
    QByteArray below = bigTiffOf({bigEntry(0x0106, 3, 1, 2), bigEntry(0x014a, 18, 1, 200)});
    below.resize(200, '\0');
    below += littleEndian(1, 4) + littleEndian(0, 4) + bigEntry(0x0103, 3, 1, 34713) + QByteArray(8, '\0');
    EXPECT_TRUE(decode::isTiffBasedRaw(below));
    EXPECT_EQ(handlersFor(below, ""), Handlers{"vantor-raw"});
}

TEST(PictureKind, DirectoriesThatPointAtThemselvesOrBeyondTheEnd_HoldNoSensorData) {
    EXPECT_FALSE(decode::isTiffBasedRaw(tiffOf({entry(0x014a, 4, 1, 8)})));
    EXPECT_FALSE(decode::isTiffBasedRaw(tiffOf({entry(0x014a, 4, 0xffffffff, 8)})));
    EXPECT_FALSE(decode::isTiffBasedRaw(tiffOf({entry(0x014a, 4, 1, 0xfffffff0)})));
    EXPECT_FALSE(decode::isTiffBasedRaw(QByteArray("II*\0\xff\xff\xff\xff", 8)));
    EXPECT_FALSE(decode::isTiffBasedRaw("II"));
    EXPECT_FALSE(decode::isTiffBasedRaw(""));
}

// What lies beyond is looked at by nobody: a file could name millions.
TEST(PictureKind, SoManyDirectories_AreLookedAtAndNoMore) {
    const auto rawInDirectory = [](std::uint32_t which) {
        constexpr std::uint32_t kListAt = 100, kFirstAt = 1000, kApart = 20, kCount = 40;
        QByteArray bytes = tiffOf({entry(0x014a, 4, kCount, kListAt)});
        bytes.resize(kListAt, '\0');
        for (std::uint32_t i = 0; i < kCount; ++i) {
            bytes += littleEndian(kFirstAt + i * kApart, 4);
        }
        bytes.resize(kFirstAt, '\0');
        for (std::uint32_t i = 0; i < kCount; ++i) {
            bytes += littleEndian(1, 2) + entry(0x0106, 3, 1, i == which ? 32803 : 2) + littleEndian(0, 4);
            bytes.resize(kFirstAt + (i + 1) * kApart, '\0');
        }
        return decode::isTiffBasedRaw(bytes);
    };
    EXPECT_TRUE(rawInDirectory(0));
    EXPECT_TRUE(rawInDirectory(14));
    EXPECT_FALSE(rawInDirectory(15));
}

}  // namespace
}  // namespace vantor
