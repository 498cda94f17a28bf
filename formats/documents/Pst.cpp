// Outlook mail stores (PST, OST). Source: [MS-PST].
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkPst(ByteView& view) {
    if (!view.matches(0, "!BDN"))
        return unknownExtent();
    const auto version = view.le16(10).value_or(0);
    const bool wide = version >= 23;
    const auto end = wide ? view.le64(0xB8) : view.number(0xA8, 4, Endian::Little);
    if (!end)
        return cutOffAt(view, view.size());
    if ((!wide && version != 14 && version != 15) || *end < 0x200)
        return unknownExtent();
    return completeAt(view, *end);
}

}  // namespace

extern constexpr Format kPst = {
    .name = "PST",
    .group = Group::Documents,
    .walk = walkPst,
    .extensions = " PST OST PAB ",
    .large = true,
};

}  // namespace vantor
