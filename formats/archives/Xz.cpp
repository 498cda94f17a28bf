// xz: block by block through the lengths of the LZMA2 chunks, then the index and the footer that prove them.
// Source: The .xz File Format 1.1.0.
#include <array>

#include "formats/Crc.h"
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::string_view kXzMagic(
    "\xFD"
    "7zXZ\0",
    6);
constexpr std::uint64_t kXzHeaderBytes = 12;
constexpr std::array<std::uint8_t, 16> kCheckBytes = {0,  4,  4,  4,  8,  8,  8,  16,
                                                      16, 16, 32, 32, 32, 64, 64, 64};

std::uint64_t toFour(std::uint64_t at) {
    return (at + 3) / 4 * 4;
}

std::optional<std::uint64_t> xzNumber(ByteView& view, std::uint64_t& at) {
    constexpr unsigned kMostGroups = 9;
    return groupedNumber(view, at, kMostGroups);
}

// Whether the CRC-32 told at `to` is that of [from, to).
bool proved(ByteView& view, std::uint64_t from, std::uint64_t to) {
    bool complete = false;
    const auto crc = crc32(view, from, to, complete);
    return complete && view.le32(to) == crc;
}

// Behind the LZMA2 chunks from `at` on; nothing where a chunk is none. May lie beyond the view.
std::optional<std::uint64_t> skipChunks(ByteView& view, std::uint64_t at) {
    while (at < view.size()) {
        const auto control = view.u8(at).value_or(0);
        if (control == 0)
            return at + 1;
        if (control <= 2) {  // not packed
            at += std::uint64_t{4} + view.be16(at + 1).value_or(0);
            continue;
        }
        if (control < 0x80)
            return std::nullopt;
        const std::uint64_t head = control >= 0xC0 ? 6 : 5;
        constexpr std::uint8_t kMostProperties = 224;
        if (head == 6 && view.u8(at + 5).value_or(0) > kMostProperties)
            return std::nullopt;
        at += head + 1 + view.be16(at + 3).value_or(0);
    }
    return view.size() + 1;
}

Extent walkXz(ByteView& view) {
    if (!view.matches(0, kXzMagic))
        return unknownExtent();
    std::uint64_t start = 0;
    for (;;) {
        const auto check = kCheckBytes[view.u8(start + 7).value_or(0) & 15];
        if (!proved(view, start + 6, start + 8))
            return view.holds(start, kXzHeaderBytes) ? damagedAt(view, start) : cutOffAt(view, view.size());
        std::uint64_t at = start + kXzHeaderBytes;
        for (;;) {
            const auto size = view.u8(at);
            if (!size)
                return cutOffAt(view, view.size());
            if (*size == 0)
                break;
            const std::uint64_t head = (std::uint64_t{*size} + 1) * 4;
            if (!proved(view, at, at + head - 4))
                return view.holds(at, head) ? damagedAt(view, at) : cutOffAt(view, view.size());
            std::uint64_t field = at + 2;
            const bool told = (view.u8(at + 1).value_or(0) & 0x40) != 0;
            const auto packed = told ? xzNumber(view, field) : std::nullopt;
            const auto end = told ? std::optional(addClamped(at + head, packed.value_or(view.size())))
                                  : skipChunks(view, at + head);
            if (!end)
                return damagedAt(view, at);
            if (*end > view.size())
                return cutOffAt(view, view.size());
            at = toFour(*end) + check;
        }
        const std::uint64_t index = at;
        ++at;
        const auto records = xzNumber(view, at);
        for (std::uint64_t i = 0; records && i < *records && at < view.size(); ++i) {
            if (!xzNumber(view, at) || !xzNumber(view, at))
                break;
        }
        at = toFour(at);
        if (!view.holds(at, 4 + kXzHeaderBytes))
            return cutOffAt(view, view.size());
        const std::uint64_t footer = at + 4;
        const std::uint64_t backward = (std::uint64_t{view.le32(footer + 4).value_or(0)} + 1) * 4;
        if (!proved(view, index, at) || !view.matches(footer + 10, "YZ") || backward != footer - index)
            return damagedAt(view, at);
        start = footer + kXzHeaderBytes;
        if (!view.matches(start, kXzMagic))  // streams may be joined
            return completeAt(view, start);
    }
}

}  // namespace

extern constexpr Format kXz = {
    .name = "xz",
    .group = Group::Archives,
    .walk = walkXz,
    .extensions = " XZ TXZ ",
    .large = true,
};

}  // namespace vantor
