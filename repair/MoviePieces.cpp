// Anchors first: where a sample begins, its bytes tell its length, which the index promises. What lies
// between two anchors follows from the order in which clusters are given out.
#include "repair/MoviePieces.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace vantor {

namespace {

constexpr std::uint64_t kMostIndexBytes = std::uint64_t{64} << 20;
constexpr unsigned kMostIndexTries = 4096;
constexpr std::uint64_t kWidestTurn = 6;  // movies written at the same time, for the pieces of an index
constexpr std::uint64_t kNear = 4096;     // clusters
constexpr unsigned kMostFarSearches = 8;
constexpr int kMostBoxes = 32;

bool isTrailer(std::string_view name) {
    return name == "free" || name == "skip" || name == "udta" || name == "uuid" || name == "meta";
}

}  // namespace

std::vector<std::uint64_t> indexPlaces(MediumBlocks& medium, const std::atomic<int>& stop) {
    constexpr std::size_t kHeadBytes = 16;
    constexpr std::size_t kMostPlaces = 100'000;
    std::vector<std::uint64_t> places;
    const auto look = [&](std::span<const std::uint8_t> bytes, std::uint64_t at) {
        for (std::size_t i = 4; i + 12 <= bytes.size() && places.size() < kMostPlaces; ++i) {
            const void* const m = std::memchr(bytes.data() + i, 'm', bytes.size() - 11 - i);
            if (m == nullptr) {
                break;
            }
            i = static_cast<std::size_t>(static_cast<const std::uint8_t*>(m) - bytes.data());
            if (std::memcmp(bytes.data() + i, "moov", 4) == 0 &&
                std::memcmp(bytes.data() + i + 8, "mvhd", 4) == 0) {
                places.push_back(at + i - 4);
            }
        }
    };
    std::vector<std::uint8_t> seam(2 * kHeadBytes, 0);
    for (std::uint64_t sector = 0; sector < medium.sectors() && stop == 0;
         sector += MediumBlocks::kBlockSectors) {
        const auto block = medium.blockOf(sector);
        std::copy_n(block.begin(), kHeadBytes, seam.begin() + kHeadBytes);
        if (sector != 0) {
            // Only what lies across: a place that the block itself holds whole is found in it.
            const std::size_t before = places.size();
            look(seam, sector * kSectorBytes - kHeadBytes);
            if (places.size() > before && places.back() >= sector * kSectorBytes) {
                places.pop_back();
            }
        }
        look(block, sector * kSectorBytes);
        std::copy_n(block.end() - kHeadBytes, kHeadBytes, seam.begin());
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

std::optional<PiecedMovie> MoviePieces::assemble(std::uint64_t firstCluster) {
    m_layout = {};
    m_samples.clear();
    m_places.clear();
    m_used.assign(m_free.count(), false);
    m_step = 1;
    m_guessed = 0;
    m_farSearches = 0;
    if (!readHead(firstCluster) || !placeSamples() || m_stop != 0) {
        return std::nullopt;
    }
    PiecedMovie movie;
    movie.clusters = m_places;
    movie.bytes = m_layout.bytes;
    movie.guessed = m_guessed;
    movie.telling = isTelling();
    ClusterFile file(m_medium, m_free, m_places, m_layout.bytes);
    ByteView view(file);
    movie.decodable = true;
    for (const PromisedSample& sample : m_samples) {
        if (sample.coding != Coding::Unknown) {
            movie.decodable =
                movie.decodable && (sample.coding == Coding::Avc || sample.coding == Coding::Hevc);
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
        if (sample.coding != Coding::Unknown) {
            ++looked;
            sizes.insert(sample.bytes);
        }
    }
    const std::uint64_t data = m_layout.data.to - m_layout.data.from;
    return sum >= data - data / 50 && sizes.size() >= 2 && sizes.size() >= looked / 8;
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
        }
        at = box->end;
    }
    if (!data || data->end / m_free.clusterBytes() >= m_free.count()) {
        return false;
    }
    m_layout.data = {data->body, data->end};
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
    const std::uint64_t bytes = view.be32(within).value_or(0);
    if (bytes < 16 || bytes > kMostIndexBytes || !view.matches(within + 4, "moov")) {
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

// Tries the next piece at growing distances; the distance used last comes first.
bool MoviePieces::continueIndex(std::vector<std::uint64_t>& clusters, std::size_t wanted, unsigned& tries) {
    if (clusters.size() == wanted) {
        return ++tries <= kMostIndexTries && takeIndex(clusters);
    }
    const std::uint64_t usual =
        clusters.size() < 2 ? 0 : m_free.stepsBetween(clusters[clusters.size() - 2], clusters.back());
    for (std::uint64_t turn = 0; turn <= kWidestTurn && tries < kMostIndexTries && m_stop == 0; ++turn) {
        const std::uint64_t step = turn == 0 ? usual : turn;
        if (step == 0 || (turn != 0 && step == usual)) {
            continue;
        }
        const auto next = m_free.ahead(clusters.back(), step);
        if (!next) {
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
    std::vector<std::uint64_t> all(static_cast<std::size_t>(number), m_places.front());
    all.insert(all.end(), clusters.begin(), clusters.end());
    ClusterFile file(m_medium, m_free, all, m_layout.bytes);
    auto samples = promisedSamples(file, m_layout.index, m_layout.data);
    if (!samples || samples->empty()) {
        return false;
    }
    m_samples = std::move(*samples);
    // A camera's notes may follow in the same cluster.
    ClusterFile last(m_medium, m_free, all, all.size() * cluster);
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

// What the samples that begin in the cluster of the file say of a cluster of the medium.
Likeness MoviePieces::likeness(std::uint64_t number, std::uint64_t cluster) {
    const std::uint64_t bytes = m_free.clusterBytes();
    const std::uint64_t from = number * bytes;
    auto sample = std::lower_bound(m_samples.begin(), m_samples.end(), from,
                                   [](const PromisedSample& each, std::uint64_t at) { return each.at < at; });
    Likeness all = Likeness::Possible;
    std::vector<std::uint8_t> content;
    for (; sample != m_samples.end() && sample->at < from + bytes; ++sample) {
        if (sample->coding == Coding::Unknown) {
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
        all = one == Likeness::Certain ? one : all;
    }
    return all;
}

void MoviePieces::place(std::uint64_t number, std::uint64_t cluster) {
    m_places[static_cast<std::size_t>(number)] = cluster;
    m_used[static_cast<std::size_t>(cluster)] = true;
}

bool MoviePieces::accept(std::uint64_t number, std::uint64_t cluster) {
    if (!m_free.isFree(cluster) || m_used[static_cast<std::size_t>(cluster)] ||
        likeness(number, cluster) != Likeness::Certain) {
        return false;
    }
    place(number, cluster);
    return true;
}

// `known`: the number of the last one placed before. False where it is nowhere.
bool MoviePieces::placeAnchor(std::uint64_t number, std::uint64_t known) {
    const std::uint64_t last = m_places[static_cast<std::size_t>(known)];
    const std::uint64_t apart = number - known;
    const auto expected = m_free.ahead(last, m_step * apart);
    if (expected && accept(number, *expected)) {
        return true;
    }
    std::optional<std::uint64_t> next = last;
    for (std::uint64_t steps = 1; steps <= kNear && (next = m_free.ahead(*next, 1)); ++steps) {
        if (accept(number, *next)) {
            if (steps % apart == 0) {
                m_step = steps / apart;
            }
            return true;
        }
    }
    if (++m_farSearches > kMostFarSearches) {
        return false;
    }
    for (std::uint64_t cluster = 0; cluster < m_free.count() && m_stop == 0; ++cluster) {
        if (accept(number, cluster)) {
            m_step = 1;
            return true;
        }
    }
    return false;
}

bool MoviePieces::placeSamples() {
    std::uint64_t known = 0;
    std::size_t missed = 0;
    for (std::uint64_t number = 1; number < m_places.size() && m_stop == 0; ++number) {
        if (m_places[static_cast<std::size_t>(number)] != kUnplaced) {
            known = number;
            continue;
        }
        const auto hasAnchor = [&](std::uint64_t cluster) {
            return likeness(number, cluster) != Likeness::Possible;
        };
        // Whether anything can be said at all shows on any cluster that is not it.
        if (!hasAnchor(m_places.front())) {
            continue;
        }
        if (placeAnchor(number, known)) {
            known = number;
        } else if (++missed > m_places.size() / 50 + 2) {
            return false;
        }
    }
    fillBetween();
    return std::find(m_places.begin(), m_places.end(), kUnplaced) == m_places.end();
}

void MoviePieces::fillBetween() {
    for (std::size_t number = 1; number < m_places.size();) {
        if (m_places[number] != kUnplaced) {
            ++number;
            continue;
        }
        std::size_t end = number;
        while (end < m_places.size() && m_places[end] == kUnplaced) {
            ++end;
        }
        fillRow(number - 1, end);
        number = end;
    }
}

// Places the clusters of the file in (before, end): `ahead` of them `step` free ones apart from the one
// before, the others in a row up to the one behind. False where some of these are not to be had; nothing is
// placed then.
bool MoviePieces::lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step) {
    for (std::uint64_t number = before + 1; number < end; ++number) {
        const std::uint64_t steps = number - before;
        const auto cluster = steps <= ahead
                                 ? m_free.ahead(m_places[static_cast<std::size_t>(number - 1)], step)
                                 : m_free.back(m_places[static_cast<std::size_t>(end)], end - number);
        if (!cluster || m_used[static_cast<std::size_t>(*cluster)]) {
            lift(before, number);
            return false;
        }
        place(number, *cluster);
    }
    return true;
}

void MoviePieces::lift(std::uint64_t before, std::uint64_t end) {
    for (std::uint64_t number = before + 1; number < end; ++number) {
        std::uint64_t& cluster = m_places[static_cast<std::size_t>(number)];
        m_used[static_cast<std::size_t>(cluster)] = false;
        cluster = kUnplaced;
    }
}

// Of the samples that reach into the clusters of the file in (before, end).
std::size_t MoviePieces::brokenSamplesIn(std::uint64_t before, std::uint64_t end) {
    const std::uint64_t from = (before + 1) * m_free.clusterBytes();
    const std::uint64_t to = end * m_free.clusterBytes();
    ClusterFile file(m_medium, m_free, m_places, m_layout.bytes);
    ByteView view(file);
    auto sample = std::lower_bound(
        m_samples.begin(), m_samples.end(), from,
        [](const PromisedSample& each, std::uint64_t at) { return each.at + each.bytes <= at; });
    std::size_t broken = 0;
    for (; sample != m_samples.end() && sample->at < to; ++sample) {
        broken += sample->coding != Coding::Unknown && !isWholeSample(view, *sample) ? 1 : 0;
    }
    return broken;
}

// The ways in which clusters are given out, the likeliest first: evenly, as while movies are written in turn;
// on behind the one before; and in a row from somewhere else up to the one behind. The one is taken that
// leaves the fewest samples broken.
void MoviePieces::fillRow(std::uint64_t before, std::uint64_t end) {
    struct Way {
        std::uint64_t ahead = 0;
        std::uint64_t step = 1;
    };
    constexpr std::uint64_t kMostWays = 64;
    const std::uint64_t missing = end - before - 1;
    const bool open = end >= m_places.size();
    const std::uint64_t apart = open ? 0
                                     : m_free.stepsBetween(m_places[static_cast<std::size_t>(before)],
                                                           m_places[static_cast<std::size_t>(end)]);
    std::vector<Way> ways;
    if (open) {
        ways.push_back({missing, m_step});
    } else if (apart > missing && apart % (missing + 1) == 0) {
        ways.push_back({missing, apart / (missing + 1)});
    }
    ways.push_back({missing, 1});
    for (std::uint64_t back = 1; !open && back <= std::min(missing, kMostWays); ++back) {
        ways.push_back({missing - back, 1});
    }
    const bool onlyWay = apart == missing + 1;
    std::optional<Way> best;
    std::size_t fewest = 0;
    for (const Way& way : ways) {
        if (m_stop != 0 || !lay(before, end, way.ahead, way.step)) {
            continue;
        }
        const std::size_t broken = onlyWay ? 0 : brokenSamplesIn(before, end);
        if (broken == 0) {
            m_guessed += onlyWay ? 0 : static_cast<std::size_t>(missing);
            return;
        }
        if (!best || broken < fewest) {
            best = way;
            fewest = broken;
        }
        lift(before, end);
    }
    if (best && lay(before, end, best->ahead, best->step)) {
        m_guessed += static_cast<std::size_t>(missing);
    }
}

}  // namespace vantor
