// What the lint finds, and that it finds nothing in a sound catalogue.
#include <gtest/gtest.h>

#include "catalogue/CatalogueLint.h"

namespace vantor {
namespace {

QByteArray record(const QByteArray& extension, const QByteArray& header, const QByteArray& offset = "1",
                  const QByteArray& description = "A file", const QByteArray& size = "1000") {
    return "Extension : " + extension + "\nSize : " + size + "\nHeader : " + header + "\nOffset : " + offset +
           "\nReserved : 0\nDescription : " + description + "\n";
}

// The one finding of a text as "line: what", or the number of findings when there is not one.
std::string only(const QByteArray& text) {
    const auto findings = lintCatalogue(text, CatalogueUse::Photo);
    if (findings.size() != 1) {
        return std::to_string(findings.size()) + " findings";
    }
    return std::to_string(findings.first().line) + ": " + findings.first().what.toStdString();
}

}  // namespace

TEST(CatalogueLint, SoundCatalogueHasNoFindings) {
    EXPECT_TRUE(lintCatalogue("A comment\n" + record(".jpg", "FFD8FFE0") + "\n" +
                                  record("PNG", "89504E470D0A1A0A") + record("MP4", "66747970", "5") +
                                  record("XYZ", "4142", "nn"),
                              CatalogueUse::Photo)
                    .isEmpty());
}

TEST(CatalogueLint, TellsAMisplacedHeaderLine) {
    QByteArray text = record("JPG", "FFD8FFE0");
    text.replace("Header :", "Header:");
    EXPECT_EQ(only(text), "3: the third value line of a record must be \"Header :\"");
    const auto findings =
        lintCatalogue("Header : 41\nSize : 1\nExtension : JPG\nO : 1\nR : 0\nD : x\n", CatalogueUse::Photo);
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(findings[0].line, 1);
    EXPECT_EQ(findings[1].line, 3);
}

TEST(CatalogueLint, TellsAWrongNumberOfValueLines) {
    EXPECT_EQ(only(record("JPG", "FFD8FFE0") + "Extension : PNG\n"),
              "7: the last record has 1 value lines instead of 6");
}

TEST(CatalogueLint, TellsADotThatCutsAField) {
    EXPECT_EQ(only(record("JPG", "FFD8FFE0", "1", "Version 1.5 file")),
              "6: a dot cuts the description to \"5 FILE\"");
    EXPECT_EQ(only(record("tar.gz", "1F8B0800")), "1: a dot cuts the extension to \"GZ\"");
    EXPECT_EQ(only(record(".tar.gz", "1F8B0800")), "1: a dot cuts the extension to \"TAR.GZ\"");
}

TEST(CatalogueLint, TellsAHeaderThatCanNeverMatch) {
    EXPECT_EQ(only(record("A", "")), "3: the header can never match: it has no whole byte");
    EXPECT_EQ(only(record("A", "4")), "3: the header can never match: it has no whole byte");
    EXPECT_EQ(only(record("A", "414")), "3: the header can never match: its last digit is half a byte");
    EXPECT_EQ(only(record("A", "41ZZ")),
              "3: the header can never match: it has characters that are no hexadecimal digits");
    EXPECT_EQ(only(record("A", "000000")),
              "3: the header can never match: sectors of zeros are not searched for bytes that are all zero");
    EXPECT_EQ(only(record("A", "4142", "508")), "3: the header can never match: the offset is beyond 507");
    EXPECT_EQ(only(record("A", "41424344454647", "507")),
              "3: the header can never match: it ends beyond the sector");
    EXPECT_EQ(only(record("A", "4142", "0")),
              "3: the header can never match: the offset \"0\" is neither a number from 1 on nor \"nn\"");
    EXPECT_EQ(only(record("A", "4142", "NN")),
              "3: the header can never match: the offset \"NN\" is neither a number from 1 on nor \"nn\"");
    EXPECT_TRUE(lintCatalogue(record("A", "414243444546", "507"), CatalogueUse::Photo).isEmpty());
}

TEST(CatalogueLint, TellsAShadowedRecord) {
    EXPECT_EQ(only(record("JPG", "FFD8") + record("JP2", "FFD8FF")),
              "9: the record of JP2 is never reached: that of JPG at line 3 matches first");
    EXPECT_EQ(only(record("A", "6D70", "9") + record("B", "667479706D70", "5")),
              "9: the record of B is never reached: that of A at line 3 matches first");
    EXPECT_TRUE(
        lintCatalogue(record("JP2", "FFD8FF") + record("JPG", "FFD8"), CatalogueUse::Photo).isEmpty());
    EXPECT_TRUE(
        lintCatalogue(record("A", "4142") + record("B", "414243", "nn"), CatalogueUse::Photo).isEmpty());
}

TEST(CatalogueLint, RecordsThatOpenTogetherDoNotShadowOneAnother) {
    const QByteArray office = record("DOC", "D0CF11E0") + record("XLS", "D0CF11E0");
    EXPECT_TRUE(lintCatalogue(office, CatalogueUse::Selectable).isEmpty());
    EXPECT_EQ(lintCatalogue(office, CatalogueUse::Photo).size(), 1);
    const QByteArray elsewhere = record("A", "6D70", "9") + record("B", "667479706D70", "5");
    EXPECT_EQ(lintCatalogue(elsewhere, CatalogueUse::Selectable).size(), 1);
}

TEST(CatalogueLint, TellsTextThatIsNoUtf8) {
    EXPECT_EQ(only(record("JPG", "FFD8FFE0") + "x \xFF"), "7: the file is not UTF-8 and will load as empty");
}

TEST(CatalogueLint, TellsASizeThatIsNoNumber) {
    EXPECT_EQ(only(record("JPG", "FFD8", "1", "x", "10 MB")), "2: the size \"10 MB\" is no positive number");
}

}  // namespace vantor
