// Torrents. Source: BEP 3.
#include "formats/Format.h"

namespace vantor {

namespace {

// Nested lists closed by letters; texts lead with their length.
Extent walkTorrent(ByteView& view) {
    constexpr std::uint64_t kMostDigits = 20;
    if (view.u8(0) != 'd' || view.u8(1).value_or(0) < '1' || view.u8(1).value_or(0) > '9')
        return unknownExtent();
    std::uint64_t depth = 0;
    for (std::uint64_t at = 0;;) {
        const auto byte = view.u8(at);
        if (!byte)
            return cutOffAt(view, view.size());
        if (*byte == 'd' || *byte == 'l') {
            ++depth;
            ++at;
        } else if (*byte == 'e') {
            ++at;
            if (--depth == 0)
                return completeAt(view, at);
        } else {
            const bool text = *byte >= '0' && *byte <= '9';
            if (!text && *byte != 'i')
                return at < 16 ? unknownExtent() : damagedAt(view, at);
            const std::uint8_t closing = text ? ':' : 'e';
            const auto close = view.find(closing, at, at + kMostDigits);
            if (close.stopped())
                return cutOffAt(view, view.size());
            if (!close.found())
                return damagedAt(view, at);
            std::uint64_t number = 0;
            for (auto digit = at; text && digit < close.at; ++digit) {
                const auto value = view.u8(digit).value_or(0);
                if (value < '0' || value > '9')
                    return at < 16 ? unknownExtent() : damagedAt(view, at);
                number = addClamped(mulClamped(number, 10), value - '0');
            }
            at = addClamped(close.at + 1, number);
        }
    }
}

}  // namespace

extern constexpr Format kTorrent = {
    .name = "Torrent",
    .group = Group::Documents,
    .walk = walkTorrent,
    .extensions = " TORRENT ",
    .strongMagic = false,
    .checksContent = true,
};

}  // namespace vantor
