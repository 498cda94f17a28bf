// The head and the index of an AVI movie in pieces. Sources: Microsoft, AVI RIFF file reference;
// OpenDML 1.02.
#include "repair/MoviePieces.h"

namespace vantor {

namespace {

constexpr std::uint64_t kChunkHead = 8;  // name and length
constexpr int kMostHeadChunks = 64;

// Whether the movie goes on in further outer chunks, which nothing here follows.
bool goesOnFurther(ByteView& view, std::uint64_t headers, std::uint64_t end) {
    std::uint64_t pictures = 0;
    std::uint64_t allPictures = 0;
    for (int i = 0; i < kMostHeadChunks && headers + kChunkHead < end; ++i) {
        const std::uint64_t bytes = view.le32(headers + 4).value_or(0);
        if (view.matches(headers, "avih")) {
            pictures = view.le32(headers + kChunkHead + 16).value_or(0);
        } else if (view.matches(headers + kChunkHead, "odml") &&
                   view.matches(headers + kChunkHead + 4, "dmlh")) {
            allPictures = view.le32(headers + 2 * kChunkHead + 4).value_or(0);
        }
        headers += kChunkHead + bytes + bytes % 2;
    }
    return allPictures > pictures;
}

}  // namespace

// Follows the chunks in the first cluster and what lies directly behind it, up to the movie's data.
bool MoviePieces::readChunkHead(std::uint64_t firstCluster, ByteView& view) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t outerEnd = kChunkHead + view.le32(4).value_or(0);
    std::uint64_t at = kChunkHead + 4;
    for (int i = 0; i < kMostHeadChunks; ++i) {
        const std::uint64_t body = at + kChunkHead;
        const auto told = view.le32(at + 4);
        if (!told || body + *told > outerEnd) {
            return false;
        }
        const std::uint64_t end = body + *told;
        const bool isList = view.matches(at, "LIST");
        if (isList && view.matches(body, "hdrl") && goesOnFurther(view, body + 4, end)) {
            return false;
        }
        if (isList && view.matches(body, "movi")) {
            m_layout.chunks = true;
            m_layout.data = {body + 4, end + end % 2};
            m_layout.mediaBytes = m_layout.data.to - m_layout.data.from;
            m_layout.told = outerEnd;
            break;
        }
        at = end + end % 2;
    }
    if (!m_layout.chunks || m_layout.data.to >= outerEnd || outerEnd / cluster >= m_free.count()) {
        return false;
    }
    m_laid.places.assign(static_cast<std::size_t>((outerEnd + cluster - 1) / cluster),
                         LaidClusters::kUnplaced);
    for (std::uint64_t number = 0; number == 0 || number * cluster < m_layout.data.from; ++number) {
        m_laid.place(number, firstCluster + number);
    }
    return findIndexBehind();
}

// What little may follow the index lies in its last cluster.
bool MoviePieces::takeChunkIndex(ByteSource& file) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t end = m_layout.index.end;
    if (end > m_layout.told || (m_layout.told - 1) / cluster != (end - 1) / cluster) {
        return false;
    }
    auto samples = promisedChunks(file, {m_layout.index.body, end}, m_layout.data);
    if (!samples || samples->empty()) {
        return false;
    }
    m_samples = std::move(*samples);
    m_layout.bytes = m_layout.told;
    return true;
}

}  // namespace vantor
