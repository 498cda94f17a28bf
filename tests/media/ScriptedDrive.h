// A drive in memory that answers requests of many sectors, whose faults a test writes down, with the plain
// readers that others are compared with. What is asked of it millions of times lies in a file of its own,
// which is compiled as the product is.
#pragma once

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

    static void fill(std::uint64_t sector, std::uint8_t* bytes);
    // -1, or how many bytes arrived.
    std::int64_t request(std::uint64_t first, std::span<std::uint8_t> into);
};

class ScriptedSource : public BlockSource {
  public:
    explicit ScriptedSource(ScriptedDrive& medium) : m_medium(medium) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;
    bool usable() override;
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
    bool ask();

  private:
    ScriptedDrive& m_medium;
    std::uint8_t m_bytes[kSectorBytes] = {};
};

// As PlainReader, but a refused sector is asked for once more, and never again after that.
class PlainReaderWithRetry : public PlainReader {
  public:
    using PlainReader::PlainReader;

  protected:
    bool fetch() override;

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
std::vector<ScanStep> scanSteps(SectorReader& reader, std::uint64_t start, std::uint64_t end);

}  // namespace vantor::test
