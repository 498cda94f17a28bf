// MultiTracker modules (MTM): counted parts of fixed sizes, then the sounds. Source: the tracker's format
// description.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkMultiTracker(ByteView& view) {
    constexpr std::uint64_t kHead = 66, kSound = 37, kOrders = 128, kTrack = 192, kPattern = 64;
    if (!view.matches(0, "MTM\x10"))
        return unknownExtent();
    Cursor in(view, 24, Endian::Little);
    const std::uint64_t tracks = in.u16(), lastPattern = in.u8();
    in.skip(1);
    const std::uint64_t comment = in.u16(), sounds = in.u8();
    std::uint64_t end =
        kHead + sounds * kSound + kOrders + tracks * kTrack + (lastPattern + 1) * kPattern + comment;
    for (std::uint64_t i = 0; i < sounds; ++i)
        end += view.le32(kHead + i * kSound + 22).value_or(0);
    return in.ok() && view.holds(0, kHead + sounds * kSound) ? completeAt(view, end)
                                                             : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kMultiTracker = {
    .name = "MultiTracker",
    .group = Group::Sounds,
    .walk = walkMultiTracker,
    .extensions = " MTM ",
};

}  // namespace vantor
