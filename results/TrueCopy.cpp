// Measuring with the walkers that saving uses, then copying stretch by stretch.
#include "results/TrueCopy.h"

#include <algorithm>
#include <utility>

#include "results/ItemBytes.h"
#include "results/Mend.h"

namespace vantor {

namespace {

constexpr std::uint64_t kStretchBytes = std::uint64_t{1} << 20;

}  // namespace

// One look at the item; what it reads while it measures is counted.
class TrueCopy::Reading {
  public:
    Reading(const TrueCopy& copy, QByteArrayView firstBytes)
        : Reading(copy.m_carved, firstBytes, *copy.m_medium, copy.m_watch, copy.m_hints, copy.m_truth) {}

    ItemBytes& item() { return m_bytes; }
    MediumBytes& bytes() { return m_bytes.bytes(); }
    // False when that took too much, or was ended: what was read then is not to be used.
    bool endMeasuring() {
        m_measuring = false;
        return !m_limited.wasEnded();
    }

  private:
    Reading(const CarvedRun& carved, QByteArrayView firstBytes, SectorReader& medium, ReadWatch& watch,
            const ItemHints& hints, const ItemTruth& truth)
        : m_limited(medium, watch, kMostWalkedBytes / kSectorBytes),
          m_unlimited(medium, watch),
          m_source{carved,
                   firstBytes,
                   [this]() -> SectorReader* { return m_measuring ? &m_limited : &m_unlimited; },
                   medium.mediumSectors(),
                   false,
                   nullptr,
                   hints},
          m_bytes(m_source, m_kept, truth) {}

    bool m_measuring = true;
    WatchedReader m_limited, m_unlimited;
    const ItemSource m_source;
    std::vector<std::uint8_t> m_kept;
    ItemBytes m_bytes;
};

TrueCopy::TrueCopy(QString type, CarvedRun carved, std::unique_ptr<SectorReader> medium, ReadWatch& watch,
                   ItemHints hints)
    : m_type(std::move(type)),
      m_carved(std::move(carved)),
      m_hints(std::move(hints)),
      m_twin(m_hints.mend && m_hints.mend->kind == MendKind::Repaired ? m_hints.mend : nullptr),
      m_medium(std::move(medium)),
      m_watch(watch) {}

TrueCopy::~TrueCopy() = default;

bool TrueCopy::measure(QByteArrayView firstBytes) {
    m_reading = std::make_unique<Reading>(*this, firstBytes);
    if (m_twin) {
        m_reading->endMeasuring();
        m_lengthKnown = true;
        m_bytes = m_twin->twin.bytes();
        return !m_watch.ended;
    }
    const std::uint64_t most = m_reading->bytes().size();
    const std::uint64_t carved = m_reading->bytes().carvedBytes();
    const ItemTruth truth = m_reading->item().measure(m_type, true);
    m_lengthKnown = m_reading->endMeasuring();
    if (m_lengthKnown) {
        m_truth = truth;
        m_bytes = truth.length.bytes;
    } else {
        // Up to there its structure held.
        m_bytes = std::max(carved, std::min(kMostWalkedBytes, most));
        m_reading = std::make_unique<Reading>(*this, firstBytes);
        m_reading->endMeasuring();
    }
    return !m_watch.ended;
}

std::uint64_t TrueCopy::tailStart() const {
    return isSmall() ? std::min(kHeadBytes, m_bytes)
                     : (m_bytes - kTailBytes + kStretchBytes - 1) / kStretchBytes * kStretchBytes;
}

bool TrueCopy::writeEnds(const Write& write) {
    const bool whole = copy(*m_reading, 0, std::min(kHeadBytes, m_bytes), write) &&
                       copy(*m_reading, tailStart(), m_bytes, write);
    m_reading.reset();
    return whole;
}

bool TrueCopy::writeRest(const Write& write) {
    bool whole = true;
    if (!isSmall()) {
        Reading reading(*this, {});
        reading.endMeasuring();
        whole = copy(reading, kHeadBytes, tailStart(), write);
    }
    m_medium.reset();
    return whole;
}

// Some of the bytes from there on; none behind the end, or where the medium gives nothing more.
std::span<const std::uint8_t> TrueCopy::bytesFrom(Reading& reading, std::uint64_t at) {
    std::uint64_t most = kStretchBytes;
    if (m_twin) {
        const Twin& twin = m_twin->twin;
        const auto headBytes = static_cast<std::uint64_t>(twin.head.size());
        const std::uint64_t dataEnd = headBytes + (twin.data.to - twin.data.from);
        const bool inHead = at < headBytes;
        if (inHead || at >= dataEnd) {
            const QByteArray& own = inHead ? twin.head : twin.index;
            const std::uint64_t skip =
                std::min(at - (inHead ? 0 : dataEnd), static_cast<std::uint64_t>(own.size()));
            return {reinterpret_cast<const std::uint8_t*>(own.constData()) + skip,
                    static_cast<std::size_t>(own.size()) - static_cast<std::size_t>(skip)};
        }
        most = std::min(most, dataEnd - at);
        at = at - headBytes + twin.data.from;
    }
    const auto kept = reading.bytes().keptFrom(at);
    if (!kept.empty()) {
        return kept.first(static_cast<std::size_t>(std::min<std::uint64_t>(kept.size(), most)));
    }
    m_stretch.resize(kStretchBytes);
    const auto into = std::span(m_stretch).first(static_cast<std::size_t>(most));
    return into.first(reading.bytes().readPast(at, into));
}

bool TrueCopy::copy(Reading& reading, std::uint64_t from, std::uint64_t end, const Write& write) {
    for (std::uint64_t at = from; at < end;) {
        const auto bytes = bytesFrom(reading, at);
        const std::uint64_t count = std::min<std::uint64_t>(bytes.size(), end - at);
        // Behind an end of the watch there are only zeros.
        if (count == 0 || m_watch.ended || !write(at, bytes.first(static_cast<std::size_t>(count)))) {
            return false;
        }
        at += count;
    }
    return true;
}

}  // namespace vantor
