// Files that begin in a rarer way than most of their type, and those that have no better mark than a word
// that other files begin with as well.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

TEST(XBitmap, AsManyNumbersAsItsSizesTell_IsChecked) {
    const Bytes whole = xBitmap(10, 2, "0x01, 0x02, 0x03, 0x04");
    const Extent extent = walkBytes("XBM", whole);
    EXPECT_TRUE(extent.checked);
    EXPECT_EQ(extent.facts.width, 10U);
    EXPECT_EQ(extent.facts.height, 2U);
    const Extent fewer = walkBytes("XBM", xBitmap(10, 2, "0x01, 0x02, 0x03"));
    EXPECT_EQ(fewer.verdict, Verdict::Damaged);
    EXPECT_TRUE(fewer.endFound);
    EXPECT_EQ(walkBytes("XBM", xBitmap(10, 2, "0x01, x = 2, 0x03, 0x04")).verdict, Verdict::Damaged);
}

TEST(XBitmap, OlderOnesHaveLongerNumbers_AndARemarkInFront) {
    const Bytes whole = Build().text(
        "/* drawn {by hand} */\n#define b_width 10\n#define b_height 2\n"
        "static short b_bits[] = {\n 0x0102, 0x0304};\n");
    expectEnd("XBM", Build().add(whole).fill(600), whole.size());
    EXPECT_TRUE(walkBytes("XBM", whole).checked);
}

TEST(XBitmap, HeaderOfAProgram_IsNone) {
    const Bytes header =
        Build().text("#define PAGE_WIDTH 10\n#define PAGE_HEIGHT 2\nstruct Page { int bits; };\n");
    EXPECT_EQ(walkBytes("XBM", header).verdict, Verdict::Unknown);
    const Bytes named = Build().text("#define a_width 10\n#define a_bits 2\nint x[] = { 1 };\n");
    EXPECT_EQ(walkBytes("XBM", named).verdict, Verdict::Unknown);
}

TEST(Pixmap, OfTheSecondVersion_EndsWithItsLines) {
    const Bytes whole = Build().text("! XPM2\n2 1 2 1\na c #000000\nb c #FFFFFF\nab\n");
    expectEnd("XPM", Build().add(whole).fill(600), whole.size());
}

TEST(Dbase, EndMark_IsTheTablesWhereItHasOne) {
    const Bytes marked = dbaseTable();
    const Bytes bare(marked.begin(), marked.end() - 1);
    expectEnd("DBF", Build().add(marked).fill(600), marked.size());
    EXPECT_TRUE(walkBytes("DBF", marked).exactEnd);
    expectEnd("DBF", Build().add(bare).fill(600), bare.size());
    EXPECT_FALSE(walkBytes("DBF", bare).exactEnd);
}

TEST(Dbase, FieldsThatMakeNoRecord_AreNoTable) {
    for (const auto& [at, value] :
         {std::pair(48, 6), std::pair(43, 0x7A), std::pair(0, 4), std::pair(2, 13)}) {
        Bytes other = dbaseTable();
        other[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(value);
        EXPECT_EQ(walkBytes("DBF", other).verdict, Verdict::Unknown) << at;
    }
}

TEST(Dbase, RecordWithoutItsMark_IsDamage) {
    Bytes other = dbaseTable();
    other[71] = 'x';
    EXPECT_EQ(walkBytes("DBF", other).verdict, Verdict::Damaged);
}

TEST(RawMovie, BlocksOfItsKind_AreFollowed) {
    const Bytes movie =
        Build().text("MLVI").le32(52).to(52).text("VIDF").le32(300).to(352).text("AUDF").le32(64).to(416);
    expectEnd("MLV", Build().add(movie).add(noise(3000, 5)), movie.size());
    expectEnd("MLV", Build().add(movie).text("FILM").le32(64).fill(60), movie.size());
    const Bytes cut(movie.begin(), movie.begin() + 400);
    EXPECT_EQ(walkBytes("MLV", cut).verdict, Verdict::CutOff);
}

TEST(Calendar, EntriesWithoutTheCalendar_AreFollowedToTheLast) {
    const Bytes entries = Build().text(
        "BEGIN:VEVENT\nBEGIN:VALARM\nACTION:A\nEND:VALARM\nEND:VEVENT\nBEGIN:VTODO\nUID:1\nEND:VTODO\n");
    expectEnd("ICS", Build().add(entries).fill(600), entries.size());
    EXPECT_FALSE(walkBytes("ICS", entries).exactEnd);
    EXPECT_EQ(walkBytes("ICS", Build().text("BEGIN:VCARD\nFN:A\nEND:VCARD\n")).verdict, Verdict::Complete)
        << "as the card it is";
    EXPECT_EQ(walkBytes("ICS", Build().text("BEGIN:VOTHER\nEND:VOTHER\n")).verdict, Verdict::Unknown);
}

TEST(Calendar, EmptyLinesAndMarkInFront_AreItsOwn) {
    for (const std::string_view front : {"\n", "\r\n", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n"}) {
        const Bytes whole = Build().text(front).text("Begin:VCalendar\nX:1\nEnd:VCalendar\n");
        expectEnd("ICS", Build().add(whole).fill(600), whole.size());
        const Bytes card = Build().text(front).text("BEGIN:vCard\nFN:A\nEND:vCard\n");
        expectEnd("VCF", Build().add(card).fill(600), card.size());
    }
}

TEST(Contacts, EmptyLinesBetweenAndBehind_AreTheirOwn) {
    const Bytes cards =
        Build().text("BEGIN:VCARD\r\nFN:A\r\nEND:VCARD\r\n\r\n\r\nBEGIN:VCARD\r\nFN:B\r\nEND:VCARD\r\n\r\n");
    expectEnd("VCF", Build().add(cards).add(noise(3000, 9)), cards.size());
}

TEST(WebPage, OfSixteenBits_EndsWithItsText) {
    Build page;
    page.be16(0xFFFE);
    for (const char letter : std::string_view("<html><p>x</html>\n"))
        page.u8(static_cast<std::uint8_t>(letter)).u8(0);
    expectEnd("HTML", Build().add(page).fill(600), page.size());
}

TEST(WebPage, Remark_MayBeginIt) {
    const Bytes page = Build().text("<!-- saved -->\n<html><p>x</html>\n");
    expectEnd("HTML", Build().add(page).add(noise(3000, 6)), page.size());
}

TEST(WebPage, DrawingBehindARemark_IsWalkedAsOne) {
    const Bytes drawing = Build().text("<!-- licence > -->\n<!-- more -->\n<svg><g/></svg>\n");
    const Extent extent = walkBytes("HTML", Build().add(drawing).add(noise(3000, 6)));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, drawing.size());
    EXPECT_TRUE(extent.checked);
    const Bytes page = Build().text("<!-- <svg> -->\n<html><p>x<br></html>\n");
    expectEnd("HTML", Build().add(page).add(noise(3000, 6)), page.size());
}

TEST(WebPage, PartOfOne_EndsWithItsLastLine) {
    const Bytes part = Build().text("<h2>A list</h2>\n<ul>\n<li>one</li>\n</ul>\n");
    expectEnd("HTML", Build().add(part).text("x7").add(noise(3000, 6)), part.size());
}

TEST(PostScript, FirstLineWithoutItsName_IsEnough) {
    const Bytes page = Build().text("%!\n% a sample\n0 0 moveto showpage\n%%EOF\n");
    expectEnd("PS", Build().add(page).add(noise(3000, 7)), page.size());
    EXPECT_EQ(walkBytes("PS", Build().text("%!TEX program = xelatex\n")).verdict, Verdict::Unknown);
}

// Behind 0xFF the first bit of the next byte is stuffed: it is no marker.
TEST(JpegLs, StuffedBits_EndNoPicture) {
    const auto picture = [](std::uint64_t frame) {
        return Bytes(Build()
                         .be16(0xFFD8)
                         .be16(0xFF00 + frame)
                         .be16(11)
                         .u8(8)
                         .be16(4)
                         .be16(4)
                         .u8(1)
                         .be24(0x011100)
                         .be16(0xFFDA)
                         .be16(8)
                         .u8(1)
                         .be16(0x0100)
                         .be24(0)
                         .be32(0x12FF7F34)
                         .be32(0xFF01FF00)
                         .be16(0xFFD9));
    };
    const Bytes whole = picture(0xF7);
    expectEnd("JLS", Build().add(whole).add(noise(3000, 8)), whole.size());
    EXPECT_NE(walkBytes("JPG", Build().add(picture(0xC0)).add(noise(3000, 8))).verdict, Verdict::Complete);
}

}  // namespace
}  // namespace vantor::test
