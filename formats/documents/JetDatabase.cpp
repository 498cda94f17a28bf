// Access databases (MDB, ACCDB). Source: public notes on the Jet page layout.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkJetDatabase(ByteView& view) {
    const bool jet = view.matches(4, std::string_view("Standard Jet DB\0", 16));
    const bool ace = view.matches(4, std::string_view("Standard ACE DB\0", 16));
    if (!view.matches(0, std::string_view("\0\x01\0\0", 4)) || (!jet && !ace))
        return unknownExtent();
    const std::uint64_t page = view.u8(0x14) == 0 ? 2048 : 4096;
    // Every page in use names its kind in the first byte, and 1 in the second; runs of free pages stand
    // between.
    constexpr std::uint8_t kLastKind = 10;
    constexpr std::uint64_t kMostFreePages = 256;
    std::uint64_t end = page;
    for (std::uint64_t at = page; view.holds(at, page) && at - end <= kMostFreePages * page; at += page) {
        const auto kind = view.u8(at).value_or(0), mark = view.u8(at + 1).value_or(0);
        if (kind >= 1 && kind <= kLastKind && mark == 1)
            end = at + page;
        else if (kind != 0 || mark != 0)
            break;
    }
    const bool torn = view.holds(end, 1) && !view.holds(end, page);
    return inexact(torn ? cutOffAt(view, view.size()) : completeAt(view, end));
}

}  // namespace

extern constexpr Format kJetDatabase = {
    .name = "Jet database",
    .group = Group::Documents,
    .walk = walkJetDatabase,
    .extensions = " MDB ACCDB MDE ",
    .large = true,
};

}  // namespace vantor
