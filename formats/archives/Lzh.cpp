// LZH archives. Source: LHA header notes.
#include "formats/Format.h"

namespace vantor {

namespace {

bool isLzhHeader(ByteView& view, std::uint64_t at) {
    const auto method = view.window(at, 21);
    if (method.size() < 21 || method[2] != '-' || method[6] != '-' || method[20] > 3)
        return false;
    const bool family = (method[3] == 'l' && (method[4] == 'h' || method[4] == 'z')) ||
                        (method[3] == 'p' && method[4] == 'm');
    const auto kind = method[5];
    return family &&
           ((kind >= '0' && kind <= '9') || (kind >= 'a' && kind <= 'e') || kind == 's' || kind == 'x');
}

Extent walkLzh(ByteView& view) {
    if (!isLzhHeader(view, 0))
        return unknownExtent();
    std::uint64_t at = 0;
    while (isLzhHeader(view, at)) {
        const auto level = view.u8(at + 20).value_or(0);
        const std::uint64_t data = view.le32(at + 7).value_or(0);
        std::uint64_t head = std::uint64_t{view.u8(at).value_or(0)} + 2;
        if (level == 2)
            head = view.le16(at).value_or(0);
        if (level == 3)
            head = view.le32(at + 24).value_or(0);
        if (head < 21)
            return damagedAt(view, at);
        at += head + data;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    const auto next = view.u8(at);
    // CP/M, where one of the kinds comes from, counts a file in records of 128 bytes.
    constexpr std::uint64_t kRecord = 128;
    // The oldest of its writers closes without a mark.
    if (next == 0 && !view.matches(3, "lz"))
        return completeAt(view, view.u8(3) == 'p' ? (at + kRecord) / kRecord * kRecord : at + 1);
    return next ? inexact(completeAt(view, at)) : cutOffAt(view, at);  // some writers leave the end mark out
}

}  // namespace

extern constexpr Format kLzh = {
    .name = "LZH",
    .group = Group::Archives,
    .walk = walkLzh,
    .extensions = " LZH LHA LZS PMA ",
};

}  // namespace vantor
