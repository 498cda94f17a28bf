// Blitz3D models (B3D): one chunk that tells its length. Source: the format's public description.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kBlitz3dForms[] = {
    {{0, "BB3D"}, {}, 4, 4, Endian::Little, 12, 1, 8},
};

}  // namespace

extern constexpr Format kBlitz3d = {
    .name = "Blitz3D",
    .group = Group::Documents,
    .walk = walkToldLength<kBlitz3dForms>,
    .extensions = " B3D ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
