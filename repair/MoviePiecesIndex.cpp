// The index of a movie in pieces: in front of the data, or where the data ends.
#include <algorithm>
#include <cstring>

#include "repair/MoviePieces.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostIndexBytes = std::uint64_t{64} << 20;
constexpr unsigned kMostIndexTries = 4096;
constexpr unsigned kLikelyIndexTries = 64;
constexpr std::uint64_t kIndexCost = 16;  // of a byte that is understood, in bytes that are read
constexpr std::uint64_t kWidestTurn = 6;  // movies written at the same time, for the pieces of an index
constexpr std::uint64_t kFarthestIndexPiece = 64;  // free clusters further
constexpr int kMostBoxes = 32;

bool isTrailer(std::string_view name) {
    return name == "free" || name == "skip" || name == "udta" || name == "uuid" || name == "meta";
}

}  // namespace

std::vector<std::uint64_t> indexPlaces(MediumBlocks& medium, const std::atomic<int>& stop) {
    constexpr std::size_t kHeadBytes = 16;
    constexpr std::size_t kMostPlaces = 400'000;
    std::vector<std::uint64_t> places;
    // What stands so many bytes before the name, and behind it, has to be looked at too.
    constexpr std::size_t kBefore = 4;
    constexpr std::size_t kBehind = 12;
    struct Name {
        const char* own;
        const char* child;  // of a box; null: a list of chunks, whose length is less than 16 MiB
    };
    // An index, a fragment's head, the list of fragments at a movie's end, and an index of chunks.
    static constexpr Name kNames[] = {
        {"moov", "mvhd"}, {"moof", "mfhd"}, {"mfra", "tfra"}, {"idx1", nullptr}};
    const auto placeBehind = [&](const std::uint8_t* here, std::uint64_t at) -> std::optional<std::uint64_t> {
        for (const Name& name : kNames) {
            if (std::memcmp(here, name.own, 4) == 0) {
                const bool isBox = name.child != nullptr && std::memcmp(here + 8, name.child, 4) == 0;
                const bool isList = name.child == nullptr && here[7] == 0;
                return isBox ? std::optional(at - kBefore) : isList ? std::optional(at) : std::nullopt;
            }
        }
        return std::nullopt;
    };
    // One letter after the other is found sooner than a name.
    const auto lookFor = [&](std::span<const std::uint8_t> bytes, std::uint64_t at, char first) {
        for (std::size_t i = kBefore; i + kBehind <= bytes.size() && places.size() < kMostPlaces; ++i) {
            const void* const found = std::memchr(bytes.data() + i, first, bytes.size() - i - kBehind + 1);
            if (found == nullptr) {
                break;
            }
            const auto* const here = static_cast<const std::uint8_t*>(found);
            i = static_cast<std::size_t>(here - bytes.data());
            if (const auto place = placeBehind(here, at + i)) {
                places.push_back(*place);
            }
        }
    };
    medium.lookThrough(kHeadBytes, stop, [&](std::span<const std::uint8_t> bytes, std::uint64_t at) {
        lookFor(bytes, at, 'm');
        lookFor(bytes, at, 'i');
    });
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

namespace {

// What stands in front of a movie's data.
struct BoxesInFront {
    std::optional<IsoBox> index;
    std::optional<IsoBox> data;
    std::optional<std::uint64_t> fragment;  // where the first one begins
};

// As far as the boxes in front are there.
std::optional<BoxesInFront> boxesInFront(ByteView& view) {
    BoxesInFront head;
    std::uint64_t at = 0;
    for (int i = 0; i < kMostBoxes && !head.data && !head.fragment; ++i) {
        const auto box = readIsoBox(view, at);
        if (i == 0 && (!box || (box->text() != "ftyp" && box->text() != "wide" && box->text() != "mdat"))) {
            return std::nullopt;
        }
        if (!box || box->toEnd) {
            break;
        }
        if (box->text() == "moov") {
            head.index = box;
        } else if (box->text() == "mdat") {
            head.data = box;
        } else if (box->text() == "moof") {
            head.fragment = at;
        }
        at = box->end;
    }
    return head;
}

}  // namespace

// These clusters, and what lies directly behind the last.
std::vector<std::uint64_t> MoviePieces::rowFrom(std::vector<std::uint64_t> row) const {
    for (std::uint64_t bytes = 0; bytes < kMostIndexBytes && row.back() + 1 < m_free.count();
         bytes += m_free.clusterBytes()) {
        row.push_back(row.back() + 1);
    }
    return row;
}

bool MoviePieces::readHead(std::uint64_t firstCluster) {
    const std::vector<std::uint64_t> row = rowFrom({firstCluster});
    ClusterFile file(m_medium, m_free, row, ~std::uint64_t{0});
    ByteView view(file);
    if (view.matches(0, "RIFF") && view.matches(8, "AVI ")) {
        return readChunkHead(firstCluster, view);
    }
    const auto head = boxesInFront(view);
    if (head && head->fragment && head->index) {
        // What stands in front of it lies in one row.
        for (std::uint64_t number = 0; number <= *head->fragment / m_free.clusterBytes(); ++number) {
            m_laid.places.push_back(LaidClusters::kUnplaced);
            m_laid.place(number, firstCluster + number);
        }
        return readFragments(view, *head->index, *head->fragment);
    }
    if (head && head->data && !head->index) {
        if (!takeData(*head->data, head->data->end)) {
            return false;
        }
        m_laid.place(0, firstCluster);
        return findIndexBehind();
    }
    return head && head->index && findIndexInFront(firstCluster, *head->index);
}

bool MoviePieces::takeData(const IsoBox& data, std::uint64_t bytes) {
    const std::uint64_t cluster = m_free.clusterBytes();
    if (data.end / cluster >= m_free.count()) {
        return false;
    }
    m_layout.data = {data.body, data.end};
    m_layout.mediaBytes = data.end - data.body;
    m_layout.bytes = bytes;
    m_laid.places.assign(static_cast<std::size_t>((bytes + cluster - 1) / cluster), LaidClusters::kUnplaced);
    return true;
}

// In one row with what follows it up to the data, or in pieces of its own.
bool MoviePieces::findIndexInFront(std::uint64_t firstCluster, const IsoBox& index) {
    if (index.end - index.at > kMostIndexBytes) {
        return false;
    }
    m_layout.index = index;
    std::vector<std::uint64_t> clusters{firstCluster};
    const auto take = [this](const std::vector<std::uint64_t>& each) { return takeIndexInFront(each); };
    if (take(clusters)) {
        return true;
    }
    const auto wanted = static_cast<std::size_t>(index.end / m_free.clusterBytes() + 1);
    return wanted > 1 && findRestOfIndex(clusters, wanted, take);
}

bool MoviePieces::takeIndexInFront(const std::vector<std::uint64_t>& clusters) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::vector<std::uint64_t> row = rowFrom(clusters);
    ClusterFile file(m_medium, m_free, row, ~std::uint64_t{0});
    ByteView view(file);
    const auto head = boxesInFront(view);
    if (!head || !head->index || !head->data) {
        return false;
    }
    auto samples = promisedSamples(file, *head->index, {head->data->body, head->data->end});
    if (!samples || samples->empty() || !takeData(*head->data, head->data->end)) {
        return false;
    }
    for (std::uint64_t number = 0; number == 0 || number * cluster < head->data->body; ++number) {
        m_laid.place(number, row[static_cast<std::size_t>(number)]);
    }
    m_samples = std::move(*samples);
    return true;
}

bool MoviePieces::findRestOfIndex(std::vector<std::uint64_t>& clusters, std::size_t wanted,
                                  const TakeIndex& take) {
    unsigned tries = 0;
    return continueIndex(clusters, wanted, tries, take) || continueIndexElsewhere(clusters, wanted, take);
}

// A row, and another one further behind.
bool MoviePieces::continueIndexElsewhere(std::vector<std::uint64_t>& clusters, std::size_t wanted,
                                         const TakeIndex& take) {
    const std::uint64_t first = clusters.front();
    unsigned tries = 0;
    for (std::uint64_t step = kWidestTurn + 1; step <= kFarthestIndexPiece; ++step) {
        clusters.assign(1, first);
        while (clusters.size() < wanted && mayTryIndex(tries)) {
            const auto next = m_free.ahead(clusters.back(), step);
            if (!next) {
                break;
            }
            std::vector<std::uint64_t> each = clusters;
            for (each.push_back(*next); each.size() < wanted && m_free.isFree(each.back() + 1);) {
                each.push_back(each.back() + 1);
            }
            if (each.size() == wanted && tryIndex(each, tries, take)) {
                clusters = each;
                return true;
            }
            const auto behind = m_free.ahead(clusters.back(), 1);
            if (!behind) {
                break;
            }
            clusters.push_back(*behind);
        }
    }
    return false;
}

// The index stands where the data ends: that tells its place within a cluster.
bool MoviePieces::findIndexBehind() {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t number = m_layout.data.to / cluster;
    std::vector<std::uint64_t> candidates;
    for (const std::uint64_t place : m_indexPlaces) {
        const std::uint64_t within = m_layout.data.to % cluster;
        const auto begins =
            place < within ? std::nullopt : m_free.beginningAt((place - within) / kSectorBytes);
        if (begins && (place - within) % kSectorBytes == 0 && m_free.isFree(*begins)) {
            candidates.push_back(*begins);
        }
    }
    // Nearest behind first, then those before.
    const std::uint64_t first = m_laid.places.front();
    std::sort(candidates.begin(), candidates.end(), [&](std::uint64_t a, std::uint64_t b) {
        return std::pair(a < first, a) < std::pair(b < first, b);
    });
    return std::any_of(candidates.begin(), candidates.end(),
                       [&](std::uint64_t candidate) { return placeIndex(candidate, number); });
}

bool MoviePieces::placeIndex(std::uint64_t firstOfIndex, std::uint64_t number) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t within = m_layout.data.to % cluster;
    std::vector<std::uint64_t> clusters{firstOfIndex};
    ClusterFile head(m_medium, m_free, clusters, cluster);
    ByteView view(head);
    const std::uint64_t bytes = indexBytes(view, within);
    if (bytes < 16 || bytes > kMostIndexBytes) {
        return false;
    }
    m_layout.index = {
        m_layout.data.to, m_layout.data.to + 8, m_layout.data.to + bytes, {'m', 'o', 'o', 'v'}, false};
    m_layout.bytes = m_layout.index.end;
    const auto wanted = static_cast<std::size_t>((within + bytes + cluster - 1) / cluster);
    const auto take = [this](const std::vector<std::uint64_t>& each) { return takeIndex(each); };
    if (number != 0 && !findRestOfIndex(clusters, wanted, take)) {
        return false;
    }
    m_laid.places.resize(static_cast<std::size_t>(number) + wanted, LaidClusters::kUnplaced);
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        m_laid.place(number + i, clusters[i]);
    }
    return true;
}

// Of the index whose first byte stands there; 0 where none does.
std::uint64_t MoviePieces::indexBytes(ByteView& view, std::uint64_t at) const {
    if (m_layout.chunks) {
        return view.matches(at, "idx1") ? 8 + std::uint64_t{view.le32(at + 4).value_or(0)} : 0;
    }
    return view.matches(at + 4, "moov") ? view.be32(at).value_or(0) : 0;
}

bool MoviePieces::mayTryIndex(unsigned tries) const {
    return tries < (m_searchLeft != 0 ? kMostIndexTries : kLikelyIndexTries) && m_stop == 0;
}

bool MoviePieces::tryIndex(const std::vector<std::uint64_t>& clusters, unsigned& tries,
                           const TakeIndex& take) {
    ++tries;
    search(tries <= kLikelyIndexTries ? 0 : (m_layout.index.end - m_layout.index.at) * kIndexCost);
    return take(clusters);
}

// Tries the next piece at growing distances; the distance used last comes first.
bool MoviePieces::continueIndex(std::vector<std::uint64_t>& clusters, std::size_t wanted, unsigned& tries,
                                const TakeIndex& take) {
    if (clusters.size() == wanted) {
        return tryIndex(clusters, tries, take);
    }
    const std::uint64_t usual =
        clusters.size() < 2 ? 0 : m_free.stepsBetween(clusters[clusters.size() - 2], clusters.back());
    for (std::uint64_t turn = 0; turn <= kWidestTurn && mayTryIndex(tries); ++turn) {
        const std::uint64_t step = turn == 0 ? usual : turn;
        if (step == 0 || (turn != 0 && step == usual)) {
            continue;
        }
        const auto next = m_free.ahead(clusters.back(), step);
        if (!next) {
            ++tries;  // there are as many ways to the medium's end as to the index's
            break;
        }
        clusters.push_back(*next);
        if (continueIndex(clusters, wanted, tries, take)) {
            return true;
        }
        clusters.pop_back();
    }
    return false;
}

bool MoviePieces::takeIndex(const std::vector<std::uint64_t>& clusters) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t number = m_layout.data.to / cluster;
    // Only the index is looked at: what lies before it is not placed yet.
    m_indexRow.resize(static_cast<std::size_t>(number), m_laid.places.front());
    m_indexRow.insert(m_indexRow.end(), clusters.begin(), clusters.end());
    ClusterFile file(m_medium, m_free, m_indexRow, m_layout.bytes);
    if (m_layout.chunks) {
        return takeChunkIndex(file);
    }
    auto samples = promisedSamples(file, m_layout.index, m_layout.data);
    if (!samples || samples->empty()) {
        return false;
    }
    m_samples = std::move(*samples);
    // A camera's notes may follow in the same cluster.
    ClusterFile last(m_medium, m_free, m_indexRow, m_indexRow.size() * cluster);
    ByteView view(last);
    for (int boxes = 0; boxes < kMostBoxes; ++boxes) {
        const auto box = readIsoBox(view, m_layout.bytes);
        if (!box || box->toEnd || !isTrailer(box->text()) || box->end > view.size()) {
            break;
        }
        m_layout.bytes = box->end;
    }
    return true;
}

}  // namespace vantor
