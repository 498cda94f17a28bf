// The medium in an evidence image (E01), read with libewf.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "decode/DecodeProtocol.h"
#include "media/SectorRun.h"

namespace vantor::decode {

// Whoever reads what others wrote does so in a cage. One thread.
class EvidenceReader {
  public:
    // More stay open than most systems let a program have.
    static constexpr std::size_t kMostSegments = 512;

    // The segments in their order, open for reading, stay the caller's and have to stay open. Null when they
    // hold no medium that can be read.
    static std::unique_ptr<EvidenceReader> open(const std::vector<int>& segments);
    ~EvidenceReader();
    EvidenceReader(const EvidenceReader&) = delete;
    EvidenceReader& operator=(const EvidenceReader&) = delete;

    const EvidenceFacts& facts() const { return m_facts; }

    // Sectors from `first` on into the bytes, as many as fit and follow each other undamaged: what has the
    // wrong sum, is missing, or could not be read when the image was made is damaged. The number of them.
    std::size_t read(std::uint64_t first, std::span<std::uint8_t> into);

  private:
    struct Library;

    EvidenceReader();
    bool takeFacts();
    bool takeErrors(std::uint32_t sectorBytes);
    bool bringChunk(std::uint64_t chunk);
    // Sectors from this one up to the next that could not be read when the image was made.
    std::uint64_t goodFrom(std::uint64_t sector) const;

    std::unique_ptr<Library> m_library;
    EvidenceFacts m_facts;
    std::uint64_t m_mediumBytes = 0;
    std::uint64_t m_chunkBytes = 0;
    std::vector<SectorRun> m_notAcquired;  // ascending

    // The last chunk that was asked for.
    std::optional<std::uint64_t> m_chunk;
    bool m_chunkIsGood = false;
    std::span<const std::uint8_t> m_chunkIs;  // in one of these
    std::vector<std::uint8_t> m_stored;
    std::vector<std::uint8_t> m_unpacked;
};

}  // namespace vantor::decode
