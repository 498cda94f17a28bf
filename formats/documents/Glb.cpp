// Scenes in binary glTF. Source: glTF 2.0 (Khronos) and its forerunner, KHR_binary_glTF.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kGlbForms[] = {
    {{0, "glTF\1\0\0\0"_b}, {}, 8, 4, Endian::Little, 20},
    {{0, "glTF\2\0\0\0"_b}, {}, 8, 4, Endian::Little, 20},
};

}  // namespace

extern constexpr Format kGlb = {
    .name = "glTF",
    .group = Group::Documents,
    .walk = walkToldLength<kGlbForms>,
    .extensions = " GLB ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
