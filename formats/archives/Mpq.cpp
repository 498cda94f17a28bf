// Archives of games (MPQ). Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kMpqForms[] = {
    {{0, "MPQ\x1A\x20\0\0\0"_b}, {}, 8, 4, Endian::Little, 32},
};

}  // namespace

extern constexpr Format kMpq = {
    .name = "MPQ",
    .group = Group::Archives,
    .walk = walkToldLength<kMpqForms>,
    .extensions = " MPQ ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
