#include "filesystem/NtfsRecord.h"

#include <algorithm>
#include <cstring>

#include "filesystem/LittleEndian.h"

namespace vantor {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t kTimes = 0x10;
constexpr std::uint32_t kNameAttribute = 0x30;
constexpr std::uint32_t kData = 0x80;
constexpr std::uint32_t kEnd = 0xFFFFFFFF;
constexpr std::uint8_t kShortNamesOnly = 2;
// A record's head: before version 3.1, and with the record's own number in it.
constexpr std::size_t kHeadBytes = 42;
constexpr std::size_t kNumberedHeadBytes = 48;
constexpr std::uint16_t kPacked = 0x00FF;
constexpr std::uint16_t kEncrypted = 0x4000;

// Each sector's last two bytes are a mark; what belongs there stands in the record's head.
bool putBackLastBytes(std::vector<std::uint8_t>& record) {
    const std::size_t at = le16(record, 4);
    const std::size_t count = le16(record, 6);
    if (count != record.size() / 512 + 1 || at + 2 * count > record.size()) {
        return false;
    }
    for (std::size_t i = 1; i < count; ++i) {
        const std::size_t last = i * 512 - 2;
        if (le16(record, last) != le16(record, at)) {
            return false;
        }
        std::memcpy(record.data() + last, record.data() + at + 2 * i, 2);
    }
    return true;
}

// Tenths of microseconds since 1601; none before 1970 is a file's.
std::optional<std::int64_t> secondsOf(std::uint64_t time) {
    constexpr std::int64_t kFrom1601 = 11'644'473'600;
    const auto seconds = static_cast<std::int64_t>(time / 10'000'000) - kFrom1601;
    return seconds > 0 && seconds < 32'000'000'000 ? std::optional(seconds) : std::nullopt;
}

NtfsReference referenceAt(Bytes bytes, std::size_t at) {
    return {littleEndian(bytes, at, 6), le16(bytes, at + 6)};
}

void readName(Bytes value, NtfsRecord& record) {
    const std::size_t length = value.size() > 66 ? value[64] : 0;
    if (length == 0 || 66 + 2 * length > value.size() ||
        (value[65] == kShortNamesOnly && !record.name.isEmpty())) {
        return;
    }
    record.parent = referenceAt(value, 0);
    record.name.clear();
    for (std::size_t i = 0; i < length; ++i) {
        record.name += QChar(le16(value, 66 + 2 * i));
    }
}

// Each run: a byte with the lengths of the two numbers that follow, how many clusters and how far from the
// last run's beginning; without the second a hole. False where there is nonsense.
bool readRuns(Bytes attribute, std::vector<NtfsRun>& runs) {
    std::uint64_t cluster = 0;
    constexpr std::size_t kHead = 64;
    std::size_t at = le16(attribute, 32);
    if (at < kHead) {
        return false;
    }
    while (at < attribute.size() && attribute[at] != 0) {
        const std::size_t countBytes = attribute[at] & 15;
        const std::size_t stepBytes = attribute[at] >> 4;
        if (countBytes == 0 || countBytes > 8 || stepBytes > 8 ||
            at + 1 + countBytes + stepBytes > attribute.size()) {
            return false;
        }
        const std::uint64_t count = littleEndian(attribute, at + 1, countBytes);
        std::uint64_t step = littleEndian(attribute, at + 1 + countBytes, stepBytes);
        if (stepBytes > 0 && stepBytes < 8 && (step >> (8 * stepBytes - 1)) != 0) {
            step |= ~std::uint64_t{0} << (8 * stepBytes);
        }
        cluster += step;
        runs.push_back({cluster, count, stepBytes == 0});
        at += 1 + countBytes + stepBytes;
    }
    return true;
}

void readData(Bytes attribute, NtfsRecord& record) {
    record.hasData = true;
    record.isResident = attribute[8] == 0;
    if (record.isResident) {
        record.bytes = record.validBytes = le32(attribute, 16);
        // What lies in the record is never packed.
        record.isPlain = record.isLegible = (le16(attribute, 12) & kEncrypted) == 0;
        const std::size_t at = le16(attribute, 20);
        if (at <= attribute.size() && record.bytes <= attribute.size() - at) {
            record.contents = QByteArray(reinterpret_cast<const char*>(attribute.data()) + at,
                                         static_cast<qsizetype>(record.bytes));
        }
        return;
    }
    record.firstCluster = le64(attribute, 16);
    const std::uint16_t kinds = le16(attribute, 12);
    const unsigned unit = le16(attribute, 34);  // as a power of two
    const bool isPacked = (kinds & kPacked) != 0;
    record.unitClusters = isPacked && unit < 16 ? std::uint64_t{1} << unit : 0;
    if (record.firstCluster == 0) {
        record.bytes = le64(attribute, 48);
        record.validBytes = std::min(le64(attribute, 56), record.bytes);
    }
    record.isLegible = readRuns(attribute, record.runs) && (kinds & kEncrypted) == 0;
    const bool hasHoles =
        std::any_of(record.runs.begin(), record.runs.end(), [](const NtfsRun& run) { return run.isHole; });
    record.isPlain = record.isLegible && !isPacked && !hasHoles;
}

void readAttribute(Bytes attribute, NtfsRecord& record) {
    const std::uint32_t type = le32(attribute, 0);
    // Data with a name are another stream of the file.
    if (type == kData && attribute[9] == 0 && !record.hasData) {
        readData(attribute, record);
        return;
    }
    if (attribute[8] != 0) {
        readRuns(attribute, record.otherRuns);
        return;
    }
    const std::size_t at = le16(attribute, 20);
    const std::size_t length = le32(attribute, 16);
    if (at > attribute.size() || length > attribute.size() - at) {
        return;
    }
    const Bytes value = attribute.subspan(at, length);
    if (type == kTimes) {
        record.created = secondsOf(le64(value, 0));
        record.modified = secondsOf(le64(value, 8));
    } else if (type == kNameAttribute) {
        readName(value, record);
    }
}

}  // namespace

std::size_t sectorsOfNtfsRecord(const std::uint8_t* sector) {
    constexpr std::size_t kMostSectors = 8;
    const Bytes head(sector, 512);
    const std::size_t marks = le16(head, 4);
    const std::size_t count = le16(head, 6);
    const bool isRecord = std::memcmp(sector, "FILE", 4) == 0 && marks >= kHeadBytes && marks < 64 &&
                          count >= 2 && count - 1 <= kMostSectors;
    return isRecord ? count - 1 : 0;
}

std::optional<NtfsRecord> readNtfsRecord(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < 512 || std::memcmp(bytes.data(), "FILE", 4) != 0) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> whole(bytes.begin(), bytes.end());
    if (!putBackLastBytes(whole)) {
        return std::nullopt;
    }
    NtfsRecord record;
    record.use = le16(whole, 16);
    record.isInUse = (le16(whole, 22) & 1) != 0;
    record.isFolder = (le16(whole, 22) & 2) != 0;
    record.base = referenceAt(whole, 32);
    if (le16(whole, 4) >= kNumberedHeadBytes) {
        record.number = le32(whole, 44);
    }
    std::size_t at = le16(whole, 20);
    while (at + 24 <= whole.size() && le32(whole, at) != kEnd) {
        const std::size_t length = le32(whole, at + 4);
        if (length < 24 || length > whole.size() - at) {
            break;
        }
        readAttribute(Bytes(whole).subspan(at, length), record);
        at += length;
    }
    return record;
}

}  // namespace vantor
