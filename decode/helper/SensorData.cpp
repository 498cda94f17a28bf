// A bounded look through the directories for the tags that only sensor data has: TIFF/EP, DNG and the makers'
// own compressions.
#include "decode/helper/SensorData.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "decode/helper/ByteSpan.h"
#include "formats/TiffDirectory.h"

namespace vantor::decode {

namespace {

constexpr std::uint16_t kSubDirectories = 330;
constexpr std::size_t kMostDirectories = 16;

class SensorSearch {
  public:
    SensorSearch(ByteView& view, const TiffHeader& header) : m_view(view), m_header(header) {}

    bool finds() {
        std::vector<std::uint64_t> directories{m_header.firstDirectory};
        for (std::size_t i = 0; i < directories.size(); ++i) {
            if (findsIn(directories[i], i == 0 ? &directories : nullptr)) {
                return true;
            }
        }
        return false;
    }

  private:
    // `below` gets the directories that this one names as its own.
    bool findsIn(std::uint64_t at, std::vector<std::uint64_t>* below) {
        const auto directory = readTiffDirectory(m_view, m_header, at);
        for (std::uint64_t i = 0; directory && i < directory->entries; ++i) {
            const auto entry = readTiffEntry(m_view, m_header, *directory, i);
            if (!entry) {
                return false;
            }
            if (tellsRaw(*entry)) {
                return true;
            }
            if (below && entry->tag == kSubDirectories) {
                addDirectories(*entry, *below);
            }
        }
        return false;
    }

    bool tellsRaw(const TiffEntry& entry) {
        constexpr std::uint16_t kCompression = 259, kPhotometric = 262, kDngVersion = 50706;
        constexpr std::array<std::uint64_t, 2> kRawPhotometrics{32803, 34892};
        constexpr std::array<std::uint64_t, 6> kRawCompressions{32767, 32770, 34713, 34892, 65000, 65535};
        const auto isAmongst = [&](const auto& values) {
            const auto number = readTiffNumber(m_view, m_header, entry, 0);
            return number && std::ranges::find(values, *number) != values.end();
        };
        switch (entry.tag) {
            case kDngVersion:
                return true;
            case kPhotometric:
                return isAmongst(kRawPhotometrics);
            case kCompression:
                return isAmongst(kRawCompressions);
            default:
                return false;
        }
    }

    void addDirectories(const TiffEntry& entry, std::vector<std::uint64_t>& directories) {
        for (std::uint64_t i = 0; i < entry.count && directories.size() < kMostDirectories; ++i) {
            const auto offset = readTiffNumber(m_view, m_header, entry, i);
            if (!offset) {
                return;
            }
            directories.push_back(*offset);
        }
    }

    ByteView& m_view;
    const TiffHeader m_header;
};

}  // namespace

bool isTiffBasedRaw(QByteArrayView bytes) {
    SpanSource source(spanOf(bytes));
    ByteView view(source);
    // Canon's mark behind the header of its own.
    if (view.matches(8, "CR\x02")) {
        return true;
    }
    const auto header = readTiffHeader(view, 0);
    return header && SensorSearch(view, *header).finds();
}

}  // namespace vantor::decode
