// A watched medium reads as the medium itself until somebody ends it.
#include <gtest/gtest.h>

#include "media/WatchedReader.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

TEST(WatchedReader, ReadsAndSeeksAsTheMediumDoes_AndCounts) {
    ScriptedMedium medium = letters(8);
    medium.badForEver = {3};
    ScriptedReader inner(medium);
    ReadWatch watch;
    WatchedReader reader(inner, watch);
    EXPECT_EQ(reader.mediumSectors(), 8U);
    EXPECT_TRUE(reader.read());
    EXPECT_EQ(reader.current()[0], 'a');
    EXPECT_TRUE(reader.seek(2));
    EXPECT_TRUE(reader.read());
    EXPECT_EQ(reader.current()[0], 'c');
    EXPECT_FALSE(reader.read());
    EXPECT_EQ(reader.position(), 3U);
    EXPECT_EQ(reader.current()[0], 'c') << "a failed read changes nothing";
    EXPECT_TRUE(reader.seek(4));
    EXPECT_TRUE(reader.read());
    EXPECT_EQ(watch.sectorsRead, 3U);
    EXPECT_FALSE(reader.wasEnded());
}

TEST(WatchedReader, AfterTheEnd_NothingIsAskedOfTheMedium) {
    ScriptedMedium medium = letters(8);
    ScriptedReader inner(medium);
    ReadWatch watch;
    WatchedReader reader(inner, watch);
    EXPECT_TRUE(reader.read());
    watch.ended = true;
    EXPECT_FALSE(reader.read());
    EXPECT_FALSE(reader.seek(5));
    EXPECT_TRUE(reader.wasEnded());
    EXPECT_EQ(medium.reads, 1U);
}

TEST(WatchedReader, NoMoreReadsThanGranted) {
    ScriptedMedium medium = letters(8);
    ScriptedReader inner(medium);
    ReadWatch watch;
    WatchedReader reader(inner, watch, 2);
    EXPECT_TRUE(reader.read());
    EXPECT_TRUE(reader.read());
    EXPECT_FALSE(reader.read());
    EXPECT_TRUE(reader.wasEnded());
    EXPECT_EQ(medium.reads, 2U);
}

}  // namespace
}  // namespace vantor
