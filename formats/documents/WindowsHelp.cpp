// Windows help (HLP). Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kWindowsHelpForms[] = {
    {{0, "?_\3\0"_b}, {}, 12, 4, Endian::Little, 16},
};

}  // namespace

extern constexpr Format kWindowsHelp = {
    .name = "Windows help",
    .group = Group::Documents,
    .walk = walkToldLength<kWindowsHelpForms>,
    .extensions = " HLP ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
