// Tags of sound files: ID3v1 and its enhanced form, ID3v2, APEv2, Lyrics3v2.
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
constexpr std::uint64_t kEnhanced = 227;  // in front of an ID3v1 tag, marked "TAG+"
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

// Bytes of the ID3v2 tag at `at` with its head and its footer; 0 = none stands there.
std::uint64_t tagBytes(ByteView& view, std::uint64_t at) {
    std::array<std::uint8_t, 7> rest{};
    if (!view.matches(at, "ID3") || !view.copy(at + 3, rest))
        return 0;
    const bool safe =
        std::all_of(rest.begin() + 3, rest.end(), [](std::uint8_t byte) { return byte < 0x80; });
    if (rest[0] == 0xFF || rest[1] == 0xFF || !safe)
        return 0;
    const std::uint64_t bytes = rest[3] << 21 | rest[4] << 14 | rest[5] << 7 | rest[6];
    return 10 + bytes + ((rest[2] & 0x10) != 0 ? 10 : 0);
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

// An ID3v2 tag behind the sound has a footer, by which it is found from the file's end.
std::uint64_t skipAppended(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kFooter = 10;
    const auto bytes = tagBytes(view, at);
    const bool closed = bytes >= 2 * kFooter && view.matches(at + bytes - kFooter, "3DI") &&
                        view.be32(at + 6) == view.be32(at + bytes - 4);
    return closed ? at + bytes : at;
}

}  // namespace

std::uint64_t skipLeadingTag(ByteView& view, std::uint64_t at) {
    for (int tags = 0; tags < 8; ++tags) {
        const auto bytes = tagBytes(view, at);
        if (bytes == 0)
            break;
        at += bytes;
        const auto limit = std::min(view.size(), at + kAudioTagsMostPadding);
        auto end = at;
        while (end < limit && view.u8(end) == 0)
            ++end;
        if (end < limit)
            at = end;
    }
    return at;
}

bool isOldTag(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kField = 30, kFields = 3;  // title, artist, album
    if (!view.matches(at, "TAG") || !view.holds(at, kId3v1))
        return false;
    for (std::uint64_t field = at + 3; field < at + 3 + kFields * kField; field += kField) {
        bool ended = false;
        for (std::uint64_t i = 0; i < kField; ++i) {
            const auto letter = view.u8(field + i).value_or(0);
            if (letter == 0 ? false : ended || letter < ' ')
                return false;
            ended = letter == 0;
        }
    }
    return true;
}

std::uint64_t skipTrailingTags(ByteView& view, std::uint64_t at) {
    for (int tags = 0; tags < 4; ++tags) {
        const auto before = at;
        at = skipApe(view, at);
        at = skipLyrics(view, at);
        at = skipAppended(view, at);
        if (view.matches(at, "TAG+") && view.matches(at + kEnhanced, "TAG"))
            at += kEnhanced;
        if (view.matches(at, "TAG") && view.holds(at, kId3v1))
            return at + kId3v1;
        if (at == before)
            break;
    }
    return at;
}

}  // namespace vantor
