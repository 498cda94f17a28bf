// Fonts of web pages. Sources: WOFF 1.0 and 2.0 (W3C).
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kWoffForms[] = {
    {{0, "wOFF\0\1\0\0"_b}, {}, 8, 4, Endian::Big, 44},
    {{0, "wOFFOTTO"}, {}, 8, 4, Endian::Big, 44},
    {{0, "wOF2\0\1\0\0"_b}, {}, 8, 4, Endian::Big, 48},
    {{0, "wOF2OTTO"}, {}, 8, 4, Endian::Big, 48},
};

}  // namespace

extern constexpr Format kWoff = {
    .name = "WOFF",
    .group = Group::Documents,
    .walk = walkToldLength<kWoffForms>,
    .extensions = " WOFF WOFF2 ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
