// Who gets what lies behind the carved runs.
#include "saving/LengthClaims.h"

#include <algorithm>
#include <iterator>

#include "results/MediumBytes.h"

namespace vantor {

namespace {

// How often one place may be given away. Files lie within files: movies in archives, pictures in documents.
constexpr std::uint64_t kTimesChecked = 8;
constexpr std::uint64_t kTimesWhole = 2;
constexpr std::uint64_t kTimesBroken = 1;

}  // namespace

// Every frame of a stream may look like a file's beginning to the catalogues; such parts are saved as they
// were carved, or saving would cost the square of the file.
bool LengthClaims::mayGoBeyond(const QString& type, std::uint64_t firstSector) const {
    const auto known = m_streams.find(type);
    if (known == m_streams.end()) {
        return true;
    }
    const auto after = known->second.lower_bound(firstSector);
    return after == known->second.begin() || std::prev(after)->second <= firstSector;
}

LengthClaims::Answer LengthClaims::ask(const QString& type, const MediumBytes& bytes,
                                       const TrueLength& length, bool mayWait) {
    const bool complete = length.extent.verdict == Verdict::Complete;
    if (!complete) {
        bytes.spendReading(m_vain);
    }
    if (bytes.ranOut() && mayWait) {
        return Answer::Later;
    }
    // Also of one that has to wait, since its parts come before it, and not of the parts.
    if (const std::uint64_t first = bytes.firstSector();
        complete && isFrameStream(type) && mayGoBeyond(type, first)) {
        std::uint64_t& end = m_streams[type][first];
        end = std::max(end, first + length.bytes / kSectorBytes);
    }
    const SectorRun stretch = bytes.stretchBeyond(length.bytes);
    const bool far = !length.extent.checked && length.bytes > 2 * bytes.carvedBytes();
    if ((far && mayWait) || !take(stretch, length)) {
        return mayWait ? Answer::Later : Answer::Refused;
    }
    return Answer::Granted;
}

bool LengthClaims::take(const SectorRun& stretch, const TrueLength& length) {
    if (stretch == SectorRun{} || stretch == m_lastTaken) {
        return true;
    }
    const bool complete = length.extent.verdict == Verdict::Complete;
    PlaceBudget& ground = length.extent.checked ? m_checked : m_unchecked;
    const std::uint64_t times = length.extent.checked ? kTimesChecked : complete ? kTimesWhole : kTimesBroken;
    if (!ground.covers(stretch, times)) {
        return false;
    }
    ground.spend(stretch);
    m_lastTaken = stretch;
    return true;
}

void WaitingClaims::add(std::size_t place, std::uint64_t claimedBytes, const CarvedRun& carved,
                        bool complete) {
    const std::uint64_t first = carved.runs.empty() ? 0 : carved.runs.front().first;
    std::uint64_t& most = m_carved[first];
    most = std::max({most, carved.sectors(), std::uint64_t{1}});
    m_waiting.push_back({!complete, 0, claimedBytes, place, first});
}

std::vector<std::size_t> WaitingClaims::take() {
    for (Waiting& waiting : m_waiting) {
        waiting.bytesPerSector = waiting.bytes / m_carved.at(waiting.firstSector);
    }
    std::sort(m_waiting.begin(), m_waiting.end());
    std::vector<std::size_t> places;
    places.reserve(m_waiting.size());
    std::transform(m_waiting.begin(), m_waiting.end(), std::back_inserter(places),
                   [](const Waiting& waiting) { return waiting.place; });
    m_waiting.clear();
    m_carved.clear();
    return places;
}

}  // namespace vantor
