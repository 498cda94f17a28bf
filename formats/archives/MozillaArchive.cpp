// Archives of program updates (MAR): packed files, then their table, whose place the head tells. Source:
// Mozilla wiki, "Software Update: MAR".
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkMozillaArchive(ByteView& view) {
    constexpr std::uint64_t kHead = 8;
    if (!view.matches(0, "MAR1"))
        return unknownExtent();
    const auto table = view.be32(4);
    if (!table)
        return cutOffAt(view, view.size());
    if (*table < kHead)
        return unknownExtent();
    const auto bytes = view.be32(*table);
    return bytes ? completeAt(view, std::uint64_t{*table} + 4 + *bytes) : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kMozillaArchive = {
    .name = "Update archive",
    .group = Group::Archives,
    .walk = walkMozillaArchive,
    .extensions = " MAR ",
};

}  // namespace vantor
