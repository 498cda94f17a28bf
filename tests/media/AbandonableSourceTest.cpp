// A reader that hangs holds up nobody, and one that does not hang loses nothing by the thread beside it.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "media/AbandonableSource.h"
#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kWindowSectors = WindowedReader::kWindowSectors;

// A gate that a read waits at until the test opens it.
class Gate {
  public:
    void wait() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_open; });
    }
    void open() {
        const std::lock_guard lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;
};

// What the thread and the test share; it outlives both.
struct Hanging {
    Gate gate;
    std::uint64_t hangsFrom = 0;
    std::atomic<bool> closed{false};
    std::atomic<int> reads{0};
};

class HangingSource : public BlockSource {
  public:
    explicit HangingSource(std::shared_ptr<Hanging> state) : m_state(std::move(state)) {}
    ~HangingSource() override { m_state->closed = true; }

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        ++m_state->reads;
        if (sector + into.size() / kSectorBytes > m_state->hangsFrom) {
            m_state->gate.wait();
        }
        ScriptedDrive::fill(sector, into.data());
        return static_cast<std::int64_t>(into.size());
    }
    bool usable() override { return true; }

  private:
    std::shared_ptr<Hanging> m_state;
};

template <class Condition>
void waitFor(Condition condition) {
    while (!condition()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

class ScriptedSourceThatTells : public ScriptedSource {
  public:
    ScriptedSourceThatTells(ScriptedDrive& medium, std::atomic<bool>& closed)
        : ScriptedSource(medium), m_closed(closed) {}
    ~ScriptedSourceThatTells() override { m_closed = true; }

  private:
    std::atomic<bool>& m_closed;
};

// Scans a scripted medium through a thread and comes back when that has let go of it.
std::vector<ScanStep> stepsThroughThread(ScriptedDrive& medium, std::uint64_t start, std::uint64_t end) {
    std::atomic<bool> closed{false};
    std::vector<ScanStep> steps;
    {
        WindowedReader reader(AbandonableSource::start(
            [&] { return std::make_unique<ScriptedSourceThatTells>(medium, closed); }, {}));
        steps = scanSteps(reader, start, end);
    }
    waitFor([&] { return closed.load(); });
    return steps;
}

TEST(AbandonableSource, EveryFault_SurfacesAsWithoutTheThread) {
    for (std::uint64_t fault = 0; fault < 3 * kWindowSectors; fault += fault % kWindowSectors < 4 ? 1 : 101) {
        ScriptedDrive medium;
        medium.sectors = 4 * kWindowSectors;
        medium.refusals[fault] = kAlways;
        medium.refusals[fault + 3] = kAlways;
        ScriptedDrive copy = medium;
        WindowedReader direct(std::make_unique<ScriptedSource>(copy));
        const auto expected = scanSteps(direct, 3, 4 * kWindowSectors);
        ASSERT_TRUE(stepsThroughThread(medium, 3, 4 * kWindowSectors) == expected) << "fault at " << fault;
        ASSERT_EQ(medium.refused, copy.refused) << "fault at " << fault;
    }
}

TEST(AbandonableSource, ReadsNoSectorTwiceAndNoneBeyondTheNextWindow) {
    ScriptedDrive medium;
    medium.sectors = 100 * kWindowSectors;
    stepsThroughThread(medium, 0, 10 * kWindowSectors);
    EXPECT_GE(medium.requests, 10U);
    EXPECT_LE(medium.requests, 11U);
}

TEST(AbandonableSource, MediumThatCannotBeOpened_GivesNothing) {
    EXPECT_EQ(AbandonableSource::start([] { return nullptr; }, {}), nullptr);
}

TEST(AbandonableSource, WhatOpeningTook_IsLetGoBeforeItIsRead) {
    ScriptedDrive medium;
    const auto taken = std::make_shared<int>(0);
    const auto source =
        AbandonableSource::start([&medium, taken] { return std::make_unique<ScriptedSource>(medium); }, {});
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(taken.use_count(), 1);
}

TEST(AbandonableSource, StopDuringAHangingRead_FailsReadAndSeekAndClosesWhenItReturns) {
    auto state = std::make_shared<Hanging>();
    state->hangsFrom = kWindowSectors;
    std::atomic<bool> stop{false};
    auto source = AbandonableSource::start([state] { return std::make_unique<HangingSource>(state); },
                                           [&stop] { return stop.load(); });
    ASSERT_NE(source, nullptr);
    auto reader = std::make_unique<WindowedReader>(std::move(source));
    for (std::uint64_t s = 0; s < kWindowSectors; ++s) {
        ASSERT_TRUE(reader->read());
    }
    std::atomic<bool> returned{false};
    std::thread scan([&] {
        EXPECT_FALSE(reader->read());
        EXPECT_FALSE(reader->seek(kWindowSectors));
        EXPECT_FALSE(reader->read());
        returned = true;
    });
    waitFor([&] { return state->reads >= 2; });
    EXPECT_FALSE(returned);
    stop = true;
    scan.join();
    EXPECT_EQ(reader->position(), kWindowSectors);
    EXPECT_EQ(state->reads, 2);
    reader.reset();
    EXPECT_FALSE(state->closed);  // the read still holds it
    state->gate.open();
    waitFor([&] { return state->closed.load(); });
}

TEST(AbandonableSource, StopDuringAReadThatReturnsInTime_LosesNothing) {
    auto state = std::make_shared<Hanging>();
    std::atomic<int> asked{0};
    auto source = AbandonableSource::start([state] { return std::make_unique<HangingSource>(state); },
                                           [&, state] {
                                               if (++asked == 2) {
                                                   state->gate.open();
                                               }
                                               return true;
                                           });
    ASSERT_NE(source, nullptr);
    WindowedReader reader(std::move(source));
    EXPECT_TRUE(reader.read());
    EXPECT_GE(asked, 2);
}

TEST(AbandonableSource, StopDuringAHangingOpen_GivesNothingAndClosesLater) {
    auto state = std::make_shared<Hanging>();
    auto source = AbandonableSource::start(
        [state]() -> std::unique_ptr<BlockSource> {
            state->gate.wait();
            return std::make_unique<HangingSource>(state);
        },
        [] { return true; });
    EXPECT_EQ(source, nullptr);
    state->gate.open();
    waitFor([&] { return state->closed.load(); });
    EXPECT_EQ(state->reads, 0);
}

TEST(AbandonableSource, ClosingWhileItReadsAhead_DoesNotWait) {
    auto state = std::make_shared<Hanging>();
    state->hangsFrom = 2 * kWindowSectors;
    {
        WindowedReader reader(
            AbandonableSource::start([state] { return std::make_unique<HangingSource>(state); }, {}));
        for (std::uint64_t s = 0; s < 2 * kWindowSectors; ++s) {
            ASSERT_TRUE(reader.read());
        }
        waitFor([&] { return state->reads >= 3; });
    }
    EXPECT_FALSE(state->closed);
    state->gate.open();
    waitFor([&] { return state->closed.load(); });
}

}  // namespace
}  // namespace vantor::test
