// Modules of a tracker (MED). Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kMedForms[] = {
    {{0, "MMD0"}, {}, 4, 4, Endian::Big, 52},
    {{0, "MMD1"}, {}, 4, 4, Endian::Big, 52},
    {{0, "MMD2"}, {}, 4, 4, Endian::Big, 52},
};

}  // namespace

extern constexpr Format kMed = {
    .name = "MED",
    .group = Group::Sounds,
    .walk = walkToldLength<kMedForms>,
    .extensions = " MED ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
