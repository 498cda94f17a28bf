// Animator movies, two generations. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kFlicForms[] = {
    {{4, "\x11\xAF"}, {12, "\x08\0"_b}, 0, 4, Endian::Little, 144},
    {{4, "\x12\xAF"}, {12, "\x08\0"_b}, 0, 4, Endian::Little, 144},
};

}  // namespace

extern constexpr Format kFlic = {
    .name = "FLIC",
    .group = Group::Movies,
    .walk = walkToldLength<kFlicForms>,
    .extensions = " FLC FLI ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
