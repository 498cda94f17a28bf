// Textures of PowerVR chips in their older form (PVR). Source: Imagination "PVR legacy file header" (version
// 2): the header's size, the size of the picture's bytes, and a mark near its end.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kPvrForms[] = {
    {{0, "\x34\0\0\0"_b}, {44, "PVR!"}, 20, 4, Endian::Little, 1, 1, 52},
};

}  // namespace

extern constexpr Format kPvr = {
    .name = "PVR",
    .group = Group::Pictures,
    .walk = walkToldLength<kPvrForms>,
    .extensions = " PVR ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
