// What can be said of one coded sample without decoding it. Sources: ISO/IEC 14496-10 and -15, 23008-2, AV1
// and VP9 bitstream specifications, ISO/IEC 14496-2, ITU-T H.263, SMPTE RDD 36, RFC 4867, ETSI TS 102 366,
// RFC 9639; ISO/IEC 11172-3. Sound of AAC and ALAC: SoundCodings.cpp.
#include <algorithm>
#include <array>

#include "formats/IsoSamples.h"
#include "formats/SoundCodings.h"

namespace vantor {

namespace {

constexpr int kSampleCodingsMostUnits = 512;  // of one sample that are followed; more are taken for granted

// Of units that each tell their length, to the sample's last byte; nothing when they do not come out even.
std::optional<std::uint64_t> longestUnit(ByteView& view, Coding coding, unsigned lengthBytes,
                                         std::uint64_t at, std::uint64_t bytes) {
    const std::uint64_t end = at + bytes;
    std::uint64_t longest = 0;
    for (int units = 0; units < kSampleCodingsMostUnits && at < end; ++units) {
        const auto length = view.number(at, lengthBytes, Endian::Big);
        at += lengthBytes;
        if (!length || *length == 0 || at > end || *length > end - at)
            return std::nullopt;
        const auto head = view.u8(at).value_or(0xFF);
        // The forbidden bit; a kind that is none; for HEVC a temporal layer that cannot be 0.
        if ((head & 0x80) != 0 || (coding == Coding::Avc && (head & 0x1F) == 0) ||
            (coding == Coding::Hevc && (*length < 2 || (view.u8(at + 1).value_or(0) & 7) == 0)))
            return std::nullopt;
        longest = std::max(longest, *length);
        at += *length;
    }
    return longest;
}

std::optional<std::uint64_t> longestObu(ByteView& view, std::uint64_t at, std::uint64_t bytes) {
    constexpr unsigned kMostGroups = 8;
    constexpr std::uint32_t kKnownKinds = 0x81FE;  // 1 to 8 and 15
    const std::uint64_t end = at + bytes;
    std::uint64_t longest = 0;
    for (int units = 0; units < kSampleCodingsMostUnits && at < end; ++units) {
        const auto head = view.u8(at);
        if (!head || (*head & 0x81) != 0 || (kKnownKinds >> (*head >> 3 & 15) & 1) == 0)
            return std::nullopt;
        at += (*head & 4) != 0 ? 2 : 1;
        std::optional<std::uint64_t> length = end - std::min(at, end);  // without a size: up to the end
        if ((*head & 2) != 0)
            length = groupedNumber(view, at, kMostGroups);
        if (!length || at > end || *length > end - at)
            return std::nullopt;
        longest = std::max(longest, *length);
        at += *length;
    }
    return longest;
}

// One or more frames of adaptive multi-rate sound, each as long as its first byte says.
bool isRowOfAmr(ByteView& view, std::uint64_t at, std::uint64_t bytes) {
    static constexpr std::array<std::uint8_t, 16> kNarrow = {13, 14, 16, 18, 20, 21, 27, 32,
                                                             6,  0,  0,  0,  0,  0,  0,  1};
    static constexpr std::array<std::uint8_t, 16> kWide = {18, 24, 33, 37, 41, 47, 51, 59,
                                                           61, 6,  0,  0,  0,  0,  1,  1};
    for (const auto& table : {kNarrow, kWide}) {
        std::uint64_t here = at;
        while (here < at + bytes) {
            const auto head = view.u8(here).value_or(0xFF);
            const auto length = (head & 0x83) == 0 ? table[head >> 3 & 15] : 0;
            if (length == 0)
                break;
            here += length;
        }
        if (here == at + bytes)
            return true;
    }
    return false;
}

}  // namespace

Coding codingOf(std::string_view name) {
    struct Named {
        std::string_view name;
        Coding coding;
    };
    static constexpr Named kNames[] = {
        {"avc1", Coding::Avc},      {"avc3", Coding::Avc},    {"hvc1", Coding::Hevc},
        {"hev1", Coding::Hevc},     {"dvh1", Coding::Hevc},   {"dvhe", Coding::Hevc},
        {"av01", Coding::Av1},      {"vp09", Coding::Vp9},    {"mp4v", Coding::Mpeg4},
        {"s263", Coding::H263},     {"jpeg", Coding::Jpeg},   {"mjpa", Coding::Jpeg},
        {"apcn", Coding::ProRes},   {"apch", Coding::ProRes}, {"apcs", Coding::ProRes},
        {"apco", Coding::ProRes},   {"ap4h", Coding::ProRes}, {"ap4x", Coding::ProRes},
        {"samr", Coding::Amr},      {"sawb", Coding::Amr},    {"ac-3", Coding::Ac3},
        {"ec-3", Coding::Ac3},      {"alac", Coding::Alac},   {"fLaC", Coding::Flac},
        {".mp3", Coding::MpegAudio}};
    for (const Named& each : kNames) {
        if (each.name == name)
            return each.coding;
    }
    return Coding::Unknown;
}

std::optional<std::uint64_t> lookAtSample(ByteView& view, Coding coding, unsigned lengthBytes,
                                          std::uint64_t at, std::uint64_t bytes) {
    constexpr std::uint64_t kLeast = 8;  // shorter ones stand for "as before"
    if (bytes < kLeast && coding != Coding::Amr)
        return 0;
    const auto begins = [&](bool properly) { return properly ? std::optional(bytes) : std::nullopt; };
    switch (coding) {
        case Coding::Avc:
        case Coding::Hevc:
            return longestUnit(view, coding, lengthBytes, at, bytes);
        case Coding::Av1:
            return longestObu(view, at, bytes);
        case Coding::Vp9:
            return begins((view.u8(at).value_or(0) & 0xC0) == 0x80);
        case Coding::Mpeg4:
            return begins(view.number(at, 3, Endian::Big) == 1U);
        case Coding::H263:
            return begins((view.number(at, 3, Endian::Big).value_or(0) & 0xFFFFFC) == 0x80);
        case Coding::Jpeg:
            return begins(view.matches(at, "\xFF\xD8\xFF"));
        case Coding::ProRes:
            return begins(view.matches(at + 4, "icpf") && view.be32(at).value_or(0) <= bytes);
        case Coding::Amr:
            return begins(isRowOfAmr(view, at, bytes));
        case Coding::Ac3:
            return begins(view.be16(at) == 0x0B77);
        case Coding::Aac:
            return begins(isAacFrame(view, at, bytes));
        case Coding::Alac:
            return begins(isAlacFrame(view, at));
        case Coding::Flac:
            return begins((view.be16(at).value_or(0) & 0xFFFE) == 0xFFF8);
        case Coding::MpegAudio:
            return begins(isMpegAudioFrame(view, at));
        case Coding::Unknown:
            break;
    }
    return bytes;
}

unsigned lengthBytesIn(ByteView& view, std::uint64_t from, std::uint64_t to) {
    constexpr unsigned kUsual = 4;
    constexpr int kMostBoxes = 64;
    for (int i = 0; i < kMostBoxes && from < to; ++i) {
        const auto box = readIsoBox(view, from);
        if (!box || box->toEnd)
            break;
        const std::uint64_t at = box->text() == "avcC" ? 4 : box->text() == "hvcC" ? 21 : 0;
        if (at != 0)
            return (view.u8(box->body + at).value_or(3) & 3U) + 1;
        from = box->end;
    }
    return kUsual;
}

}  // namespace vantor
