// Fonts embedded in web pages (EOT). Source: W3C submission Embedded OpenType File Format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kEmbeddedFontForms[] = {
    {{34, "LP"}, {8, "\0\0\1\0"_b}, 0, 4, Endian::Little, 80},
    {{34, "LP"}, {8, "\1\0\2\0"_b}, 0, 4, Endian::Little, 80},
    {{34, "LP"}, {8, "\2\0\2\0"_b}, 0, 4, Endian::Little, 80},
};

}  // namespace

extern constexpr Format kEmbeddedFont = {
    .name = "EOT",
    .group = Group::Documents,
    .walk = walkToldLength<kEmbeddedFontForms>,
    .extensions = " EOT ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
