// Windows metafiles (WMF), placeable or not: record by record to the one that ends them, since writers differ
// in what the told size counts. Source: [MS-WMF].
#include "formats/Format.h"

namespace vantor {

namespace {

// Behind what programs leave behind the last record: a word that the told size counts, or an office suite's
// mark.
std::uint64_t behindLeftovers(ByteView& view, std::uint64_t end, std::uint64_t told) {
    constexpr std::uint64_t kMostPadding = 4, kMarkBytes = 8;
    if (view.matches(end, std::string_view("NANI\0\0\0\0", kMarkBytes)))
        return end + kMarkBytes;
    return told > end && told - end <= kMostPadding && told <= view.size() ? told : end;
}

Extent walkWmf(ByteView& view) {
    constexpr std::uint64_t kPlaceable = 22, kHeaderWords = 9, kLeastWords = 3, kEndOfFile = 0;
    const bool placeable = view.matches(0, std::string_view("\xD7\xCD\xC6\x9A\0\0", 6));
    const std::uint64_t header = placeable ? kPlaceable : 0;
    const auto kind = view.le16(header), words = view.le16(header + 2);
    if (!words)
        return placeable ? cutOffAt(view, view.size()) : unknownExtent();
    if (*words != kHeaderWords || (!placeable && (kind != 1 || view.le16(4) != 0x300)))
        return unknownExtent();
    const std::uint64_t told = header + 2 * std::uint64_t{view.le32(header + 6).value_or(0)};
    for (std::uint64_t at = header + 2 * kHeaderWords;;) {
        const auto size = view.le32(at);
        const auto function = view.le16(at + 4);
        if (!size || !function)
            return cutOffAt(view, view.size());
        if (*size < kLeastWords)
            return damagedAt(view, at);
        const auto end = at + 2 * std::uint64_t{*size};
        if (*function == kEndOfFile)
            return *size == kLeastWords ? completeAt(view, behindLeftovers(view, end, told))
                                        : damagedAt(view, at);
        at = end;
    }
}

}  // namespace

extern constexpr Format kWmf = {
    .name = "WMF",
    .group = Group::Pictures,
    .walk = walkWmf,
    .extensions = " WMF ",
};

}  // namespace vantor
