// lzip files. Source: draft-diaz-lzip.
#include <bit>
#include <cstring>

#include "formats/Format.h"

namespace vantor {

namespace {

// In one load, since this looks at every byte of a card.
std::uint64_t numberAt(const std::uint8_t* bytes) {
    std::uint64_t number = 0;
    std::memcpy(&number, bytes, sizeof(number));
    if constexpr (std::endian::native == std::endian::big)
        number = __builtin_bswap64(number);
    return number;
}

// A member ends with its own length, so the end is the first place where that is true.
Extent walkLzip(ByteView& view) {
    constexpr std::uint64_t kLeastMember = 26, kMostSearch = 256 * 1024 * 1024;
    const auto startsAt = [&](std::uint64_t at) {
        return view.matches(at, "LZIP\1") && (view.u8(at + 5).value_or(0) & 0x1F) >= 12;
    };
    if (!startsAt(0))
        return unknownExtent();
    std::uint64_t start = 0;
    for (std::uint64_t at = kLeastMember - 8; at - start < kMostSearch;) {
        const auto bytes = view.window(at, 8);
        if (bytes.size() < 8)
            return cutOffAt(view, view.size());
        std::size_t i = 0;
        std::uint64_t number = 0;
        for (; i + 8 <= bytes.size(); ++i, ++at) {
            number = numberAt(bytes.data() + i);
            if (number == at + 8 - start)
                break;
        }
        if (number != at + 8 - start || i + 8 > bytes.size())
            continue;
        start = at + 8;
        if (!startsAt(start))
            return completeAt(view, start);
        at = start + kLeastMember - 8;
    }
    return damagedAt(view, start);
}

}  // namespace

extern constexpr Format kLzip = {
    .name = "lzip",
    .group = Group::Archives,
    .walk = walkLzip,
    .extensions = " LZ TLZ ",
    .large = true,
};

}  // namespace vantor
