// Reading ahead shows nowhere but in its speed either.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <random>
#include <thread>

#include "media/ReadAhead.h"
#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kAheadWindow = WindowedReader::kWindowSectors;

std::vector<ScanStep> stepsAhead(ScriptedDrive& medium, std::uint64_t start, std::uint64_t end) {
    WindowedReader reader(std::make_unique<ScriptedSource>(medium), WindowedReader::Fetching::Ahead);
    return scanSteps(reader, start, end);
}

std::vector<ScanStep> stepsOneByOne(ScriptedDrive medium, std::uint64_t start, std::uint64_t end) {
    PlainReader reader(medium);
    return scanSteps(reader, start, end);
}

// A medium that takes its time over one refused window: others are read meanwhile.
class SlowRefusal : public BlockSource {
  public:
    explicit SlowRefusal(std::uint64_t sector) : m_refused(sector) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        std::unique_lock lock(m_mutex);
        if (sector == m_refused) {
            // Long enough for every window that may be asked for meanwhile.
            m_asked.wait_for(lock, std::chrono::milliseconds(200),
                             [&] { return m_furthest > m_refused + 40 * kAheadWindow; });
            return -1;
        }
        m_furthest = std::max(m_furthest, sector);
        for (std::size_t n = 0; n < into.size() / kSectorBytes; ++n) {
            ScriptedDrive::fill(sector + n, into.data() + n * kSectorBytes);
        }
        m_asked.notify_all();
        return static_cast<std::int64_t>(into.size());
    }
    bool usable() override { return true; }

  private:
    const std::uint64_t m_refused;
    std::mutex m_mutex;
    std::condition_variable m_asked;
    std::uint64_t m_furthest = 0;
};

// Two bad sectors in windows that follow each other; the first of these windows is answered behind the
// second.
class TwoRefusals : public BlockSource {
  public:
    static constexpr std::uint64_t kSectors = 96;

    TwoRefusals(std::uint64_t first, std::uint64_t second) : m_first(first), m_second(second) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        std::unique_lock lock(m_mutex);
        const std::uint64_t wanted = std::min<std::uint64_t>(into.size() / kSectorBytes, kSectors - sector);
        const auto holds = [&](std::uint64_t bad) { return sector <= bad && bad < sector + wanted; };
        if (holds(m_first)) {
            m_answered.wait(lock, [this] { return !refusals.empty(); });
        }
        if (!holds(m_first) && !holds(m_second)) {
            std::fill_n(into.data(), wanted * kSectorBytes, std::uint8_t{1});
            return static_cast<std::int64_t>(wanted * kSectorBytes);
        }
        const std::uint64_t bad = holds(m_first) ? m_first : m_second;
        ++refusals[bad];
        m_answered.notify_all();
        std::fill_n(into.data(), (bad - sector) * kSectorBytes, std::uint8_t{1});
        return bad == sector ? -1 : static_cast<std::int64_t>((bad - sector) * kSectorBytes);
    }
    bool usable() override { return true; }
    std::uint64_t sectors() const override { return kSectors; }

    std::map<std::uint64_t, int> refusals;  // by sector

  private:
    const std::uint64_t m_first, m_second;
    std::mutex m_mutex;
    std::condition_variable m_answered;
};

}  // namespace

TEST(ReadAhead, WhatWasRefusedInAWindowThatNobodyTook_IsAskedForOnceMoreOnly) {
    if (std::thread::hardware_concurrency() < 2) {
        GTEST_SKIP() << "nothing is read ahead on one processor";
    }
    constexpr std::size_t kShortWindow = 8;
    // Within the next window, and as its first, of which a refusal does not say where it was.
    for (const std::uint64_t second : {36U, 32U}) {
        SCOPED_TRACE(second);
        auto source = std::make_unique<TwoRefusals>(26, second);
        const TwoRefusals& medium = *source;
        WindowedReader reader(std::move(source), WindowedReader::Fetching::Ahead, kShortWindow);
        std::vector<std::uint64_t> failed;
        for (std::uint64_t sector = 0; sector < TwoRefusals::kSectors; ++sector) {
            if (!reader.read()) {
                failed.push_back(sector);
                ASSERT_TRUE(reader.seek(sector + 1));
            }
        }
        EXPECT_EQ(failed, (std::vector<std::uint64_t>{26, second}));
        EXPECT_EQ(medium.refusals.at(26), 2);
        EXPECT_EQ(medium.refusals.at(second), 2);
    }
}

TEST(ReadAhead, WhileAWindowIsRefused_TheLastGoodSectorStaysInPlace) {
    constexpr std::uint64_t kRefused = 10 * kAheadWindow;
    WindowedReader reader(std::make_unique<SlowRefusal>(kRefused), WindowedReader::Fetching::Ahead);
    for (std::uint64_t sector = 0; sector < kRefused; ++sector) {
        ASSERT_TRUE(reader.read());
    }
    ASSERT_FALSE(reader.read());
    std::uint64_t number = 0;
    std::memcpy(&number, reader.current(), sizeof number);
    EXPECT_EQ(number, kRefused - 1);
}

TEST(ReadAhead, HealthyMedium_ComesWholeAndInOrder) {
    ScriptedDrive medium;
    medium.sectors = 40 * kAheadWindow + 77;
    const auto expected = stepsOneByOne(medium, 0, medium.sectors);
    EXPECT_TRUE(stepsAhead(medium, 0, medium.sectors) == expected);
    EXPECT_LE(medium.requests, 40 + 2 * 9 + kAheadWindow) << "whole windows, but for the last";
}

TEST(ReadAhead, LastingFaultsAnywhere_SurfaceWhereSingleReadsMeetThem) {
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        ScriptedDrive medium;
        medium.sectors = 12 * kAheadWindow + random() % kAheadWindow;
        medium.wholeRequestFails = random() % 2 == 0;
        for (std::uint32_t faults = random() % 5; faults > 0; --faults) {
            medium.refusals[random() % medium.sectors] = kAlways;
        }
        if (random() % 4 == 0) {
            medium.goneFrom = random() % medium.sectors;
        }
        const std::uint64_t start = random() % (2 * kAheadWindow);
        const std::uint64_t end = medium.sectors + random() % 20;
        const auto expected = stepsOneByOne(medium, start, end);
        ASSERT_TRUE(stepsAhead(medium, start, end) == expected) << "round " << round;
    }
}

TEST(ReadAhead, SeeksInTheMiddle_GiveTheSectorAskedFor) {
    ScriptedDrive medium;
    medium.sectors = 64 * kAheadWindow;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium), WindowedReader::Fetching::Ahead);
    std::mt19937 random(6);
    for (int round = 0; round < 200; ++round) {
        std::uint64_t sector = random() % (60 * kAheadWindow);
        ASSERT_TRUE(reader.seek(sector));
        for (std::uint64_t n = random() % (4 * kAheadWindow); n > 0; --n, ++sector) {
            ASSERT_TRUE(reader.read());
            std::uint64_t number = 0;
            std::memcpy(&number, reader.current(), sizeof number);
            ASSERT_EQ(number, sector);
        }
    }
}

TEST(ReadAhead, FetchedSectorsReadTogether_AreThoseThatSingleReadsGive) {
    ScriptedDrive medium;
    medium.sectors = 20 * kAheadWindow + 3;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium), WindowedReader::Fetching::Ahead);
    std::mt19937 random(8);
    std::vector<std::uint8_t> bytes(300 * kSectorBytes);
    std::uint64_t together = 0;
    for (std::uint64_t sector = 0; sector < medium.sectors;) {
        ASSERT_TRUE(reader.read());
        const std::uint64_t most = random() % 300;
        const std::uint64_t count = reader.readFetched(bytes.data(), most);
        ASSERT_LE(count, most);
        ASSERT_EQ(reader.position(), sector + 1 + count);
        for (std::uint64_t n = 0; n <= count; ++n) {
            std::uint64_t number = 0;
            const std::uint8_t* const last = reader.current();
            std::memcpy(&number, n < count ? bytes.data() + n * kSectorBytes : last, sizeof number);
            ASSERT_EQ(number, sector + std::min(n + 1, count));
        }
        sector += 1 + count;
        together += count;
    }
    EXPECT_GT(together, medium.sectors * 9 / 10);
}

TEST(ReadAhead, PauseAndDestructionWaitForNobody) {
    ScriptedDrive medium;
    medium.sectors = std::uint64_t{1} << 40;
    ScriptedSource source(medium);
    for (int round = 0; round < 100; ++round) {
        ReadAhead ahead(source, kAheadWindow * kSectorBytes);
        ahead.start(0, nullptr);
        EXPECT_TRUE(ahead.isAt(0));
        ahead.takeFrom(0);
        EXPECT_TRUE(ahead.isAt(kAheadWindow));
        ahead.pause();
        EXPECT_FALSE(ahead.isAt(kAheadWindow));
    }
}

}  // namespace vantor::test
