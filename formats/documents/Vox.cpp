// Voxel models (VOX). Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kVoxForms[] = {
    {{0, "VOX \x96\0\0\0"_b}, {8, "MAIN\0\0\0\0"_b}, 16, 4, Endian::Little, 12, 1, 20},
};

}  // namespace

extern constexpr Format kVox = {
    .name = "VOX",
    .group = Group::Documents,
    .walk = walkToldLength<kVoxForms>,
    .extensions = " VOX ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
