// Tags of sound files: ID3v1, ID3v2, APEv2, Lyrics3v2.
#include "formats/AudioTags.h"

#include <algorithm>
#include <array>

namespace vantor {

namespace {

constexpr std::string_view kApe = "APETAGEX";
constexpr std::uint64_t kApeBlock = 32;  // its header or footer
constexpr std::uint64_t kMostApe = 16 * 1024 * 1024;
constexpr std::uint64_t kMostApeSearch = 256 * 1024;
constexpr std::uint64_t kId3v1 = 128;
constexpr std::uint64_t kAudioTagsMostPadding = 64 * 1024;

// An APE tag without header begins with its first item: value size, flags, a key of printable letters, zero.
bool isApeItem(ByteView& view, std::uint64_t at) {
    const auto bytes = view.le32(at);
    if (!bytes || *bytes > kMostApe || (view.le32(at + 4).value_or(0xFF) & 0x1FFFFFF8) != 0)
        return false;
    for (std::uint64_t i = 0; i < 255; ++i) {
        const auto letter = view.u8(at + 8 + i).value_or(1);
        if (letter == 0)
            return i >= 2;
        if (letter < 0x20 || letter > 0x7E)
            return false;
    }
    return false;
}

std::uint64_t skipApe(ByteView& view, std::uint64_t at) {
    if (view.matches(at, kApe)) {
        const auto bytes = view.le32(at + 12).value_or(0);  // items and footer
        return bytes >= kApeBlock && bytes <= kMostApe ? at + kApeBlock + bytes : at;
    }
    if (!isApeItem(view, at))
        return at;
    const auto limit = std::min(view.size(), at + kMostApeSearch);
    for (auto footer = view.find('A', at, limit); footer.found();
         footer = view.find('A', footer.at + 1, limit)) {
        if (view.matches(footer.at, kApe) &&
            at + view.le32(footer.at + 12).value_or(0) == footer.at + kApeBlock)
            return footer.at + kApeBlock;
    }
    return at;
}

std::uint64_t skipLyrics(ByteView& view, std::uint64_t at) {
    if (!view.matches(at, "LYRICSBEGIN"))
        return at;
    const auto limit = std::min(view.size(), at + kMostApeSearch);
    for (auto mark = view.find('L', at + 1, limit); mark.found(); mark = view.find('L', mark.at + 1, limit)) {
        if (view.matches(mark.at, "LYRICS200") || view.matches(mark.at, "LYRICSEND"))
            return mark.at + 9;
    }
    return at;
}

}  // namespace

std::uint64_t skipLeadingTag(ByteView& view, std::uint64_t at) {
    for (int tags = 0; tags < 8 && view.matches(at, "ID3"); ++tags) {
        std::array<std::uint8_t, 7> rest{};
        if (!view.copy(at + 3, rest))
            break;
        const bool safe =
            std::all_of(rest.begin() + 3, rest.end(), [](std::uint8_t byte) { return byte < 0x80; });
        if (rest[0] == 0xFF || rest[1] == 0xFF || !safe)
            break;
        const std::uint64_t bytes = rest[3] << 21 | rest[4] << 14 | rest[5] << 7 | rest[6];
        at += 10 + bytes + ((rest[2] & 0x10) != 0 ? 10 : 0);
        const auto limit = std::min(view.size(), at + kAudioTagsMostPadding);
        auto end = at;
        while (end < limit && view.u8(end) == 0)
            ++end;
        if (end < limit)
            at = end;
    }
    return at;
}

std::uint64_t skipTrailingTags(ByteView& view, std::uint64_t at) {
    for (int tags = 0; tags < 4; ++tags) {
        const auto before = at;
        at = skipApe(view, at);
        at = skipLyrics(view, at);
        if (view.matches(at, "TAG") && view.holds(at, kId3v1))
            return at + kId3v1;
        if (at == before)
            break;
    }
    return at;
}

}  // namespace vantor
