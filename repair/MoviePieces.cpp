// Anchors first: where a sample begins, its bytes tell its length, which the index promises. What lies
// between two anchors follows from the order in which clusters are given out.
#include "repair/MoviePieces.h"

#include <algorithm>
#include <set>

namespace vantor {

namespace {

constexpr std::uint64_t kNear = 4096;  // clusters
constexpr std::uint64_t kVeryNear = 64;
constexpr unsigned kMostFarSearches = 8;

}  // namespace

void MoviePieces::begin(std::span<const std::uint64_t> others) {
    m_others = others;
    m_layout = {};
    m_samples.clear();
    m_laid.places.clear();
    m_indexRow.clear();
    m_laid.used.assign(m_free.count(), false);
    leaveOut(0);
    m_step = 1;
    m_stepKept = false;
    m_guessed = 0;
    m_farSearches = 0;
}

// A file that is larger than that is none of a movie's samples.
void MoviePieces::leaveOut(std::uint64_t largest) {
    m_free = m_unexplained;
    for (const SectorRun& run : m_otherFiles) {
        if ((run.end - run.first) * kSectorBytes > largest) {
            m_free.take(run);
        }
    }
    m_left = m_free;
    for (const std::uint64_t cluster : m_others) {
        m_left.takeCluster(cluster);
    }
}

bool MoviePieces::holdsPhotos() const {
    return std::any_of(m_samples.begin(), m_samples.end(), [](const PromisedSample& sample) {
        return sample.isChunk() || sample.coding == Coding::Jpeg;
    });
}

bool MoviePieces::read(std::uint64_t firstCluster) {
    if (!readHead(firstCluster)) {
        return false;
    }
    if (holdsPhotos()) {
        std::uint64_t largest = 0;
        for (const PromisedSample& sample : m_samples) {
            largest = std::max(largest, sample.bytes);
        }
        leaveOut(largest);
    }
    return true;
}

std::vector<std::uint64_t> MoviePieces::anchorsOf(std::uint64_t firstCluster) {
    begin({});
    std::vector<std::uint64_t> anchors;
    if (!read(firstCluster) || !tellsInEach(IndexPart::Row) || !placeAnchors()) {
        return anchors;
    }
    for (const PromisedSample& sample : m_samples) {
        const std::uint64_t number = sample.at / m_free.clusterBytes();
        if (number >= m_laid.places.size()) {
            break;  // an empty one behind the last byte
        }
        const std::uint64_t cluster = m_laid.at(number);
        if (sample.tellsLength() && cluster != LaidClusters::kUnplaced &&
            (anchors.empty() || anchors.back() != cluster) &&
            likeness(number, cluster) == Likeness::Certain) {
            anchors.push_back(cluster);
        }
    }
    return anchors;
}

std::optional<PiecedMovie> MoviePieces::assemble(std::uint64_t firstCluster,
                                                 std::span<const std::uint64_t> others) {
    begin(others);
    if (!read(firstCluster) || !placeSamples() || m_stop != 0) {
        return std::nullopt;
    }
    PiecedMovie movie;
    movie.clusters = m_laid.places;
    movie.bytes = m_layout.bytes;
    movie.guessed = m_guessed;
    movie.ownIndex = tellsInEach(IndexPart::Row);
    // Where a row goes on, any cluster would do that tells nothing of the samples.
    movie.telling = movie.ownIndex && tellsInEach(IndexPart::Cluster) && isTelling();
    ClusterFile file(m_medium, m_free, m_laid.places, m_layout.bytes);
    ByteView view(file);
    movie.decodable = true;
    for (const PromisedSample& sample : m_samples) {
        if (sample.tells()) {
            const bool faint = sample.coding == Coding::Mpeg4 || sample.coding == Coding::H263;
            movie.decodable = movie.decodable && (faint || sample.coding == Coding::Avc);
            movie.faint = movie.faint || faint;
            ++movie.samples;
            movie.wholeSamples += isWholeSample(view, sample) ? 1 : 0;
        }
    }
    return movie;
}

// Samples of one size lie alike in all movies of a camera, and the index of a shorter one fits a longer one
// then. Sizes that vary, and add up to all of the data, belong to this movie alone.
bool MoviePieces::isTelling() const {
    std::set<std::uint64_t> sizes;
    std::size_t looked = 0;
    std::uint64_t sum = 0;
    for (const PromisedSample& sample : m_samples) {
        sum += sample.bytes;
        if (sample.tells()) {
            ++looked;
            sizes.insert(sample.bytes);
        }
    }
    const std::uint64_t data = m_layout.mediaBytes;
    return m_layout.endTold && sum >= data - data / 50 && sizes.size() >= 2 && sizes.size() >= looked / 8;
}

// Indexes of movies of one length and camera are alike up to their tables: a piece of the one fits the other.
// Only sizes and places of samples in each piece contradict those in another's.
bool MoviePieces::tellsInEach(IndexPart part) {
    constexpr std::uint64_t kFewestTableBytes = 16;
    if (m_layout.chunks || m_layout.index.end == 0) {
        return true;  // entries of one kind, or fragments that are numbered
    }
    ClusterFile file(m_medium, m_free, m_laid.places, m_layout.bytes);
    ByteView view(file);
    const std::uint64_t cluster = m_free.clusterBytes();
    const auto first = static_cast<std::size_t>(m_layout.index.at / cluster);
    const auto end = static_cast<std::size_t>((m_layout.index.end + cluster - 1) / cluster);
    std::vector<DataPlace> tables;
    forIsoBoxes(view, m_layout.index.body, m_layout.index.end, [&](const IsoBox& box) {
        if (box.text() == "trak") {
            const IsoTrack track = readIsoTrack(view, box);
            for (const IsoTable& table : {track.sizes, track.chunks}) {
                tables.push_back({table.at, table.at + table.count * table.bits / 8});
            }
        }
    });
    for (std::size_t from = first, to = first; from < end; from = to) {
        do {
            ++to;
        } while (part == IndexPart::Row && to < end && m_laid.places[to] == m_laid.places[to - 1] + 1);
        std::uint64_t told = 0;
        for (const DataPlace& table : tables) {
            const std::uint64_t begin = std::max<std::uint64_t>(table.from, from * cluster);
            const std::uint64_t behind = std::min<std::uint64_t>(table.to, to * cluster);
            told += behind > begin ? behind - begin : 0;
        }
        const bool oneRow = from == first && (to == end || part == IndexPart::Cluster);
        if (!oneRow && told < kFewestTableBytes) {
            return false;
        }
    }
    return true;
}

// What the samples that begin in the cluster of the file say of a cluster of the medium.
Likeness MoviePieces::likeness(std::uint64_t number, std::uint64_t cluster) {
    const std::uint64_t bytes = m_free.clusterBytes();
    const std::uint64_t from = number * bytes;
    auto sample = std::lower_bound(m_samples.begin(), m_samples.end(), from,
                                   [](const PromisedSample& each, std::uint64_t at) { return each.at < at; });
    Likeness all = Likeness::Possible;
    std::vector<std::uint8_t> content;
    for (; sample != m_samples.end() && sample->at < from + bytes; ++sample) {
        if (!sample->tells()) {
            continue;
        }
        if (content.empty()) {
            content.resize(static_cast<std::size_t>(bytes));
            m_medium.read(m_free.firstSectorOf(cluster) * kSectorBytes, content);
        }
        const Likeness one = beginsAs(*sample, std::span<const std::uint8_t>(content).subspan(
                                                   static_cast<std::size_t>(sample->at - from)));
        if (one == Likeness::Contradicted) {
            return one;
        }
        all = one == Likeness::Likely && all == one ? Likeness::Certain : std::max(all, one);
    }
    return all;
}

// `least`: of the likeness.
bool MoviePieces::accept(std::uint64_t number, std::uint64_t cluster, Likeness least) {
    if (!m_left.isFree(cluster) || m_laid.isUsed(cluster) || likeness(number, cluster) < least) {
        return false;
    }
    m_laid.place(number, cluster);
    return true;
}

// `known`: the number of the last one placed before. False where it is nowhere.
bool MoviePieces::placeAnchor(std::uint64_t number, std::uint64_t known) {
    const std::uint64_t last = m_laid.at(known);
    const std::uint64_t apart = number - known;
    const auto expected = m_free.ahead(last, m_step * apart);
    m_stepKept = expected && accept(number, *expected, Likeness::Likely);
    if (m_stepKept) {
        return true;
    }
    std::optional<std::uint64_t> next = last;
    for (std::uint64_t steps = 1; steps <= (m_searchLeft != 0 ? kNear : kVeryNear); ++steps) {
        if (!(next = m_free.ahead(*next, 1))) {
            break;
        }
        search(steps <= kVeryNear ? 0 : m_free.clusterBytes());
        if (accept(number, *next, steps <= kVeryNear ? Likeness::Likely : Likeness::Certain)) {
            if (steps % apart == 0) {
                m_step = steps / apart;
            }
            return true;
        }
    }
    if (++m_farSearches > kMostFarSearches) {
        return false;
    }
    for (std::uint64_t cluster = 0; cluster < m_free.count() && m_searchLeft != 0 && m_stop == 0; ++cluster) {
        search(m_free.clusterBytes());
        if (accept(number, cluster, Likeness::Certain)) {
            m_step = 1;
            return true;
        }
    }
    return false;
}

bool MoviePieces::placeAnchors() {
    std::uint64_t known = 0;
    std::size_t missed = 0;
    for (std::uint64_t number = 1; number < m_laid.places.size() && m_stop == 0; ++number) {
        if (m_laid.isPlaced(number)) {
            known = number;
            continue;
        }
        const auto hasAnchor = [&](std::uint64_t cluster) {
            return likeness(number, cluster) != Likeness::Possible;
        };
        // Whether anything can be said at all shows on any cluster that is not it.
        if (!hasAnchor(m_laid.places.front())) {
            continue;
        }
        if (placeAnchor(number, known)) {
            known = number;
        } else if (++missed > m_laid.places.size() / 50 + 2) {
            return false;
        }
    }
    return true;
}

bool MoviePieces::placeSamples() {
    if (!placeAnchors()) {
        return false;
    }
    placeInTurns();
    fillBetween();
    return std::find(m_laid.places.begin(), m_laid.places.end(), LaidClusters::kUnplaced) ==
           m_laid.places.end();
}

}  // namespace vantor
