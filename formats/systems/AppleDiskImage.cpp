// Apple disk images (DMG). Source: public notes on the "koly" trailer.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// Only its last 512 bytes tell what it is; they say where the parts before them end.
Extent walkAppleDiskImage(ByteView& view) {
    constexpr std::string_view kTrailer("koly\0\0\0\4\0\0\2\0", 12);
    constexpr std::uint64_t kTrailerBytes = 512, kMostSearch = 256 * 1024 * 1024, kMostBetween = 1 << 20;
    const auto limit = std::min(view.size(), kMostSearch);
    for (auto mark = view.find('k', 0, limit); mark.found(); mark = view.find('k', mark.at + 1, limit)) {
        const auto at = mark.at;
        if (!view.matches(at, kTrailer))
            continue;
        const auto data = addClamped(view.be64(at + 24).value_or(0), view.be64(at + 32).value_or(0));
        const auto list = addClamped(view.be64(at + 216).value_or(0), view.be64(at + 224).value_or(0));
        const auto last = std::max(data, list);
        if (last != 0 && last <= at && at - last <= kMostBetween)
            return completeAt(view, at + kTrailerBytes);
    }
    return unknownExtent();
}

}  // namespace

extern constexpr Format kAppleDiskImage = {
    .name = "Apple disk image",
    .group = Group::Systems,
    .walk = walkAppleDiskImage,
    .extensions = " DMG ",
    .strongMagic = false,
};

}  // namespace vantor
