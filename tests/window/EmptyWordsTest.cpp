// Empty lists say what is the case and advise nothing that was just done.
#include <gtest/gtest.h>

#include "window/browser/EmptyWords.h"

namespace vantor {
namespace {

SearchEnd completed() {
    SearchEnd end;
    end.outcome = PassOutcome::Completed;
    end.end = end.sector = end.goOnAt = 100;
    return end;
}

SearchEnd stopped() {
    SearchEnd end = completed();
    end.outcome = PassOutcome::Stopped;
    end.sector = end.goOnAt = 34;
    return end;
}

TEST(EmptyWords, AfterTheEntireDisk_ItIsNotAdvised) {
    const EmptyWords words = nothingFound({}, completed());
    EXPECT_EQ(words.title, "No photos were found");
    EXPECT_EQ(words.advice, "You can go back and look for Video or Raw File types.");
}

TEST(EmptyWords, AfterARange_TheEntireDiskIsAdvised) {
    SearchWish wish;
    wish.entireDisk = false;
    EXPECT_EQ(nothingFound(wish, completed()).advice,
              "You can go back and search the entire disk, or look for Video or Raw File types.");
}

TEST(EmptyWords, WithoutTheThoroughSearch_ItIsAdvised) {
    SearchWish wish;
    wish.thorough = false;
    EXPECT_EQ(nothingFound(wish, completed()).advice,
              "You can go back and switch the thorough search on, or look for Video or Raw File types.");
}

TEST(EmptyWords, AfterAStop_TheRestIsAdvised) {
    SearchWish wish;
    wish.photo = false;
    EXPECT_EQ(nothingFound(wish, stopped()).advice, "Press “Go On” to search the rest.");
    wish.allTypes = false;
    EXPECT_EQ(nothingFound(wish, stopped()).advice,
              "Press “Go On” to search the rest. You can go back and select more file types.");
}

TEST(EmptyWords, FileTypesAreAdvisedWhereSomeWereLeftOut) {
    SearchWish wish;
    wish.photo = false;
    EXPECT_EQ(nothingFound(wish, completed()).advice,
              "All of it was searched for all types. Try another medium.");
    EXPECT_EQ(nothingFound(wish, completed()).title, "Nothing was found");
    wish.allTypes = false;
    EXPECT_EQ(nothingFound(wish, completed()).advice, "You can go back and select more file types.");
    wish.entireDisk = false;
    EXPECT_EQ(nothingFound(wish, completed()).advice,
              "You can go back and search the entire disk, or select more file types.");
}

TEST(EmptyWords, WhereTheChoiceHidesThemAll_NoSearchIsAdvised) {
    const EmptyWords kind = nothingShown(1234, {true, false});
    EXPECT_EQ(kind.title, "None of the found items is of this kind");
    EXPECT_EQ(kind.advice, "Choose “All items” above to see all that was found: 1,234 items.");
    const EmptyWords type = nothingShown(1234, {false, true});
    EXPECT_EQ(type.title, "None of the found items is of this type");
    EXPECT_EQ(type.advice, "Press “Show All Types” to see all that was found: 1,234 items.");
    const EmptyWords both = nothingShown(1234, {true, true});
    EXPECT_EQ(both.title, "None of the found items is of this type and kind");
    EXPECT_EQ(both.advice,
              "Press “Show All Types” and choose “All items” above to see all that was found: 1,234 items.");
}

}  // namespace
}  // namespace vantor
