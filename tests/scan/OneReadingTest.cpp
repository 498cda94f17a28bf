// Both passes over one reading: what is published is what two readings publish, and the medium is asked once.
#include <gtest/gtest.h>

#include "results/PreviewCopy.h"
#include "tests/scan/BothPasses.h"

namespace vantor {

class OneReading : public testing::TestWithParam<WindowedReader::Fetching> {};

INSTANTIATE_TEST_SUITE_P(Readings, OneReading,
                         testing::Values(WindowedReader::Fetching::WhenAsked,
                                         WindowedReader::Fetching::Ahead),
                         [](const auto& fetching) {
                             return std::string(
                                 fetching.param == WindowedReader::Fetching::Ahead ? "Ahead" : "WhenAsked");
                         });

TEST_P(OneReading, RandomSearches_PublishWhatTwoReadingsDo) {
    RandomScans random(11);
    std::size_t items = 0;
    for (int round = 0; round < 3000; ++round) {
        const bool photo = round % 2 == 0;
        Search search = randomSearch(random, round % 3 != 0);
        const std::vector<plain::Item> expected = expectedOf(search, photo);
        TestSession session(search.medium);
        session.setMediumOpener([&](const QString&) { return openReadAhead(search.medium, GetParam()); });
        runBoth(session, search, photo);
        ASSERT_EQ(listed(session, photo), expected) << "round " << round;
        items += expected.size();
    }
    EXPECT_GT(items, 6000U);
}

// Sectors; so many that a window which is read twice at the end of a search ahead of it is no matter.
constexpr std::uint64_t kLongSearch = 50'000;

TEST_P(OneReading, LongSearches_PublishWhatTwoReadingsDo_AndReadTheMediumOnce) {
    RandomScans random(12);
    for (int round = 0; round < 20; ++round) {
        Search search = longSearch(random, kLongSearch);
        for (std::size_t bad = round % 3; bad > 0; --bad) {
            const std::uint64_t first = random.below(kLongSearch);
            for (std::uint64_t n = 0; n < 1 + random.below(40); ++n) {
                search.medium.badForEver.insert(first + n);
            }
        }
        const bool photo = round % 2 == 0;
        Asked asked;
        TestSession session(search.medium);
        const bool atHand = round % 4 < 2;
        session.photoBytes = atHand ? TestSession::PhotoBytes::AtHand : TestSession::PhotoBytes::First;
        session.setMediumOpener([&](const QString&) {
            return std::make_unique<WindowedReader>(std::make_unique<CountedBlocks>(search.medium, asked),
                                                    GetParam());
        });
        runBoth(session, search, photo);
        std::vector<plain::Item> expected = expectedOf(search, photo);
        std::vector<plain::Item> found = listed(session, photo);
        for (std::vector<plain::Item>* items : {&expected, &found}) {
            for (plain::Item& item : *items) {
                if (!atHand || item.pass == "THD") {
                    item.data.truncate(kSectorBytes);
                }
            }
        }
        ASSERT_EQ(found, expected) << "round " << round;
        ASSERT_EQ(
            std::count_if(found.begin(), found.end(), [](const auto& i) { return i.pass == "THD"; }) > 5,
            true);
        EXPECT_LE(static_cast<double>(asked.sectors), 1.05 * kLongSearch) << "round " << round;
        if (GetParam() == WindowedReader::Fetching::WhenAsked) {
            EXPECT_LE(asked.sectors, kLongSearch) << "the later pass looks at what the first one kept";
        }
        for (const auto& [sector, times] : asked.refusals) {
            EXPECT_LE(times, 2) << "sector " << sector << ", round " << round;
        }
    }
}

TEST(OneReadingOfBadSectors, WhateverReadsBehindTheSearch_AsksForThemNoMore) {
    RandomScans random(13);
    Search search = longSearch(random, 5000);
    search.medium.badForEver = {700, 701, 702, 1500, 1502, 4000};
    Asked asked;
    TestSession session(search.medium);
    const MediumOpener open = [&](const QString&) {
        return std::make_unique<WindowedReader>(std::make_unique<CountedBlocks>(search.medium, asked));
    };
    session.setMediumOpener(open);
    runBoth(session, search, true);
    const MediumOpener openAgain = session.knowingRefusals(open);
    const auto copyAll = [&] {
        const std::atomic<int> neverStop{0};
        const auto medium = openAgain({});
        EXPECT_FALSE(
            copyPreviewSectors(*medium, 0, 5000, neverStop, [](const std::uint8_t*) { return true; }));
    };
    copyAll();
    copyAll();
    ASSERT_EQ(asked.refusals.size(), search.medium.badForEver.size());
    for (const auto& [sector, times] : asked.refusals) {
        EXPECT_EQ(times, 2) << "sector " << sector;
    }

    session.forgetRefusals();
    copyAll();
    for (const auto& [sector, times] : asked.refusals) {
        EXPECT_EQ(times, 4) << "sector " << sector << ", which the user wants to be tried again";
    }
    runBoth(session, search, true);
    EXPECT_EQ(asked.refusals[700], 6) << "a new search asks for itself";
}

}  // namespace vantor
