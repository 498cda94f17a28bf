// Any bytes as an evidence image: it is refused, or its sectors are read or refused, within bounds.
#include <sys/mman.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "decode/evidence/EvidenceReader.h"

namespace {

// Layout as the public notes on the Expert Witness Compression Format have it.
constexpr std::size_t kFileHeadBytes = 13, kSectionHeadBytes = 76, kTableHeadBytes = 24;
constexpr std::size_t kNextAt = 16, kSizeAt = 24;

std::uint64_t numberAt(const std::vector<std::uint8_t>& bytes, std::size_t at) {
    std::uint64_t number = 0;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}

// Puts the sum of the bytes [first, end) behind them.
void mendSum(std::vector<std::uint8_t>& bytes, std::size_t first, std::size_t end) {
    if (first < end && end + 4 <= bytes.size()) {
        const auto sum =
            static_cast<std::uint32_t>(adler32(1, bytes.data() + first, static_cast<uInt>(end - first)));
        std::memcpy(bytes.data() + end, &sum, sizeof sum);
    }
}

// Damage that the sums give away gets nowhere, so most of them are made right again.
void mendSums(std::vector<std::uint8_t>& bytes) {
    std::size_t at = kFileHeadBytes;
    for (int sections = 0; sections < 64 && at + kSectionHeadBytes <= bytes.size(); ++sections) {
        mendSum(bytes, at, at + kSectionHeadBytes - 4);
        const std::size_t body = at + kSectionHeadBytes;
        const char* const kind = reinterpret_cast<const char*>(bytes.data() + at);
        const std::uint64_t size = numberAt(bytes, at + kSizeAt);
        if (size > kSectionHeadBytes + 4 && size <= bytes.size() - at) {
            const auto end = static_cast<std::size_t>(at + size);
            if (std::strncmp(kind, "table", 5) == 0) {
                mendSum(bytes, body, body + kTableHeadBytes - 4);
                mendSum(bytes, std::min(body + kTableHeadBytes, end), end - 4);
            } else if (std::strncmp(kind, "volume", 6) == 0 || std::strncmp(kind, "disk", 4) == 0 ||
                       std::strncmp(kind, "data", 4) == 0) {
                mendSum(bytes, body, end - 4);
            }
        }
        const std::uint64_t next = numberAt(bytes, at + kNextAt);
        if (next <= at || next > bytes.size()) {
            return;
        }
        at = static_cast<std::size_t>(next);
    }
}

}  // namespace

// As in the cage, memory that cannot be had is refused; and what libewf leaks of a damaged image ends with
// the helper.
extern "C" const char* __asan_default_options() {
    return "allocator_may_return_null=1:detect_leaks=0";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    std::vector<std::uint8_t> bytes(data, data + size);
    if (bytes.back() % 8 != 0) {
        mendSums(bytes);
    }
    static const int file = memfd_create("image", MFD_CLOEXEC);
    if (ftruncate(file, 0) != 0 ||
        pwrite(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(size)) {
        std::abort();
    }
    const auto reader = vantor::decode::EvidenceReader::open({file});
    if (!reader) {
        return 0;
    }
    const auto& facts = reader->facts();
    if (facts.sectors == 0 || facts.unitSectors == 0) {
        std::abort();
    }
    std::vector<std::uint8_t> into(vantor::decode::kMostEvidenceSectors * 512);
    const std::uint64_t places[] = {
        0, 1, 63, 64, 70, 100, 149, facts.sectors / 2, facts.sectors - 1, facts.sectors};
    for (const std::uint64_t first : places) {
        const std::size_t got = reader->read(first, into);
        if (got > vantor::decode::kMostEvidenceSectors || (first >= facts.sectors && got != 0) ||
            (got != 0 && got > facts.sectors - first)) {
            std::abort();
        }
    }
    return 0;
}
