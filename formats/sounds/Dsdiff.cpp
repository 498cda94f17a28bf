// Sounds in one bit (DFF). Source: DSDIFF 1.5.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kDsdiffForms[] = {
    {{0, "FRM8"}, {12, "DSD "}, 4, 8, Endian::Big, 64, 1, 12},
};

}  // namespace

extern constexpr Format kDsdiff = {
    .name = "DSDIFF",
    .group = Group::Sounds,
    .walk = walkToldLength<kDsdiffForms>,
    .extensions = " DFF ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
