// Impulse Tracker modules (IT): instruments, sounds and patterns stand where the header says. Source:
// ITTECH.TXT, the tracker's technical description.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kImpulseTrackerHead = 192, kImpulseTrackerInstrument = 554, kImpulseTrackerSound = 80;

// Behind packed sound at `at`: blocks that tell their length, each for a fixed count of samples.
std::optional<std::uint64_t> behindPackedSound(ByteView& view, std::uint64_t at, std::uint64_t samples,
                                               bool wide) {
    const std::uint64_t block = wide ? 0x4000 : 0x8000;
    for (std::uint64_t done = 0; done < samples; done += block) {
        const auto bytes = view.le16(at);
        if (!bytes)
            return std::nullopt;
        at += 2 + std::uint64_t{*bytes};
    }
    return at;
}

// Behind the data of the sound whose header stands at `header`; 0 for one without data.
std::optional<std::uint64_t> behindSound(ByteView& view, std::uint64_t header) {
    const auto flags = view.u8(header + 0x12), conversion = view.u8(header + 0x2E);
    const auto samples = view.le32(header + 0x30), at = view.le32(header + 0x48);
    if (!flags || !conversion || !samples || !at)
        return std::nullopt;
    constexpr std::uint8_t kHasData = 1, kWide = 2, kStereo = 4, kPacked = 8, kForeign = 0xFF;
    if ((*flags & kHasData) == 0 || *samples == 0 || *at == 0)
        return 0;
    const bool wide = (*flags & kWide) != 0;
    const unsigned channels = (*flags & kStereo) != 0 ? 2 : 1;
    if ((*flags & kPacked) == 0)
        return *at + std::uint64_t{*samples} * (wide ? 2 : 1) * channels;
    if (*conversion == kForeign)
        return 0;
    std::optional<std::uint64_t> end = *at;
    for (unsigned channel = 0; end && channel < channels; ++channel)
        end = behindPackedSound(view, *end, *samples, wide);
    return end;
}

Extent walkImpulseTracker(ByteView& view) {
    constexpr std::uint16_t kMostOrders = 256, kMostParts = 4000;
    if (!view.matches(0, "IMPM"))
        return unknownExtent();
    Cursor in(view, 32, Endian::Little);
    const auto orders = in.u16(), instruments = in.u16(), sounds = in.u16(), patterns = in.u16();
    in.skip(6);
    const auto special = in.u16();
    in.skip(6);
    const std::uint64_t messageBytes = in.u16(), message = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (orders > kMostOrders || instruments > kMostParts || sounds > kMostParts || patterns > kMostParts)
        return unknownExtent();
    std::uint64_t place = kImpulseTrackerHead + orders;
    std::uint64_t end = place + 4 * (std::uint64_t{instruments} + sounds + patterns);
    if ((special & 1) != 0 && message != 0)
        end = std::max(end, message + messageBytes);
    for (std::uint32_t i = 0; i < instruments; ++i, place += 4)
        end = std::max(end, view.le32(place).value_or(0) + kImpulseTrackerInstrument);
    for (std::uint32_t i = 0; i < sounds; ++i, place += 4) {
        const std::uint64_t header = view.le32(place).value_or(0);
        const auto behind = behindSound(view, header);
        if (!behind)
            return cutOffAt(view, view.size());
        end = std::max({end, header + kImpulseTrackerSound, *behind});
    }
    for (std::uint32_t i = 0; i < patterns; ++i, place += 4) {
        const auto at = view.le32(place).value_or(0);
        if (at != 0)
            end = std::max(end, std::uint64_t{at} + 8 + view.le16(at).value_or(0));
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kImpulseTracker = {
    .name = "Impulse Tracker",
    .group = Group::Sounds,
    .walk = walkImpulseTracker,
    .extensions = " IT ",
};

}  // namespace vantor
