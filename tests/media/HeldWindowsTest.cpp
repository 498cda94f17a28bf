// What a reader was given last serves it again.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <random>
#include <string>
#include <thread>

#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {
namespace {

constexpr std::size_t kHeldWindow = 8;  // sectors

// Counts what is asked for, and leaves rubbish where nothing arrived.
class CountedSource : public ScriptedSource {
  public:
    CountedSource(ScriptedDrive& medium, std::atomic<std::uint64_t>& asked)
        : ScriptedSource(medium), m_asked(asked) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        m_asked += into.size() / kSectorBytes;
        const std::int64_t length = ScriptedSource::readAt(sector, into);
        std::ranges::fill(into.subspan(static_cast<std::size_t>(std::max<std::int64_t>(length, 0))),
                          std::uint8_t{0xEE});
        return length;
    }

  private:
    std::atomic<std::uint64_t>& m_asked;
};

std::uint64_t currentSector(const SectorReader& reader) {
    std::uint64_t number = 0;
    std::memcpy(&number, reader.current(), sizeof number);
    return number;
}

}  // namespace

class HeldWindows : public testing::TestWithParam<WindowedReader::Fetching> {
  protected:
    std::unique_ptr<WindowedReader> open() {
        return std::make_unique<WindowedReader>(std::make_unique<CountedSource>(m_medium, m_asked),
                                                GetParam(), kHeldWindow);
    }

    ScriptedDrive m_medium;
    std::atomic<std::uint64_t> m_asked{0};  // sectors
};

INSTANTIATE_TEST_SUITE_P(Readings, HeldWindows,
                         testing::Values(WindowedReader::Fetching::WhenAsked,
                                         WindowedReader::Fetching::Ahead),
                         [](const auto& fetching) {
                             return std::string(
                                 fetching.param == WindowedReader::Fetching::Ahead ? "Ahead" : "WhenAsked");
                         });

// As items are saved: each is read to somewhat behind its end, and the next begins there.
TEST_P(HeldWindows, ItemsInARow_AreAskedForOnce) {
    m_medium.sectors = 8000;
    std::mt19937 random(3);
    {
        const auto reader = open();
        for (std::uint64_t begin = 0, next = 0; begin + 60 < m_medium.sectors; begin = next) {
            next = begin + 1 + random() % 40;
            ASSERT_TRUE(reader->seek(begin));
            for (std::uint64_t sector = begin; sector < next + kHeldWindow; ++sector) {
                ASSERT_TRUE(reader->read());
                ASSERT_EQ(currentSector(*reader), sector);
            }
        }
    }
    EXPECT_LE(m_asked, m_medium.sectors + 20 * kHeldWindow);
}

// The next begins within what was fetched ahead meanwhile.
TEST_P(HeldWindows, ItemsWithGaps_AreAskedForOnce) {
    m_medium.sectors = 8000;
    {
        const auto reader = open();
        for (std::uint64_t begin = 0; begin + 60 < m_medium.sectors; begin += 35) {
            ASSERT_TRUE(reader->seek(begin));
            for (std::uint64_t sector = begin; sector < begin + 20; ++sector) {
                ASSERT_TRUE(reader->read());
                ASSERT_EQ(currentSector(*reader), sector);
            }
            std::this_thread::yield();
        }
    }
    EXPECT_LE(m_asked, m_medium.sectors + 20 * kHeldWindow);
}

TEST_P(HeldWindows, WhatIsPassedOver_CountsAsRefusedAsItDoesElsewhere) {
    for (const std::uint64_t bad : {26U, 24U, 31U}) {
        m_medium = {};
        m_medium.sectors = 200;
        m_medium.refusals[bad] = kAlways;
        m_asked = 0;
        const auto reader = open();
        for (std::uint64_t sector = 0; sector < 16; ++sector) {
            ASSERT_TRUE(reader->read());
        }
        // Until the window with the bad sector was refused ahead of time, where anything is.
        for (int n = 0; n < 200 && GetParam() == WindowedReader::Fetching::Ahead && m_asked < 32; ++n) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        ASSERT_TRUE(reader->seek(28));
        ASSERT_TRUE(reader->read());
        ASSERT_TRUE(reader->seek(bad));
        EXPECT_FALSE(reader->read());
        EXPECT_EQ(m_medium.refused[bad], 2);
    }
}

TEST_P(HeldWindows, BehindARefusedWindow_WhatWasReadBeforeIsAsItWas) {
    m_medium.sectors = 100;
    m_medium.refusals[2 * kHeldWindow] = kAlways;
    const auto reader = open();
    for (std::uint64_t sector = 0; sector < 2 * kHeldWindow; ++sector) {
        ASSERT_TRUE(reader->read());
    }
    ASSERT_FALSE(reader->read());
    ASSERT_TRUE(reader->seek(0));
    for (std::uint64_t sector = 0; sector < 2 * kHeldWindow; ++sector) {
        ASSERT_TRUE(reader->read());
        ASSERT_EQ(currentSector(*reader), sector);
    }
}

TEST_P(HeldWindows, BehindAShortWindow_ReadingGoesOn) {
    m_medium.sectors = 100;
    m_medium.wholeRequestFails = false;
    m_medium.refusals[26] = kAlways;
    const auto reader = open();
    for (std::uint64_t sector = 0; sector < 26; ++sector) {
        ASSERT_TRUE(reader->read());
    }
    ASSERT_TRUE(reader->seek(32));
    ASSERT_TRUE(reader->read());
    EXPECT_EQ(currentSector(*reader), 32U);
}

TEST_P(HeldWindows, HopsOnAndBack_GiveTheSectorAskedFor) {
    m_medium.sectors = 3000;
    std::mt19937 random(5);
    for (int round = 0; round < 100; ++round) {
        const auto reader = open();
        for (std::uint64_t place = 0; place + 100 < m_medium.sectors;) {
            ASSERT_TRUE(reader->seek(place));
            for (std::uint64_t n = random() % 25; n > 0; --n) {
                ASSERT_TRUE(reader->read());
                ASSERT_EQ(currentSector(*reader) + 1, reader->position());
            }
            const std::uint64_t back = random() % 3 == 0 ? random() % 40 : 0;
            place = reader->position() + random() % 30 + 1;
            place -= std::min(place, back);
        }
    }
}

TEST_P(HeldWindows, ShortHopsAnywhere_GiveTheSectorAskedFor_AndFailWhereItIsRefused) {
    std::mt19937 random(4);
    for (int round = 0; round < 400; ++round) {
        m_medium = {};
        m_medium.sectors = 1500;
        m_medium.wholeRequestFails = random() % 2 == 0;
        for (std::uint32_t faults = random() % 4; faults > 0; --faults) {
            m_medium.refusals[random() % m_medium.sectors] = kAlways;
        }
        const auto reader = open();
        std::uint64_t last = 0;
        bool readAny = false;
        for (std::uint64_t place = random() % 200; place < m_medium.sectors - 60;) {
            ASSERT_TRUE(reader->seek(place));
            for (std::uint64_t n = random() % 30; n > 0; --n) {
                const std::uint64_t sector = reader->position();
                ASSERT_EQ(reader->read(), !m_medium.refusals.contains(sector)) << round << ' ' << sector;
                if (reader->position() != sector) {
                    last = sector;
                    readAny = true;
                } else {
                    ASSERT_TRUE(reader->seek(sector + 1));
                }
                ASSERT_TRUE(!readAny || currentSector(*reader) == last) << round << ' ' << sector;
            }
            const std::uint64_t on = reader->position() + random() % 60;
            place = on - std::min<std::uint64_t>(on, random() % 50);
        }
    }
}

TEST(HeldWindow, WhatIsHeld_IsAskedForAgainByNobodyButAScreen) {
    class Screen : public SectorScreen {
      public:
        void screen(const std::uint8_t*, std::size_t sectors, std::uint8_t* looks) const override {
            std::fill_n(looks, sectors, std::uint8_t{0});
        }
    };
    ScriptedDrive medium;
    medium.sectors = 100;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium), WindowedReader::Fetching::WhenAsked,
                          kHeldWindow);
    for (std::size_t n = 0; n < 2 * kHeldWindow; ++n) {
        ASSERT_TRUE(reader.read());
    }
    EXPECT_EQ(medium.requests, 2U);
    ASSERT_TRUE(reader.seek(1));
    ASSERT_TRUE(reader.read());
    EXPECT_EQ(currentSector(reader), 1U);
    EXPECT_EQ(medium.requests, 2U);
    reader.setScreen(std::make_shared<Screen>());
    ASSERT_TRUE(reader.seek(1));
    ASSERT_TRUE(reader.read());
    EXPECT_EQ(medium.requests, 3U);
    EXPECT_FALSE(reader.worthALook());
    ASSERT_TRUE(reader.seek(2));
    ASSERT_TRUE(reader.read());
    EXPECT_FALSE(reader.worthALook());
}

}  // namespace vantor::test
