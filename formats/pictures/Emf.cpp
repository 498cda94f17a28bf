// Enhanced metafiles. Source: [MS-EMF].
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kEmfForms[] = {
    {{40, " EMF\0\0\1\0"_b}, {0, "\1\0\0\0"_b}, 48, 4, Endian::Little, 108},
};

}  // namespace

extern constexpr Format kEmf = {
    .name = "EMF",
    .group = Group::Pictures,
    .walk = walkToldLength<kEmfForms>,
    .extensions = " EMF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
