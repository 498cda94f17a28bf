// Pixel size, date and length of AVI, WebP, WAV and AIFF files. Sources: AVI RIFF File Reference,
// OpenDML 1.02, WebP container specification, EBU Tech 3285 (broadcast extension), Audio Interchange File
// Format 1.3.
#include "formats/movies/RiffFacts.h"

#include <algorithm>
#include <array>

#include "formats/Dates.h"
#include "formats/PlayingTime.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

// "Mon Jul 02 13:21:15 2001" as C's asctime writes it, or a date led by the year.
std::optional<CivilTime> parseAviDate(std::string_view text) {
    if (const auto plain = parseDate(text))
        return plain;
    constexpr std::string_view kMonths = "JanFebMarAprMayJunJulAugSepOctNovDec";
    if (text.size() < 24)
        return std::nullopt;
    const auto month = kMonths.find(text.substr(4, 3));
    if (month == kMonths.npos || month % 3 != 0)
        return std::nullopt;
    const auto number = month / 3 + 1;
    std::string_view day = text.substr(8, 2);
    const std::array<char, 19> ordered = {text[20],
                                          text[21],
                                          text[22],
                                          text[23],
                                          '-',
                                          static_cast<char>('0' + number / 10),
                                          static_cast<char>('0' + number % 10),
                                          '-',
                                          day[0] == ' ' ? '0' : day[0],
                                          day[1],
                                          ' ',
                                          text[11],
                                          text[12],
                                          ':',
                                          text[14],
                                          text[15],
                                          ':',
                                          text[17],
                                          text[18]};
    return parseDate({ordered.data(), ordered.size()});
}

void aviHeaders(ByteView& view, std::uint64_t from, std::uint64_t to, Facts& facts) {
    constexpr int kMostHeaders = 64;
    std::uint64_t frameMicroseconds = 0, frames = 0;
    for (int i = 0; i < kMostHeaders && from + 8 <= to; ++i) {
        const std::uint64_t bytes = view.le32(from + 4).value_or(0);
        if (view.matches(from, "avih")) {
            facts.width = view.le32(from + 8 + 32).value_or(0);
            facts.height = view.le32(from + 8 + 36).value_or(0);
            frameMicroseconds = view.le32(from + 8).value_or(0);
            frames = view.le32(from + 8 + 16).value_or(0);
        }
        // The first header counts the frames of the first gigabyte alone.
        if (view.matches(from, "LIST") && view.matches(from + 8, "odmldmlh"))
            frames = std::max<std::uint64_t>(frames, view.le32(from + 20).value_or(0));
        std::array<std::uint8_t, 24> text{};
        if (view.matches(from, "IDIT") && view.copy(from + 8, text))
            facts.taken = parseAviDate({reinterpret_cast<const char*>(text.data()), text.size()});
        from += 8 + bytes + bytes % 2;
    }
    facts.durationMs = playingTimeMs(frameMicroseconds * frames, 1'000'000);
}

// The rate stands there as a floating-point number of ten bytes.
void aiffCommon(ByteView& view, std::uint64_t body, Facts& facts) {
    constexpr unsigned kExponentOfOne = 16383, kFractionBits = 63;
    Cursor in(view, body);
    in.skip(2);
    const std::uint64_t samples = in.u32();
    in.skip(2);
    const unsigned exponent = in.u16();
    const auto fraction = in.u64();
    if (in.ok() && exponent >= kExponentOfOne && exponent <= kExponentOfOne + kFractionBits)
        facts.durationMs = playingTimeMs(samples, fraction >> (kExponentOfOne + kFractionBits - exponent));
}

void webpChunk(ByteView& view, std::string_view name, std::uint64_t body, Facts& facts) {
    if (name == "EXIF")
        addTiffFacts(view, view.matches(body, "Exif") ? body + 6 : body, facts);
    if (facts.width != 0)
        return;
    Cursor in(view, body, Endian::Little);
    std::uint32_t width = 0, height = 0;
    if (name == "VP8X") {
        in.skip(4);
        width = in.u24() + 1;
        height = in.u24() + 1;
    } else if (name == "VP8 ") {
        in.skip(6);
        width = in.u16() & 0x3FFFU;
        height = in.u16() & 0x3FFFU;
    } else if (name == "VP8L") {
        in.skip(1);
        const auto both = in.u32();
        width = (both & 0x3FFF) + 1;
        height = (both >> 14 & 0x3FFF) + 1;
    }
    if (in.ok() && width != 0) {
        facts.width = width;
        facts.height = height;
    }
}

void broadcastDate(ByteView& view, std::uint64_t body, Facts& facts) {
    constexpr std::uint64_t kDateAt = 256 + 32 + 32;  // behind description, originator and its reference
    std::array<std::uint8_t, 19> text{};
    // Date and time stand side by side without a separator.
    if (!view.copy(body + kDateAt, {text.data(), 10}) ||
        !view.copy(body + kDateAt + 10, {text.data() + 11, 8}))
        return;
    facts.taken = parseDate({reinterpret_cast<const char*>(text.data()), text.size()});
}

}  // namespace

void addRiffFacts(ByteView& view, std::string_view form, std::string_view name, std::uint64_t body,
                  std::uint64_t bytes, std::uint32_t& bytesPerSecond, Facts& facts) {
    if (form == "WEBP")
        webpChunk(view, name, body, facts);
    else if (form == "AVI " && name == "LIST" && view.matches(body, "hdrl"))
        aviHeaders(view, body + 4, std::min(body + bytes, view.size()), facts);
    else if (form == "WAVE" && name == "bext")
        broadcastDate(view, body, facts);
    else if (form == "WAVE" && name == "fmt ")
        bytesPerSecond = view.le32(body + 8).value_or(0);
    else if (form == "WAVE" && name == "data")
        facts.durationMs = playingTimeMs(bytes, bytesPerSecond);
    else if (name == "COMM" && (form == "AIFF" || form == "AIFC"))
        aiffCommon(view, body, facts);
}

}  // namespace vantor
