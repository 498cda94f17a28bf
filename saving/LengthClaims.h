// Which items may be as long as they say, so that no row of headers that claim the whole medium takes the
// room, the time or the ground of the files among them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "results/CarvedRun.h"
#include "results/PlaceBudget.h"
#include "results/TrueLength.h"

namespace vantor {

class MediumBytes;

// A claim reaches behind the carved run. What was checked is believed. Of the others, those that more than
// double their carved run have to wait until all items had their turn; and each place behind carved runs is
// given away a few times at most, once to files that are broken. All that is written so stays a small
// multiple of the medium. One medium, one thread.
class LengthClaims {
  public:
    enum class Answer {
        Granted,
        Later,   // asked again in the second round, where room and ground are left over
        Refused  // as carved
    };

    explicit LengthClaims(std::uint64_t mediumSectors)
        : m_mediumSectors(mediumSectors),
          m_vain(mediumSectors),
          m_unchecked(mediumSectors),
          m_checked(mediumSectors) {}

    // For the view that looks for the length of an item: what was read in vain before.
    const PlaceBudget& readInVain() const { return m_vain; }
    // False for parts of a frame stream of the same type that was found whole.
    bool mayGoBeyond(const QString& type, std::uint64_t firstSector) const;

    // `mayWait`: whether the item can come again. To be asked once a turn, behind trueLengthOf().
    Answer ask(const QString& type, const MediumBytes& bytes, const TrueLength& length, bool mayWait);

    // Reading in vain is forgiven.
    void beginSecondRound() { m_vain = PlaceBudget(m_mediumSectors); }

  private:
    bool take(const SectorRun& stretch, const TrueLength& length);

    const std::uint64_t m_mediumSectors;
    PlaceBudget m_vain, m_unchecked, m_checked;
    SectorRun m_lastTaken;  // types that share a header share the item
    // Sectors [first, end) of whole frame streams, by type: nothing of another kind is a part of one.
    std::map<QString, std::map<std::uint64_t, std::uint64_t>> m_streams;
};

// Items that wait for the second round: whole ones first, among them those that claim least for what was
// carved of them, since junk is short and claims much.
class WaitingClaims {
  public:
    // More than these do not wait.
    static constexpr std::size_t kMost = 100'000;

    bool isFull() const { return m_waiting.size() >= kMost; }
    // `carved` are the item's sectors as they were carved.
    void add(std::size_t place, std::uint64_t claimedBytes, const CarvedRun& carved, bool complete);
    // The places in the order of the second round; none wait any more. What was found at one place by several
    // passes or types keeps the order of the places.
    std::vector<std::size_t> take();

  private:
    struct Waiting {
        bool broken;
        std::uint64_t bytesPerSector;  // known once all of that beginning are there
        std::uint64_t bytes;
        std::size_t place;
        std::uint64_t firstSector;
        auto operator<=>(const Waiting&) const = default;
    };
    std::map<std::uint64_t, std::uint64_t> m_carved;  // the most sectors that were carved from a first one on
    std::vector<Waiting> m_waiting;
};

}  // namespace vantor
