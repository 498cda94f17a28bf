// Word 2, and Write, which counts in pages. Source: public descriptions of both formats.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kWriteAndWord2Forms[] = {
    {{0, "\xDB\xA5\x2D\0"_b}, {}, 32, 4, Endian::Little, 384},  // Word 2
    {{0, "\x31\xBE\0\0\0\xAB"_b}, {}, 96, 2, Endian::Little, 2, 128},
    {{0, "\x32\xBE\0\0\0\xAB"_b}, {}, 96, 2, Endian::Little, 2, 128},
};

}  // namespace

extern constexpr Format kWrite = {
    .name = "Write",
    .group = Group::Documents,
    .walk = walkToldLength<kWriteAndWord2Forms>,
    .extensions = " WRI ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
