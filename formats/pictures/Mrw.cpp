// Minolta MRW raw pictures: their parts are told up front. Source: public descriptions of the format.
#include "formats/Format.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

Extent walkMrw(ByteView& view) {
    if (!view.matches(0, std::string_view("\0MRM", 4)))
        return unknownExtent();
    const std::uint64_t pixels = 8 + std::uint64_t{view.be32(4).value_or(0)};
    Facts facts;
    std::uint64_t bits = 0;
    std::uint64_t sensor = 0;
    constexpr int kMostBlocks = 64;
    std::uint64_t at = 8;
    for (int blocks = 0; blocks < kMostBlocks && at + 8 <= pixels; ++blocks) {
        if (view.matches(at, std::string_view("\0PRD", 4))) {
            Cursor in(view, at + 16);
            facts.height = in.u16();
            facts.width = in.u16();
            in.skip(4);
            bits = in.u8();
            sensor = std::uint64_t{facts.height} * facts.width;
        } else if (view.matches(at, std::string_view("\0TTW", 4))) {
            Facts exif;
            addTiffFacts(view, at + 8, exif);
            facts.taken = exif.taken;
        }
        at += 8 + std::uint64_t{view.be32(at + 4).value_or(0)};
    }
    if (sensor == 0 || (bits != 12 && bits != 16))
        return damagedAt(view, pixels, facts);
    return completeAt(view, pixels + sensor * bits / 8, facts);
}

}  // namespace

extern constexpr Format kMrw = {
    .name = "MRW",
    .group = Group::Pictures,
    .walk = walkMrw,
    .extensions = " MRW ",
};

}  // namespace vantor
