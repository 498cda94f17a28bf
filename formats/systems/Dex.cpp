// Programs of Android. Source: Dalvik executable format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kDexForms[] = {
    {{0, "dex\n0"}, {40, "\x78\x56\x34\x12"}, 32, 4, Endian::Little, 112},
};

}  // namespace

extern constexpr Format kDex = {
    .name = "DEX",
    .group = Group::Systems,
    .walk = walkToldLength<kDexForms>,
    .extensions = " DEX ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
