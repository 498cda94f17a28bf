// FBX models: a tree of records that ends with an empty one, and a closing mark behind it; or text.
// Source: public descriptions of the binary form (versions 6100 to 7700).
#include "formats/Format.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

using namespace std::string_view_literals;

constexpr auto kClosing = "\xF8\x5A\x8C\x6A\xDE\xF5\xD9\x7E\xEC\xE9\x0C\xE3\x75\x8F\x29\x0B"sv;

Extent walkFbx(ByteView& view) {
    if (view.matches(0, "; FBX "))
        return walkText(view);
    constexpr std::uint64_t kHead = 27;
    constexpr std::uint32_t kWideFrom = 7500;  // versions with places of eight bytes
    constexpr std::uint64_t kMostFooter = 256;
    if (!view.matches(0, "Kaydara FBX Binary  \0\x1A\0"sv))
        return unknownExtent();
    const auto version = view.le32(23);
    if (!version)
        return cutOffAt(view, view.size());
    const std::size_t place = *version >= kWideFrom ? 8 : 4;
    std::uint64_t at = kHead;
    for (;;) {
        const auto end = view.number(at, place, Endian::Little);
        if (!end)
            return cutOffAt(view, view.size());
        if (*end == 0)
            break;
        if (*end < at + 3 * place + 1)
            return damagedAt(view, at);
        if (*end > view.size())
            return cutOffAt(view, view.size());
        at = *end;
    }
    at += 3 * place + 1;
    for (auto mark = view.find(0xF8, at, at + kMostFooter); mark.found();
         mark = view.find(0xF8, mark.at + 1, at + kMostFooter)) {
        if (view.matches(mark.at, kClosing))
            return completeAt(view, mark.at + kClosing.size());
    }
    if (view.size() < at + kMostFooter)
        return cutOffAt(view, view.size());
    return inexact(completeAt(view, at));
}

}  // namespace

extern constexpr Format kFbx = {
    .name = "FBX",
    .group = Group::Documents,
    .walk = walkFbx,
    .extensions = " FBX ",
};

}  // namespace vantor
