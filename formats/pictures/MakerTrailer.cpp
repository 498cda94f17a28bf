// The list is looked for behind the first block, and is one when it knows that block.
#include "formats/pictures/MakerTrailer.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::uint64_t kMostName = 64;
constexpr std::uint64_t kMakerTrailerMostBlocks = 256;
constexpr std::uint64_t kMakerTrailerMostBytes = 256 * 1024 * 1024;  // a short movie may be among them
constexpr std::uint64_t kListHead = 12, kListEntry = 12;

bool beginsBlock(ByteView& view, std::uint64_t at) {
    const auto nameBytes = view.le32(at + 4).value_or(0);
    if (view.le16(at) != 0 || view.le16(at + 2).value_or(0) == 0 || nameBytes == 0 || nameBytes > kMostName)
        return false;
    for (std::uint64_t i = 0; i < nameBytes; ++i) {
        const auto letter = view.u8(at + 8 + i).value_or(0);
        if (letter <= ' ' || letter > '~')
            return false;
    }
    return true;
}

// Behind the list at `list`; 0 where it is none that begins with the block at `at`.
std::uint64_t endOfList(ByteView& view, std::uint64_t list, std::uint64_t at) {
    const auto blocks = view.le32(list + 8).value_or(0);
    const auto bytes = kListHead + blocks * kListEntry;
    if (blocks == 0 || blocks > kMakerTrailerMostBlocks || view.le32(list + bytes) != bytes ||
        !view.matches(list + bytes + 4, "SEFT"))
        return 0;
    std::uint64_t furthest = 0;
    for (std::uint64_t i = 0; i < blocks; ++i) {
        const auto back = view.le32(list + kListHead + i * kListEntry + 4);
        furthest = std::max<std::uint64_t>(furthest, back.value_or(0));
    }
    return furthest == list - at ? list + bytes + 8 : 0;
}

}  // namespace

std::uint64_t endOfMakerTrailer(ByteView& view, std::uint64_t at) {
    if (!beginsBlock(view, at))
        return 0;
    const auto limit = std::min(view.size(), addClamped(at, kMakerTrailerMostBytes));
    for (auto sign = view.find('S', at, limit); sign.found(); sign = view.find('S', sign.at + 1, limit)) {
        if (!view.matches(sign.at, "SEFH"))
            continue;
        if (const auto end = endOfList(view, sign.at, at))
            return end;
    }
    return 0;
}

std::uint64_t endOfSphereTrailer(ByteView& view, std::uint64_t at) {
    constexpr std::string_view kSign = "8db42d694ccc418790edff439fe026bf";
    constexpr std::uint64_t kLengthBack = 40, kLeast = 78, kMost = 16 * 1024 * 1024;
    const auto limit = std::min(view.size(), addClamped(at, kMost));
    for (auto sign = view.find('8', at, limit); sign.found(); sign = view.find('8', sign.at + 1, limit)) {
        if (!view.matches(sign.at, kSign))
            continue;
        const auto end = sign.at + kSign.size();
        if (end - at >= kLeast && view.le32(end - kLengthBack) == end - at)
            return end;
    }
    return 0;
}

std::uint64_t endOfRecipeTrailer(ByteView& view, std::uint64_t at) {
    constexpr std::string_view kSign("CANON OPTIONAL DATA\0", 20);
    constexpr std::uint64_t kHead = 28, kFoot = 64, kMost = 64 * 1024 * 1024;
    if (!view.matches(at, kSign))
        return 0;
    const std::uint64_t bytes = view.be32(at + kHead - 4).value_or(0);
    const auto foot = at + kHead + bytes;
    return bytes <= kMost && view.matches(foot, kSign) && view.holds(foot, kFoot) ? foot + kFoot : 0;
}

std::uint64_t endOfPhoneNotes(ByteView& view, std::uint64_t at) {
    constexpr std::string_view kSign("\xFF\xFF\xFF\xFF\x1B*9HWfu\x84\x93\xA2\xB1");
    constexpr std::uint64_t kMost = 16 * 1024 * 1024;
    if (!view.matches(at, "vivo{") && !view.matches(at, "streamdata"))
        return 0;
    const auto limit = std::min(view.size(), addClamped(at, kMost));
    for (auto sign = view.find(0x1B, at + 4, limit); sign.found();
         sign = view.find(0x1B, sign.at + 1, limit)) {
        if (view.matches(sign.at - 4, kSign))
            return sign.at - 4 + kSign.size();
    }
    return 0;
}

std::uint64_t endOfConcatenatedNotes(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kFoot = 12, kMost = 16 * 1024 * 1024;
    const bool big = view.matches(at, "AXS!");
    if (!big && !view.matches(at, "AXS*"))
        return 0;
    const std::string_view sign = big ? "AXS!" : "AXS*";
    const auto limit = std::min(view.size(), addClamped(at, kMost));
    for (auto foot = view.find('A', at + kFoot, limit); foot.found();
         foot = view.find('A', foot.at + 1, limit)) {
        const auto begin = view.number(foot.at + 4, 4, big ? Endian::Big : Endian::Little);
        if (begin == at && view.matches(foot.at, sign) && view.holds(foot.at, kFoot))
            return foot.at + kFoot;
    }
    return 0;
}

}  // namespace vantor
