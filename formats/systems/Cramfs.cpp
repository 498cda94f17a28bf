// Packed file systems. Source: cramfs documentation.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kCramfsForms[] = {
    {{0, "\x45\x3D\xCD\x28"}, {16, "Compressed ROMFS"}, 4, 4, Endian::Little, 76},
};

}  // namespace

extern constexpr Format kCramfs = {
    .name = "cramfs",
    .group = Group::Systems,
    .walk = walkToldLength<kCramfsForms>,
    .extensions = " CRAMFS ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
