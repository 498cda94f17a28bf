// Ring tones (MMF). Source: public descriptions of SMAF.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kSmafForms[] = {
    {{0, "MMMD"}, {8, "CNTI"}, 4, 4, Endian::Big, 16, 1, 8},
};

}  // namespace

extern constexpr Format kSmaf = {
    .name = "SMAF",
    .group = Group::Sounds,
    .walk = walkToldLength<kSmafForms>,
    .extensions = " MMF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
