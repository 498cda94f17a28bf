// All photos in pieces of a medium: each that is put together leaves fewer places for the others.
#pragma once

#include <atomic>
#include <optional>
#include <span>
#include <vector>

#include "media/SectorReader.h"
#include "results/Assembly.h"

namespace vantor {

class PhotoCompletion {
  public:
    // Both outlive the object; a stop that is not 0 ends it soon. Any one thread.
    PhotoCompletion(SectorReader& medium, const std::atomic<int>& stop) : m_medium(medium), m_stop(stop) {}

    // For each of the first sectors of broken JPEG photos: its pieces, where they were found. `whole`: what
    // whole files explain. Every unit of these pictures is there, and the end mark behind the last; proved
    // are those in which a foreign piece would have shown by the row above.
    std::vector<std::optional<Assembly>> run(std::span<const std::uint64_t> broken,
                                             std::span<const SectorRun> whole);

  private:
    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
};

}  // namespace vantor
