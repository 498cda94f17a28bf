// WordPerfect 6 and later. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kWordPerfectForms[] = {
    {{0, "\xFFWPC"}, {9, "\x0A\2"}, 20, 4, Endian::Little, 32},
};

}  // namespace

extern constexpr Format kWordPerfect = {
    .name = "WordPerfect",
    .group = Group::Documents,
    .walk = walkToldLength<kWordPerfectForms>,
    .extensions = " WPD ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
