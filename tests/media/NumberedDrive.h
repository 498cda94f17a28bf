// A drive that can be held up, pulled out and counted.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <map>
#include <mutex>
#include <set>
#include <span>

#include "media/BlockSource.h"
#include "media/SectorReader.h"

namespace vantor {

// Each sector tells its number; some are never read; a request that meets one of these fails whole. Read by
// one thread at a time, looked at when that has ended.
struct NumberedDrive {
    explicit NumberedDrive(std::uint64_t count) : sectors(count) {}

    std::uint64_t sectors = 0;
    std::uint64_t salt = 0x5EED;
    std::set<std::uint64_t> bad;
    std::uint64_t pulledAfter = ~std::uint64_t{0};  // requests
    bool pulled = false;

    std::uint64_t requests = 0;
    std::uint64_t sectorsGiven = 0;
    std::map<std::uint64_t, int> refused;

    std::mutex mutex;
    std::condition_variable gateMoves;
    bool gateShut = false;
    bool isWaiting = false;

    std::uint64_t contentOf(std::uint64_t sector) const { return sector * 3 + salt; }
};

class NumberedSource : public BlockSource {
  public:
    explicit NumberedSource(NumberedDrive& drive) : m_drive(drive) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        std::unique_lock lock(m_drive.mutex);
        m_drive.isWaiting = m_drive.gateShut;
        m_drive.gateMoves.notify_all();
        m_drive.gateMoves.wait(lock, [this] { return !m_drive.gateShut; });
        m_drive.pulled = m_drive.pulled || m_drive.requests >= m_drive.pulledAfter;
        ++m_drive.requests;
        if (m_drive.pulled) {
            return -1;
        }
        const std::uint64_t count =
            std::min<std::uint64_t>(into.size() / kSectorBytes, m_drive.sectors - sector);
        const auto bad = m_drive.bad.lower_bound(sector);
        if (bad != m_drive.bad.end() && *bad < sector + count) {
            ++m_drive.refused[*bad];
            return -1;
        }
        std::memset(into.data(), 0, count * kSectorBytes);
        for (std::uint64_t i = 0; i < count; ++i) {
            const std::uint64_t content = m_drive.contentOf(sector + i);
            std::memcpy(into.data() + i * kSectorBytes, &content, sizeof(content));
        }
        m_drive.sectorsGiven += count;
        return static_cast<std::int64_t>(count * kSectorBytes);
    }
    bool usable() override {
        const std::lock_guard lock(m_drive.mutex);
        return !m_drive.pulled;
    }
    std::uint64_t sectors() const override { return m_drive.sectors; }

  private:
    NumberedDrive& m_drive;
};

}  // namespace vantor
