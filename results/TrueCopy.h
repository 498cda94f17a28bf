// The bytes of an item as saving would write them, copied for those who only look at it.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "media/WatchedReader.h"
#include "results/CarvedRun.h"
#include "results/ItemBytes.h"

namespace vantor {

// In three steps, so that a file of gigabytes can be looked at early: how long it is; its beginning and its
// end, where formats keep what opens them; and the rest. Every step is over soon after the watch was ended.
// One thread at a time.
class TrueCopy {
  public:
    static constexpr std::uint64_t kHeadBytes = std::uint64_t{32} << 20;
    static constexpr std::uint64_t kTailBytes = std::uint64_t{16} << 20;
    // What finding out the length may cost; behind it the length counts as not known.
    static constexpr std::uint64_t kMostWalkedBytes = std::uint64_t{64} << 20;

    // Bytes of the item from the offset on; false ends the copy.
    using Write = std::function<bool(std::uint64_t offset, std::span<const std::uint8_t> bytes)>;

    // `watch` outlives the copy.
    TrueCopy(QString type, CarvedRun carved, std::unique_ptr<SectorReader> medium, ReadWatch& watch,
             ItemHints hints = {});
    ~TrueCopy();

    // First: finds out how long the item is. `firstBytes`: whole sectors of the carved run as far as they
    // are at hand, borrowed until writeEnds() has returned. False when the watch was ended.
    bool measure(QByteArrayView firstBytes = {});
    std::uint64_t bytes() const { return m_bytes; }
    // False: the item is longer than bytes() or ends there, nobody followed it to its end.
    bool lengthIsKnown() const { return m_lengthKnown; }

    // Whether writeEnds() writes everything.
    bool isSmall() const { return m_bytes <= kHeadBytes + kTailBytes; }
    // Second; false when it ended early.
    bool writeEnds(const Write& write);
    // Third, in order; false when it ended early. Closes the medium.
    bool writeRest(const Write& write);

  private:
    class Reading;

    std::span<const std::uint8_t> bytesFrom(Reading& reading, std::uint64_t at);
    bool copy(Reading& reading, std::uint64_t from, std::uint64_t end, const Write& write);
    std::uint64_t tailStart() const;

    const QString m_type;
    const CarvedRun m_carved;
    const ItemHints m_hints;
    const std::shared_ptr<const Mend> m_twin;  // null unless the item is one with an index of our own
    std::unique_ptr<SectorReader> m_medium;
    ReadWatch& m_watch;
    ItemTruth m_truth;
    std::unique_ptr<Reading> m_reading;  // from measure() to writeEnds(): what was read once is kept
    std::uint64_t m_bytes = 0;
    bool m_lengthKnown = false;
    std::vector<std::uint8_t> m_stretch;
};

}  // namespace vantor
