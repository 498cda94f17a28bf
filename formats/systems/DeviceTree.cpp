// Flattened device trees. Source: Devicetree Specification 0.4.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kDeviceTreeForms[] = {
    {{0, "\xD0\x0D\xFE\xED"}, {20, "\0\0\0\x11"_b}, 4, 4, Endian::Big, 40},
};

}  // namespace

extern constexpr Format kDeviceTree = {
    .name = "Device tree",
    .group = Group::Systems,
    .walk = walkToldLength<kDeviceTreeForms>,
    .extensions = " DTB ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
