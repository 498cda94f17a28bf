// Modules of ProTracker and kin (MOD): names, orders, patterns of all channels, samples. Source: public
// descriptions of the Amiga module format.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// How many channels the mark behind the orders stands for; 0 for none.
std::uint64_t moduleChannels(ByteView& view) {
    constexpr std::uint64_t kMark = 1080;
    for (const std::string_view four : {"M.K.", "M!K!", "FLT4", "4CHN"}) {
        if (view.matches(kMark, four))
            return 4;
    }
    if (view.matches(kMark, "6CHN"))
        return 6;
    for (const std::string_view eight : {"8CHN", "FLT8", "OCTA", "CD81"}) {
        if (view.matches(kMark, eight))
            return 8;
    }
    return 0;
}

Extent walkProtracker(ByteView& view) {
    constexpr std::uint64_t kSamples = 31, kSample = 30, kFirst = 20, kOrders = 952, kPlaces = 128,
                            kHead = 1084;
    constexpr std::uint8_t kMostPattern = 127, kMostVolume = 64;
    const auto channels = moduleChannels(view);
    if (channels == 0)
        return unknownExtent();
    std::uint64_t patterns = 0, samples = 0;
    for (std::uint64_t i = 0; i < kPlaces; ++i) {
        const auto order = view.u8(kOrders + i).value_or(0);
        if (order > kMostPattern)
            return unknownExtent();
        patterns = std::max<std::uint64_t>(patterns, order + 1U);
    }
    for (std::uint64_t i = 0; i < kSamples; ++i) {
        const auto at = kFirst + i * kSample + 22;
        if (view.u8(at + 3).value_or(0) > kMostVolume)
            return unknownExtent();
        samples += view.be16(at).value_or(0) * 2ULL;
    }
    return completeAt(view, kHead + patterns * 64 * 4 * channels + samples);
}

}  // namespace

extern constexpr Format kProtracker = {
    .name = "ProTracker",
    .group = Group::Sounds,
    .walk = walkProtracker,
    .extensions = " NST ",  // MOD is also that of camcorders
    .mayNotTellEnd = true,
};

}  // namespace vantor
