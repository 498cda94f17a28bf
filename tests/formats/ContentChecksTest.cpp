// Files that are proved by what stands in them: sound and fragments of movies, documents, databases, rows of
// frames; and that the same with another's bytes inside is not.
#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <string>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

Bytes boxOf(std::string_view name, const Bytes& body) {
    return isoBox(name, Build().be32(0).add(body));
}

void expectChecked(std::string_view extension, const Bytes& file) {
    expectEnd(extension, file, file.size());
    EXPECT_TRUE(walkBytes(extension, file).checked);
}

Bytes withNoise(Bytes bytes, std::size_t from, std::size_t count) {
    const Bytes foreign = noise(count, 9);
    std::copy(foreign.begin(), foreign.end(), bytes.begin() + static_cast<std::ptrdiff_t>(from));
    return bytes;
}

// A pair of channels with a common window, behind a filling element now and then.
Bytes aacFrame(int number) {
    Build frame;
    if (number % 4 == 1)
        frame.u8(0xC4).u8(0).u8(0).u8(0x42);  // six: two bytes of filling, then one: a pair
    else
        frame.u8(0x21).u8(0x10);
    return frame.fill(198 - (frame.size() - 2), static_cast<std::uint8_t>(0x41 + number));
}

// The entry of a sound track whose decoder configuration tells of that kind of object.
Bytes soundEntry(std::uint64_t object) {
    const Bytes configuration = Build().u8(5).u8(2).be16(object << 11 | 0x210);
    const Bytes decoder = Build().u8(4).u8(13 + configuration.size()).u8(0x40).fill(12).add(configuration);
    const Bytes stream = Build().u8(3).u8(3 + decoder.size()).be16(1).u8(0).add(decoder);
    return isoBox("mp4a", Build().fill(6).be16(1).fill(20).add(boxOf("esds", stream)));
}

Bytes soundMedia(const Bytes& entry, const Bytes& tables) {
    const Bytes description = boxOf("stsd", Build().be32(1).add(entry));
    const Bytes references =
        isoBox("dinf", boxOf("dref", Build().be32(1).add(isoBox("url ", Build().be32(1)))));
    const Bytes table = isoBox("stbl", Build().add(description).add(tables));
    return isoBox("mdia", Build()
                              .add(boxOf("hdlr", Build().be32(0).text("soun").fill(13)))
                              .add(isoBox("minf", Build().add(references).add(table))));
}

const Bytes kMovieType = isoBox("ftyp", Build().text("M4A ").be32(0).text("isom"));

// The twenty frames in the middle may begin in another way.
Bytes recording(std::uint64_t object = 2, const Bytes& beginning = {}) {
    constexpr int kFrames = 60;
    Build data, sizes;
    sizes.be32(0).be32(kFrames);
    for (int i = 0; i < kFrames; ++i) {
        const bool middle = i >= 20 && i < 40;
        const Bytes frame = Build().add(aacFrame(i)).put(0, middle ? beginning : Bytes());
        data.add(frame);
        sizes.be32(frame.size());
    }
    const Bytes tables = Build()
                             .add(boxOf("stsc", Build().be32(1).be32(1).be32(kFrames).be32(1)))
                             .add(boxOf("stsz", sizes))
                             .add(boxOf("stco", Build().be32(1).be32(kMovieType.size() + 8)));
    const Bytes movie = isoBox("moov", isoBox("trak", soundMedia(soundEntry(object), tables)));
    return Build().add(kMovieType).add(isoBox("mdat", data)).add(movie);
}

TEST(Sound, FramesOfARecording_AreLookedAt) {
    expectChecked("M4A", recording());
    EXPECT_EQ(walkBytes("M4A", withNoise(recording(), 4096, 4096)).verdict, Verdict::Damaged);
}

TEST(Sound, FramesThatBeginAsNoneDoes_AreAnothers) {
    const Bytes longFilling = Build().u8(0xDE).u8(0).fill(14).u8(0x42).u8(0);
    const std::array whole = {Bytes{0x21, 0x10},                 // a pair
                              Bytes{0x01, 0x40, 0x22},           // a single channel
                              longFilling,                       // and a pair
                              Bytes{0xC1, 0xC0}};                // filling of no bytes, and the end
    const std::array foreign = {Bytes{0x41, 0x10},               // coupling, of nothing
                                Bytes{0x61, 0x10},               // low frequencies alone
                                Bytes{0x23, 0x10},               // the second pair first
                                Bytes{0x21, 0x90},               // a reserved bit
                                Bytes{0xE0},                     // an end of nothing
                                Bytes{0xDF, 0xFF, 0xFF, 0x21}};  // filling longer than the frame
    for (const Bytes& beginning : whole)
        EXPECT_TRUE(walkBytes("M4A", recording(2, beginning)).checked) << int{beginning[0]};
    for (const Bytes& beginning : foreign)
        EXPECT_EQ(walkBytes("M4A", recording(2, beginning)).verdict, Verdict::Damaged) << int{beginning[0]};
    EXPECT_EQ(walkBytes("M4A", recording(2, Bytes(198, 0))).verdict, Verdict::Damaged);
}

TEST(Sound, OfAKindThatIsNotFollowed_OnlyEndsWhereItSays) {
    const Extent extent = walkBytes("M4A", recording(23));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_FALSE(extent.checked);
}

// A movie of ten fragments of six frames; the sizes stand in each, or once for all in front.
Bytes fragments(bool sizesInRun) {
    constexpr int kFragments = 10, kFrames = 6;
    const std::size_t frameBytes = aacFrame(0).size();
    const Bytes track = isoBox(
        "trak",
        Build().add(boxOf("tkhd", Build().fill(8).be32(7).fill(68))).add(soundMedia(soundEntry(2), {})));
    const Bytes defaults =
        isoBox("mvex", boxOf("trex", Build().be32(7).be32(1).be32(1024).be32(frameBytes).be32(0)));
    Build file;
    file.add(kMovieType).add(isoBox("moov", Build().add(track).add(defaults)));
    for (int fragment = 0; fragment < kFragments; ++fragment) {
        Build run;
        run.be32(sizesInRun ? 0x201 : 1).be32(kFrames).be32(0);  // where the data begins: put in below
        for (int i = 0; sizesInRun && i < kFrames; ++i)
            run.be32(frameBytes);
        const auto part = [&](const Bytes& body) {
            return isoBox(
                "moof",
                isoBox("traf",
                       Build().add(isoBox("tfhd", Build().be32(0x20000).be32(7))).add(isoBox("trun", body))));
        };
        run.put(8, Build().be32(part(run).size() + 8));
        Build data;
        for (int i = 0; i < kFrames; ++i)
            data.add(aacFrame(4 * i));
        file.add(part(run)).add(isoBox("mdat", data));
    }
    return file.add(boxOf("mfra", {}));
}

TEST(Fragments, OfWhichMoreMayHaveFollowed_OnlyEndWhereTheySay) {
    Bytes open = fragments(true);
    open.resize(open.size() - boxOf("mfra", {}).size());
    const Extent extent = walkBytes("MP4", open);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, open.size());
    EXPECT_FALSE(extent.checked);
}

// A movie of two sounds in fragments whose parts tell no position: that of each goes on where the one before
// ended, the first at the fragment.
Bytes fragmentsInTurn() {
    constexpr int kFragments = 6, kFrames = 6;
    const std::size_t frameBytes = aacFrame(0).size();
    Build movie, defaults;
    for (const std::uint64_t id : {7, 8}) {
        const Bytes head = boxOf("tkhd", Build().fill(8).be32(id).fill(68));
        movie.add(isoBox("trak", Build().add(head).add(soundMedia(soundEntry(2), {}))));
        defaults.add(boxOf("trex", Build().be32(id).be32(1).be32(1024).be32(frameBytes).be32(0)));
    }
    Build file;
    file.add(kMovieType).add(isoBox("moov", movie.add(isoBox("mvex", defaults))));
    for (int fragment = 0; fragment < kFragments; ++fragment) {
        const auto head = [&](std::uint64_t dataAt) {
            Build parts;
            for (const std::uint64_t id : {7, 8}) {
                const Bytes run = Build().be32(1).be32(kFrames).be32(id == 7 ? dataAt : 0);
                parts.add(isoBox(
                    "traf", Build().add(isoBox("tfhd", Build().be32(0).be32(id))).add(isoBox("trun", run))));
            }
            return isoBox("moof", parts);
        };
        Build data;
        for (int i = 0; i < 2 * kFrames; ++i)
            data.add(aacFrame(4 * i));
        file.add(head(head(0).size() + 8)).add(isoBox("mdat", data));
    }
    return file.add(boxOf("mfra", {}));
}

TEST(Fragments, PartsWithoutAPosition_GoOnWhereTheOneBeforeEnded) {
    expectChecked("MP4", fragmentsInTurn());
}

TEST(Fragments, Samples_AreLookedAt) {
    for (const bool sizesInRun : {true, false}) {
        const Bytes whole = fragments(sizesInRun);
        expectChecked("MP4", whole);
        // Within the media data of one fragment.
        const Bytes name = Build().text("mdat");
        const auto data = std::search(whole.begin() + 4096, whole.end(), name.begin(), name.end());
        ASSERT_NE(data, whole.end());
        const auto from = static_cast<std::size_t>(data - whole.begin()) + 4;
        EXPECT_EQ(walkBytes("MP4", withNoise(whole, from, 1000)).verdict, Verdict::Damaged);
    }
}

std::string packed(const std::string& content) {
    uLongf bytes = compressBound(content.size());
    std::string out(bytes, '\0');
    compress(reinterpret_cast<Bytef*>(out.data()), &bytes, reinterpret_cast<const Bytef*>(content.data()),
             content.size());
    out.resize(bytes);
    return out;
}

// An object with a stream, behind whose beginning stands what it holds; 3 0 R tells another length.
std::string streamObject(const std::string& keys, const std::string& content, bool tellsLength = true) {
    return "4 0 obj\n<< " + keys + " /Length " + (tellsLength ? std::to_string(content.size()) : "3 0 R") +
           " >>\nstream\n" + content + "\nendstream\nendobj\n";
}

// A page whose content is packed; `lead` stands in front of its second object.
std::string document(const std::string& lead = {}, bool lengthElsewhere = false) {
    std::string content;
    for (int i = 0; i < 3000; ++i)
        content += std::to_string(i * 7919 % 10007) + " ";
    const std::string stream = packed(content);
    std::string out = "%PDF-1.4\n%\xE2\xE3\n";
    const auto catalogue = out.size();
    out += "1 0 obj\n<< /Type /Catalog /Title (a \\) b) /Id <0A1B> >>\nendobj\n" + lead;
    const auto page = out.size();
    out += "2 0 obj\n<< /Filter [/FlateDecode] /Length " +
           (lengthElsewhere ? std::string("3 0 R") : std::to_string(stream.size())) + " >>\nstream\n" +
           stream + "\nendstream\nendobj\n";
    const auto number = out.size();
    out += "3 0 obj\n" + std::to_string(stream.size()) + "\nendobj\n";
    const auto table = out.size();
    const auto line = [](std::size_t place) {
        const std::string digits = std::to_string(place);
        return std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
    };
    out += "xref\n0 4\n0000000000 65535 f \n" + line(catalogue) + line(page) + line(number);
    return out + "trailer\n<< /Size 4 /Root 1 0 R >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
}

bool isDocumentChecked(const std::string& text) {
    const Bytes bytes = Build().text(text);
    const Extent extent = walkBytes("PDF", bytes);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, bytes.size());
    return extent.checked;
}

TEST(Documents, ObjectsAndTheirStreams_AreRead) {
    EXPECT_TRUE(isDocumentChecked(document()));
    EXPECT_TRUE(isDocumentChecked(document("% a remark\n", true)));
}

TEST(Documents, WhatIsNoObject_OnlyEndsWhereItSays) {
    EXPECT_FALSE(isDocumentChecked(document("junk\n")));
    std::string spoilt = document();
    spoilt[spoilt.find("stream\n") + 2000] ^= 1;
    EXPECT_FALSE(isDocumentChecked(spoilt));
    // A place in the table where no object begins.
    std::string moved = document();
    moved[moved.find(" 00000 n") - 1] ^= 1;
    EXPECT_FALSE(isDocumentChecked(moved));
}

TEST(Documents, OfWhichASmallStreamIsAnothers_OnlyEndWhereTheySay) {
    const std::string small = packed("a few words only, which are a few words");
    EXPECT_TRUE(isDocumentChecked(document(streamObject("/Filter /FlateDecode", small))));
    std::string spoilt = small;
    spoilt[spoilt.size() / 2] ^= 1;
    EXPECT_FALSE(isDocumentChecked(document(streamObject("/Filter /FlateDecode", spoilt))));
    const Bytes picture = jpeg();
    const std::string photo(picture.begin(), picture.end());
    EXPECT_TRUE(isDocumentChecked(document(streamObject("/Filter /DCTDecode", photo))));
    EXPECT_FALSE(isDocumentChecked(document(streamObject("/Filter /DCTDecode", photo.substr(0, 40)))));
}

TEST(Documents, WhoseStreamsSayNothing_OnlyEndWhereTheySay) {
    for (const bool tellsLength : {true, false}) {
        const std::string words(20'000, 'w'), foreign(20'000, '\1');
        EXPECT_TRUE(isDocumentChecked(document(streamObject("", words, tellsLength))));
        EXPECT_FALSE(isDocumentChecked(document(streamObject("", foreign, tellsLength))));
    }
}

TEST(Documents, WhoseEndIsInDoubt_OnlyEndWhereTheySay) {
    EXPECT_FALSE(isDocumentChecked(document() + "\n"));
    // Three line ends, of which the first is the mark's.
    for (const Bytes& tail : {noise(3000, 6), Bytes(3000, 0)}) {
        const Bytes bytes = Build().text(document() + "\r\n").add(tail);
        EXPECT_EQ(walkBytes("PDF", bytes).verdict, Verdict::Complete);
        EXPECT_FALSE(walkBytes("PDF", bytes).checked);
    }
    EXPECT_TRUE(walkBytes("PDF", Build().text(document()).fill(3000)).checked);
    const Extent joined = walkBytes("PDF", Build().text(document() + document()));
    EXPECT_EQ(joined.end, document().size());
    EXPECT_FALSE(joined.checked);
}

Bytes database() {
    for (const auto& sample : allSamples()) {
        if (sample.extension == "SQLITE")
            return sample.bytes;
    }
    return {};
}

TEST(Databases, EveryPage_IsReached) {
    expectChecked("SQLITE", database());
    for (const std::size_t page : {512, 1024}) {
        const Extent extent = walkBytes("SQLITE", withNoise(database(), page, 512));
        EXPECT_EQ(extent.verdict, Verdict::Damaged) << page;
        EXPECT_TRUE(extent.endFound);
    }
}

TEST(Databases, APageThatIsReachedTwice_IsAnothers) {
    // The row's last page, said to be the first of the free ones too, with no other behind it.
    Bytes twice = database();
    std::fill_n(twice.begin() + 1024, 8, std::uint8_t{0});
    expectChecked("SQLITE", twice);
    twice[35] = 3;
    EXPECT_EQ(walkBytes("SQLITE", twice).verdict, Verdict::Damaged);
}

TEST(Databases, PagesThatNothingPointsAt_AreNotJudged) {
    Bytes larger = Build().add(database()).fill(512, 0x55);
    larger[31] = 4;
    const Extent extent = walkBytes("SQLITE", larger);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_FALSE(extent.checked);
    larger[35] = 4;  // the first of the free pages
    larger = Build().add(larger).put(1536, Build().fill(8));
    expectChecked("SQLITE", larger);
}

TEST(Databases, ThatDoNotCountTheirPages_EndBehindTheLastOneInUse) {
    Bytes old = database();
    old[95] = 6;
    const Extent extent = walkBytes("SQLITE", Build().add(old).add(noise(4096, 5)));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, old.size());
    EXPECT_TRUE(extent.checked);
}

Bytes soundFrames(int count, int told) {
    Build out;
    for (int i = 0; i < count; ++i) {
        Build frame;
        frame.be32(0xFFFB9064).fill(413, 3);
        if (i == 0 && told != 0)
            frame.put(36, Build().text("Info").be32(1).be32(static_cast<unsigned>(told)));
        out.add(frame);
    }
    return out;
}

TEST(Frames, CountedByTheFirst_AreAll) {
    const Bytes all = soundFrames(11, 10);
    EXPECT_TRUE(walkBytes("MP3", all).checked);
    EXPECT_FALSE(walkBytes("MP3", soundFrames(11, 12)).checked);
    EXPECT_FALSE(walkBytes("MP3", soundFrames(11, 0)).checked);
    // Ended by a sector, as a tag behind them may have been too.
    const Bytes filled = soundFrames(512, 511);
    ASSERT_EQ(filled.size() % 512, 0U);
    EXPECT_FALSE(walkBytes("MP3", filled).checked);
}

TEST(Frames, LargerThanASector_AreNotCheckedByTheirHeads) {
    Build large;
    for (int i = 0; i < 11; ++i)
        large.be32(0xFFFBE064).fill(1040, 3);  // 320 kbit/s
    const Bytes tag = Build().text("TAG").fill(125);
    const Bytes small = Build().add(soundFrames(11, 0)).add(tag);
    EXPECT_TRUE(walkBytes("MP3", small).checked);
    const Extent extent = walkBytes("MP3", Build().add(large).add(tag));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, large.size() + tag.size());
    EXPECT_FALSE(extent.checked);
    // Nor by their number alone.
    const Bytes counted = Build().add(large).put(36, Build().text("Info").be32(1).be32(10));
    EXPECT_EQ(walkBytes("MP3", counted).end, large.size());
    EXPECT_FALSE(walkBytes("MP3", counted).checked);
}

// Frames that tell no bit rate, of 300 bytes beside the padding that every third has.
Bytes freeFrames(int count, int told) {
    Build out;
    for (int i = 0; i < count; ++i) {
        const bool padded = i % 3 == 1;
        Build frame;
        frame.be32(padded ? 0xFFFB0264 : 0xFFFB0064).fill(padded ? 297 : 296, 3);
        if (i == 0)
            frame.put(36, Build().text("Info").be32(1).be32(static_cast<unsigned>(told)));
        out.add(frame);
    }
    return out;
}

TEST(Frames, OfTheFreeFormat_AreAsLongAsTheFirst) {
    const Bytes all = freeFrames(12, 11);
    for (const Bytes& tail : {noise(3000, 4), Bytes(3000, 0)}) {
        const Extent extent = walkBytes("MP3", Build().add(all).add(tail));
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_EQ(extent.end, all.size());
        EXPECT_TRUE(extent.checked);
    }
    EXPECT_FALSE(walkBytes("MP3", freeFrames(12, 12)).checked);
    // A reserved layer or rate makes none.
    EXPECT_EQ(walkBytes("MP3", Build().be32(0xFFF90064).fill(400, 3).be32(0xFFF90064).fill(9000, 3)).verdict,
              Verdict::Unknown);
    EXPECT_EQ(walkBytes("MP3", Build().be32(0xFFFB0C64).fill(400, 3).be32(0xFFFB0C64).fill(9000, 3)).verdict,
              Verdict::Unknown);
}

TEST(Frames, WhoseTagIsTorn_AreNotAll) {
    const Extent extent = walkBytes("MP3", Build().add(soundFrames(11, 10)).text("TAG").fill(60));
    EXPECT_FALSE(extent.checked);
    EXPECT_FALSE(extent.exactEnd);
}

TEST(LeftBehind, AFewBytesBeforeAnEmptyRestOfTheSector_AreTheFiles) {
    const Bytes picture = jpeg();
    const auto end = [&](const Bytes& tail) { return walkBytes("JPG", Build().add(picture).add(tail)).end; };
    ASSERT_LT(picture.size() % 512, 300U);
    EXPECT_EQ(end(Build().text("\n").fill(2000)), picture.size() + 1);
    EXPECT_EQ(end(Build().text("\r\nend").fill(2000)), picture.size() + 5);
    // What fills the sector, or reaches far into it, lay there before.
    EXPECT_EQ(end(noise(2000, 7)), picture.size());
    EXPECT_EQ(end(Build().fill(100, 0xC1).fill(2000)), picture.size());
    EXPECT_EQ(end(Bytes(2000, 0)), picture.size());
}

TEST(LeftBehind, RichText_ClosesAsItsWriterDoes) {
    const auto text = [](std::string_view writer) {
        return Build().text("{\\rtf1{\\*\\generator ").text(writer).text("}a}\r\n").bytes();
    };
    const Bytes zeros(3000, 0);
    const Bytes system = text("Riched20 6.2.9200"), other = text("Any Other");
    EXPECT_EQ(walkBytes("RTF", Build().add(system).add(zeros)).end, system.size() + 1);
    EXPECT_EQ(walkBytes("RTF", Build().add(system).text("\0\r\n"_b).fill(3000, 9)).end, system.size() + 3);
    EXPECT_EQ(walkBytes("RTF", Build().add(other).add(zeros)).end, other.size());
    EXPECT_EQ(walkBytes("RTF", Build().add(other).text("\r\n").add(noise(3000, 8))).end, other.size() + 2);
}

}  // namespace
}  // namespace vantor::test
