// Placeable Windows metafiles (WMF). Source: [MS-WMF].
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kForms[] = {
    {{0, "\xD7\xCD\xC6\x9A\0\0"_b}, {24, "\x09\0"_b}, 28, 4, Endian::Little, 12, 2, 22},
};

}  // namespace

extern constexpr Format kWmf = {
    .name = "WMF",
    .group = Group::Pictures,
    .walk = walkToldLength<kForms>,
    .extensions = " WMF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
