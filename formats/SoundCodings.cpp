// Also what an MPEG-4 sound track's decoder configuration says of its coding: ISO/IEC 14496-1, 7.2.6, and
// 14496-3, 1.6.2.
#include "formats/SoundCodings.h"

#include <algorithm>
#include <array>

#include "formats/IsoSamples.h"

namespace vantor {

namespace {

class Bits {
  public:
    Bits(ByteView& view, std::uint64_t at, std::uint64_t bytes)
        : m_view(view), m_at(at * 8), m_end((at + bytes) * 8) {}

    // Up to eight; zeros behind the end, and ok() is false from then on.
    unsigned take(unsigned count) {
        unsigned value = 0;
        for (; count != 0; --count, ++m_at) {
            m_ok = m_ok && m_at < m_end;
            const auto byte = m_ok ? m_view.u8(m_at / 8).value_or(0) : 0;
            value = value << 1 | (byte >> (7 - m_at % 8) & 1U);
        }
        return value;
    }
    void skipBytes(std::uint64_t count) { m_at += count * 8; }
    void toWholeByte() { m_at = (m_at + 7) / 8 * 8; }
    bool ok() const { return m_ok; }

  private:
    ByteView& m_view;
    std::uint64_t m_at, m_end;  // bits
    bool m_ok = true;
};

enum AacElement : std::uint8_t {
    kAacSingle,
    kAacPair,
    kAacCoupling,
    kAacLowFrequency,
    kAacData,
    kAacProgram,
    kAacFill,
    kAacEnd
};

constexpr int kMostInFront = 16;  // elements before the first of sound

// A tag and its length, in groups of seven bits; the position behind both, 0 when it is another tag.
std::uint64_t behindTag(ByteView& view, std::uint64_t at, std::uint8_t tag) {
    constexpr int kMostGroups = 4;
    if (view.u8(at) != tag)
        return 0;
    for (int i = 1; i <= kMostGroups; ++i) {
        if ((view.u8(at + static_cast<std::uint64_t>(i)).value_or(0) & 0x80) == 0)
            return at + static_cast<std::uint64_t>(i) + 1;
    }
    return 0;
}

// Where the body of the elementary stream descriptor in [from, to) begins; QuickTime puts the box into
// others.
std::uint64_t findDescriptor(ByteView& view, std::uint64_t from, std::uint64_t to) {
    constexpr std::uint64_t kMostEntry = 4096;
    to = std::min(to, from + kMostEntry);
    for (auto hit = view.find('e', from, to); hit.found(); hit = view.find('e', hit.at + 1, to)) {
        if (view.matches(hit.at, "esds"))
            return hit.at + 8;
    }
    return 0;
}

}  // namespace

bool isAacFrame(ByteView& view, std::uint64_t at, std::uint64_t bytes) {
    if (view.be64(at) == 0U)  // an element without sound is shorter, and its end is no zero
        return false;
    Bits bits(view, at, bytes);
    for (int i = 0; i < kMostInFront; ++i) {
        const auto element = bits.take(3);
        if (element == kAacEnd)
            return i != 0 && bits.ok();
        if (element == kAacFill) {
            unsigned count = bits.take(4);
            if (count == 15)
                count += bits.take(8) - 1;
            bits.skipBytes(count);
            continue;
        }
        const auto tag = bits.take(4);
        if (element == kAacData) {
            const bool aligned = bits.take(1) != 0;
            unsigned count = bits.take(8);
            if (count == 255)
                count += bits.take(8);
            if (aligned)
                bits.toWholeByte();
            bits.skipBytes(count);
            continue;
        }
        if (element == kAacProgram) {  // its profile and sampling rate; the rest is as long as it likes
            bits.take(2);
            return bits.take(4) <= 12 && bits.ok();
        }
        const bool commonWindow = element == kAacPair && bits.take(1) != 0;
        if (!commonWindow)
            bits.take(8);  // gain
        const bool reserved = bits.take(1) != 0;
        return (element == kAacSingle || element == kAacPair) && tag == 0 && !reserved && bits.ok();
    }
    return false;
}

bool isAlacFrame(ByteView& view, std::uint64_t at) {
    if (view.be64(at) == 0U)  // the parameters of the prediction are never all zero
        return false;
    const auto head = view.be32(at).value_or(~0U);
    return head >> 29 <= kAacPair && (head >> 13 & 0xFFF) == 0;
}

bool isMpegAudioFrame(ByteView& view, std::uint64_t at) {
    if ((view.be16(at).value_or(0) & 0xFFE6) > 0xFFE0)
        return true;
    // What stood behind the sound of an MP3 file becomes samples where it is put into a movie.
    static constexpr std::string_view kTags[] = {"LYRICSBEGIN", "TAG", "APETAGEX", "ID3"};
    return std::any_of(std::begin(kTags), std::end(kTags),
                       [&](std::string_view tag) { return view.matches(at, tag); });
}

Coding codingOfMpeg4Sound(ByteView& view, std::uint64_t from, std::uint64_t to) {
    constexpr std::array<unsigned, 6> kPlainAac = {1, 2, 3, 4, 5, 29};  // blocks of the kind above
    std::uint64_t at = findDescriptor(view, from, to);
    at = at != 0 ? behindTag(view, at, 3) : 0;
    if (at == 0)
        return Coding::Unknown;
    const auto flags = view.u8(at + 2).value_or(0xFF);
    if ((flags & 0xE0) != 0)  // refers to other streams
        return Coding::Unknown;
    at = behindTag(view, at + 3, 4);
    const auto kind = at != 0 ? view.u8(at).value_or(0) : std::uint8_t{0};
    if (kind == 0x69 || kind == 0x6B)
        return Coding::MpegAudio;
    at = kind == 0x40 || (kind >= 0x66 && kind <= 0x68) ? behindTag(view, at + 13, 5) : 0;
    if (at == 0)
        return Coding::Unknown;
    const unsigned object = view.u8(at).value_or(0) >> 3U;
    return std::find(kPlainAac.begin(), kPlainAac.end(), object) != kPlainAac.end() ? Coding::Aac
                                                                                    : Coding::Unknown;
}

}  // namespace vantor
