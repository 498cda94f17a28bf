// Which items are shown, and in which order.
#include <gtest/gtest.h>

#include <vector>

#include "results/BrowserOrder.h"

namespace vantor {
namespace {

ItemFacts item(Verdict verdict, std::uint64_t bytes = 1'000'000, std::uint32_t width = 4000) {
    ItemFacts facts;
    facts.soundness = Soundness{verdict, false, false, bytes, width, width / 2, {}};
    return facts;
}

class BrowserOrder : public ::testing::Test {
  protected:
    QList<int> order(ShowItems show, SortItems sort = SortItems::AsFound) const {
        BrowserWish wish;
        wish.show = show;
        wish.sort = sort;
        return browserOrder(static_cast<int>(items.size()), wish,
                            [this](int place) { return items[static_cast<std::size_t>(place)]; });
    }

    std::vector<ItemFacts> items{item(Verdict::CutOff, 500),
                                 item(Verdict::Complete, 3000, 160),
                                 ItemFacts{},
                                 item(Verdict::Damaged, 2'000'000),
                                 item(Verdict::Complete),
                                 item(Verdict::Unknown, 40'000, 0)};
};

TEST_F(BrowserOrder, AskedFor_ShowsOnlyWhatIsKnownToBe) {
    EXPECT_EQ(order(ShowItems::All), (QList<int>{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(order(ShowItems::Complete), (QList<int>{1, 4}));
    EXPECT_EQ(order(ShowItems::Broken), (QList<int>{0, 3}));
    EXPECT_EQ(order(ShowItems::UnknownLength), (QList<int>{5}));
}

TEST_F(BrowserOrder, AType_LeavesOutAllOthers) {
    items[1].type = items[4].type = QStringLiteral("JPG");
    items[3].type = QStringLiteral("PDF");
    BrowserWish wish;
    wish.type = QStringLiteral("JPG");
    EXPECT_FALSE(wish.isPlain());
    EXPECT_FALSE(wish.needsSoundness());
    const auto factsOf = [this](int place) { return items[static_cast<std::size_t>(place)]; };
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{1, 4}));
    wish.show = ShowItems::NotSmall;
    EXPECT_EQ(browserOrder(6, wish, factsOf), QList<int>{4});
}

TEST_F(BrowserOrder, AName_IsLookedForInAllNames) {
    items[1].names = QStringLiteral("GND00001.JPG\nDCIM/IMG_0412.JPG");
    items[4].names = QStringLiteral("GND00002.JPG");
    BrowserWish wish;
    wish.name = QStringLiteral("img_04");
    EXPECT_FALSE(wish.isPlain());
    EXPECT_FALSE(wish.needsSoundness());
    const auto factsOf = [this](int place) { return items[static_cast<std::size_t>(place)]; };
    EXPECT_EQ(browserOrder(6, wish, factsOf), QList<int>{1});
    wish.name = QStringLiteral("gnd");
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{1, 4}));
    EXPECT_EQ(browserOrder(6, wish, factsOf, [](int place) { return place != 1; }), QList<int>{4});
    BrowserWish picked;
    picked.facets.days = {20260517};
    EXPECT_FALSE(picked.isPlain());
}

TEST_F(BrowserOrder, LeftOut_KeepsWhatIsNotKnown) {
    EXPECT_EQ(order(ShowItems::NotSmall), (QList<int>{2, 3, 4, 5}));
    items[5].soundness->notOfItsType = true;
    EXPECT_EQ(order(ShowItems::OfItsType), (QList<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(order(ShowItems::UnknownLength), QList<int>());
}

TEST_F(BrowserOrder, UnreadableAndUnsavedNeedNoExamining) {
    items[2].readFailed = true;
    items[4].soundness->unreadable = true;
    EXPECT_EQ(order(ShowItems::Unreadable), (QList<int>{2, 4}));
    items[0].saved = items[3].saved = true;
    EXPECT_EQ(order(ShowItems::NotSaved), (QList<int>{1, 2, 4, 5}));
}

TEST_F(BrowserOrder, SortedBySoundnessSizeAndDate_UnknownLast) {
    EXPECT_EQ(order(ShowItems::All, SortItems::Soundness), (QList<int>{1, 4, 0, 3, 5, 2}));
    EXPECT_EQ(order(ShowItems::All, SortItems::Size), (QList<int>{3, 4, 5, 1, 0, 2}));
    items[4].soundness->taken = CivilTime{2026, 5, 17, 14, 3, 22, false};
    items[0].soundness->taken = CivilTime{2026, 5, 17, 14, 3, 21, false};
    items[3].soundness->taken = CivilTime{2025, 12, 31, 23, 59, 59, true};
    EXPECT_EQ(order(ShowItems::All, SortItems::DateTaken), (QList<int>{3, 0, 4, 1, 5, 2}));
    EXPECT_EQ(order(ShowItems::Complete, SortItems::Size), (QList<int>{4, 1}));
    items[4].soundness->checked = true;
    EXPECT_EQ(order(ShowItems::All, SortItems::Soundness), (QList<int>{4, 1, 0, 3, 5, 2}));
}

TEST(BrowserWish, KnowsWhatItTakes) {
    EXPECT_FALSE((BrowserWish{ShowItems::NotSaved, SortItems::AsFound}).needsSoundness());
    EXPECT_TRUE((BrowserWish{ShowItems::Complete, SortItems::AsFound}).needsSoundness());
    EXPECT_TRUE((BrowserWish{ShowItems::All, SortItems::Size}).needsSoundness());
    EXPECT_TRUE(BrowserWish().isPlain());
}

}  // namespace
}  // namespace vantor
