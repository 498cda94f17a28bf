// tar: checked headers and the sizes they tell, to the two zero blocks and the padding behind them.
// Source: POSIX.1-2001 pax interchange format; GNU tar manual.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kTarBlock = 512;
constexpr std::uint64_t kTarRecord = 20 * kTarBlock;  // writers pad to whole records

// An octal field, or a binary one with the top bit set.
std::optional<std::uint64_t> readField(ByteView& view, std::uint64_t at, std::size_t bytes) {
    const auto field = view.window(at, bytes);
    if (field.size() < bytes)
        return std::nullopt;
    std::uint64_t value = 0;
    if (field[0] == 0x80) {
        for (std::size_t i = bytes - 8; i < bytes; ++i)
            value = value << 8 | field[i];
        return value;
    }
    std::size_t i = 0;
    while (i < bytes && field[i] == ' ')
        ++i;
    for (; i < bytes && field[i] >= '0' && field[i] <= '7'; ++i)
        value = value << 3 | (field[i] - '0');
    const bool ended = i == bytes || field[i] == ' ' || field[i] == 0;
    return ended ? std::optional(value) : std::nullopt;
}

bool isHeader(ByteView& view, std::uint64_t at) {
    const auto block = view.window(at, kTarBlock);
    if (block.size() < kTarBlock || block[0] == 0)
        return false;
    std::uint64_t sum = 8 * ' ';  // the checksum field counts as spaces
    for (std::size_t i = 0; i < kTarBlock; ++i)
        sum += i >= 148 && i < 156 ? 0 : block[i];
    return readField(view, at + 148, 8) == sum;
}

// Behind the zero bytes from `at` on, looking no further than `limit`.
std::uint64_t skipZeros(ByteView& view, std::uint64_t at, std::uint64_t limit) {
    while (at < limit && view.u8(at) == 0)
        ++at;
    return at;
}

Extent walkTar(ByteView& view) {
    if (!isHeader(view, 0))
        return unknownExtent();
    std::uint64_t at = 0;
    while (isHeader(view, at)) {
        const auto type = view.u8(at + 156).value_or(0);
        const auto size = readField(view, at + 124, 12);
        if (!size)
            return damagedAt(view, at);
        const bool bodiless = type >= '1' && type <= '6';  // links, devices, directories
        at = addClamped(at, kTarBlock);
        if (!bodiless)
            at = addClamped(at, addClamped(*size, kTarBlock - 1) / kTarBlock * kTarBlock);
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    const auto zeros = skipZeros(view, at, at + 2 * kTarBlock);
    if (zeros < at + 2 * kTarBlock)
        return zeros == view.size() ? cutOffAt(view, zeros) : damagedAt(view, at);
    const auto record = (zeros + kTarRecord - 1) / kTarRecord * kTarRecord;
    const auto end = skipZeros(view, zeros, std::min(record, view.size()));
    return inexact(completeAt(view, end == record ? record : zeros));
}

}  // namespace

extern constexpr Format kTar = {
    .name = "tar",
    .group = Group::Archives,
    .walk = walkTar,
    .extensions = " TAR ",
    .large = true,
    .frameStream = true,
};

}  // namespace vantor
