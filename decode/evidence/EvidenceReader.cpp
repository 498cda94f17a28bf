// Chunk by chunk: libewf's plain reading gives a damaged chunk's bytes as if nothing were the matter.
#include "decode/evidence/EvidenceReader.h"

#include <libewf.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "decode/evidence/SegmentFiles.h"

namespace vantor::decode {

namespace {

constexpr std::uint64_t kSectorBytes = 512;
// 32,768 sectors of 512 bytes are the most that is written.
constexpr std::uint64_t kMostChunkBytes = std::uint64_t{16} << 20;
// libewf finds each by counting from the first.
constexpr std::uint32_t kMostErrors = 1 << 14;

// Tells libewf that nobody wants to hear why something failed.
libewf_error_t** const kNoError = nullptr;

}  // namespace

struct EvidenceReader::Library {
    libewf_handle_t* handle = nullptr;

    Library() { libewf_handle_initialize(&handle, kNoError); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() {
        if (handle != nullptr) {
            libewf_handle_close(handle, kNoError);
            libewf_handle_free(&handle, kNoError);
        }
    }
};

EvidenceReader::EvidenceReader() : m_library(std::make_unique<Library>()) {}
EvidenceReader::~EvidenceReader() = default;

std::unique_ptr<EvidenceReader> EvidenceReader::open(const std::vector<int>& segments) {
    if (segments.empty() || segments.size() > kMostSegments) {
        return nullptr;
    }
    std::vector<std::string> names;
    std::vector<char*> pointers;
    for (const int segment : segments) {
        names.push_back(nameForSegment(segment));
    }
    for (std::string& name : names) {
        pointers.push_back(name.data());
    }
    std::unique_ptr<EvidenceReader> reader(new EvidenceReader);
    libewf_handle_t* const handle = reader->m_library->handle;
    const bool opened =
        handle != nullptr && libewf_handle_open(handle, pointers.data(), static_cast<int>(pointers.size()),
                                                libewf_get_access_flags_read(), kNoError) == 1;
    return opened && reader->takeFacts() ? std::move(reader) : nullptr;
}

bool EvidenceReader::takeFacts() {
    libewf_handle_t* const handle = m_library->handle;
    size64_t bytes = 0;
    std::uint32_t sectorBytes = 0, chunkSectors = 0;
    if (libewf_handle_get_media_size(handle, &bytes, kNoError) != 1 ||
        libewf_handle_get_bytes_per_sector(handle, &sectorBytes, kNoError) != 1 ||
        libewf_handle_get_sectors_per_chunk(handle, &chunkSectors, kNoError) != 1) {
        return false;
    }
    m_mediumBytes = bytes;
    m_chunkBytes = std::uint64_t{sectorBytes} * chunkSectors;
    if (sectorBytes == 0 || sectorBytes % kSectorBytes != 0 || m_chunkBytes == 0 ||
        m_chunkBytes > kMostChunkBytes || m_mediumBytes > INT64_MAX) {
        return false;
    }
    m_facts.sectors = m_mediumBytes / kSectorBytes;
    if (m_facts.sectors == 0 || !takeErrors(sectorBytes)) {
        return false;
    }
    // What could not be read when the image was made is told sector by sector.
    m_facts.unitSectors = m_notAcquired.empty() ? m_chunkBytes / kSectorBytes : 1;
    return true;
}

bool EvidenceReader::takeErrors(std::uint32_t sectorBytes) {
    libewf_handle_t* const handle = m_library->handle;
    std::uint32_t errors = 0;
    if (libewf_handle_get_number_of_acquiry_errors(handle, &errors, kNoError) != 1 || errors > kMostErrors) {
        return false;
    }
    const std::uint64_t units = sectorBytes / kSectorBytes;
    for (std::uint32_t i = 0; i < errors; ++i) {
        std::uint64_t first = 0, count = 0;
        if (libewf_handle_get_acquiry_error(handle, i, &first, &count, kNoError) != 1) {
            return false;
        }
        // Both within the medium before they are multiplied.
        first = std::min(first, m_facts.sectors / units);
        count = std::min(count, m_facts.sectors / units - first);
        if (count != 0) {
            m_notAcquired.push_back({first * units, (first + count) * units});
        }
    }
    std::sort(m_notAcquired.begin(), m_notAcquired.end(),
              [](const SectorRun& a, const SectorRun& b) { return a.first < b.first; });
    return true;
}

std::uint64_t EvidenceReader::goodFrom(std::uint64_t sector) const {
    for (const SectorRun& run : m_notAcquired) {
        if (sector < run.end) {
            return run.first > sector ? run.first - sector : 0;
        }
    }
    return m_facts.sectors - sector;
}

std::size_t EvidenceReader::read(std::uint64_t first, std::span<std::uint8_t> into) {
    if (first >= m_facts.sectors) {
        return 0;
    }
    const std::uint64_t wanted = std::min<std::uint64_t>(into.size() / kSectorBytes, goodFrom(first));
    std::uint64_t done = 0;
    while (done < wanted) {
        const std::uint64_t at = (first + done) * kSectorBytes;
        const std::uint64_t within = at % m_chunkBytes;
        if (!bringChunk(at / m_chunkBytes) || m_chunkIs.size() < within + kSectorBytes) {
            break;
        }
        const std::uint64_t sectors = std::min((m_chunkIs.size() - within) / kSectorBytes, wanted - done);
        std::memcpy(into.data() + done * kSectorBytes, m_chunkIs.data() + within, sectors * kSectorBytes);
        done += sectors;
    }
    return static_cast<std::size_t>(done);
}

bool EvidenceReader::bringChunk(std::uint64_t chunk) {
    if (m_chunk == chunk) {
        return m_chunkIsGood;
    }
    m_chunk = chunk;
    m_chunkIsGood = false;
    m_chunkIs = {};
    // A chunk that packing made longer is stored as it is, with its sum; other programs may think otherwise.
    m_stored.resize(2 * m_chunkBytes);
    m_unpacked.resize(m_chunkBytes);
    const std::uint64_t begin = chunk * m_chunkBytes;
    libewf_handle_t* const handle = m_library->handle;
    if (libewf_handle_seek_offset(handle, static_cast<off64_t>(begin), SEEK_SET, kNoError) < 0) {
        return false;
    }
    std::int8_t isPacked = 0, hasSum = 0;
    std::uint8_t sumBytes[4] = {};
    std::uint32_t sum = 0;
    const ssize_t stored = libewf_handle_read_chunk(handle, m_stored.data(), m_stored.size(), &isPacked,
                                                    sumBytes, &sum, &hasSum, kNoError);
    if (stored <= 0) {
        return false;
    }
    std::size_t room = m_unpacked.size();
    const ssize_t whole =
        libewf_handle_prepare_read_chunk(handle, m_stored.data(), static_cast<std::size_t>(stored),
                                         m_unpacked.data(), &room, isPacked, sum, hasSum, kNoError);
    const std::uint64_t expected = std::min(m_chunkBytes, m_mediumBytes - begin);
    if (whole < 0 || static_cast<std::uint64_t>(whole) != expected) {
        return false;
    }
    m_chunkIs = {isPacked != 0 ? m_unpacked.data() : m_stored.data(), static_cast<std::size_t>(expected)};
    m_chunkIsGood = true;
    return true;
}

}  // namespace vantor::decode
