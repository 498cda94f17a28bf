// CAB archives. Source: Microsoft Cabinet format [MS-CAB].
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkCab(ByteView& view) {
    if (!view.matches(0, std::string_view("MSCF\0\0\0\0", 8)))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const std::uint64_t bytes = in.u32();
    in.skip(4);
    const std::uint64_t files = in.u32();
    in.skip(4);
    const auto minor = in.u8(), major = in.u8();
    if (!in.ok() || major != 1 || minor > 3 || files >= bytes || bytes < 36)
        return unknownExtent();
    return completeAt(view, bytes);
}

}  // namespace

extern constexpr Format kCab = {
    .name = "CAB",
    .group = Group::Archives,
    .walk = walkCab,
    .extensions = " CAB ",
    .large = true,
};

}  // namespace vantor
