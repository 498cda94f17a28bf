// Compilation of the records into probes by start byte and key, and the match over them.
#include "scan/HeaderMatcher.h"

#include <QByteArray>
#include <algorithm>
#include <cstring>
#include <limits>

#include "catalogue/NumberText.h"
#include "catalogue/SignatureRecord.h"
#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr std::int64_t kSector = static_cast<std::int64_t>(kSectorBytes);
// A numeric rule is honoured up to this start byte (counted from 0).
constexpr std::int64_t kLastNumericStart = 506;
constexpr std::size_t kMaxKeyBytes = 4;
constexpr int kNone = std::numeric_limits<int>::max();

std::vector<std::uint8_t> headerOf(const QString& hex) {
    std::vector<std::uint8_t> bytes;
    for (qsizetype i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(hex2int(QStringView(hex).sliced(i, 2))));
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
            if (start < 0 || start > kLastNumericStart || start + length > kSector) {
                continue;
            }
            addFixed(static_cast<std::uint32_t>(start),
                     {keyOf(header.data(), length), record, begin, length});
        }
        m_headerBytes.insert(m_headerBytes.end(), header.begin(), header.end());
    }
    for (Probe& probe : m_probes) {
        std::sort(probe.entries.begin(), probe.entries.end(), [](const Entry& a, const Entry& b) {
            return a.key != b.key ? a.key < b.key : a.record < b.record;
        });
    }
}

std::uint32_t HeaderMatcher::filterSlot(std::uint32_t key, std::uint32_t salt) {
    return ((key ^ salt) * 0x9E3779B1U) >> (32 - kFilterBits);
}

void HeaderMatcher::addFixed(std::uint32_t start, const Entry& entry) {
    const std::uint32_t mask = maskOf(entry.headerLength);
    auto probe = std::find_if(m_probes.begin(), m_probes.end(),
                              [&](const Probe& p) { return p.start == start && p.keyMask == mask; });
    if (probe == m_probes.end()) {
        const std::uint32_t salt = start * 0x85EBCA6BU + mask;
        probe = m_probes.insert(probe, {start, mask, salt, {}});
    }
    probe->entries.push_back(entry);
    const std::uint32_t slot = filterSlot(entry.key, probe->salt);
    m_filter[slot / 64] |= std::uint64_t{1} << (slot % 64);
}

std::uint32_t HeaderMatcher::loadKey(const std::uint8_t* sector, const Probe& probe) {
    std::uint32_t key = 0;
    if (probe.start + kMaxKeyBytes <= kSectorBytes) {
        std::memcpy(&key, sector + probe.start, kMaxKeyBytes);
    } else {
        std::memcpy(&key, sector + probe.start, kSectorBytes - probe.start);
    }
    return key & probe.keyMask;
}

std::optional<int> HeaderMatcher::firstMatch(const std::uint8_t* sector) const {
    int best = kNone;
    for (const Probe& probe : m_probes) {
        const std::uint32_t key = loadKey(sector, probe);
        const std::uint32_t slot = filterSlot(key, probe.salt);
        if ((m_filter[slot / 64] >> (slot % 64) & 1U) != 0) {
            best = bestOf(probe, key, sector, best);
        }
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
