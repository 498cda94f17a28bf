// MD3 models of games. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kMd3Forms[] = {
    {{0, "IDP3\x0F\0\0\0"_b}, {}, 104, 4, Endian::Little, 108},
};

}  // namespace

extern constexpr Format kMd3 = {
    .name = "MD3",
    .group = Group::Documents,
    .walk = walkToldLength<kMd3Forms>,
    .extensions = " MD3 ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
