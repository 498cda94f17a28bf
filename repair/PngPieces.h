// A PNG picture in pieces, put together by the check sums of its chunks.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

#include "repair/FreeClusters.h"
#include "repair/MediumBlocks.h"

namespace vantor {

struct PiecedPng {
    std::vector<std::uint64_t> clusters;  // in the order of the file
    std::uint64_t bytes = 0;
};

// Source: W3C, Portable Network Graphics, 5 and annex D. Any one thread.
class PngPieces {
  public:
    static constexpr std::size_t kMostChunks = 100'000;
    static constexpr std::uint64_t kMostChunkBytes = std::uint64_t{64} << 20;
    static constexpr std::uint64_t kMostAnchors =
        256;  // places at which the next chunk may begin, of one cut

    PngPieces(MediumBlocks& medium, const FreeClusters& free, const std::atomic<int>& stop)
        : m_medium(medium), m_free(free), m_stop(stop) {}

    // The picture that begins in the cluster; nothing unless every chunk of it is found with its sum. A chunk
    // may be cut once.
    std::optional<PiecedPng> assemble(std::uint64_t firstCluster);

  private:
    struct Chunk {
        std::uint64_t at = 0;
        std::uint64_t bytes = 0;  // with length, name and sum
        bool last = false;
        std::uint64_t end() const { return at + bytes; }
    };

    bool reach(std::uint64_t bytes);
    bool mayFollow(std::uint64_t cluster) const;
    std::optional<Chunk> chunkAt(std::uint64_t at);
    bool isSound(const Chunk& chunk);
    bool join(const Chunk& chunk);
    bool joinTo(const Chunk& chunk, std::uint64_t lastCluster);
    bool beginsChunk(std::uint64_t cluster, std::uint64_t at);

    MediumBlocks& m_medium;
    const FreeClusters& m_free;
    const std::atomic<int>& m_stop;
    std::vector<std::uint64_t> m_clusters;
};

}  // namespace vantor
