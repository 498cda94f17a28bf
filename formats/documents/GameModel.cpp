// Models of games in the engine family that marks them IDST, and their sequences. Source: public descriptions
// of the studio model headers (versions 10 and 44 to 49).
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kGameModelForms[] = {
    {{0, "IDST\x0A\0\0\0"_b}, {}, 72, 4, Endian::Little, 76},
    {{0, "IDSQ\x0A\0\0\0"_b}, {}, 72, 4, Endian::Little, 76},
    {{0, "IDST\x2C\0\0\0"_b}, {}, 76, 4, Endian::Little, 80},
    {{0, "IDST\x2D\0\0\0"_b}, {}, 76, 4, Endian::Little, 80},
    {{0, "IDST\x2E\0\0\0"_b}, {}, 76, 4, Endian::Little, 80},
    {{0, "IDST\x30\0\0\0"_b}, {}, 76, 4, Endian::Little, 80},
    {{0, "IDST\x31\0\0\0"_b}, {}, 76, 4, Endian::Little, 80},
};

}  // namespace

extern constexpr Format kGameModel = {
    .name = "Game model",
    .group = Group::Documents,
    .walk = walkToldLength<kGameModelForms>,
    .extensions = " MDL ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
