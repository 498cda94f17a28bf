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
    in.skip(4);
    const auto flags = in.u16();
    if (!in.ok() || major != 1 || minor > 3 || files >= bytes || bytes < 36)
        return unknownExtent();
    // A signature stands behind what the header counts, where its reserved bytes say.
    constexpr std::uint16_t kReserved = 4, kSignatureNote = 20;
    const std::uint64_t at = view.le32(44).value_or(0), signature = view.le32(48).value_or(0);
    const bool isSigned = (flags & kReserved) != 0 && view.le16(36) == kSignatureNote && at == bytes;
    return completeAt(view, bytes + (isSigned ? signature : 0));
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
