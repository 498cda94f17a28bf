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
    const auto lookFor = [&](const char* name, auto&& placeOf, std::span<const std::uint8_t> bytes) {
        for (std::size_t i = kBefore; i + kBehind <= bytes.size() && places.size() < kMostPlaces; ++i) {
            const void* const found = memmem(bytes.data() + i, bytes.size() - i - kBehind + 4, name, 4);
            if (found == nullptr) {
                break;
            }
            const auto* const here = static_cast<const std::uint8_t*>(found);
            i = static_cast<std::size_t>(here - bytes.data());
            if (const auto place = placeOf(here, i)) {
                places.push_back(*place);
            }
        }
    };
    const auto look = [&](std::span<const std::uint8_t> bytes, std::uint64_t at) {
        // An index, a fragment's head, and the list of fragments at a movie's end.
        const auto lookForBox = [&](const char* name, const char* child) {
            lookFor(
                name,
                [&](const std::uint8_t* here, std::size_t i) {
                    return std::memcmp(here + 8, child, 4) == 0 ? std::optional(at + i - 4) : std::nullopt;
                },
                bytes);
        };
        lookForBox("moov", "mvhd");
        lookForBox("moof", "mfhd");
        lookForBox("mfra", "tfra");
        lookFor(
            "idx1",
            // Its length is less than 16 MiB.
            [&](const std::uint8_t* here, std::size_t i) {
                return here[7] == 0 ? std::optional(at + i) : std::nullopt;
            },
            bytes);
    };
    std::vector<std::uint8_t> seam(2 * kHeadBytes, 0);
    for (std::uint64_t sector = 0; sector < medium.sectors() && stop == 0;
         sector += MediumBlocks::kBlockSectors) {
        const auto block = medium.blockOf(sector);
        std::copy_n(block.begin(), kHeadBytes, seam.begin() + kHeadBytes);
        if (sector != 0) {
            // What the block itself holds whole is found in it as well, and taken once.
            look(seam, sector * kSectorBytes - kHeadBytes);
        }
        look(block, sector * kSectorBytes);
        std::copy_n(block.end() - kHeadBytes, kHeadBytes, seam.begin());
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

// Follows the boxes in the first cluster and what lies directly behind it.
bool MoviePieces::readHead(std::uint64_t firstCluster) {
    std::vector<std::uint64_t> row{firstCluster};
    for (std::uint64_t bytes = 0; bytes < kMostIndexBytes && row.back() + 1 < m_free.count();
         bytes += m_free.clusterBytes()) {
        row.push_back(row.back() + 1);
    }
    ClusterFile file(m_medium, m_free, row, ~std::uint64_t{0});
    ByteView view(file);
    if (view.matches(0, "RIFF") && view.matches(8, "AVI ")) {
        return readChunkHead(firstCluster, view);
    }
    std::uint64_t at = 0;
    std::optional<IsoBox> index;
    std::optional<IsoBox> data;
    for (int i = 0; i < kMostBoxes && !data; ++i) {
        const auto box = readIsoBox(view, at);
        if (!box || box->toEnd ||
            (i == 0 && box->text() != "ftyp" && box->text() != "wide" && box->text() != "mdat")) {
            return false;
        }
        if (box->text() == "moov") {
            index = box;
        } else if (box->text() == "mdat") {
            data = box;
        } else if (box->text() == "moof") {
            // What stands in front of it lies in one row.
            for (std::uint64_t number = 0; index && number <= at / m_free.clusterBytes(); ++number) {
                m_places.push_back(kUnplaced);
                place(number, firstCluster + number);
            }
            return index && readFragments(view, *index, at);
        }
        at = box->end;
    }
    if (!data || data->end / m_free.clusterBytes() >= m_free.count()) {
        return false;
    }
    m_layout.data = {data->body, data->end};
    m_layout.mediaBytes = data->end - data->body;
    m_layout.bytes = std::max(data->end, index ? index->end : 0);
    const auto clusters =
        static_cast<std::size_t>((m_layout.bytes + m_free.clusterBytes() - 1) / m_free.clusterBytes());
    m_places.assign(clusters, kUnplaced);
    place(0, firstCluster);
    if (!index) {
        return findIndexBehind();
    }
    m_layout.index = *index;
    // The head lies in one row.
    for (std::uint64_t number = 1; number * m_free.clusterBytes() < data->body; ++number) {
        place(number, firstCluster + number);
    }
    auto samples = promisedSamples(file, *index, m_layout.data);
    m_samples = std::move(samples).value_or(std::vector<PromisedSample>());
    return !m_samples.empty();
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
    const std::uint64_t first = m_places.front();
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
    unsigned tries = 0;
    if (number != 0 && !continueIndex(clusters, wanted, tries)) {
        return false;
    }
    m_places.resize(static_cast<std::size_t>(number) + wanted, kUnplaced);
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        place(number + i, clusters[i]);
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

// Tries the next piece at growing distances; the distance used last comes first.
bool MoviePieces::continueIndex(std::vector<std::uint64_t>& clusters, std::size_t wanted, unsigned& tries) {
    if (clusters.size() == wanted) {
        ++tries;
        search(tries <= kLikelyIndexTries ? 0 : (m_layout.index.end - m_layout.index.at) * kIndexCost);
        return takeIndex(clusters);
    }
    const auto mayTry = [&] { return tries < (m_searchLeft != 0 ? kMostIndexTries : kLikelyIndexTries); };
    const std::uint64_t usual =
        clusters.size() < 2 ? 0 : m_free.stepsBetween(clusters[clusters.size() - 2], clusters.back());
    for (std::uint64_t turn = 0; turn <= kWidestTurn && mayTry() && m_stop == 0; ++turn) {
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
        if (continueIndex(clusters, wanted, tries)) {
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
    m_indexRow.resize(static_cast<std::size_t>(number), m_places.front());
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
