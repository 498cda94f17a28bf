// LZH archives. Source: LHA header notes.
#include "formats/Format.h"

namespace vantor {

namespace {

bool isLzhHeader(ByteView& view, std::uint64_t at) {
    const auto method = view.window(at, 21);
    if (method.size() < 21 || method[2] != '-' || method[3] != 'l' ||
        (method[4] != 'h' && method[4] != 'z') || method[6] != '-' || method[20] > 3)
        return false;
    return (method[5] >= '0' && method[5] <= '9') || method[5] == 'd' || method[5] == 's';
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
    if (next == 0)
        return completeAt(view, at + 1);
    return next ? inexact(completeAt(view, at)) : cutOffAt(view, at);  // some writers leave the end mark out
}

}  // namespace

extern constexpr Format kLzh = {
    .name = "LZH",
    .group = Group::Archives,
    .walk = walkLzh,
    .extensions = " LZH LHA ",
};

}  // namespace vantor
