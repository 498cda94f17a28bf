// Both passes over one reading: what is published is what two readings publish, and the medium is asked once.
#include <gtest/gtest.h>

#include <map>
#include <mutex>
#include <set>

#include "media/WindowedReader.h"
#include "results/PreviewCopy.h"
#include "tests/scan/PlainScan.h"
#include "tests/scan/RandomScans.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

// What a medium was asked for, by all its readers.
struct Asked {
    std::mutex lock;
    std::uint64_t sectors = 0;              // that arrived
    std::map<std::uint64_t, int> refusals;  // how often each bad sector was part of a refused request
};

class CountedBlocks : public BlockSource {
  public:
    CountedBlocks(const ScriptedMedium& medium, Asked& asked)
        : m_bytes(medium), m_medium(medium), m_asked(asked) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const auto bad = m_medium.badForEver.lower_bound(sector);
        const std::uint64_t wanted = into.size() / kSectorBytes;
        const bool refused = bad != m_medium.badForEver.end() && *bad < sector + wanted;
        const std::uint64_t good = refused ? *bad - sector : wanted;
        const std::int64_t got = good == 0 ? -1 : m_bytes.readAt(sector, into.first(good * kSectorBytes));
        const std::lock_guard lock(m_asked.lock);
        m_asked.sectors += got > 0 ? static_cast<std::uint64_t>(got) / kSectorBytes : 0;
        if (refused) {
            ++m_asked.refusals[*bad];
        }
        return got;
    }
    bool usable() override { return true; }
    std::uint64_t sectors() const override { return m_medium.bytes.size(); }

  private:
    ScriptedBytes m_bytes;
    const ScriptedMedium& m_medium;
    Asked& m_asked;
};

std::vector<plain::Item> listed(const TestSession& session, bool photo) {
    std::vector<plain::Item> items;
    for (const HandedOver& item : session.handedOver) {
        if (!photo || !item.data.isEmpty()) {
            items.push_back({item.pass, item.name, item.uid, item.first, item.end, item.data});
        }
    }
    return items;
}

struct Search {
    QStringList general, thorough;
    ScriptedMedium medium{0};
    std::uint64_t start = 0;
    std::uint64_t end = 0;
};

Search randomSearch(RandomScans& random, bool withFaults) {
    Search search;
    const std::size_t sectors = 1 + random.below(160);
    search.medium = random.medium(sectors, withFaults);
    search.general = random.records(1 + random.below(8));
    search.thorough = random.oneIn(12) ? QStringList() : random.records(1 + random.below(8));
    search.end = sectors + (random.oneIn(6) ? random.below(6) : 0);
    search.start = random.oneIn(2) ? 0 : random.below(search.end);
    return search;
}

// The two passes as two readings do them.
std::vector<plain::Item> expectedOf(const Search& search, bool photo) {
    ScriptedMedium medium = search.medium;
    std::map<QString, std::uint64_t> counts;
    for (const QStringList* records : {&search.general, &search.thorough}) {
        for (qsizetype n = 0; n < records->size(); n += 7) {
            counts[records->at(n)] = 0;
        }
    }
    const auto run = [&](const char* name, const QStringList& records) {
        const plain::Pass pass{name, records, search.start, search.end, {}};
        plain::Result result =
            photo ? plain::photoPass(medium, pass, 0) : plain::rawPass(medium, pass, counts);
        medium.badTimes = result.badTimesLeft;
        return result;
    };
    plain::Result general = run("GEN", search.general);
    std::vector<plain::Item> items = std::move(general.items);
    if (general.returned && (photo || !search.thorough.isEmpty())) {
        for (plain::Item& item : run("THD", search.thorough).items) {
            items.push_back(std::move(item));
        }
    }
    return items;
}

void runBoth(TestSession& session, const Search& search, bool photo) {
    if (photo) {
        session.Ext_Array = search.general;
        session.Adv_Ext_Array = search.thorough;
    } else {
        session.choose(search.general, search.thorough);
        session.thorough = false;  // chosen records are searched for all the same
    }
    session.setRange(search.start, search.end);
    photo ? session.Photo_Rec_Thread() : session.Raw_File_Rec_Thread();
}

// A card of long quiet stretches, as cards are.
Search longSearch(RandomScans& random, std::size_t sectors) {
    Search search;
    search.general = recordsOf({{"JPG", "4101", "1", "20000000"}});
    search.thorough = recordsOf({{"TIF", "4102", "1", "20000000"}, {"GIF", "4103", "3", "20000000"}});
    search.medium = dataMedium(sectors);
    for (std::size_t at = random.below(400); at < sectors; at += 200 + random.below(400)) {
        search.medium.put(at, random.oneIn(2) ? "\x41\x01" : "\x41\x02");
    }
    search.end = sectors;
    return search;
}

}  // namespace

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

TEST_P(OneReading, LongSearches_PublishWhatTwoReadingsDo_AndReadTheMediumOnce) {
    RandomScans random(12);
    for (int round = 0; round < 30; ++round) {
        Search search = longSearch(random, 20000);
        for (std::size_t bad = round % 3; bad > 0; --bad) {
            const std::uint64_t first = random.below(20000);
            for (std::uint64_t n = 0; n < 1 + random.below(40); ++n) {
                search.medium.badForEver.insert(first + n);
            }
        }
        const bool photo = round % 2 == 0;
        Asked asked;
        TestSession session(search.medium);
        session.photoBytes = TestSession::PhotoBytes::First;
        session.setMediumOpener([&](const QString&) {
            return std::make_unique<WindowedReader>(std::make_unique<CountedBlocks>(search.medium, asked),
                                                    GetParam());
        });
        runBoth(session, search, photo);
        std::vector<plain::Item> expected = expectedOf(search, photo);
        std::vector<plain::Item> found = listed(session, photo);
        for (std::vector<plain::Item>* items : {&expected, &found}) {
            for (plain::Item& item : *items) {
                item.data.truncate(kSectorBytes);
            }
        }
        ASSERT_EQ(found, expected) << "round " << round;
        ASSERT_EQ(
            std::count_if(found.begin(), found.end(), [](const auto& i) { return i.pass == "THD"; }) > 5,
            true);
        EXPECT_LE(static_cast<double>(asked.sectors), 1.05 * 20000) << "round " << round;
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
