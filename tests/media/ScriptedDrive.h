// A drive in memory that answers requests of many sectors, whose faults a test writes down, with the plain
// readers that others are compared with.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

#include "media/BlockSource.h"
#include "media/SectorReader.h"
#include "media/SectorSet.h"

namespace vantor::test {

inline constexpr int kAlways = 1 << 30;

// Every sector begins with its own number. A request goes from sector to sector and ends at the first that
// refuses, as a drive does.
struct ScriptedDrive {
    std::uint64_t sectors = 0;
    std::uint64_t blockSectors = 1;
    std::map<std::uint64_t, int> refusals;  // sector -> how many times it refuses
    bool wholeRequestFails = true;          // false: the sectors before the refusal arrive
    std::uint64_t goneFrom = ~std::uint64_t{0};
    std::uint64_t refusesFrom = ~std::uint64_t{0};  // the medium stays, but reads nothing from here on

    bool gone = false;
    std::map<std::uint64_t, int> refused;  // how often each sector of `refusals` was asked for in vain
    std::vector<std::pair<std::uint64_t, std::uint64_t>>
        refusedRequests;  // first sector and end of each, as far as it says
    std::uint64_t requests = 0;

    static void fill(std::uint64_t sector, std::uint8_t* bytes) {
        std::memset(bytes, 0, kSectorBytes);
        std::memcpy(bytes, &sector, sizeof(sector));
    }

    std::int64_t request(std::uint64_t first, std::span<std::uint8_t> into) {
        ++requests;
        std::size_t done = 0;
        for (std::uint64_t s = first; done < into.size() && s < sectors; ++s, done += kSectorBytes) {
            if (s >= goneFrom) {
                gone = true;
                break;
            }
            if (s >= refusesFrom) {
                return done == 0 || wholeRequestFails ? -1 : static_cast<std::int64_t>(done);
            }
            const auto fault = refusals.find(s);
            if (fault != refusals.end() && fault->second > 0) {
                --fault->second;
                ++refused[s];
                const bool nothingArrives = wholeRequestFails || done == 0;
                refusedRequests.emplace_back(nothingArrives ? first : s,
                                             nothingArrives ? first + into.size() / kSectorBytes : s + 1);
                if (wholeRequestFails) {
                    return -1;
                }
                break;
            }
            fill(s, into.data() + done);
        }
        return done == 0 ? -1 : static_cast<std::int64_t>(done);
    }
};

class ScriptedSource : public BlockSource {
  public:
    explicit ScriptedSource(ScriptedDrive& medium) : m_medium(medium) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const std::lock_guard lock(m_mutex);
        return m_medium.request(sector, into);
    }
    bool usable() override {
        const std::lock_guard lock(m_mutex);
        return !m_medium.gone;
    }
    std::uint64_t blockSectors() const override { return m_medium.blockSectors; }

  private:
    ScriptedDrive& m_medium;
    std::mutex m_mutex;  // reading ahead asks from several threads
};

// A stream without a buffer: every read is one request for one sector, and fails when that fails.
class PlainReader : public SectorReader {
  public:
    explicit PlainReader(ScriptedDrive& medium) : m_medium(medium) {}

  protected:
    bool fetch() override { return ask(); }
    bool moveTo(std::uint64_t) override { return !m_medium.gone; }

    // Hands the sector at the position over when the drive gives it.
    bool ask() {
        std::uint8_t bytes[kSectorBytes];
        if (m_medium.gone || m_medium.request(position(), bytes) != std::int64_t{kSectorBytes}) {
            return false;
        }
        std::memcpy(m_bytes, bytes, kSectorBytes);
        handOver(m_bytes, 1);
        return true;
    }

  private:
    ScriptedDrive& m_medium;
    std::uint8_t m_bytes[kSectorBytes] = {};
};

// As PlainReader, but a refused sector is asked for once more, and never again after that.
class PlainReaderWithRetry : public PlainReader {
  public:
    using PlainReader::PlainReader;

  protected:
    bool fetch() override {
        if (m_refused.contains(position()) || (!ask() && !ask())) {
            m_refused.add(position());
            return false;
        }
        return true;
    }

  private:
    SectorSet m_refused;
};

// What one step of a scan saw.
struct ScanStep {
    bool readSucceeded = false;
    bool seekSucceeded = true;
    std::uint64_t position = 0;  // after the step
    std::uint64_t bytesOf = 0;   // the sector whose bytes are current

    bool operator==(const ScanStep&) const = default;
};

// Reads [start, end) as the scans do: after a failed read it goes to the counter, which then is one ahead.
inline std::vector<ScanStep> scanSteps(SectorReader& reader, std::uint64_t start, std::uint64_t end) {
    if (start != 0) {
        reader.seek(start);
    }
    std::vector<ScanStep> steps;
    for (std::uint64_t index = start; index < end; ++index) {
        ScanStep step;
        step.readSucceeded = reader.read();
        if (!step.readSucceeded) {
            step.seekSucceeded = reader.seek(index);
        }
        step.position = reader.position();
        std::memcpy(&step.bytesOf, reader.current(), sizeof(step.bytesOf));
        steps.push_back(step);
    }
    return steps;
}

}  // namespace vantor::test
