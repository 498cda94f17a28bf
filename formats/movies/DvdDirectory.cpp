// Directories of DVD video (IFO): how many blocks of a disc they take. Source: public descriptions of the
// DVD's management tables.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

// The number is that of the last block, counted from nought.
constexpr std::uint64_t kDvdBlock = 2048;
constexpr ToldLength kDvdForms[] = {
    {{0, "DVDVIDEO-VMG"}, {}, 28, 4, Endian::Big, 1, kDvdBlock, kDvdBlock},
    {{0, "DVDVIDEO-VTS"}, {}, 28, 4, Endian::Big, 1, kDvdBlock, kDvdBlock},
};

}  // namespace

extern constexpr Format kDvdDirectory = {
    .name = "DVD directory",
    .group = Group::Movies,
    .walk = walkToldLength<kDvdForms>,
    .extensions = " IFO BUP ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
