// Random scans with faults and stops: the real engine, over every reader, publishes what the plain one does.
#include <gtest/gtest.h>

#include <atomic>

#include "media/WindowedReader.h"
#include "tests/scan/PlainScan.h"
#include "tests/scan/RandomScans.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

// The same medium behind the windowed reader, faults and all.
class ScriptedBlocks : public BlockSource {
  public:
    explicit ScriptedBlocks(ScriptedMedium& medium) : m_medium(medium) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        std::size_t done = 0;
        for (; done < into.size(); done += kSectorBytes, ++sector) {
            if (sector >= m_medium.bytes.size() || m_medium.badForEver.contains(sector)) {
                break;
            }
            std::memcpy(into.data() + done, m_medium.bytes[sector].data(), kSectorBytes);
        }
        m_failed = done < into.size();
        return done == 0 ? -1 : static_cast<std::int64_t>(done);
    }

    bool usable() override { return !(m_failed && m_medium.seekAfterFailureFails); }

  private:
    ScriptedMedium& m_medium;
    std::atomic<bool> m_failed = false;
};

std::vector<plain::Item> publishedBy(const TestSession& session, bool photo) {
    std::vector<plain::Item> items;
    for (const HandedOver& item : session.handedOver) {
        if (!photo || !item.data.isEmpty()) {
            items.push_back({item.pass, item.name, item.uid, item.first, item.end, item.data});
        }
    }
    return items;
}

struct Scenario {
    plain::Pass pass;
    ScriptedMedium medium{0};
};

Scenario scenario(RandomScans& random, bool withFaults) {
    Scenario s;
    const std::size_t sectors = 1 + random.below(120);
    s.medium = random.medium(sectors, withFaults);
    s.pass.name = random.oneIn(3) ? "THD" : "GEN";
    s.pass.records = random.records(1 + random.below(12));
    s.pass.end = sectors + (random.oneIn(5) ? random.below(8) : 0);
    s.pass.start = random.oneIn(2) ? 0 : random.below(s.pass.end);
    if (random.oneIn(3)) {
        s.pass.stopAt = s.pass.start + random.below(s.pass.end - s.pass.start);
    }
    return s;
}

// The engine's stop request stands before the read of a sector when it was made during the one before.
void requestStop(TestSession& session, const plain::Pass& pass) {
    if (!pass.stopAt) {
        return;
    }
    if (*pass.stopAt == pass.start) {
        session.stop_now = 1;
    } else {
        session.stopBeforeRead(*pass.stopAt - pass.start - 1);
    }
}

}  // namespace

// One sector a read, and read ahead and screened in small windows: nothing that is published tells which.
class ScanModel : public testing::TestWithParam<bool> {
  protected:
    void readAsAsked(TestSession& session, ScriptedMedium& medium) const {
        if (GetParam()) {
            session.setMediumOpener([&medium](const QString&) { return openReadAhead(medium); });
        }
    }
    void expectScreenUsed() const {
        EXPECT_EQ(HookedReader::passedOver() - m_before > 1000, GetParam()) << "sectors passed over";
    }

  private:
    const std::uint64_t m_before = HookedReader::passedOver();
};

INSTANTIATE_TEST_SUITE_P(Readings, ScanModel, testing::Bool(), [](const auto& ahead) {
    return std::string(ahead.param ? "ReadAhead" : "OneByOne");
});

TEST_P(ScanModel, PhotoScanAgreesWithThePlainScan) {
    RandomScans random(1);
    std::size_t items = 0;
    for (int round = 0; round < 1500; ++round) {
        Scenario s = scenario(random, round % 2 == 1);
        const plain::Result expected = plain::photoPass(s.medium, s.pass, 0);
        TestSession session(s.medium);
        readAsAsked(session, s.medium);
        (s.pass.name == "GEN" ? session.Ext_Array : session.Adv_Ext_Array) = s.pass.records;
        session.setRange(s.pass.start, s.pass.end);
        requestStop(session, s.pass);
        const bool returned = session.Photo_Recovey_Mode(s.pass.name);
        ASSERT_EQ(publishedBy(session, true), expected.items) << "round " << round;
        ASSERT_EQ(returned, expected.returned) << "round " << round;
        ASSERT_EQ(session.for_index, expected.forIndex) << "round " << round;
        ASSERT_EQ(session.lastOutcome() == PassOutcome::Stopped, expected.stopped) << "round " << round;
        items += expected.items.size();
    }
    EXPECT_GT(items, 3000U);
    expectScreenUsed();
}

TEST_P(ScanModel, RawScanAgreesWithThePlainScan) {
    RandomScans random(2);
    std::size_t items = 0;
    for (int round = 0; round < 1500; ++round) {
        Scenario s = scenario(random, round % 2 == 1);
        TestSession session(s.medium);
        readAsAsked(session, s.medium);
        session.choose(s.pass.name == "GEN" ? s.pass.records : QStringList(),
                       s.pass.name == "THD" ? s.pass.records : QStringList());
        std::map<QString, std::uint64_t> counts;
        for (const ResultRow& row : session.resultRows()) {
            counts[row["FileTypes_Hidden"]] = 0;
        }
        const plain::Result expected = plain::rawPass(s.medium, s.pass, counts);
        session.setRange(s.pass.start, s.pass.end);
        requestStop(session, s.pass);
        const bool returned = session.Raw_File_Recovey_Mode(s.pass.name);
        ASSERT_EQ(publishedBy(session, false), expected.items) << "round " << round;
        ASSERT_EQ(returned, expected.returned) << "round " << round;
        ASSERT_EQ(session.for_index, expected.forIndex) << "round " << round;
        for (const ResultRow& row : session.resultRows()) {
            ASSERT_EQ(static_cast<std::uint64_t>(countOf(row)), counts[row["FileTypes_Hidden"]])
                << "round " << round;
        }
        items += expected.items.size();
    }
    EXPECT_GT(items, 3000U);
    expectScreenUsed();
}

TEST(ScanProperty, WindowsChangeNothingThatIsPublished) {
    RandomScans random(3);
    for (int round = 0; round < 300; ++round) {
        Scenario s = scenario(random, true);
        s.medium.badTimes.clear();  // how often a place is asked is the reader's affair
        // Longer than a window, so that its edges and the single reads behind a failure come into play.
        const std::size_t sectors = 600 + random.below(900);
        s.medium.bytes.resize(sectors);
        for (auto& bytes : s.medium.bytes) {
            bytes = random.sector();
        }
        for (int i = 0; i < 4; ++i) {
            s.medium.badForEver.insert(random.below(sectors));
        }
        s.pass.start = random.below(sectors);
        s.pass.end = sectors;
        s.pass.stopAt.reset();
        const plain::Result expected = plain::photoPass(s.medium, s.pass, 0);
        TestSession session(s.medium);
        (s.pass.name == "GEN" ? session.Ext_Array : session.Adv_Ext_Array) = s.pass.records;
        session.setRange(s.pass.start, s.pass.end);
        session.setMediumOpener([&](const QString&) {
            return std::make_unique<WindowedReader>(std::make_unique<ScriptedBlocks>(s.medium));
        });
        ASSERT_EQ(session.Photo_Recovey_Mode(s.pass.name), expected.returned) << "round " << round;
        ASSERT_EQ(publishedBy(session, true), expected.items) << "round " << round;
    }
}

// Read ahead, sectors are screened on other threads before the scan sees them.
TEST(ScanProperty, ReadingAheadChangesNothingThatIsPublished) {
    RandomScans random(4);
    std::size_t items = 0;
    for (int round = 0; round < 120; ++round) {
        Scenario s = scenario(random, false);
        const std::size_t sectors = 3000 + random.below(4000);
        s.medium.bytes.resize(sectors);
        for (auto& bytes : s.medium.bytes) {
            // Long stretches between headers, some of them zeros.
            bytes = random.oneIn(20) ? random.sector() : decltype(random.sector()){};
            if (random.oneIn(2)) {
                bytes[300] = 1;
            }
        }
        for (std::size_t faults = random.below(3); faults > 0; --faults) {
            s.medium.badForEver.insert(random.below(sectors));
        }
        s.pass.start = random.below(sectors / 2);
        s.pass.end = sectors;
        s.pass.stopAt.reset();
        TestSession session(s.medium);
        session.setMediumOpener([&](const QString&) {
            return std::make_unique<WindowedReader>(std::make_unique<ScriptedBlocks>(s.medium),
                                                    WindowedReader::Fetching::Ahead);
        });
        const bool photo = round % 2 == 0;
        plain::Result expected;
        bool returned = false;
        if (photo) {
            (s.pass.name == "GEN" ? session.Ext_Array : session.Adv_Ext_Array) = s.pass.records;
            session.setRange(s.pass.start, s.pass.end);
            expected = plain::photoPass(s.medium, s.pass, 0);
            returned = session.Photo_Recovey_Mode(s.pass.name);
        } else {
            session.choose(s.pass.name == "GEN" ? s.pass.records : QStringList(),
                           s.pass.name == "THD" ? s.pass.records : QStringList());
            std::map<QString, std::uint64_t> counts;
            for (const ResultRow& row : session.resultRows()) {
                counts[row["FileTypes_Hidden"]] = 0;
            }
            session.setRange(s.pass.start, s.pass.end);
            expected = plain::rawPass(s.medium, s.pass, counts);
            returned = session.Raw_File_Recovey_Mode(s.pass.name);
        }
        ASSERT_EQ(publishedBy(session, photo), expected.items) << "round " << round;
        ASSERT_EQ(returned, expected.returned) << "round " << round;
        items += expected.items.size();
    }
    EXPECT_GT(items, 1000U);
}

}  // namespace vantor
