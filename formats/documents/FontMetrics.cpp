// Measures of PostScript fonts for Windows (PFM), whose head tells their length. Source: Adobe technical note
// 5178, "Building PFM files for PostScript-language CJK fonts" (the Windows printer font metrics header).
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kFontMetricsForms[] = {
    {{0, "\0\1"_b}, {6, "Copyright"}, 2, 4, Endian::Little, 117},
    {{0, "\0\1"_b}, {6, "(C) "}, 2, 4, Endian::Little, 117},
};

}  // namespace

// PFM is also the ending of pictures, whose format serves it.
extern constexpr Format kFontMetrics = {
    .name = "Font metrics",
    .group = Group::Documents,
    .walk = walkToldLength<kFontMetricsForms>,
    .extensions = " WPFM ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
