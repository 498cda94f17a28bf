// FLV movies: tags, each proved by the length repeated behind it. Source: Adobe FLV specification 10.1.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kTagHead = 11;

bool isTagType(std::uint8_t type) {
    const auto kind = type & 0x1F;  // the bits above: filter (encryption)
    return kind == 8 || kind == 9 || kind == 18 || kind == 15;
}

Extent walkFlv(ByteView& view) {
    if (!view.matches(0, std::string_view("FLV\x01", 4)) || (view.u8(4).value_or(0xFF) & 0xFA) != 0)
        return unknownExtent();
    const auto headBytes = view.be32(5);
    if (!headBytes || *headBytes < 9 || *headBytes > 4096)
        return unknownExtent();
    std::uint64_t at = std::uint64_t{*headBytes} + 4;  // behind "length of the tag before" of no tag
    std::uint64_t tags = 0;
    for (;; ++tags) {
        Cursor in(view, at);
        const auto type = in.u8();
        const auto bytes = in.u24();
        in.skip(4);
        const auto stream = in.u24();
        if (!in.ok() && at < view.size() && isTagType(type))
            return cutOffAt(view, at);
        if (!in.ok() || !isTagType(type) || stream != 0)
            break;
        const std::uint64_t behind = at + kTagHead + bytes;
        const auto repeated = view.be32(behind);
        if (!repeated)
            return cutOffAt(view, view.size());
        if (*repeated != bytes + kTagHead && *repeated != bytes)  // some writers leave out the head
            return damagedAt(view, at);
        at = behind + 4;
    }
    return tags != 0 ? inexact(completeAt(view, at)) : damagedAt(view, at);
}

}  // namespace

extern constexpr Format kFlv = {
    .name = "FLV",
    .group = Group::Movies,
    .walk = walkFlv,
    .extensions = " FLV ",
    .large = true,
};

}  // namespace vantor
