// A movie in pieces that is written in fragments: the head of each tells where the next one begins, and is
// found by its number and by its place within a cluster. Source: ISO/IEC 14496-12, 8.8.
#include <algorithm>

#include "repair/MoviePieces.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostHeadBytes = std::uint64_t{16} << 20;
constexpr std::uint64_t kFewestListBytes = 24;
constexpr std::uint64_t kWideHeadBytes = 16;
constexpr std::size_t kMostFragments = 200'000;
constexpr std::size_t kMostFragmentSamples = 4'000'000;
constexpr unsigned kMostHeadTries = 256;
constexpr unsigned kLikelyHeadTries = 16;
constexpr std::uint64_t kWidestStep = 6;  // movies written at the same time
constexpr std::size_t kPlacesLookedAt = 4096;
constexpr std::size_t kLikelyPlaces = 64;
// In bytes that are read: of a place that is looked at, and of a byte that is understood.
constexpr std::uint64_t kPlaceCost = 64;
constexpr std::uint64_t kHeadCost = 16;

}  // namespace

// Goes on in `continueBox` with every cluster of the medium in which such a box begins at the right place,
// those behind the cluster placed last in front.
bool MoviePieces::placeBox(std::uint64_t at, std::string_view name, Fragments& known,
                           const std::function<bool(ByteView& view)>& take) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const auto number = static_cast<std::size_t>(at / cluster);
    known.triesLeft = m_searchLeft != 0 ? kMostHeadTries : kLikelyHeadTries;
    const auto last = std::find_if(m_laid.places.rbegin(), m_laid.places.rend(),
                                   [](std::uint64_t place) { return place != LaidClusters::kUnplaced; });
    const std::uint64_t behind = m_free.firstSectorOf(*last) * kSectorBytes;
    if (number < m_laid.places.size() && m_laid.isPlaced(number)) {
        return continueBox(at, name, known, take);
    }
    if (number >= m_free.count()) {
        return false;
    }
    const std::size_t before = m_laid.places.size();
    m_laid.places.resize(std::max(before, number + 1), LaidClusters::kUnplaced);
    const auto middle = std::lower_bound(m_indexPlaces.begin(), m_indexPlaces.end(), behind);
    const std::size_t first = static_cast<std::size_t>(middle - m_indexPlaces.begin());
    std::size_t looked = 0;
    for (std::size_t i = 0; i < m_indexPlaces.size() && looked < kPlacesLookedAt && m_stop == 0; ++i) {
        if (i >= kLikelyPlaces && m_searchLeft == 0) {
            break;
        }
        search(i < kLikelyPlaces ? 0 : kPlaceCost);
        const std::uint64_t place = m_indexPlaces[(first + i) % m_indexPlaces.size()];
        const std::uint64_t within = at % cluster;
        if (place < within || (place - within) % kSectorBytes != 0) {
            continue;
        }
        const auto begins = m_free.beginningAt((place - within) / kSectorBytes);
        if (!begins || !m_left.isFree(*begins) || m_laid.isUsed(*begins)) {
            continue;
        }
        ++looked;
        m_laid.place(number, *begins);
        if (continueBox(at, name, known, take)) {
            return true;
        }
        m_laid.used[static_cast<std::size_t>(*begins)] = false;
        m_laid.places[number] = LaidClusters::kUnplaced;
    }
    m_laid.places.resize(before);
    return false;
}

// The box at `at`, whose first cluster is placed; tries others behind it as far as the box needs them.
bool MoviePieces::continueBox(std::uint64_t at, std::string_view name, Fragments& known,
                              const std::function<bool(ByteView& view)>& take) {
    const std::uint64_t cluster = m_free.clusterBytes();
    ClusterFile file(m_medium, m_free, m_laid.places, m_laid.places.size() * cluster);
    ByteView view(file);
    const auto box = readIsoBox(view, at);
    if (!box || box->text() != name || box->toEnd || box->end - at > kMostHeadBytes) {
        return false;
    }
    // Behind the head of a fragment stands that of its data.
    const std::uint64_t end = box->end + (name == "moof" ? kWideHeadBytes : 0);
    for (std::uint64_t number = at / cluster + 1; number * cluster < end; ++number) {
        if (number >= m_laid.places.size()) {
            m_laid.places.resize(static_cast<std::size_t>(number) + 1, LaidClusters::kUnplaced);
        }
        if (m_laid.isPlaced(number)) {
            continue;
        }
        for (std::uint64_t step = 1; step <= kWidestStep && known.triesLeft != 0 && m_stop == 0; ++step) {
            const auto next = m_free.ahead(m_laid.places[static_cast<std::size_t>(number) - 1], step);
            if (!next || !m_left.isFree(*next) || m_laid.isUsed(*next)) {
                continue;
            }
            --known.triesLeft;
            search((end - at) * kHeadCost);
            m_laid.place(number, *next);
            if (continueBox(at, name, known, take)) {
                return true;
            }
            m_laid.lift(number - 1, number + 1);
        }
        return false;
    }
    return take(view);
}

// Moves `at` behind the fragment.
bool MoviePieces::takeFragment(ByteView& view, std::uint64_t& at, Fragments& known) {
    const auto head = readIsoBox(view, at);
    const auto number = readIsoBox(view, head->body);
    const auto data = readIsoBox(view, head->end);
    const std::uint32_t sequence = number ? view.be32(number->body + 4).value_or(0) : 0;
    if (!number || number->text() != "mfhd" || !data || data->text() != "mdat" || data->toEnd ||
        data->end / m_free.clusterBytes() >= m_free.count() ||
        (known.sequence != 0 && sequence != known.sequence + 1)) {
        return false;
    }
    std::vector<PromisedSample> samples;
    std::uint64_t sum = 0;
    bool inside = true;
    std::uint32_t alikeLeft = known.alikeLeft;
    const auto outcome = forFragmentRuns(view, known.tracks, *head, alikeLeft, [&](const FragmentRun& run) {
        const IsoTrack* const track =
            run.track < known.tracks.size() ? &known.tracks[run.track].track : nullptr;
        std::uint64_t begin = run.at;
        for (const std::uint64_t bytes : run.sizes) {
            inside = inside && begin >= data->body && begin <= data->end && bytes <= data->end - begin;
            samples.push_back({begin,
                               bytes,
                               track != nullptr && track->isVideo() ? track->coding : Coding::Unknown,
                               track != nullptr ? track->lengthBytes : 4,
                               {}});
            begin = addClamped(begin, bytes);
            sum = addClamped(sum, bytes);
        }
    });
    const std::uint64_t bytes = data->end - data->body;
    if (outcome != FragmentOutcome::Whole || !inside || sum > bytes || sum < bytes - bytes / 50 ||
        m_samples.size() + samples.size() > kMostFragmentSamples) {
        return false;
    }
    m_samples.insert(m_samples.end(), samples.begin(), samples.end());
    m_layout.mediaBytes += bytes;
    known.sequence = sequence;
    known.alikeLeft = alikeLeft;
    at = data->end;
    return true;
}

// The list of fragments, which ends with its own length.
bool MoviePieces::takeFragmentIndex(ByteView& view, std::uint64_t at) {
    const auto list = readIsoBox(view, at);
    if (list->end - at < kFewestListBytes || !view.matches(list->end - 12, "mfro") ||
        view.be32(list->end - 4) != list->end - at) {
        return false;
    }
    m_layout.bytes = list->end;
    return true;
}

// `head` shows the movie up to its first fragment at `at`, the clusters of which are placed.
bool MoviePieces::readFragments(ByteView& head, const IsoBox& movie, std::uint64_t at) {
    Fragments known;
    known.tracks = fragmentedTracks(head, movie);
    m_layout.data.from = at;
    std::size_t fragments = 0;
    while (fragments < kMostFragments && m_stop == 0 &&
           placeBox(at, "moof", known, [&](ByteView& view) { return takeFragment(view, at, known); })) {
        ++fragments;
    }
    if (fragments == 0 || m_stop != 0) {
        return false;
    }
    m_layout.bytes = m_layout.data.to = at;
    m_layout.endTold =
        placeBox(at, "mfra", known, [&](ByteView& view) { return takeFragmentIndex(view, at); });
    const std::uint64_t cluster = m_free.clusterBytes();
    m_laid.places.resize(static_cast<std::size_t>((m_layout.bytes + cluster - 1) / cluster),
                         LaidClusters::kUnplaced);
    std::sort(m_samples.begin(), m_samples.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
    const auto overlap = [](const PromisedSample& a, const PromisedSample& b) {
        return a.at + a.bytes > b.at;
    };
    return m_layout.bytes / cluster < m_free.count() &&
           std::adjacent_find(m_samples.begin(), m_samples.end(), overlap) == m_samples.end();
}

}  // namespace vantor
