// DjVu documents. Source: DjVu 3 specification.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkDjvu(ByteView& view) {
    if (!view.matches(0, "AT&TFORM") || !view.matches(12, "DJV"))
        return unknownExtent();
    return completeAt(view, 12 + std::uint64_t{view.be32(8).value_or(0)});
}

}  // namespace

extern constexpr Format kDjvu = {
    .name = "DjVu",
    .group = Group::Documents,
    .walk = walkDjvu,
    .extensions = " DJVU DJV ",
};

}  // namespace vantor
