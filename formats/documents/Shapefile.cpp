// Shapes of a map. Source: ESRI shapefile description.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kShapefileForms[] = {
    {{0, "\0\0\x27\x0A\0\0\0\0"_b}, {28, "\xE8\3\0\0"_b}, 24, 4, Endian::Big, 50, 2},
};

}  // namespace

extern constexpr Format kShapefile = {
    .name = "Shapefile",
    .group = Group::Documents,
    .walk = walkToldLength<kShapefileForms>,
    .extensions = " SHP ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
