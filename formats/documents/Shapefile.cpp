// Shapes of a map (SHP), the index that finds them by place (SBN), and grids of the same maker (ADF).
// Sources: ESRI shapefile description; public descriptions of the SBN index and of the ArcInfo binary
// formats.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr std::string_view kNothing = "\0\0\0\0\0\0\0\0\0\0\0\0"_b;
constexpr ToldLength kShapefileForms[] = {
    {{0, "\0\0\x27\x0A\0\0\0\0"_b}, {28, "\xE8\3\0\0"_b}, 24, 4, Endian::Big, 50, 2},
    {{0, "\0\0\x27\x0A\xFF\xFF\xFE\x70"_b}, {12, kNothing}, 24, 4, Endian::Big, 50, 2},
    {{0, "\0\0\x27\x0A\xFF\xFF\xFC"_b}, {12, kNothing}, 24, 4, Endian::Big, 50, 2},
};

}  // namespace

extern constexpr Format kShapefile = {
    .name = "Shapefile",
    .group = Group::Documents,
    .walk = walkToldLength<kShapefileForms>,
    .extensions = " SHP SBN ADF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
