// Bink movies, two generations. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kBinkForms[] = {
    {{0, "BIK"}, {}, 4, 4, Endian::Little, 44, 1, 8},
    {{0, "KB2"}, {}, 4, 4, Endian::Little, 44, 1, 8},
};

}  // namespace

extern constexpr Format kBink = {
    .name = "Bink",
    .group = Group::Movies,
    .walk = walkToldLength<kBinkForms>,
    .extensions = " BIK BK2 ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
