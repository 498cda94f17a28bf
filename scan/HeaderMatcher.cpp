// Compilation of the records into probes by start byte and key, and the match over them.
#include "scan/HeaderMatcher.h"

#include <QByteArray>
#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <map>
#include <set>

#include "catalogue/NumberText.h"
#include "catalogue/SignatureRecord.h"
#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr std::int64_t kSector = static_cast<std::int64_t>(kSectorBytes);
constexpr std::size_t kMaxKeyBytes = 4;
// A start byte with at most so many keys is compared rather than looked up.
constexpr std::size_t kMostRareKeys = 3;
constexpr std::size_t kBlockBytes = 32;
constexpr std::uint32_t kUnusedKey = 0x9D3C51A7;
// All filters together should stay in the first-level cache.
constexpr std::size_t kFilterBitsPerKey = 64;
constexpr std::size_t kLeastFilterBits = 1024;
constexpr std::size_t kMostFilterBits = 1 << 16;
constexpr int kNone = std::numeric_limits<int>::max();

std::vector<std::uint8_t> headerOf(const QString& hex) {
    std::vector<std::uint8_t> bytes;
    for (qsizetype i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(HexText::hex2int(QStringView(hex).sliced(i, 2))));
    }
    return bytes;
}

std::uint32_t keyOf(const std::uint8_t* bytes, std::size_t length) {
    std::uint32_t key = 0;
    std::memcpy(&key, bytes, std::min(length, kMaxKeyBytes));
    return key;
}

std::uint32_t maskOf(std::size_t length) {
    std::uint8_t ones[kMaxKeyBytes] = {};
    std::fill_n(ones, std::min(length, kMaxKeyBytes), 0xFF);
    return keyOf(ones, kMaxKeyBytes);
}

}  // namespace

HeaderMatcher::HeaderMatcher(const QStringList& records) {
    std::vector<Fixed> fixedHeaders;
    for (qsizetype n = 0; n < recordCount(records); ++n) {
        const std::vector<std::uint8_t> header = headerOf(recordField(records, n, Header_Hex));
        // The prefilter byte comes from another line of the file than the header; where they differ nothing
        // matches.
        if (header.empty() || header.front() != textToInt64(recordField(records, n, Header_First_Byte))) {
            continue;
        }
        const QString& rule = recordField(records, n, Header_Offset);
        const auto begin = static_cast<std::uint32_t>(m_headerBytes.size());
        const auto length = static_cast<std::uint32_t>(header.size());
        const auto record = static_cast<int>(n);
        if (rule == u"nn") {
            m_narrow.push_back({record, begin, length});
            m_narrowFirstByte[header.front()] = true;
        } else {
            const std::int64_t start = rule == u"1" ? 0 : static_cast<std::int64_t>(textToInt32(rule)) - 1;
            if (start < 0 || start >= kLastNumericOffset || start + length > kSector) {
                continue;
            }
            fixedHeaders.push_back(
                {static_cast<std::uint32_t>(start), {keyOf(header.data(), length), record, begin, length}});
        }
        m_headerBytes.insert(m_headerBytes.end(), header.begin(), header.end());
    }
    compileFixed(fixedHeaders);
}

void HeaderMatcher::compileFixed(const std::vector<Fixed>& headers) {
    std::map<std::uint32_t, std::set<std::uint32_t>> keysAt;
    std::set<std::uint32_t> unsuitable;
    for (const Fixed& header : headers) {
        keysAt[header.start].insert(header.entry.key);
        if (header.entry.headerLength < kMaxKeyBytes || header.start + kBlockBytes > kSectorBytes) {
            unsuitable.insert(header.start);
        }
    }
    for (const Fixed& header : headers) {
        if (keysAt[header.start].size() <= kMostRareKeys && !unsuitable.contains(header.start)) {
            m_rare.push_back(header);
        } else {
            addToProbe(header);
        }
    }
    std::vector<Fixed> byStart = m_rare;
    std::stable_sort(byStart.begin(), byStart.end(),
                     [](const Fixed& a, const Fixed& b) { return a.start < b.start; });
    for (const Fixed& header : byStart) {
        addToBlock(header);
    }
    for (Probe& probe : m_probes) {
        buildFilter(probe);
        std::sort(probe.entries.begin(), probe.entries.end(), [](const Entry& a, const Entry& b) {
            return a.key != b.key ? a.key < b.key : a.record < b.record;
        });
    }
}

std::uint32_t HeaderMatcher::filterBit(std::uint32_t key, const Probe& probe) {
    return (key * 0x9E3779B1U) >> probe.filterShift;
}

void HeaderMatcher::addToProbe(const Fixed& header) {
    if (header.start + kMaxKeyBytes > kSectorBytes) {
        m_atTheEnd.push_back(header);
        return;
    }
    const std::uint32_t mask = maskOf(header.entry.headerLength);
    auto probe = std::find_if(m_probes.begin(), m_probes.end(),
                              [&](const Probe& p) { return p.start == header.start && p.keyMask == mask; });
    if (probe == m_probes.end()) {
        probe = m_probes.insert(probe, {header.start, mask, 0, 0, {}});
    }
    probe->entries.push_back(header.entry);
}

void HeaderMatcher::buildFilter(Probe& probe) {
    const std::size_t wanted =
        std::clamp(probe.entries.size() * kFilterBitsPerKey, kLeastFilterBits, kMostFilterBits);
    const auto bits = std::bit_ceil(static_cast<std::uint32_t>(wanted));
    probe.filterShift = 32 - static_cast<std::uint32_t>(std::countr_zero(bits));
    probe.filterBegin = static_cast<std::uint32_t>(m_filter.size());
    m_filter.resize(m_filter.size() + bits / 64);
    for (const Entry& entry : probe.entries) {
        const std::uint32_t bit = filterBit(entry.key, probe);
        m_filter[probe.filterBegin + bit / 64] |= std::uint64_t{1} << (bit % 64);
    }
}

// Takes the first block with a free place at the header's start byte, or that wants the same bytes there.
void HeaderMatcher::addToBlock(const Fixed& header) {
    for (Block& block : m_blocks) {
        const std::uint32_t distance = header.start - block.base;
        if (distance % kMaxKeyBytes != 0 || distance >= kBlockBytes) {
            continue;
        }
        const std::size_t lane = distance / kMaxKeyBytes;
        const std::uint32_t bit = 1U << lane;
        if ((block.usedLanes & bit) == 0 || block.keys[lane] == header.entry.key) {
            block.usedLanes |= bit;
            block.keys[lane] = header.entry.key;
            return;
        }
    }
    Block block{header.start, 1, {}};
    block.keys.fill(kUnusedKey);
    block.keys[0] = header.entry.key;
    m_blocks.push_back(block);
}

bool HeaderMatcher::anyBlockHits(const std::uint8_t* sector) const {
    // The compiler's own vectors, as wide as every processor of the family has them.
    using Lanes = std::uint32_t __attribute__((vector_size(16)));
    const auto load = [](const void* from) {
        Lanes lanes;
        std::memcpy(&lanes, from, sizeof lanes);
        return lanes;
    };
    Lanes low{};
    Lanes high{};
    for (const Block& block : m_blocks) {
        const std::uint8_t* there = sector + block.base;
        low |= reinterpret_cast<Lanes>(load(there) == load(block.keys.data()));
        high |= reinterpret_cast<Lanes>(load(there + sizeof low) == load(block.keys.data() + 4));
    }
    low |= high;
    return (low[0] | low[1] | low[2] | low[3]) != 0;
}

int HeaderMatcher::bestOfList(const std::vector<Fixed>& headers, const std::uint8_t* sector, int best) const {
    for (const Fixed& header : headers) {
        if (header.entry.record >= best) {
            break;
        }
        if (std::memcmp(sector + header.start, m_headerBytes.data() + header.entry.headerBegin,
                        header.entry.headerLength) == 0) {
            return header.entry.record;
        }
    }
    return best;
}

std::uint32_t HeaderMatcher::loadKey(const std::uint8_t* sector, const Probe& probe) {
    std::uint32_t key;
    std::memcpy(&key, sector + probe.start, kMaxKeyBytes);
    return key & probe.keyMask;
}

std::optional<int> HeaderMatcher::firstMatch(const std::uint8_t* sector) const {
    int best = kNone;
    for (const Probe& probe : m_probes) {
        const std::uint32_t key = loadKey(sector, probe);
        const std::uint32_t bit = filterBit(key, probe);
        if ((m_filter[probe.filterBegin + bit / 64] >> (bit % 64) & 1U) != 0) {
            best = bestOf(probe, key, sector, best);
        }
    }
    if (anyBlockHits(sector)) {
        best = bestOfList(m_rare, sector, best);
    }
    if (!m_atTheEnd.empty()) {
        best = bestOfList(m_atTheEnd, sector, best);
    }
    if (m_narrowFirstByte[sector[0]]) {
        for (const NarrowSearch& search : m_narrow) {
            if (search.record > best) {
                break;
            }
            if (narrowSearchMatches(search, sector)) {
                best = search.record;
                break;
            }
        }
    }
    return best == kNone ? std::nullopt : std::optional(best);
}

void HeaderMatcher::screen(const std::uint8_t* bytes, std::size_t count, std::uint8_t* looks) const {
    for (std::size_t n = 0; n < count; ++n) {
        looks[n] = firstMatch(bytes + n * kSectorBytes) ? 1 : 0;
    }
}

int HeaderMatcher::bestOf(const Probe& probe, std::uint32_t key, const std::uint8_t* sector, int best) const {
    auto entry = std::lower_bound(probe.entries.begin(), probe.entries.end(), key,
                                  [](const Entry& e, std::uint32_t k) { return e.key < k; });
    for (; entry != probe.entries.end() && entry->key == key && entry->record < best; ++entry) {
        if (std::memcmp(sector + probe.start, m_headerBytes.data() + entry->headerBegin,
                        entry->headerLength) == 0) {
            return entry->record;
        }
    }
    return best;
}

// The narrow search moves on only while the byte at the next tried place is the header's first; after a
// partial match the next place tried is that of the byte that differed.
bool HeaderMatcher::narrowSearchMatches(const NarrowSearch& search, const std::uint8_t* sector) const {
    const std::uint8_t* header = m_headerBytes.data() + search.headerBegin;
    std::size_t place = 0;
    while (place < kSectorBytes && sector[place] == header[0]) {
        std::size_t agreed = 1;
        while (agreed < search.headerLength && place + agreed < kSectorBytes &&
               sector[place + agreed] == header[agreed]) {
            ++agreed;
        }
        if (agreed == search.headerLength) {
            return true;
        }
        place += agreed;
    }
    return false;
}

}  // namespace vantor
