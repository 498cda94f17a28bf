// Music of a console (BRSTM).
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kBrstmForms[] = {
    {{0, "RSTM\xFE\xFF"}, {}, 8, 4, Endian::Big, 64},
};

}  // namespace

extern constexpr Format kBrstm = {
    .name = "BRSTM",
    .group = Group::Sounds,
    .walk = walkToldLength<kBrstmForms>,
    .extensions = " BRSTM ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
