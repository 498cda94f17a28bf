// Apple icons (ICNS). Source: Apple icon services header.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkIcns(ByteView& view) {
    const auto told = view.be32(4).value_or(0);
    if (!view.matches(0, "icns") || told < 16)
        return unknownExtent();
    std::uint64_t at = 8;
    while (at < told) {
        const auto bytes = view.be32(at + 4);
        if (!bytes || at + *bytes > view.size())
            return cutOffAt(view, view.size());
        if (*bytes < 8 || at + *bytes > told)
            return damagedAt(view, at);
        at += *bytes;
    }
    return completeAt(view, told);
}

}  // namespace

extern constexpr Format kIcns = {
    .name = "ICNS",
    .group = Group::Pictures,
    .walk = walkIcns,
    .extensions = " ICNS ",
};

}  // namespace vantor
