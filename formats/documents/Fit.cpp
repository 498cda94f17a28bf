// Records of sport watches. Source: FIT protocol.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

// Header and checksum are not counted.
constexpr ToldLength kFitForms[] = {
    {{8, ".FIT"}, {0, "\x0E"}, 4, 4, Endian::Little, 1, 1, 16},
    {{8, ".FIT"}, {0, "\x0C"}, 4, 4, Endian::Little, 1, 1, 14},
};

}  // namespace

extern constexpr Format kFit = {
    .name = "FIT",
    .group = Group::Documents,
    .walk = walkToldLength<kFitForms>,
    .extensions = " FIT ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
