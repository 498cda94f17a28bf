// Windows images (WIM). Source: Microsoft WIM format.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkWindowsImage(ByteView& view) {
    constexpr std::uint64_t kHead = 208;
    if (!view.matches(0, std::string_view("MSWIM\0\0\0\xD0\0\0\0", 12)))
        return unknownExtent();
    std::uint64_t end = kHead;
    for (const std::uint64_t resource : {48, 72, 96, 124}) {  // lookup table, XML, boot metadata, checksums
        const auto bytes = view.number(resource, 7, Endian::Little), at = view.le64(resource + 8);
        if (!at)
            return cutOffAt(view, view.size());
        end = std::max(end, *bytes != 0 ? addClamped(*at, *bytes) : 0);
    }
    return end > kHead ? completeAt(view, end) : unknownExtent();
}

}  // namespace

extern constexpr Format kWindowsImage = {
    .name = "Windows image",
    .group = Group::Systems,
    .walk = walkWindowsImage,
    .extensions = " WIM SWM ESD ",
    .large = true,
};

}  // namespace vantor
