// WebAssembly programs. Source: WebAssembly Core Specification 2.0.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// Tags of exceptions (kind 13) stand between memories and globals.
// Sections until what follows is none: a number, a length, and all but the first kind in a fixed order.
Extent walkWebAssembly(ByteView& view) {
    static constexpr std::uint8_t kOrder[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 12, 13, 11, 6};
    constexpr unsigned kMostGroups = 5;
    if (!view.matches(0, std::string_view("\0asm\1\0\0\0", 8)))
        return unknownExtent();
    std::uint64_t at = 8;
    std::uint8_t last = 0;
    for (;;) {
        const auto kind = view.u8(at);
        if (!kind || *kind >= std::size(kOrder) || (*kind != 0 && kOrder[*kind] <= last))
            break;
        std::uint64_t content = at + 1;
        const auto bytes = groupedNumber(view, content, kMostGroups);
        if (!bytes || *bytes == 0)
            break;
        at = content + *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        last = std::max(last, kOrder[*kind]);
    }
    return inexact(completeAt(view, at));
}

}  // namespace

extern constexpr Format kWebAssembly = {
    .name = "WebAssembly",
    .group = Group::Systems,
    .walk = walkWebAssembly,
    .extensions = " WASM ",
};

}  // namespace vantor
