// Scans in three dimensions. Source: ASTM E2807.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kE57Forms[] = {
    {{0, "ASTM-E57"}, {}, 16, 8, Endian::Little, 1024},
};

}  // namespace

extern constexpr Format kE57 = {
    .name = "E57",
    .group = Group::Documents,
    .walk = walkToldLength<kE57Forms>,
    .extensions = " E57 ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
