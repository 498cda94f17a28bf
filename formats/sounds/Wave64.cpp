// Waves beyond four gigabytes (W64). Source: Sony Wave64.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kWave64Forms[] = {
    {{0, "riff\x2E\x91\xCF\x11\xA5\xD6\x28\xDB\4\xC1\0\0"_b}, {24, "wave"}, 16, 8, Endian::Little, 104},
};

}  // namespace

extern constexpr Format kWave64 = {
    .name = "Wave64",
    .group = Group::Sounds,
    .walk = walkToldLength<kWave64Forms>,
    .extensions = " W64 ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
