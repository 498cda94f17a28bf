// The catalogue file format, line by line.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "catalogue/CatalogueFile.h"

namespace vantor {
namespace {

QStringList load(const QByteArray& text) {
    QStringList array;
    appendCatalogueText(text, array);
    return array;
}

const QByteArray kJpeg =
    "Extension : .jpg\nSize : 10485760\nHeader : FFD8FFE0\nOffset : 1\nReserved : 0\nDescription : JPEG "
    "image\n";

}  // namespace

TEST(CatalogueFile, RecordBecomesSevenStrings) {
    EXPECT_EQ(load(kJpeg), QStringList({"JPG", "10485760", "FFD8FFE0", "1", "0", "JPEG image", "255"}));
}

TEST(CatalogueFile, RecordWithoutHeaderLineHasAnEmptyFirstByte) {
    const QStringList array = load("a: 1\nb: 2\nc: FFD8\nd: 4\ne: 5\nf: 6\n");
    ASSERT_EQ(array.size(), 7);
    EXPECT_EQ(array.at(2), "FFD8");
    EXPECT_EQ(array.at(6), "");
    EXPECT_FALSE(array.at(6).isNull());
}

TEST(CatalogueFile, LowerCaseHeaderIsReadAndKeptAsWritten) {
    const QStringList array = load("a: 1\nb: 2\nHeader : ffd8ff\nd: 4\ne: 5\nf: 6\n");
    EXPECT_EQ(array.at(2), "ffd8ff");
    EXPECT_EQ(array.at(6), "255");
}

TEST(CatalogueFile, HeaderKeyWithoutTheBlankIsAnOrdinaryLine) {
    const QStringList array = load("a: 1\nb: 2\nHeader: FFD8\nd: 4\ne: 5\nf: 6\n");
    EXPECT_EQ(array.at(2), "FFD8");
    EXPECT_EQ(array.at(6), "");
    EXPECT_EQ(load("a: 1\nb: 2\nheader : FFD8\nd: 4\ne: 5\nf: 6\n").at(6), "");
    EXPECT_EQ(load("a: 1\nb: 2\n Header : FFD8\nd: 4\ne: 5\nf: 6\n").at(6), "");
}

TEST(CatalogueFile, ValuesAreCutAtTheirFirstDotAndUpperCased) {
    EXPECT_EQ(load("a: .mov").at(0), "MOV");
    EXPECT_EQ(load("a: x.y.z").at(0), "Y.Z");
    EXPECT_EQ(load("a: a. b").at(0), " B");
    EXPECT_EQ(load("a: MixedCase").at(0), "MixedCase");
    EXPECT_EQ(load("a: 10.5 MB of data").at(0), "5 MB OF DATA");
}

TEST(CatalogueFile, LaterOfTwoHeaderLinesGivesTheFirstByte) {
    const QStringList array = load("a: 1\nHeader : 41\nHeader : 42\nd: 4\ne: 5\nf: 6\n");
    EXPECT_EQ(array, QStringList({"1", "41", "42", "4", "5", "6", "66"}));
}

TEST(CatalogueFile, FirstByteIsTakenBeforeTheDotCuts) {
    const QStringList array = load("a: 1\nb: 2\nHeader : 4.FFD8\nd: 4\ne: 5\nf: 6\n");
    EXPECT_EQ(array.at(2), "FFD8");
    EXPECT_EQ(array.at(6), QString::number(0x40));
}

TEST(CatalogueFile, FirstByteDoesNotLeakIntoTheNextRecord) {
    const QStringList array = load(kJpeg + "a: 1\nb: 2\nc: 3\nd: 4\ne: 5\nf: 6\n");
    ASSERT_EQ(array.size(), 14);
    EXPECT_EQ(array.at(13), "");
}

TEST(CatalogueFile, ThirteenValueLinesLeaveAnOrphan) {
    QByteArray text;
    for (int i = 0; i < 13; ++i) {
        text += "k: " + QByteArray::number(i) + "\n";
    }
    const QStringList array = load(text);
    ASSERT_EQ(array.size(), 15);
    EXPECT_EQ(array.at(14), "12");
}

TEST(CatalogueFile, LinesWithoutAColonAndCarriageReturnsCountForNothing) {
    QByteArray text = "; a comment\n\n" + kJpeg;
    text.replace("\n", "\r\n");
    EXPECT_EQ(load(text), load(kJpeg));
}

TEST(CatalogueFile, ValueMayHoldColons) {
    EXPECT_EQ(load("a: b: c").at(0), "b: c");
    EXPECT_EQ(load(":").at(0), "");
}

TEST(CatalogueFile, ShortHeaderValuesAreTakenAsTheyAre) {
    EXPECT_EQ(load("a: 1\nb: 2\nHeader : F\nd: 4\ne: 5\nf: 6\n").at(6), "15");
    EXPECT_EQ(load("a: 1\nb: 2\nHeader :\nd: 4\ne: 5\nf: 6\n").at(6), "0");
}

TEST(CatalogueFile, BytesThatAreNoUtf8EmptyTheWholeFile) {
    QStringList array;
    EXPECT_FALSE(appendCatalogueText(kJpeg + "x: \xFF\n", array));
    EXPECT_TRUE(array.isEmpty());
}

TEST(CatalogueFile, NulBytesAreCharactersLikeOthers) {
    EXPECT_EQ(load(QByteArray("a: x\0y\n", 7)).at(0), QString::fromLatin1("x\0y", 3));
}

TEST(CatalogueFile, GarbageLoadsWithoutHarm) {
    QByteArray text;
    std::uint32_t state = 1;
    for (int i = 0; i < 200000; ++i) {
        state = state * 1664525 + 1013904223;
        text += static_cast<char>(state >> 25);  // 0 to 127
    }
    const QStringList array = load(text);
    EXPECT_EQ(array.size(), load(text + "\n").size());
    EXPECT_GT(array.size(), 0);
}

TEST(CatalogueFile, MissingUnreadableOrOddFilesLeaveTheArrayEmpty) {
    const QTemporaryDir folder;
    QStringList array;
    EXPECT_FALSE(appendCatalogueFile(folder.filePath("absent"), array));
    EXPECT_FALSE(appendCatalogueFile(folder.path(), array));
    ASSERT_EQ(::mkfifo(folder.filePath("pipe").toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(appendCatalogueFile(folder.filePath("pipe"), array));
    EXPECT_TRUE(array.isEmpty());

    QFile file(folder.filePath("good"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kJpeg);
    file.close();
    EXPECT_TRUE(appendCatalogueFile(file.fileName(), array));
    EXPECT_EQ(array.size(), 7);
}

}  // namespace vantor
