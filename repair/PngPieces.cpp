// A chunk whose sum is wrong holds the cut. Where the chunk ends, the next one begins: that tells which
// clusters its end may lie in. The sums of clusters are combined, so that every cut is tried at once.
#include "repair/PngPieces.h"

#include <zlib.h>

#include <algorithm>
#include <array>

#include "repair/ClusterFile.h"

namespace vantor {

namespace {

constexpr std::uint64_t kSignatureBytes = 8;
constexpr std::uint64_t kAround = 12;  // length and name before a chunk's data, the sum behind
constexpr std::array<std::uint8_t, kSignatureBytes> kSignature = {0x89, 'P',  'N',  'G',
                                                                  '\r', '\n', 0x1A, '\n'};

constexpr std::uint64_t kMostCutBytes = std::uint64_t{256} << 20;  // of one cut

bool isLetter(std::uint8_t byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

std::uint32_t sumOf(std::span<const std::uint8_t> bytes) {
    return static_cast<std::uint32_t>(::crc32_z(0, bytes.data(), bytes.size()));
}

std::uint32_t joined(std::uint32_t first, std::uint32_t second, std::uint64_t secondBytes) {
    return static_cast<std::uint32_t>(::crc32_combine(first, second, static_cast<z_off_t>(secondBytes)));
}

}  // namespace

bool PngPieces::mayFollow(std::uint64_t cluster) const {
    return m_free.isFree(cluster) &&
           std::find(m_clusters.begin(), m_clusters.end(), cluster) == m_clusters.end();
}

// Clusters in a row up to so many bytes; false where they end before.
bool PngPieces::reach(std::uint64_t bytes) {
    while (m_clusters.size() * m_free.clusterBytes() < bytes) {
        const std::uint64_t next = m_clusters.back() + 1;
        if (!mayFollow(next)) {
            return false;
        }
        m_clusters.push_back(next);
    }
    return true;
}

// The chunk as its first eight bytes tell.
std::optional<PngPieces::Chunk> PngPieces::chunkAt(std::uint64_t at) {
    if (!reach(at + 8)) {
        return std::nullopt;
    }
    ClusterFile file(m_medium, m_free, m_clusters, at + 8);
    std::array<std::uint8_t, 8> head{};
    if (file.read(at, head) != head.size() || !std::all_of(head.begin() + 4, head.end(), isLetter)) {
        return std::nullopt;
    }
    const std::uint64_t data = std::uint64_t{head[0]} << 24 | head[1] << 16 | head[2] << 8 | head[3];
    const bool last = std::equal(head.begin() + 4, head.end(), "IEND");
    return data > kMostChunkBytes || (last && data != 0) ? std::nullopt
                                                         : std::optional(Chunk{at, data + kAround, last});
}

bool PngPieces::isSound(const Chunk& chunk) {
    if (!reach(chunk.end())) {
        return false;
    }
    ClusterFile file(m_medium, m_free, m_clusters, chunk.end());
    std::vector<std::uint8_t> bytes(std::size_t{64} * 1024);
    std::uint32_t sum = 0;
    for (std::uint64_t at = chunk.at + 4; at < chunk.end() - 4;) {
        const auto part = std::span(bytes).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), chunk.end() - 4 - at)));
        if (file.read(at, part) != part.size()) {
            return false;
        }
        sum = static_cast<std::uint32_t>(::crc32_z(sum, part.data(), part.size()));
        at += part.size();
    }
    std::array<std::uint8_t, 4> told{};
    return file.read(chunk.end() - 4, told) == told.size() &&
           sum == (std::uint32_t{told[0]} << 24 | std::uint32_t{told[1]} << 16 | std::uint32_t{told[2]} << 8 |
                   told[3]);
}

// Whether a chunk may begin in the cluster, `at` bytes behind its first.
bool PngPieces::beginsChunk(std::uint64_t cluster, std::uint64_t at) {
    std::array<std::uint8_t, 8> head{};
    m_medium.read(m_free.firstSectorOf(cluster) * kSectorBytes + at, head);
    return head[0] < 0x10 && std::all_of(head.begin() + 4, head.end(), isLetter);
}

// Lets the chunk's end lie in that cluster: some clusters of the chunk follow each other up to it, those
// before as they are. False where no such cut gives the sum.
bool PngPieces::joinTo(const Chunk& chunk, std::uint64_t lastCluster) {
    const std::uint64_t size = m_free.clusterBytes();
    const std::uint64_t from = chunk.at + 4;
    const std::uint64_t to = chunk.end() - 4;
    const auto firstNumber = static_cast<std::size_t>(chunk.at / size);
    const auto lastNumber = static_cast<std::size_t>((chunk.end() - 1) / size);
    const auto partOf = [&](std::size_t number, std::uint64_t cluster) {
        const std::uint64_t begin = std::max(from, number * size);
        const std::uint64_t end = std::min(to, (number + 1) * size);
        std::vector<std::uint8_t> bytes(begin < end ? static_cast<std::size_t>(end - begin) : 0);
        if (!bytes.empty()) {
            m_medium.read(m_free.firstSectorOf(cluster) * kSectorBytes + begin % size, bytes);
        }
        return bytes;
    };
    // Sums of the chunk from its beginning up to each cluster, as they lie now.
    std::vector<std::uint32_t> before{0};
    for (std::size_t number = firstNumber; number < std::min(lastNumber, m_clusters.size()); ++number) {
        const auto bytes = partOf(number, m_clusters[number]);
        before.push_back(joined(before.back(), sumOf(bytes), bytes.size()));
    }
    std::uint32_t behind = 0;
    std::uint64_t behindBytes = 0;
    for (std::size_t number = lastNumber; number > firstNumber && m_stop == 0; --number) {
        const std::uint64_t back = lastNumber - number;
        if (back > lastCluster || !m_free.isFree(lastCluster - back)) {
            return false;
        }
        const auto bytes = partOf(number, lastCluster - back);
        behind = joined(sumOf(bytes), behind, behindBytes);
        behindBytes += bytes.size();
        const std::size_t kept = number - firstNumber;
        if (kept >= before.size()) {
            continue;
        }
        std::array<std::uint8_t, 4> told{};
        std::vector<std::uint64_t> clusters(m_clusters.begin(),
                                            m_clusters.begin() + static_cast<std::ptrdiff_t>(number));
        for (std::uint64_t i = back + 1; i-- > 0;) {
            clusters.push_back(lastCluster - i);
        }
        ClusterFile(m_medium, m_free, clusters, chunk.end()).read(to, told);
        const std::uint32_t sum = std::uint32_t{told[0]} << 24 | std::uint32_t{told[1]} << 16 |
                                  std::uint32_t{told[2]} << 8 | told[3];
        if (joined(before[kept], behind, behindBytes) == sum) {
            m_clusters = std::move(clusters);
            return true;
        }
    }
    return false;
}

bool PngPieces::join(const Chunk& chunk) {
    const std::uint64_t size = m_free.clusterBytes();
    const std::uint64_t at = chunk.end() % size;
    // Where the chunk ends with its cluster, the next one begins in a cluster that is not known yet.
    const bool tells = !chunk.last && at != 0 && at + 8 <= size;
    const std::uint64_t most = std::clamp<std::uint64_t>(kMostCutBytes / chunk.bytes, 1, kMostAnchors);
    std::uint64_t anchors = 0;
    const std::uint64_t first = m_clusters.front();
    for (std::uint64_t step = 1; step < m_free.count() && anchors < most && m_stop == 0; ++step) {
        const std::uint64_t cluster = (first + step) % m_free.count();
        if (!m_free.isFree(cluster) || (tells && !beginsChunk(cluster, at))) {
            continue;
        }
        ++anchors;
        if (joinTo(chunk, cluster)) {
            return true;
        }
    }
    return false;
}

std::optional<PiecedPng> PngPieces::assemble(std::uint64_t firstCluster) {
    m_clusters = {firstCluster};
    ClusterFile head(m_medium, m_free, m_clusters, kSignatureBytes);
    std::array<std::uint8_t, kSignatureBytes> signature{};
    if (head.read(0, signature) != signature.size() || signature != kSignature) {
        return std::nullopt;
    }
    std::uint64_t at = kSignatureBytes;
    for (std::size_t chunks = 0; chunks < kMostChunks && m_stop == 0; ++chunks) {
        const auto chunk = chunkAt(at);
        if (!chunk || (!isSound(*chunk) && !join(*chunk))) {
            return std::nullopt;
        }
        at = chunk->end();
        if (chunk->last) {
            m_clusters.resize(
                static_cast<std::size_t>((at + m_free.clusterBytes() - 1) / m_free.clusterBytes()));
            return PiecedPng{m_clusters, at};
        }
    }
    return std::nullopt;
}

}  // namespace vantor
