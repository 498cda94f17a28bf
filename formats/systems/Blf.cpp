// Logs of vehicle networks (BLF).
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kBlfForms[] = {
    {{0, "LOGG\x90\0\0\0"_b}, {}, 16, 8, Endian::Little, 144},
};

}  // namespace

extern constexpr Format kBlf = {
    .name = "BLF",
    .group = Group::Systems,
    .walk = walkToldLength<kBlfForms>,
    .extensions = " BLF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
