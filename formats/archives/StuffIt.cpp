// StuffIt archives, two generations. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kStuffItForms[] = {
    {{0, "SIT!"}, {10, "rLau"}, 6, 4, Endian::Big, 22},
    {{0, "StuffIt (c)1997"}, {}, 84, 4, Endian::Big, 100},
};

}  // namespace

extern constexpr Format kStuffIt = {
    .name = "StuffIt",
    .group = Group::Archives,
    .walk = walkToldLength<kStuffItForms>,
    .extensions = " SIT ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
