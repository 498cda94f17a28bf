// Which items are shown, and in which order.
#include <gtest/gtest.h>

#include <cstdint>
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

TEST_F(BrowserOrder, WhatIsNotAdmitted_IsLeftOut) {
    BrowserWish named;
    named.name = QStringLiteral("img_04");
    EXPECT_FALSE(named.isPlain());
    EXPECT_FALSE(named.needsSoundness());
    const auto factsOf = [this](int place) { return items[static_cast<std::size_t>(place)]; };
    EXPECT_EQ(browserOrder(6, named, factsOf, [](int place) { return place == 1 || place == 4; }),
              (QList<int>{1, 4}));
    named.show = ShowItems::NotSmall;
    EXPECT_EQ(browserOrder(6, named, factsOf, [](int place) { return place == 1 || place == 4; }),
              QList<int>{4});
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

TEST_F(BrowserOrder, TheOtherWayRound_WhatIsNotKnownStaysLast) {
    const auto factsOf = [this](int place) { return items[static_cast<std::size_t>(place)]; };
    BrowserWish wish;
    wish.sort = SortItems::Pixels;
    EXPECT_TRUE(wish.needsSoundness());
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{0, 3, 4, 1, 5, 2})) << "the largest first";
    wish.reversed = true;
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{1, 4, 3, 0, 5, 2}));
    wish.sort = SortItems::AsFound;
    EXPECT_FALSE(wish.isPlain());
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{5, 4, 3, 2, 1, 0}));
}

TEST_F(BrowserOrder, ByLength_TheLongestFirst_ThenThePictures) {
    const auto factsOf = [this](int place) { return items[static_cast<std::size_t>(place)]; };
    items[1].soundness->durationMs = 5000;
    items[5].soundness->durationMs = 65'000;
    BrowserWish wish;
    wish.sort = SortItems::Length;
    EXPECT_TRUE(wish.needsSoundness());
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{5, 1, 0, 3, 4, 2}));
    items[4].soundness->width = 0;
    wish.reversed = true;
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{3, 0, 1, 5, 4, 2}))
        << "what tells neither stays last";
}

TEST_F(BrowserOrder, NamesTypesAndPlaces_NeedNoLookAtTheItems) {
    const auto factsOf = [this](int place) { return items[static_cast<std::size_t>(place)]; };
    items[2].name = QStringLiteral("b.jpg");
    items[4].name = QStringLiteral("A.jpg");
    items[5].place = 7;
    items[1].type = QStringLiteral("TIF");
    items[0].soundness->camera = QStringLiteral("Canon");
    BrowserWish wish;
    wish.sort = SortItems::Name;
    EXPECT_FALSE(wish.needsSoundness());
    EXPECT_EQ(browserOrder(6, wish, factsOf), (QList<int>{0, 1, 3, 5, 4, 2}));
    wish.sort = SortItems::Place;
    EXPECT_FALSE(wish.needsSoundness());
    EXPECT_EQ(browserOrder(6, wish, factsOf).constLast(), 5);
    wish.sort = SortItems::Type;
    EXPECT_FALSE(wish.needsSoundness());
    EXPECT_EQ(browserOrder(6, wish, factsOf).constLast(), 1);
    wish.sort = SortItems::Camera;
    EXPECT_TRUE(wish.needsSoundness());
    EXPECT_EQ(browserOrder(6, wish, factsOf).constFirst(), 0);
    EXPECT_EQ(browserOrder(6, wish, factsOf).constLast(), 2) << "nothing at all is known of it";
}

// Of what alphabet the names are, and where they differ.
TEST_F(BrowserOrder, NamesStandAsTheirTextsDo_BeyondTheirFirstLettersAndTheLatinOnes) {
    const QString letters = QStringLiteral("aAz0\u00E4\u00FF\u0100\u65E5");
    std::vector<QString> names;
    std::uint32_t state = 7;
    for (int i = 0; i < 3000; ++i) {
        QString name;
        for (int length = i % 11; length > 0; --length) {
            state = state * 1'664'525 + 1'013'904'223;
            name += letters.at(static_cast<qsizetype>(state >> 29));
        }
        names.push_back(name);
    }
    BrowserWish wish;
    wish.sort = SortItems::Name;
    const QList<int> sorted = browserOrder(static_cast<int>(names.size()), wish, [&](int place) {
        ItemFacts facts;
        facts.name = names[static_cast<std::size_t>(place)];
        return facts;
    });
    ASSERT_EQ(sorted.size(), 3000);
    for (qsizetype i = 1; i < sorted.size(); ++i) {
        const QString before = names[static_cast<std::size_t>(sorted[i - 1])].toCaseFolded();
        const QString name = names[static_cast<std::size_t>(sorted[i])].toCaseFolded();
        EXPECT_TRUE(before < name || (before == name && sorted[i - 1] < sorted[i]))
            << before.toStdString() << " stands before " << name.toStdString();
    }
}

}  // namespace
}  // namespace vantor
