// Data of physicists. Source: ROOT file description.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kRootForms[] = {
    {{0, "root\0\0"_b}, {8, "\0\0\0\x64"_b}, 12, 4, Endian::Big, 100},
};

}  // namespace

extern constexpr Format kRoot = {
    .name = "ROOT",
    .group = Group::Documents,
    .walk = walkToldLength<kRootForms>,
    .extensions = " ROOT ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
