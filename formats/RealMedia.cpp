// RealMedia: chunk by chunk, as long as their names are known. Source: RealMedia file format.
#include <algorithm>
#include <array>

#include "formats/AudioTags.h"
#include "formats/Walkers.h"

namespace vantor {

Extent walkRealMedia(ByteView& view) {
    static constexpr std::array<std::string_view, 8> kNames = {"PROP", "MDPR", "CONT", "DATA",
                                                               "INDX", "RMMD", "RMJD", "RMJE"};
    if (!view.matches(0, ".RMF"))
        return unknownExtent();
    std::uint64_t at = view.be32(4).value_or(0);
    if (at < 10 || at > 64)
        return unknownExtent();
    constexpr int kMostChunks = 1 << 16;
    bool sawData = false;
    for (int chunks = 0; chunks < kMostChunks; ++chunks) {
        const auto standsHere = [&](std::string_view name) { return view.matches(at, name); };
        if (std::none_of(kNames.begin(), kNames.end(), standsHere))
            break;
        const auto bytes = view.be32(at + 4).value_or(0);
        if (bytes < 8)
            return sawData ? completeAt(view, at) : unknownExtent();
        sawData = sawData || view.matches(at, "DATA");
        at += bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    if (!sawData)
        return view.holds(at, 8) ? damagedAt(view, at) : cutOffAt(view, at);
    return completeAt(view, skipTrailingTags(view, at));
}

}  // namespace vantor
