// A transcription of the scanning rules over strings and single reads; slow and obvious on purpose.
#include "tests/scan/PlainScan.h"

#include "catalogue/NumberText.h"

namespace vantor::plain {

namespace {

enum Field { kExtension, kLimit, kHeader, kOffset, kSpare, kDescription, kFirstByte };

const QString& field(const QStringList& records, qsizetype record, Field which) {
    return records.at(record * 7 + which);
}

// A stream as the C library's: one position, reads of one sector, seeks that may fail after a failed read.
class Stream {
  public:
    explicit Stream(ScriptedMedium& medium) : m_medium(medium) {}

    int read(ScriptedMedium::Sector& buffer) {
        const bool inside = m_position < m_medium.bytes.size();
        bool good = inside && !m_medium.badForEver.contains(m_position);
        if (good && m_medium.badTimes.contains(m_position) && m_medium.badTimes[m_position] > 0) {
            --m_medium.badTimes[m_position];
            good = false;
        }
        if (good) {
            buffer = m_medium.bytes[m_position++];
        }
        return good ? 1 : 0;
    }

    bool seekAfterFailure(std::uint64_t sector) {
        if (m_medium.seekAfterFailureFails) {
            return false;
        }
        m_position = sector;
        return true;
    }

    void seek(std::uint64_t sector) { m_position = sector; }

  private:
    ScriptedMedium& m_medium;
    std::uint64_t m_position = 0;
};

QString padded(const QString& prefix, std::uint64_t number, const QString& extension) {
    QString digits = QString::number(number);
    while (digits.size() < 5) {
        digits.prepend('0');
    }
    return prefix + digits + "." + extension;
}

}  // namespace

bool headerMatches(const QStringList& records, qsizetype record, const ScriptedMedium::Sector& sector) {
    const QString hex = field(records, record, kHeader);
    const QString rule = field(records, record, kOffset);
    const int n = static_cast<int>(hex.size() / 2);
    if (n == 0) {
        return false;
    }
    long p = 0;
    long limit = n;
    const bool numeric = rule != "1" && rule != "nn";
    if (rule == "nn") {
        limit = 512;
    } else if (numeric) {
        p = static_cast<long>(textToInt32(rule)) - 1;
        limit = n + p;
    }
    while (p < limit) {
        if (p < 0 || p > 511 || sector[p] != textToInt64(field(records, record, kFirstByte))) {
            return false;
        }
        if (numeric && p > 506) {
            return false;
        }
        int k = 0;
        while (k < n && p + k < 512 && HexText::hex2int(hex.mid(2 * k, 2)) == sector[p + k]) {
            ++k;
        }
        if (k == n) {
            return true;
        }
        if (rule != "nn") {
            return false;
        }
        p = k > 0 ? p + k - 1 : p;
        ++p;
    }
    return false;
}

std::optional<qsizetype> firstMatch(const QStringList& records, const ScriptedMedium::Sector& sector) {
    for (qsizetype record = 0; record < records.size() / 7; ++record) {
        if (headerMatches(records, record, sector)) {
            return record;
        }
    }
    return std::nullopt;
}

Result photoPass(ScriptedMedium medium, const Pass& pass, std::uint64_t itemsNumberedBefore) {
    Result result;
    Stream stream(medium);
    ScriptedMedium::Sector current{};
    ScriptedMedium::Sector reference{};
    Item item;
    bool open = false;
    bool justPublished = false;
    std::uint64_t count = 0;
    std::uint64_t running = itemsNumberedBefore;
    std::uint64_t size = 0;
    std::uint64_t limit = 0;
    int lastRead = 0;
    const QString prefix = pass.name == "GEN" ? "GND" : "THD";

    const auto handOver = [&] {
        if (!item.data.isEmpty()) {
            item.end = item.first + static_cast<std::uint64_t>(item.data.size()) / 512;
            result.items.push_back(item);
        }
        item.data.clear();
    };

    if (pass.start != 0) {
        stream.seek(pass.start);
    }
    std::uint64_t index = pass.start;
    while (index < pass.end && !pass.records.isEmpty()) {
        if (pass.stopAt == index) {
            result.stopped = true;
            break;
        }
        lastRead = stream.read(current);
        if (lastRead <= 0 && !stream.seekAfterFailure(index)) {
            reference = current;
        }
        ++index;
        if (current != reference) {
            std::optional<qsizetype> match;
            for (qsizetype record = 0; record < pass.records.size() / 7 && !match; ++record) {
                limit = static_cast<std::uint64_t>(textToInt64(field(pass.records, record, kLimit)));
                if (headerMatches(pass.records, record, current)) {
                    match = record;
                }
            }
            if (match) {
                if (count != 0 && !justPublished) {
                    handOver();
                }
                justPublished = false;
                open = true;
                ++count;
                ++running;
                const QString extension = field(pass.records, *match, kExtension);
                item.pass = pass.name;
                item.name = padded(prefix, count, extension);
                item.uid = padded(prefix, running, extension);
                item.first = index - 1;
                size = 0;
            }
        }
        if (open) {
            size += 512;
            if (size < limit) {
                item.data.append(reinterpret_cast<const char*>(current.data()), 512);
            } else {
                size = 0;
                justPublished = true;
                handOver();
                open = false;
            }
        }
    }
    handOver();
    result.returned = !result.stopped && lastRead != 0;
    result.forIndex = index;
    result.badTimesLeft = medium.badTimes;
    return result;
}

Result rawPass(ScriptedMedium medium, const Pass& pass, std::map<QString, std::uint64_t>& counts) {
    Result result;
    Stream stream(medium);
    ScriptedMedium::Sector current{};
    ScriptedMedium::Sector reference{};
    std::vector<Item> open;
    std::uint64_t start = 0;
    std::uint64_t size = 0;
    bool carving = false;
    int lastRead = 0;

    const auto publish = [&](Item item, std::uint64_t end) {
        item.first = start;
        item.end = end;
        result.items.push_back(item);
        const QString extension = item.name.mid(item.name.lastIndexOf('.') + 1);
        if (counts.contains(extension)) {
            ++counts[extension];
        }
    };

    if (pass.start != 0) {
        stream.seek(pass.start);
    }
    std::uint64_t index = pass.start;
    while (index < pass.end) {
        if (pass.records.isEmpty()) {
            lastRead = 1;
            break;
        }
        if (pass.stopAt == index) {
            result.stopped = true;
            break;
        }
        lastRead = stream.read(current);
        if (lastRead <= 0 && !stream.seekAfterFailure(index)) {
            reference = current;
        }
        ++index;
        bool found = false;
        if (current != reference) {
            if (const auto match = firstMatch(pass.records, current)) {
                if (carving) {
                    for (const Item& item : open) {
                        publish(item, index);
                    }
                    open.clear();
                    size = start = 0;
                }
                found = true;
                size += 512;
                const QString hex = field(pass.records, *match, kHeader);
                for (qsizetype j = *match; j < pass.records.size() / 7; ++j) {
                    const QString other = field(pass.records, j, kHeader);
                    const bool inside = !other.isEmpty() && hex.contains(other);
                    const bool outside = other.contains(hex) && field(pass.records, j, kOffset) ==
                                                                    field(pass.records, *match, kOffset);
                    if (inside || outside) {
                        start = index - 1;
                        const QString extension = field(pass.records, j, kExtension);
                        Item item;
                        item.pass = pass.name;
                        item.name = padded(extension, counts[extension] + 1, extension);
                        item.uid = item.name;
                        open.push_back(item);
                    }
                }
                carving = true;
            }
        }
        if (!carving) {
            continue;
        }
        if (!found) {
            size += 512;
        }
        if (size >= 18874368) {
            for (const Item& item : open) {
                publish(item, index);
            }
            open.clear();
        }
        if (open.empty()) {
            size = start = 0;
        }
    }
    for (const Item& item : open) {
        publish(item, index);
    }
    result.returned = !result.stopped && lastRead != 0;
    result.forIndex = index;
    result.badTimesLeft = medium.badTimes;
    return result;
}

}  // namespace vantor::plain
