// Event logs of Windows. Source: public descriptions of the format.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

constexpr ToldLength kForms[] = {
    {{0, "ElfFile\0"_b}, {32, "\x80\0\0\0"_b}, 42, 2, Endian::Little, 1, 65536, 4096},
};

}  // namespace

extern constexpr Format kEvtx = {
    .name = "EVTX",
    .group = Group::Systems,
    .walk = walkToldLength<kForms>,
    .extensions = " EVTX ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
