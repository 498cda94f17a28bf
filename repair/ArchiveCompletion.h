// All archives in pieces of a medium: each that is put together leaves fewer places for the others.
#pragma once

#include <atomic>
#include <span>
#include <vector>

#include "media/SectorReader.h"
#include "repair/CompletionProgress.h"
#include "results/Assembly.h"

namespace vantor {

class ArchiveCompletion {
  public:
    // All outlive the object; a stop that is not 0 ends it soon. Any one thread.
    ArchiveCompletion(SectorReader& medium, const std::atomic<int>& stop, CompletionProgress& progress)
        : m_medium(medium), m_stop(stop), m_progress(progress) {}

    // Tells of each of the broken archives, by their first sectors, whose pieces were found. `whole`: what
    // whole files explain. Proved are those of which the sum of every member is right.
    void run(std::span<const std::uint64_t> broken, std::span<const SectorRun> whole,
             const AssemblyFound& tell);

  private:
    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
    CompletionProgress& m_progress;
};

}  // namespace vantor
