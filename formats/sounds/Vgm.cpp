// Music of consoles (VGM). Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kVgmForms[] = {
    {{0, "Vgm "}, {}, 4, 4, Endian::Little, 60, 1, 4},
};

}  // namespace

extern constexpr Format kVgm = {
    .name = "VGM",
    .group = Group::Sounds,
    .walk = walkToldLength<kVgmForms>,
    .extensions = " VGM ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
