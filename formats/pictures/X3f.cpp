// Sigma X3F raw pictures: the directory stands at the very end, which has to be searched. Source: public
// descriptions of the format.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kX3fMostSearch = 256 * 1024 * 1024;  // no camera of these makes wrote larger files

Extent walkX3f(ByteView& view) {
    if (!view.matches(0, "FOVb"))
        return unknownExtent();
    const auto limit = std::min(view.size(), kX3fMostSearch);
    constexpr std::uint64_t kMostEntries = 256;
    auto mark = view.find('S', 4, limit);
    for (; mark.found(); mark = view.find('S', mark.at + 1, limit)) {
        if (!view.matches(mark.at, "SECd"))
            continue;
        const std::uint64_t entries = view.le32(mark.at + 8).value_or(0);
        const auto end = mark.at + 12 + entries * 12;
        // The directory is closed by its own position.
        if (entries != 0 && entries <= kMostEntries && view.le32(end) == static_cast<std::uint32_t>(mark.at))
            return completeAt(view, end + 4);
    }
    if (mark.stopped())
        return cutOffAt(view, mark.at);
    return limit == view.size() ? cutOffAt(view, view.size()) : unknownExtent();
}

}  // namespace

extern constexpr Format kX3f = {
    .name = "X3F",
    .group = Group::Pictures,
    .walk = walkX3f,
    .extensions = " X3F ",
};

}  // namespace vantor
