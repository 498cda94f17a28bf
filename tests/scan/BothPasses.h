// Searches of two passes over media in memory, what they publish by the plain scans, and what they ask of the
// medium.
#pragma once

#include <map>
#include <mutex>
#include <vector>

#include "media/WindowedReader.h"
#include "tests/scan/PlainScan.h"
#include "tests/scan/RandomScans.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/support/TestSession.h"

namespace vantor {

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

inline std::vector<plain::Item> listed(const TestSession& session, bool photo) {
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

inline Search randomSearch(RandomScans& random, bool withFaults) {
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
inline std::vector<plain::Item> expectedOf(const Search& search, bool photo) {
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

inline void runBoth(TestSession& session, const Search& search, bool photo) {
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
inline Search longSearch(RandomScans& random, std::size_t sectors) {
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

}  // namespace vantor
