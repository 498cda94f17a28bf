// Files whose writer could not come back to their head, and tags that end what marks no end of its own.
#include <gtest/gtest.h>

#include <string>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kUntold = 0xFFFFFFFF;

// A movie of so many pictures, whose sizes are as told.
Bytes streamedAvi(int pictures, std::uint64_t told) {
    Build out;
    out.text("RIFF").le32(told).text("AVI ");
    out.add(riffChunk("LIST", Build().text("hdrl").add(riffChunk("avih", Bytes(56, 1)))));
    out.add(riffChunk("JUNK", Bytes(30, 0))).text("LIST").le32(told).text("movi");
    for (int i = 0; i < pictures; ++i)
        out.add(riffChunk("00dc", Bytes(301, 9))).add(riffChunk("01wb", Bytes(40, 7)));
    return out;
}

TEST(UnclosedAvi, EndsBehindTheLastOfItsPieces) {
    for (const std::uint64_t told : {std::uint64_t{0}, kUntold}) {
        const Bytes file = streamedAvi(5, told);
        const Bytes indexed = Build().add(file).add(riffChunk("idx1", Bytes(160, 0)));
        for (const Bytes& whole : {file, indexed}) {
            for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 6)}) {
                expectEnd("AVI", Build().add(whole).add(tail), whole.size());
                EXPECT_FALSE(walkBytes("AVI", Build().add(whole).add(tail)).exactEnd);
            }
        }
        const Bytes part(file.begin(), file.end() - 20);
        EXPECT_EQ(walkBytes("AVI", part).verdict, Verdict::CutOff);
    }
    // A piece or two prove nothing.
    EXPECT_EQ(walkBytes("AVI", Build().add(streamedAvi(1, 0)).fill(900)).verdict, Verdict::Unknown);
}

// A movie of so many packets of 400 bytes that tells neither its own length nor that of its data.
Bytes streamedAsf(std::size_t packets, bool sizesTold) {
    constexpr std::size_t kPacket = 400;
    const auto object = [](std::uint64_t first, std::uint64_t second, const Bytes& body) {
        return Build().be64(first).be64(second).le64(24 + body.size()).add(body).bytes();
    };
    Build about;
    about.fill(16, 1).fill(24).fill(24).le32(1).le32(kPacket).le32(sizesTold ? kPacket : 0).le32(9);
    const Bytes properties = object(0xA1DCAB8C47A9CF11, 0x8EE400C00C205365, about);
    Build file;
    file.add(object(0x3026B2758E66CF11, 0xA6D900AA0062CE6C, Build().le32(1).le16(0x201).add(properties)));
    file.add(object(0x3626B2758E66CF11, 0xA6D900AA0062CE6C, Bytes(26, 1)));
    for (std::size_t i = 0; i < packets; ++i)
        file.add(Build().be24(0x820000).fill(kPacket - 3, 0x5D));
    return file;
}

TEST(UnclosedAsf, EndsBehindItsPacketsAndIndexes) {
    const Bytes file = streamedAsf(6, true);
    const Bytes indexed =
        Build().add(file).be64(0x90080033B1E5CF11).be64(0x89F400A0C90349CB).le64(56).fill(32, 0);
    for (const Bytes& whole : {file, indexed}) {
        for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 6)}) {
            expectEnd("WMV", Build().add(whole).add(tail), whole.size());
            EXPECT_FALSE(walkBytes("WMV", Build().add(whole).add(tail)).exactEnd);
        }
    }
    // Neither the packets' length nor what they begin with tells them.
    EXPECT_EQ(walkBytes("WMV", streamedAsf(6, false)).verdict, Verdict::Unknown);
    EXPECT_EQ(walkBytes("WMV", Build().add(streamedAsf(0, true)).fill(900, 7)).verdict, Verdict::Unknown);
}

TEST(MpegPs, ZerosThatFillTheLastSectorOfADisc_BelongToTheFile) {
    const auto stream = [](std::size_t sector, std::size_t last) {
        Build out;
        for (std::uint64_t clock = 0; clock < 3; ++clock) {
            const auto bytes = clock == 2 ? last : sector;
            out.be32(0x1BA).u8(0x44).u8(0).u8(4 | clock << 4).u8(0).u8(4).u8(1).fill(3, 1).u8(0xF8);
            out.be32(0x1E0).be16(bytes - 20).fill(bytes - 20, 3);
        }
        return out.bytes();
    };
    for (const std::size_t sector : {std::size_t{2048}, std::size_t{2324}}) {
        const Bytes short20 = stream(sector, sector - 20);
        expectEnd("MPG", Build().add(short20).fill(20).add(noise(3000, 3)), short20.size() + 20);
        expectEnd("MPG", Build().add(short20).fill(19).add(noise(3000, 3)), short20.size());
    }
    const Bytes other = stream(2000, 1980);
    expectEnd("MPG", Build().add(other).fill(20).add(noise(3000, 3)), other.size());
}

Bytes mpegFrames(int count) {
    Build out;
    for (int i = 0; i < count; ++i)
        out.be32(0xFFFB9064).fill(413, 3);
    return out;
}

// An ID3v1 tag of 128 bytes.
Bytes oldTag() {
    return Build().text("TAG").text("A title").to(33).text("Somebody").to(63).text("B").to(93).to(127).u8(7);
}

TEST(SoundTags, BehindTheSoundInAnyForm_BelongToTheFile) {
    const Bytes frame = Build().text("TIT2").be32(7).be16(0).text("\0hello!"_b);
    const auto id3 = [&](std::string_view mark, std::uint64_t bytes) {
        return Build().text(mark).u8(4).u8(0).u8(0x10).be32(bytes).bytes();
    };
    const Bytes appended = Build().add(id3("ID3", frame.size())).add(frame).add(id3("3DI", frame.size()));
    const Bytes enhanced = Build().text("TAG+").fill(223, 'x');
    const Bytes sound = mpegFrames(6);
    for (const Bytes& tags : {appended, Build().add(appended).add(oldTag()).bytes(),
                              Build().add(enhanced).add(oldTag()).bytes()}) {
        for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 6)})
            expectEnd("MP3", Build().add(sound).add(tags).add(tail), sound.size() + tags.size());
    }
    // Without its footer, or with that of another, it is the next file's.
    const Bytes open = Build().add(id3("ID3", frame.size())).add(frame).fill(10);
    const Bytes others = Build().add(id3("ID3", frame.size())).add(frame).add(id3("3DI", frame.size() + 1));
    for (const Bytes& tag : {open, others})
        expectEnd("MP3", Build().add(sound).add(tag).add(noise(3000, 6)), sound.size());
}

TEST(SoundTags, InsideTheLastFrame_EndSoundThatBrokeOff) {
    const Bytes sound = mpegFrames(6);
    for (const std::size_t missing : {std::size_t{1}, std::size_t{200}, std::size_t{400}}) {
        const Bytes cut(sound.begin(), sound.end() - static_cast<std::ptrdiff_t>(missing));
        const Bytes file = Build().add(cut).add(oldTag());
        expectEnd("MP3", Build().add(file).add(noise(3000, 6)), file.size());
        EXPECT_FALSE(walkBytes("MP3", Build().add(file).add(noise(3000, 6))).checked);
        // Three letters alone are sound.
        const Bytes letters = Build().add(cut).text("TAG").add(noise(3000, 6));
        expectEnd("MP3", letters, sound.size());
    }
}

TEST(LeftBehind, LineEnds_NeedFewZerosToBeTheFiles) {
    const auto picture = [](std::size_t bytes) {
        const Bytes least = jpeg();
        return jpeg(Build().be16(0xFFFE).be16(bytes - least.size() - 2).to(bytes - least.size()));
    };
    // Close before a sector's end, and at it.
    const Bytes close = picture(1012), full = picture(1024);
    ASSERT_EQ(full.size(), 1024U);
    const auto end = [](const Bytes& file, const Bytes& tail) {
        return walkBytes("JPG", Build().add(file).add(tail)).end;
    };
    EXPECT_EQ(end(close, Build().text("\n").fill(11).add(noise(900, 5))), 1013U);
    EXPECT_EQ(end(close, Build().text("\r\n").fill(2000)), 1014U);
    EXPECT_EQ(end(close, Build().text("\n").fill(11, 1).add(noise(900, 5))), 1012U);
    EXPECT_EQ(end(close, Build().text("x").fill(11)), 1012U);
    // There another file may begin, if only a short one.
    EXPECT_EQ(end(full, Build().text("\n").fill(2000)), 1024U);
}

TEST(LeftBehind, ALineEndInTheNextSector_IsATextsBeforeZeros) {
    const Bytes text = Build().text("<?xml version='1.0'?><a>").fill(512 - 29, 'x').text("</a>\n");
    ASSERT_EQ(text.size(), 512U);
    const auto end = [&](const Bytes& tail) { return walkBytes("XML", Build().add(text).add(tail)).end; };
    EXPECT_EQ(end(Build().text("\n").fill(511)), 513U);
    EXPECT_EQ(end(Build().text("\n").fill(20).fill(900, 1)), 512U);
    EXPECT_EQ(end(Build().text("\nnext").fill(900)), 512U);
    EXPECT_EQ(end(Bytes(900, 0)), 512U);
}

TEST(HtmlHabits, RemarksBehindTheClosingTag_BelongToTheFile) {
    const std::string page = "<html><body>a</body></html>\n";
    const Bytes file = Build().text(page + "<!-- cached today -->\n <!-- twice\n -->\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), Build().text("<!-- no end\1-->").bytes()})
        expectEnd("HTML", Build().add(file).add(tail), file.size());
    const Bytes longer = Build().text(page + "<!-- ").fill(600, 'a').text("-->");
    expectEnd("HTML", Build().add(longer).add(noise(900, 5)), longer.size());
    const Bytes open = Build().text(page + "<!-- ").fill(6000, 'a').text("-->");
    expectEnd("HTML", open, page.size());
}

TEST(HtmlHabits, ClosingTagInAScript_IsNotTheEnd) {
    const Bytes file = Build().text("<html><script>a('</html>$', b);</script>\n</html>\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), Build().text("\1</html>").bytes()})
        expectEnd("HTML", Build().add(file).add(tail), file.size());
    const Bytes whole = Build().text("<html>a</html>");
    expectEnd("HTML", Build().add(whole).text("letters of another\1</html>"), whole.size());
    const Bytes joined = Build().text("<html>a</html>\n");
    expectEnd("HTML", Build().add(joined).text("<html>b</html>"), joined.size());
}

TEST(HtmlHabits, BlanksInsideTheClosingTag_AreAllowed) {
    for (const std::string close : {"</HTML\n>", "</html >\n", "</Html>"}) {
        const Bytes file = Build().text("<html><body>a</htmlx></body\n>" + close);
        expectEnd("HTML", Build().add(file).text("x\xA7z\x91q\1").add(noise(900, 5)), file.size());
    }
}

TEST(HtmlHabits, WithoutItsClosingTag_ItEndsBeforeForeignLetters) {
    const Bytes file =
        Build().text("<html><body>\n" + std::string(1500, 'a') + "\n<p>Bl\xC3\xBCten</p></body>\n");
    expectEnd("HTML", Build().add(file).text("\xA7z\x91q\1").add(noise(900, 5)), file.size());
    expectEnd("HTML", Build().add(file).fill(900), file.size());
}

}  // namespace
}  // namespace vantor::test
