// Deleted files of FAT32 of whose first cluster's number only the lower half is left.
#include <gtest/gtest.h>

#include "tests/filesystem/CardImage.h"

namespace vantor {
namespace {

// More than the lower half of a number counts.
FatPlaces manyClusters() {
    FatPlaces fat;
    fat.bits = 32;
    fat.clusterSectors = 1;
    fat.clusters = 140000;
    return fat;
}

TEST(Fat32Card, ClearedUpperHalf_IsFoundByWhereSuchAFileBegins) {
    const FatPlaces fat = manyClusters();
    MemoryCard card(fat.end());
    formatFat(card, fat);
    putBytes(card, fat.sectorOf(2), deletedFat(fatRow("IMG_0001JPG", 70000 & 0xFFFF, 3000)));
    EXPECT_EQ(fileNamed(tableOf(card), "IMG_0001.JPG").runsKnownBy, RunsKnownBy::StartOnly);
    const CardFile file =
        fileNamed(tableOf(card, {{fat.sectorOf(70000), "JPG"}, {fat.sectorOf(9), "JPG"}}), "IMG_0001.JPG");
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{fat.sectorOf(70000), fat.sectorOf(70006)}}));
}

// What begins under the lower half is as likely another file.
TEST(Fat32Card, ClearedUpperHalf_IsNotGuessedBetweenTwo) {
    const FatPlaces fat = manyClusters();
    MemoryCard card(fat.end());
    formatFat(card, fat);
    putBytes(card, fat.sectorOf(2),
             deletedFat(fatRow("IMG_0001JPG", 70000 & 0xFFFF, 3000) +
                        fatRow("IMG_0002JPG", 71000 & 0xFFFF, 3000)));
    const CardTable table = tableOf(
        card, {{fat.sectorOf(70000), "JPG"}, {fat.sectorOf(71000), "JPG"}, {fat.sectorOf(5464), "JPG"}});
    EXPECT_EQ(fileNamed(table, "IMG_0001.JPG").runs,
              (std::vector<SectorRun>{{fat.sectorOf(70000), fat.sectorOf(70006)}}));
    EXPECT_TRUE(fileNamed(table, "IMG_0002.JPG").runs.empty());
    const CardTable other = tableOf(card, {{fat.sectorOf(71000), "JPG"}, {fat.sectorOf(5464), "JPG"}});
    EXPECT_TRUE(fileNamed(other, "IMG_0002.JPG").runs.empty());
}

TEST(Fat32Card, ClearedUpperHalf_IsNotWhereAFileIsThere) {
    const FatPlaces fat = manyClusters();
    MemoryCard card(fat.end());
    formatFat(card, fat);
    putBytes(card, fat.sectorOf(2),
             fatRow("IMG_0001JPG", 70000, 3000) + deletedFat(fatRow("IMG_0002JPG", 4464, 3000)));
    chainFat(card, fat, {70000, 70001, 70002, 70003, 70004, 70005});
    const CardTable table = tableOf(card, {{fat.sectorOf(70000), "JPG"}, {fat.sectorOf(4464), "JPG"}});
    EXPECT_EQ(fileNamed(table, "IMG_0002.JPG").runs,
              (std::vector<SectorRun>{{fat.sectorOf(4464), fat.sectorOf(4470)}}));
}

// A text begins in no way of its own: it may lie wherever anything does.
TEST(Fat32Card, ClearedUpperHalf_OfATextIsWhereAloneSomethingLies) {
    const FatPlaces fat = manyClusters();
    MemoryCard card(fat.end());
    formatFat(card, fat);
    putBytes(card, fat.sectorOf(2), deletedFat(fatRow("NOTES   TXT", 4464, 600)));
    put(card.bytes, fat.sectorOf(70000) * 512, std::string("Some words"));
    const std::vector<SectorRun> there{{fat.sectorOf(70000), fat.sectorOf(70002)}};
    EXPECT_EQ(fileNamed(tableOf(card), "_OTES.TXT").runs, there);
    put(card.bytes, fat.sectorOf(4464) * 512, std::string("More words"));
    EXPECT_TRUE(fileNamed(tableOf(card), "_OTES.TXT").runs.empty());
    // A photo that was found there is no text.
    EXPECT_EQ(fileNamed(tableOf(card, {{fat.sectorOf(4464), "JPG"}}), "_OTES.TXT").runs, there);
}

}  // namespace
}  // namespace vantor
