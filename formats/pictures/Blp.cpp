// Game textures (BLP): the pictures of all sizes are listed with their places. Source: public descriptions of
// BLP 1 and 2.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkBlp(ByteView& view) {
    constexpr std::uint64_t kLevels = 16;
    const bool second = view.matches(0, "BLP2");
    if (!second && !view.matches(0, "BLP1"))
        return unknownExtent();
    Facts facts;
    const std::uint64_t size = 12;
    facts.width = view.le32(size).value_or(0);
    facts.height = view.le32(size + 4).value_or(0);
    const std::uint64_t places = second ? 20 : 28;
    const std::uint64_t head = places + 8 * kLevels;
    std::uint64_t end = 0;
    for (std::uint64_t level = 0; level < kLevels; ++level) {
        const auto at = view.le32(places + 4 * level), bytes = view.le32(places + 4 * (kLevels + level));
        if (!at || !bytes)
            return cutOffAt(view, view.size(), facts);
        if (*at != 0 && *bytes != 0 && *at < head)
            return damagedAt(view, head, facts);
        end = std::max(end, *at != 0 && *bytes != 0 ? std::uint64_t{*at} + *bytes : 0);
    }
    return end != 0 ? completeAt(view, end, facts) : unknownExtent();
}

}  // namespace

extern constexpr Format kBlp = {
    .name = "BLP",
    .group = Group::Pictures,
    .walk = walkBlp,
    .extensions = " BLP ",
};

}  // namespace vantor
