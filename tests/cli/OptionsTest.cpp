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

TEST(Options, EmptySaveFolderIsRefused) {
    EXPECT_EQ(parseOptions({"--save", "", "x"}).exitCode, kExitBadUsage);
}

}  // namespace vantor
