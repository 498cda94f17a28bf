// The tags that only sensor data has: TIFF/EP, DNG and the makers' own compressions.
#include "decode/helper/SensorData.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "decode/helper/ByteSpan.h"
#include "decode/helper/RawDirectories.h"

namespace vantor::decode {

namespace {

bool tellsRaw(ByteView& view, const TiffHeader& header, const TiffEntry& entry) {
    constexpr std::uint16_t kCompression = 259, kPhotometric = 262, kDngVersion = 50706;
    constexpr std::array<std::uint64_t, 2> kRawPhotometrics{32803, 34892};
    constexpr std::array<std::uint64_t, 6> kRawCompressions{32767, 32770, 34713, 34892, 65000, 65535};
    const auto isAmongst = [&](const auto& values) {
        const auto number = readTiffNumber(view, header, entry, 0);
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

}  // namespace

bool isTiffBasedRaw(QByteArrayView bytes) {
    SpanSource source(spanOf(bytes));
    ByteView view(source);
    // Canon's mark behind the header.
    if (view.matches(8, "CR\x02")) {
        return true;
    }
    const auto header = readTiffHeader(view, 0);
    bool raw = false;
    if (header) {
        visitDirectories(view, *header, DirectoryScope::FirstAndBelow,
                         [&](std::size_t, const TiffEntry& entry) {
                             raw = tellsRaw(view, *header, entry);
                             return !raw;
                         });
    }
    return raw;
}

}  // namespace vantor::decode
