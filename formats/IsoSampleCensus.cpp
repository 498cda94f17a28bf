#include "formats/IsoSampleCensus.h"

#include <algorithm>

namespace vantor {

bool SampleCensus::isInData(std::uint64_t at, std::uint64_t bytes) const {
    const auto behind =
        std::upper_bound(m_data.begin(), m_data.end(), at,
                         [](std::uint64_t a, const DataPlace& place) { return a < place.from; });
    if (behind == m_data.begin())
        return false;
    const DataPlace& place = *(behind - 1);
    return at <= place.to && bytes <= place.to - at;
}

void SampleCensus::add(std::uint64_t at, std::uint64_t bytes) {
    if (!isInData(at, bytes)) {
        ++m_outside;
        return;
    }
    ++m_inside;
    if (m_track.coding == Coding::Unknown)
        return;
    const auto blind = lookAtSample(m_view, m_track.coding, m_track.lengthBytes, at, bytes);
    ++(blind ? m_sound : m_broken);
    m_widest = std::max(m_widest, blind.value_or(0));
}

void SampleCensus::addPlace(std::uint64_t at) {
    ++(isInData(at, 1) ? m_inside : m_outside);
}

ContentCheck SampleCensus::outcome(bool all, std::uint64_t dataBytes) const {
    // Tables and codings of which nothing is as it should be were not understood.
    if ((m_outside != 0 && m_inside != 0) || (m_broken != 0 && m_sound != 0))
        return {ContentCheck::Outcome::Broken};
    // Frames of sound are short, or a cluster of another's fits into one unseen.
    constexpr std::uint64_t kCluster = 4096;
    const bool seen = !m_track.isSound() || m_widest <= kCluster;
    const bool enough = m_sound != 0 && seen && (!all || isEnough(m_widest, dataBytes));
    return {enough ? ContentCheck::Outcome::Sound : ContentCheck::Outcome::Silent};
}

}  // namespace vantor
