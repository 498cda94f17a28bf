// All movies in pieces of a medium: each that is put together leaves fewer places for the others.
#pragma once

#include <atomic>
#include <optional>
#include <span>
#include <vector>

#include "decode/MovieHelper.h"
#include "media/SectorReader.h"
#include "repair/CompletionProgress.h"
#include "results/Assembly.h"

namespace vantor {

class MovieCompletion {
  public:
    // All outlive the object; a stop that is not 0 ends it soon. Any one thread.
    MovieCompletion(SectorReader& medium, const std::atomic<int>& stop, CompletionProgress& progress,
                    MovieReaderOptions options = {})
        : m_medium(medium), m_stop(stop), m_progress(progress), m_options(std::move(options)) {}

    // For each of the first sectors of broken movies: its pieces, where they were found. `whole`: what whole
    // movies explain; `otherFiles`: whole files of other types. Proved are those of which every sample is
    // where the index says, to its last byte, and whose pictures decode without an error wherever a place was
    // chosen among several. `tell` is told of each at once.
    std::vector<std::optional<Assembly>> run(std::span<const std::uint64_t> broken,
                                             std::span<const SectorRun> whole,
                                             std::span<const SectorRun> otherFiles,
                                             const AssemblyFound& tell = {});

  private:
    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
    CompletionProgress& m_progress;
    const MovieReaderOptions m_options;
};

}  // namespace vantor
