// Finds where the pictures of a repaired movie cease to be its own.
#pragma once

#include <QByteArray>
#include <atomic>

#include "repair/MovieRepair.h"

namespace vantor {

// Has decoders try what stands at the doubtful places of a walk and at its end. All that is given outlives
// it.
class PlayedThrough {
  public:
    // `head`: what a twin begins with, to the size of its data.
    PlayedThrough(QByteArray head, const ReferenceMovie& reference, const PartPlays& plays)
        : m_head(std::move(head)), m_reference(reference), m_plays(plays) {}

    // Leaves the pictures out from the first on that do not play. Where not even fewer do, the camera's are
    // like that, and stay.
    void shorten(MovieWalk& walk, const std::atomic<int>* stop) const;

  private:
    bool plays(const MovieWalk& walk, std::size_t from, std::size_t to) const;

    const QByteArray m_head;
    const ReferenceMovie& m_reference;
    const PartPlays& m_plays;
};

}  // namespace vantor
