// Boot loader images. Source: U-Boot documentation.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kUImageForms[] = {
    {{0, "\x27\x05\x19\x56"}, {}, 12, 4, Endian::Big, 1, 1, 64},
};

}  // namespace

extern constexpr Format kUImage = {
    .name = "U-Boot image",
    .group = Group::Systems,
    .walk = walkToldLength<kUImageForms>,
    .extensions = " UIMAGE ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
