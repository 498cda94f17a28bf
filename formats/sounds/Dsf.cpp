// Sounds in one bit. Source: DSF 1.01.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kDsfForms[] = {
    {{0, "DSD \x1C\0\0\0\0\0\0\0"_b}, {28, "fmt "}, 12, 8, Endian::Little, 92},
};

}  // namespace

extern constexpr Format kDsf = {
    .name = "DSF",
    .group = Group::Sounds,
    .walk = walkToldLength<kDsfForms>,
    .extensions = " DSF ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
