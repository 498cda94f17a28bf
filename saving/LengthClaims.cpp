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
    const auto after = m_streams.lower_bound(firstSector);
    return after == m_streams.begin() || std::prev(after)->second <= firstSector || !isFrameStream(type);
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
        std::uint64_t& end = m_streams[first];
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

std::vector<std::size_t> WaitingClaims::take() {
    std::sort(m_waiting.begin(), m_waiting.end());
    std::vector<std::size_t> places;
    places.reserve(m_waiting.size());
    std::transform(m_waiting.begin(), m_waiting.end(), std::back_inserter(places),
                   [](const Waiting& waiting) { return waiting.place; });
    m_waiting.clear();
    return places;
}

}  // namespace vantor
