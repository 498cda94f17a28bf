// Keeps a search in a file while it runs.
#pragma once

#include <QString>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "media/SectorReader.h"
#include "scan/ReadSectors.h"
#include "scan/SearchRecord.h"

namespace vantor {

class RefusedSectors;

// Writes what is known every ten seconds and at each end, under another name first, so that the file is whole
// at any moment. The search's thread, but for error().
class SearchKeeper {
  public:
    static constexpr std::chrono::seconds kEvery{10};
    static constexpr std::size_t kMostSamples = 64;
    // What lies behind so many sectors worth a look is read again: they cost a byte or two each in the file.
    static constexpr std::uint64_t kMostLooks = std::uint64_t{16} << 20;

    // `record`: the wishes and the medium; of a search that goes on also what it knows. Without a path it is
    // kept in memory alone.
    SearchKeeper(QString path, SearchRecord record);

    // What is asked for the notes at every writing, on the thread that writes; without it they stay.
    void setNotes(std::function<SearchNotes()> notes) { m_notes = std::move(notes); }

    // Whether it goes on with an earlier search; recall() then answers for what that one read.
    bool goesOn() const { return m_goesOn; }
    std::shared_ptr<const SectorRecall> recall() const { return m_read; }
    // Hands over what the earlier search knows to be refused.
    void tellRefusals(RefusedSectors& refusals) const;

    // For every sector that the first pass read; `bytes` are its own unless it is quiet.
    void note(std::uint64_t sector, std::uint8_t looks, const std::uint8_t* bytes);
    // For every sector that it could not read.
    void noteFailure(std::uint64_t sector) { m_reached = std::max(m_reached, sector + 1); }
    // Often, mostly for nothing: after a read, which may have taken long where it failed.
    void tick(bool readFailed, const RefusedSectors& refusals) {
        if (readFailed || ++m_ticks % kTicksPerLook == 0) {
            writeWhenDue(refusals);
        }
    }
    void write(const RefusedSectors& refusals);

    SearchRecord record(const RefusedSectors& refusals) const;
    // Why the file was not written when it was last tried; empty when it was.
    const QString& error() const { return m_error; }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::uint32_t kTicksPerLook = 256;

    void writeWhenDue(const RefusedSectors& refusals);
    void sample(std::uint64_t sector, const std::uint8_t* bytes);

    const QString m_path;
    const SearchRecord m_begun;
    const bool m_goesOn;
    std::function<SearchNotes()> m_notes;
    const std::shared_ptr<ReadSectors> m_read;
    std::map<std::uint64_t, QByteArray> m_samples;
    std::uint64_t m_reached;
    std::uint64_t m_stride = 1;  // only multiples of it are sampled
    std::uint32_t m_ticks = 0;
    Clock::time_point m_written = Clock::now();
    QString m_error;
};

// Whether the medium is the one of the samples: it has three of four that can be read, since a computer that
// mounts a card changes a few, and at least one. Of a search that read nothing any medium is.
bool holdsSamples(SectorReader& medium, const std::vector<SectorSample>& samples);

}  // namespace vantor
