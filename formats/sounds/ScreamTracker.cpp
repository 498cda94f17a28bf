// Scream Tracker modules of version 3 (S3M) and 2 (STM): parts stand at places told in units of 16 bytes.
// Sources: the tracker's own format descriptions (S3M, TECH.DOC of version 2).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kUnit = 16;

// Behind the instrument's header at `at` and its sound.
std::uint64_t behindSamples(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kHead = 80;
    constexpr std::uint8_t kSampled = 1, kStereo = 2, kWide = 4;
    if (view.u8(at) != kSampled)
        return at + kHead;
    const std::uint64_t place =
        (std::uint64_t{view.u8(at + 13).value_or(0)} << 16 | view.le16(at + 14).value_or(0)) * kUnit;
    const auto flags = view.u8(at + 31).value_or(0);
    const std::uint64_t samples = view.le32(at + 16).value_or(0);
    if (place == 0 || samples == 0)
        return at + kHead;
    const auto bytes = samples * ((flags & kWide) != 0 ? 2 : 1) * ((flags & kStereo) != 0 ? 2 : 1);
    return std::max(at + kHead, place + bytes);
}

// Behind the silence that fills the last unit of a module that ends at `end`: sounds begin at whole units,
// and some trackers write the last one whole.
std::uint64_t behindSilence(ByteView& view, std::uint64_t end) {
    constexpr std::uint8_t kUnsignedSilence = 0x80;
    const auto unit = (end + kUnit - 1) / kUnit * kUnit;
    if (unit == end)
        return end;
    const auto filling = view.u8(end);
    if (filling != 0 && filling != kUnsignedSilence)
        return end;
    for (auto at = end; at < unit; ++at) {
        if (isSectorStart(at) || view.u8(at) != filling)
            return end;
    }
    return unit;
}

Extent walkVersion3(ByteView& view) {
    constexpr std::uint16_t kMostParts = 1024;
    constexpr std::uint64_t kHead = 96, kPannings = 32;
    constexpr std::uint8_t kHasPannings = 252;
    Cursor in(view, 32, Endian::Little);
    const auto orders = in.u16(), instruments = in.u16(), patterns = in.u16();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (orders > kMostParts || instruments > kMostParts || patterns > kMostParts)
        return unknownExtent();
    std::uint64_t place = kHead + orders;
    std::uint64_t end =
        place + 2 * (std::uint64_t{instruments} + patterns) + (view.u8(53) == kHasPannings ? kPannings : 0);
    if (!view.holds(0, end))
        return cutOffAt(view, view.size());
    for (std::uint32_t i = 0; i < instruments; ++i, place += 2) {
        const auto at = view.le16(place).value_or(0) * kUnit;
        if (at != 0)
            end = std::max(end, behindSamples(view, at));
    }
    for (std::uint32_t i = 0; i < patterns; ++i, place += 2) {
        const auto at = view.le16(place).value_or(0) * kUnit;
        if (at != 0)
            end = std::max(end, at + std::max<std::uint64_t>(2, view.le16(at).value_or(0)));
    }
    const auto filled = behindSilence(view, end);
    return filled == end ? completeAt(view, end) : inexact(completeAt(view, filled));
}

// Headers of 31 instruments, the order, patterns of one size, sounds.
Extent walkVersion2(ByteView& view) {
    constexpr std::uint64_t kInstruments = 31, kInstrument = 32, kHead = 48, kPattern = 1024;
    const std::uint64_t patterns = view.u8(33).value_or(0);
    const auto old = view.u8(31).value_or(0) < 20;
    std::uint64_t end = kHead + kInstruments * kInstrument + (old ? 64 : 128) + patterns * kPattern;
    if (!view.holds(0, end))
        return cutOffAt(view, view.size());
    for (std::uint64_t i = 0; i < kInstruments; ++i) {
        const auto header = kHead + i * kInstrument;
        const auto place = view.le16(header + 14).value_or(0) * kUnit;
        const auto bytes = view.le16(header + 16).value_or(0);
        if (place != 0 && bytes != 0)
            end = std::max(end, place + bytes);
    }
    return inexact(completeAt(view, end));
}

Extent walkScreamTracker(ByteView& view) {
    if (view.matches(44, "SCRM") && view.u8(28) == 0x1A)
        return walkVersion3(view);
    if (view.matches(20, "!Scream!") && view.u8(28) == 0x1A && view.u8(29) == 2)
        return walkVersion2(view);
    return unknownExtent();
}

}  // namespace

extern constexpr Format kScreamTracker = {
    .name = "Scream Tracker",
    .group = Group::Sounds,
    .walk = walkScreamTracker,
    .extensions = " S3M STM ",
};

}  // namespace vantor
