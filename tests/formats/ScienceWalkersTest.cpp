// Walkers of what laboratories, maps and firmware are kept in.
#include <gtest/gtest.h>

#include <string>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

TEST(SquashfsWalker, WithoutFilling_EndsWithItsLastByte) {
    const Bytes image = squashfs();
    ASSERT_EQ(image.size(), 300U);
    expectEnd("SQSH", image, image.size());
    expectEnd("SQSH", Build().add(image).add(noise(9000, 4)), image.size());
    // Zeros up to the page may be the writer's.
    const Extent filled = walkBytes("SQSH", Build().add(image).to(9000));
    EXPECT_EQ(filled.end, 4096U);
    EXPECT_FALSE(filled.exactEnd);
    Bytes other = image;
    other[28] = 3;
    EXPECT_EQ(walkBytes("SQSH", other).verdict, Verdict::Unknown);
}

TEST(CramWalker, Version2_EndsAtTheContainerThatSaysSo) {
    Build file;
    file.text("CRAM\2").u8(1).to(26);
    file.le32(40).u8(0).u8(1).u8(100).u8(9).u8(0).u8(60).u8(2).u8(1).u8(0).fill(40, 3);
    const auto open = file.bytes();
    file.le32(11).be32(0xFFFFFFFF).u8(0x0F).be32(0xE0454F46).u8(0).u8(0).u8(0).u8(0).u8(1).u8(0).fill(11, 3);
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
        expectEnd("CRAM", Build().add(file).add(tail), file.size());
    // An empty medium behind an open file is no row of empty containers.
    const Extent cut = walkBytes("CRAM", Build().add(open).fill(90000));
    EXPECT_EQ(cut.verdict, Verdict::Damaged);
    EXPECT_EQ(cut.end, open.size());
}

TEST(CramWalker, CountsOfManyBytes_AreReadWhole) {
    // Places of slices, counted in numbers of one, two, four and five bytes.
    const std::pair<Bytes, std::size_t> counts[] = {
        {{3}, 3}, {{0x80, 3}, 3}, {{0x81, 2}, 258}, {{0xE0, 0, 0, 3}, 3}, {{0xF0, 0, 0, 0, 3}, 3}};
    for (const auto& [count, places] : counts) {
        const Bytes landmarks = Build().add(count).fill(places, 1);
        Build file;
        file.text("CRAM\3").u8(0).to(26).add(cramContainer(1, landmarks, 50));
        const auto before = file.size();
        const Bytes rest = cram();
        file.add(Bytes(rest.begin() + 26, rest.end()));
        expectEnd("CRAM", Build().add(file).add(noise(3000, 3)), file.size());
        // A head whose sum is wrong is another's.
        Bytes spoilt = file;
        spoilt[before + 4] ^= 1;
        const Extent extent = walkBytes("CRAM", spoilt);
        EXPECT_EQ(extent.verdict, Verdict::Damaged);
        EXPECT_EQ(extent.end, before);
    }
}

TEST(DesignFileWalker, EndsWithItsLastWord_OrItsBlock) {
    const Bytes design = designFile();
    expectEnd("DGN", design, design.size());
    expectEnd("DGN", Build().add(design).add(Bytes(3000, 0x5A)), design.size());
    // Zeros in place of an element are none.
    const Bytes open(design.begin(), design.end() - 2);
    const Extent extent = walkBytes("DGN", Build().add(open).fill(3000));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, open.size());
}

TEST(RedisWalker, Sum_IsProvedWhereThereIsOne) {
    const Bytes file = Build().text("REDIS0009").u8(0xFA).u8(1).text("a").u8(1).text("b").u8(0xFF);
    const std::uint64_t sum = 0xA53E052E43220AB;
    const Extent proved = walkBytes("RDB", Build().add(file).le64(sum).fill(3000, 7));
    EXPECT_EQ(proved.verdict, Verdict::Complete);
    EXPECT_EQ(proved.end, file.size() + 8);
    EXPECT_TRUE(proved.checked);
    Bytes spoilt = file;
    spoilt[13] = 'x';
    EXPECT_EQ(walkBytes("RDB", Build().add(spoilt).le64(sum)).verdict, Verdict::Damaged);
    // Switched off it proves nothing.
    EXPECT_FALSE(walkBytes("RDB", Build().add(file).le64(0)).checked);
    // Versions before the fifth have none.
    Bytes old = file;
    old[8] = '4';
    expectEnd("RDB", Build().add(old).add(noise(3000, 3)), old.size());
}

TEST(RedisWalker, EmptyMediumInPlaceOfKeys_IsDamage) {
    const Bytes values = redisValues();
    const Bytes open(values.begin(), values.end() - 1);
    const Extent extent = walkBytes("RDB", Build().add(open).fill(300000));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_LT(extent.end, open.size() + 20000);
    // Kinds that no version knows are another's.
    Bytes strange = Build().add(open).fill(900, 0x60);
    EXPECT_EQ(walkBytes("RDB", strange).end, open.size());
    EXPECT_EQ(walkBytes("RDB", strange).verdict, Verdict::Damaged);
    // A later version may.
    strange[8] = '2';
    EXPECT_EQ(walkBytes("RDB", strange).verdict, Verdict::Unknown);
}

TEST(LongRangeWalker, BlockThatPointsBack_IsDamage) {
    Bytes file;
    for (const auto& sample : scienceSamples()) {
        if (sample.extension == "LRZ")
            file = sample.bytes;
    }
    constexpr std::size_t kNext = 24 + 4 + 7 + 7 + 5;
    ASSERT_EQ(file[kNext], 41);
    for (const std::uint8_t next : {14, 40}) {
        Bytes other = file;
        other[kNext] = next;
        EXPECT_EQ(walkBytes("LRZ", other).verdict, Verdict::Damaged);
    }
    // Of ciphered files the lengths are ciphered too.
    file[22] = 1;
    EXPECT_EQ(walkBytes("LRZ", file).verdict, Verdict::Unknown);
}

TEST(BioSignalsWalker, NumbersOfThreeBytes_AreMeasuredSo) {
    Build file;
    file.text(
            "\xFF"
            "BIOSEMI")
        .fill(176, ' ')
        .text("512     ")
        .fill(44, ' ')
        .text("2       1       1   ");
    file.fill(216, ' ').text("3       ").fill(32, ' ').fill(2 * 3 * 3, 7);
    expectEnd("BDF", Build().add(file).add(noise(3000, 3)), file.size());
    // A recorder that never came back left -1 for the records.
    Bytes open = file;
    open[236] = '-';
    open[237] = '1';
    EXPECT_EQ(walkBytes("BDF", open).verdict, Verdict::Unknown);
}

TEST(PaletteWalker, LastLineWithoutEnd_BelongsToIt_OtherLettersDoNot) {
    const Bytes file = Build().text("JASC-PAL\n0100\n2\n0 0 0\n255 0 255");
    expectEnd("PAL", Build().add(file).text("x").fill(900, 3), file.size());
    EXPECT_FALSE(walkBytes("PAL", file).exactEnd);
    const Bytes broken = Build().text("JASC-PAL\n0100\n2\n0 x 0\n255 0 255\n");
    EXPECT_EQ(walkBytes("PAL", broken).verdict, Verdict::Damaged);
    const Bytes blanks = Build().text("JASC-PAL\n0100\n2\n0 0 0\n").fill(90000, ' ');
    EXPECT_EQ(walkBytes("PAL", blanks).verdict, Verdict::Damaged);
}

TEST(MonitorCaptureWalker, CommentBehindTheTable_BelongsToIt) {
    Bytes file;
    for (const auto& sample : scienceSamples()) {
        if (sample.extension == "CAP")
            file = sample.bytes;
    }
    const Bytes place = Build().le32(file.size()).le32(11);
    const Bytes whole = Build().add(file).put(40, place).text("hello there");
    expectEnd("CAP", Build().add(whole).add(noise(3000, 3)), whole.size());
    // Without a table it was never closed.
    Bytes open = file;
    open[28] = 0;
    EXPECT_EQ(walkBytes("CAP", open).verdict, Verdict::Unknown);
}

TEST(RStoreWalker, EndsBehindTheLastObject) {
    const Bytes store = rStore();
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
        expectEnd("RDB", Build().add(store).add(tail), store.size());
    EXPECT_FALSE(walkBytes("RDB", store).exactEnd);
    const Bytes cut(store.begin(), store.end() - 3);
    EXPECT_EQ(walkBytes("RDB", cut).verdict, Verdict::CutOff);
    Bytes spoilt = store;
    spoilt[store.size() - 6] ^= 1;
    EXPECT_EQ(walkBytes("RDB", spoilt).verdict, Verdict::Damaged);
    // A first object that is none is no store's.
    spoilt[3] ^= 1;
    EXPECT_EQ(walkBytes("RDB", spoilt).verdict, Verdict::Unknown);
    // Objects of other packers tell no end.
    const Bytes other = Build().add(store).be32(900).text("Z").fill(900, 3);
    EXPECT_EQ(walkBytes("RDB", other).verdict, Verdict::Unknown);
}

TEST(JbigWalker, UnknownMarkOrNone_IsDamage) {
    Bytes file;
    for (const auto& sample : scienceSamples()) {
        if (sample.extension == "JBG")
            file = sample.bytes;
    }
    const Extent open = walkBytes("JBG", Build().add(Bytes(file.begin(), file.end() - 2)).fill(90000));
    EXPECT_EQ(open.verdict, Verdict::Damaged);
    EXPECT_LT(open.end, file.size());
    ASSERT_EQ(file[23], 0x00);
    file[23] = 0x42;
    EXPECT_EQ(walkBytes("JBG", file).verdict, Verdict::Damaged);
}

TEST(GenomeWalker, OfOtherByteOrder_EndsTheSame) {
    const Bytes packed = Build()
                             .be32(0x1A412743)
                             .be32(0)
                             .be32(1)
                             .be32(0)
                             .u8(1)
                             .text("a")
                             .be32(22)
                             .be32(5)
                             .be32(0)
                             .be32(0)
                             .be32(0)
                             .be16(0x1122);
    expectEnd("2BIT", Build().add(packed).add(noise(3000, 3)), packed.size());
    Build values;
    values.be32(0x888FFC26).be16(4).be16(0).be64(64).be64(70).be64(80).to(120).be32(0x888FFC26);
    expectEnd("BW", Build().add(values).add(noise(3000, 3)), values.size());
}

TEST(Hdf4Habits, FileNotMadeLonger_EndsWithItsLastObject) {
    Bytes file;
    for (const auto& sample : modelSamples()) {
        if (sample.extension == "HDF")
            file = sample.bytes;
    }
    ASSERT_EQ(file.back(), 0);
    file.pop_back();
    expectEnd("HDF", file, file.size());
    expectEnd("HDF", Build().add(file).add(Bytes(3000, 9)), file.size());
}

TEST(ScreamTrackerHabits, SilenceUpToTheUnit_BelongsToTheModule) {
    Bytes module;
    for (const auto& sample : moduleSamples()) {
        if (sample.extension == "S3M")
            module = sample.bytes;
    }
    // The sound is four samples shorter than its unit.
    module[112 + 16] -= 4;
    for (const std::uint8_t silence : {0x00, 0x80}) {
        std::fill(module.end() - 4, module.end(), silence);
        expectEnd("S3M", Build().add(module).add(Bytes(3000, 7)), module.size());
    }
    module[module.size() - 2] = 1;
    expectEnd("S3M", module, module.size() - 4);
}

TEST(DiscImageHabits, ImageForSticksToo_EndsBehindItsPartition) {
    Bytes disc;
    for (const auto& sample : recordSamples()) {
        if (sample.extension == "ISO")
            disc = sample.bytes;
    }
    const auto sectors = (disc.size() + 511) / 512 + 8;
    Build table;
    table.u8(0x80).fill(3).u8(0x17).fill(3).le32(0).le32(sectors);
    const Bytes hybrid = Build().add(disc).put(446, table).put(510, Bytes{0x55, 0xAA}).to(sectors * 512);
    expectEnd("ISO", Build().add(hybrid).add(noise(3000, 4)), hybrid.size());
    // One that claims the whole medium tells nothing, nor does one that is not there.
    Bytes whole = hybrid;
    whole[450] = 0xEE;
    expectEnd("ISO", whole, disc.size());
    expectEnd("ISO", Bytes(hybrid.begin(), hybrid.end() - 512), disc.size());
}

TEST(PostScriptHabits, BytesThatWereAnnouncedAndEnded_AreNoFurtherOnes) {
    const std::string data = "%!PS-Adobe-3.0\n%%BeginData: 4 Binary Bytes\nabcd\n%%EndData\n";
    const Bytes file = Build().text(data).fill(600, ' ').text("\nshowpage\n");
    const Extent extent = walkBytes("PS", Build().add(file).text("\1\2").fill(9000, 1).text("\n%%EOF\n"));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, file.size());
}

TEST(TextHabits, TextThatABracketCloses_EndsBeforeForeignLetters) {
    for (const std::string text : {"{\"a\": [1, \"}\\\"\"]}\n", "PROJCS[\"x\",GEOGCS[\"y\"]]",
                                   "digraph a {\n b -> c;\n}\n", "netcdf a {\ndimensions:\n}\n"}) {
        const Bytes file = Build().text(text);
        ASSERT_GE(file.size(), 12U);
        expectEnd("JSON", Build().add(file).text("xyzw").fill(600, 1), file.size());
    }
    // Whole lines behind it are the text's own.
    const Bytes two = Build().text("{\"a\": [1, 2, 3]}\nlast line of it\n");
    expectEnd("JSON", Build().add(two).fill(600, 1), two.size());
}

}  // namespace
}  // namespace vantor::test
