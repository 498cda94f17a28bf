// Music of a console (BRSTM).
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kForms[] = {
    {{0, "RSTM\xFE\xFF"}, {}, 8, 4, Endian::Big, 64},
};

}  // namespace

extern constexpr Format kBrstm = {
    .name = "BRSTM",
    .group = Group::Sounds,
    .walk = walkToldLength<kForms>,
    .extensions = " BRSTM ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
