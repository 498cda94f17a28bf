// The command's options as values.
#include <gtest/gtest.h>

#include "cli/Options.h"

namespace vantor {

TEST(Options, DefaultsAreAPhotoSearchOverTheWholeMedium) {
    const ParsedOptions parsed = parseOptions({"card.img"});
    ASSERT_FALSE(parsed.exitCode.has_value());
    EXPECT_EQ(parsed.options.mode, kPhotoMode);
    EXPECT_FALSE(parsed.options.types.has_value());
    EXPECT_FALSE(parsed.options.range.has_value());
    EXPECT_TRUE(parsed.options.thorough);
    EXPECT_TRUE(parsed.options.saveFolder.isEmpty());
    EXPECT_FALSE(parsed.options.listJson);
    EXPECT_EQ(parsed.options.medium, "card.img");
}

TEST(Options, EverythingCanBeChosen) {
    const ParsedOptions parsed =
        parseOptions({"--mode", "video", "--types", "MP4,MOV", "--range", "5:70", "--no-thorough",
                      "--catalogue", "c", "--save", "s", "--list-json", "sdb1"});
    ASSERT_FALSE(parsed.exitCode.has_value());
    EXPECT_EQ(parsed.options.mode, kVideoMode);
    EXPECT_EQ(*parsed.options.types, QStringList({"MP4", "MOV"}));
    EXPECT_EQ(parsed.options.range->first, "5");
    EXPECT_EQ(parsed.options.range->second, "70");
    EXPECT_FALSE(parsed.options.thorough);
    EXPECT_EQ(parsed.options.catalogueFolder, "c");
    EXPECT_EQ(parsed.options.saveFolder, "s");
    EXPECT_TRUE(parsed.options.listJson);
}

TEST(Options, NamesAndFoldersAreTheCardsUnlessTheUserSaysOtherwise) {
    const SavePolicy plain = parseOptions({"--save", "s", "x"}).options.savePolicy;
    EXPECT_EQ(plain.names, SaveNames::Original);
    EXPECT_EQ(plain.folders, SaveFolders::Card);
    EXPECT_FALSE(plain.lostOnly);
    const SavePolicy other =
        parseOptions({"--save", "s", "--names", "found", "--folders", "type", "--lost-only", "x"})
            .options.savePolicy;
    EXPECT_EQ(other.names, SaveNames::Found);
    EXPECT_EQ(other.folders, SaveFolders::Type);
    EXPECT_TRUE(other.lostOnly);
    EXPECT_EQ(parseOptions({"--save", "s", "--by-date", "x"}).options.savePolicy.folders, SaveFolders::Date);
    for (const QStringList& wrong : {QStringList{"--save", "s", "--names", "mine", "x"},
                                     QStringList{"--save", "s", "--folders", "mine", "x"},
                                     QStringList{"--save", "s", "--by-date", "--folders", "card", "x"},
                                     QStringList{"--save", "s", "--as-published", "--names", "found", "x"},
                                     QStringList{"--lost-only", "x"}}) {
        EXPECT_EQ(parseOptions(wrong).exitCode, kExitBadUsage) << wrong.join(' ').toStdString();
    }
}

TEST(Options, TypesAreListedForAModeThatChoosesThem) {
    EXPECT_TRUE(parseOptions({"--list-types", "--mode", "video"}).options.listTypes);
    EXPECT_FALSE(parseOptions({"--list-types", "--mode", "video"}).exitCode.has_value());
    EXPECT_EQ(parseOptions({"--list-types"}).exitCode, kExitBadUsage);
    EXPECT_EQ(parseOptions({"--list-types", "--mode", "video", "card.img"}).exitCode, kExitBadUsage);
}

TEST(Options, QuietIsSaidInTwoWays) {
    EXPECT_FALSE(parseOptions({"x"}).options.quiet);
    EXPECT_TRUE(parseOptions({"--quiet", "x"}).options.quiet);
    EXPECT_TRUE(parseOptions({"-q", "x"}).options.quiet);
}

TEST(Options, EmptySaveFolderIsRefused) {
    EXPECT_EQ(parseOptions({"--save", "", "x"}).exitCode, kExitBadUsage);
    EXPECT_EQ(parseOptions({""}).exitCode, kExitBadUsage);
}

}  // namespace vantor
