// Colour profiles. Source: ICC.1:2010.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kIccForms[] = {
    {{36, "acsp"}, {}, 0, 4, Endian::Big, 132},
};

}  // namespace

extern constexpr Format kIcc = {
    .name = "ICC profile",
    .group = Group::Pictures,
    .walk = walkToldLength<kIccForms>,
    .extensions = " ICC ICM ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
