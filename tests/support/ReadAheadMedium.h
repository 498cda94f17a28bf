// Media in memory and image files behind a reader that reads ahead and screens, in windows so small that
// short media get there.
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>
#include <set>
#include <utility>

#include "media/WindowedReader.h"
#include "tests/support/HookedReader.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {

inline constexpr std::size_t kSmallWindowSectors = 4;

// Another source, but for the sectors that are bad for ever.
class SpoiltBlocks : public BlockSource {
  public:
    SpoiltBlocks(std::unique_ptr<BlockSource> whole, std::set<std::uint64_t> bad)
        : m_whole(std::move(whole)), m_bad(std::move(bad)) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const auto next = m_bad.lower_bound(sector);
        const std::uint64_t wanted = into.size() / kSectorBytes;
        const std::uint64_t good = next == m_bad.end() ? wanted : std::min(wanted, *next - sector);
        return good == 0 ? -1 : m_whole->readAt(sector, into.first(good * kSectorBytes));
    }
    bool usable() override { return m_whole->usable(); }
    std::uint64_t sectors() const override { return m_whole->sectors(); }

  private:
    std::unique_ptr<BlockSource> m_whole;
    const std::set<std::uint64_t> m_bad;
};

// The bytes of a scripted medium, which outlives it.
class ScriptedBytes : public BlockSource {
  public:
    explicit ScriptedBytes(const ScriptedMedium& medium) : m_medium(medium) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        std::size_t done = 0;
        for (; done < into.size() && sector < m_medium.bytes.size(); done += kSectorBytes, ++sector) {
            std::memcpy(into.data() + done, m_medium.bytes[sector].data(), kSectorBytes);
        }
        return done == 0 ? -1 : static_cast<std::int64_t>(done);
    }
    bool usable() override { return true; }
    std::uint64_t sectors() const override { return m_medium.bytes.size(); }

  private:
    const ScriptedMedium& m_medium;
};

// Sectors that are bad for ever surface from below, where windows meet them; the other faults are the hook's,
// since a stream knows no others.
inline std::unique_ptr<HookedReader> openReadAhead(
    std::unique_ptr<BlockSource> source, ReadFaults faults,
    WindowedReader::Fetching fetching = WindowedReader::Fetching::Ahead) {
    const auto* const bad = std::exchange(faults.always, nullptr);
    auto spoilt =
        std::make_unique<SpoiltBlocks>(std::move(source), bad != nullptr ? *bad : std::set<std::uint64_t>());
    return std::make_unique<HookedReader>(
        std::make_unique<WindowedReader>(std::move(spoilt), fetching, kSmallWindowSectors), faults,
        HookedReader::Screen::PassedOn);
}

// The scripted medium with all its faults and its look at every read. The medium outlives the reader.
inline std::unique_ptr<SectorReader> openReadAhead(
    ScriptedMedium& medium, WindowedReader::Fetching fetching = WindowedReader::Fetching::Ahead) {
    auto reader =
        openReadAhead(std::make_unique<ScriptedBytes>(medium),
                      {&medium.badForEver, &medium.badTimes, medium.seekAfterFailureFails}, fetching);
    reader->beforeRead([&medium](std::uint64_t) {
        if (medium.beforeRead) {
            medium.beforeRead(medium.reads);
        }
        ++medium.reads;
    });
    return reader;
}

}  // namespace vantor
