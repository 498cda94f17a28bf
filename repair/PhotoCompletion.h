// All photos in pieces of a medium: each that is put together leaves fewer places for the others.
#pragma once

#include <atomic>
#include <optional>
#include <span>
#include <vector>

#include "media/SectorReader.h"
#include "repair/CompletionProgress.h"
#include "results/Assembly.h"

namespace vantor {

class PhotoCompletion {
  public:
    // All outlive the object; a stop that is not 0 ends it soon. Any one thread.
    PhotoCompletion(SectorReader& medium, const std::atomic<int>& stop, CompletionProgress& progress)
        : m_medium(medium), m_stop(stop), m_progress(progress) {}

    // For each of the first sectors of broken JPEG and PNG pictures: its pieces, where they were found.
    // `whole`: what whole files explain. Of JPEG every unit is there, and the end mark behind the last;
    // proved are those in which a foreign piece would have shown by the row above. Of PNG every sum is right.
    // `tell` is told of each at once.
    std::vector<std::optional<Assembly>> run(std::span<const std::uint64_t> broken,
                                             std::span<const SectorRun> whole,
                                             const AssemblyFound& tell = {});

  private:
    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
    CompletionProgress& m_progress;
};

}  // namespace vantor
