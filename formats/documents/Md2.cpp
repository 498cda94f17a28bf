// MD2 models of games. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kMd2Forms[] = {
    {{0, "IDP2\x08\0\0\0"_b}, {}, 64, 4, Endian::Little, 68},
};

}  // namespace

extern constexpr Format kMd2 = {
    .name = "MD2",
    .group = Group::Documents,
    .walk = walkToldLength<kMd2Forms>,
    .extensions = " MD2 ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
