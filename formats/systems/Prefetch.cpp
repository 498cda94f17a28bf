// What Windows notes of the start of a program (PF). Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kPrefetchForms[] = {
    {{4, "SCCA"}, {1, "\0\0\0"_b}, 12, 4, Endian::Little, 84},
};

}  // namespace

extern constexpr Format kPrefetch = {
    .name = "Prefetch",
    .group = Group::Systems,
    .walk = walkToldLength<kPrefetchForms>,
    .extensions = " PF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
