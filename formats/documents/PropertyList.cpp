// Property lists: XML, or binary, whose last bytes tell where the table of its objects stands. Source:
// Apple's CoreFoundation, "CFBinaryPList" (the format's published description).
#include <algorithm>

#include "formats/Registry.h"

namespace vantor {

namespace {

// The trailer: five bytes unused, one of sorting, two widths, then the count of objects, the first of them
// and where their table stands, eight bytes each. It is the file's when the table ends where it begins.
constexpr std::uint64_t kPropertyListTrailerBytes = 32;
constexpr std::uint64_t kPropertyListMostBytes = 16 * 1024 * 1024;
constexpr std::uint64_t kPropertyListHeadBytes = 8;

bool isTrailer(ByteView& view, std::uint64_t at) {
    const std::uint64_t width = view.u8(at + 6).value_or(0), reference = view.u8(at + 7).value_or(0);
    const auto count = view.be64(at + 8), first = view.be64(at + 16), table = view.be64(at + 24);
    if (!table || width == 0 || width > 8 || reference == 0 || reference > 8 || *count == 0 ||
        *first >= *count || *table <= kPropertyListHeadBytes)
        return false;
    if (addClamped(*table, mulClamped(*count, width)) != at)
        return false;
    const auto object = view.number(*table + *first * width, static_cast<std::size_t>(width), Endian::Big);
    return object && *object >= kPropertyListHeadBytes && *object < *table;
}

Extent walkBinaryList(ByteView& view) {
    const auto limit = std::min(view.size(), kPropertyListMostBytes);
    for (std::uint64_t at = kPropertyListHeadBytes; at + kPropertyListTrailerBytes <= limit; ++at) {
        // The count of objects is below 2^32, so that the four bytes in front of its last ones are zeros.
        const auto zero = view.find(0, at + 8, limit);
        if (!zero.found())
            break;
        at = zero.at - 8;
        if (view.be32(at + 8) == 0 && isTrailer(view, at))
            return completeAt(view, at + kPropertyListTrailerBytes);
    }
    return view.size() <= kPropertyListMostBytes ? cutOffAt(view, view.size()) : unknownExtent();
}

Extent walkPropertyList(ByteView& view) {
    if (view.matches(0, "bplist0"))
        return walkBinaryList(view);
    const Extent text = kXml.walk(view);
    return text.verdict == Verdict::Complete ? withContent(text) : text;
}

}  // namespace

extern constexpr Format kPropertyList = {
    .name = "Property list",
    .group = Group::Documents,
    .walk = walkPropertyList,
    .extensions = " PLIST ",
    .strongMagic = false,
};

}  // namespace vantor
