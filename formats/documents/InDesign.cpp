// InDesign documents: two master pages that tell the pages of the database, then the objects behind it, of
// which metadata are one. Source: Adobe, "XMP: Storage in Files", section "InDesign".
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t kPage = 4096;
constexpr std::uint64_t kInDesignObjectHead = 32, kObjectTail = 32;
constexpr auto kMasterPage = "\x06\x06\xED\xF5\xD8\x1D\x46\xE5\xBD\x31\xEF\xE7\xFE\x74\xB7\x1D"sv;
constexpr auto kObjectBegins = "\xDE\x39\x39\x79\x51\x88\x4B\x6C\x8E\x63\xEE\xF8\xAE\xE0\xDD\x38"sv;
constexpr auto kObjectEnds = "\xFD\xCE\xDB\x70\xF7\x86\x4B\x4F\xA4\xD3\xC7\x28\xB3\x41\x71\x06"sv;

// Pages of the database, by the master page that was written last; 0 where it cannot be so.
std::uint64_t pagesTold(ByteView& view) {
    std::uint64_t latest = 0, pages = 0;
    for (const std::uint64_t master : {std::uint64_t{0}, kPage}) {
        const auto sequence = view.le64(master + 264);
        const auto told = view.le32(master + 280);
        if (sequence && told && *sequence >= latest) {
            latest = *sequence;
            pages = *told;
        }
    }
    return pages < 2 ? 0 : pages;
}

Extent walkInDesign(ByteView& view) {
    if (!view.matches(0, kMasterPage) || !view.matches(kPage, kMasterPage))
        return unknownExtent();
    const auto pages = pagesTold(view);
    if (pages == 0)
        return damagedAt(view, 2 * kPage);
    std::uint64_t at = pages * kPage;
    while (view.matches(at, kObjectBegins)) {
        const auto bytes = view.le32(at + 24);
        if (!bytes)
            return cutOffAt(view, view.size());
        const auto tail = at + kInDesignObjectHead + *bytes;
        if (!view.matches(tail, kObjectEnds))
            return tail + kObjectTail > view.size() ? cutOffAt(view, view.size()) : damagedAt(view, at);
        at = tail + kObjectTail;
    }
    // Metadata are never absent: without them the end is that of the database only.
    const Extent whole = completeAt(view, (at + kPage - 1) / kPage * kPage);
    return at == pages * kPage ? inexact(whole) : whole;
}

}  // namespace

extern constexpr Format kInDesign = {
    .name = "InDesign",
    .group = Group::Documents,
    .walk = walkInDesign,
    .extensions = " INDD INDT ",
    .large = true,
};

}  // namespace vantor
