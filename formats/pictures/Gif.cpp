// GIF: blocks and their sub-blocks to the trailer; the codes of each picture are followed without making its
// pixels, so that foreign bytes are noticed. Source: GIF89a specification, appendix F.
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kScreenEnd = 13;
constexpr std::uint64_t kGifMostPadding = 4;  // stray zero bytes some writers leave between blocks

std::uint64_t colourTableBytes(std::uint8_t flags) {
    return (flags & 0x80) != 0 ? std::uint64_t{3} << ((flags & 7) + 1) : 0;
}

// An erased sector reads as a full block of ones, which no picture data is.
bool isErased(ByteView& view, std::uint64_t at) {
    constexpr std::size_t kBlock = 256;
    const auto block = view.window(at, kBlock);
    return block.size() >= kBlock &&
           std::all_of(block.begin(), block.begin() + kBlock, [](auto byte) { return byte == 0xFF; });
}

struct Skipped {
    std::uint64_t at = 0;  // behind the chain, or where it stopped
    Verdict verdict = Verdict::Complete;
};

Skipped skipSubBlocks(ByteView& view, std::uint64_t at) {
    for (;;) {
        const auto length = view.u8(at);
        if (!length)
            return {std::min(at, view.size()), Verdict::CutOff};
        if (*length == 0xFF && isErased(view, at))
            return {at, Verdict::Damaged};
        at += 1 + *length;
        if (*length == 0)
            return {at, Verdict::Complete};
    }
}

// The codes of one picture, by what they stand for: only the number of pixels is kept of each.
class GifCodes {
  public:
    explicit GifCodes(unsigned bits) : m_clear(1U << bits), m_firstBits(bits + 1) { clear(); }

    // What stands behind the end mark, or behind a code that means nothing, is passed over.
    void take(std::uint8_t byte) {
        if (!m_sound || m_ended)
            return;
        m_waiting |= static_cast<std::uint32_t>(byte) << m_waitingBits;
        m_waitingBits += 8;
        while (m_sound && !m_ended && m_waitingBits >= m_bits) {
            const auto code = m_waiting & ((1U << m_bits) - 1);
            m_waiting >>= m_bits;
            m_waitingBits -= m_bits;
            follow(code);
        }
    }
    // Whether each code stood for something, and all of them for so many pixels.
    bool make(std::uint64_t pixels) const { return m_sound && m_pixels == pixels; }

  private:
    void clear() {
        m_next = m_clear + 2;
        m_bits = m_firstBits;
        m_previous = 0;
    }
    void follow(std::uint32_t code) {
        if (code == m_clear)
            return clear();
        m_ended = code == m_clear + 1;
        if (m_ended)
            return;
        const bool known = code < m_clear || (m_previous != 0 && code < m_next);
        const bool newest = m_previous != 0 && code == m_next && m_next < kCodes;
        m_sound = known || newest;
        const auto length = code < m_clear ? 1 : known ? m_lengths[code] : m_previous + 1;
        m_pixels += length;
        if (m_previous != 0 && m_next < kCodes) {
            m_lengths[m_next++] = m_previous + 1;
            m_bits += m_next == 1U << m_bits && m_next < kCodes ? 1 : 0;
        }
        m_previous = length;
    }

    static constexpr std::uint32_t kCodes = 4096;
    std::array<std::uint32_t, kCodes> m_lengths{};  // pixels of each code behind the colours
    const std::uint32_t m_clear;
    const unsigned m_firstBits;
    std::uint32_t m_next = 0;
    std::uint32_t m_previous = 0;  // pixels of the code before; 0 = it was none of the table's
    unsigned m_bits = 0;
    std::uint32_t m_waiting = 0;
    unsigned m_waitingBits = 0;
    std::uint64_t m_pixels = 0;
    bool m_sound = true;
    bool m_ended = false;
};

// Whether the sub-blocks from `at` on hold the codes of so many pixels.
bool areCodesOf(std::uint64_t pixels, unsigned codeBits, ByteView& view, std::uint64_t at) {
    GifCodes codes(codeBits);
    for (auto length = view.u8(at); length.value_or(0) != 0; length = view.u8(at)) {
        const auto block = view.window(at + 1, *length);
        for (const auto byte : block.first(std::min<std::size_t>(*length, block.size())))
            codes.take(byte);
        at += 1U + *length;
    }
    return codes.make(pixels);
}

// Behind the zeros that a generator of "loading" signs, which names itself in a remark, leaves behind each;
// at `at` where there are none.
std::uint64_t behindSpinnerZeros(ByteView& view, std::uint64_t at) {
    constexpr std::string_view kZeros("\0\0\0\0\0\0\0\0\0", 9);
    return view.matches(at, kZeros) ? at + kZeros.size() : at;
}

Extent walkGif(ByteView& view) {
    if (!view.matches(0, "GIF87a") && !view.matches(0, "GIF89a"))
        return unknownExtent();
    Facts facts;
    facts.width = view.le16(6).value_or(0);
    facts.height = view.le16(8).value_or(0);
    std::uint64_t at = kScreenEnd + colourTableBytes(view.u8(10).value_or(0));
    bool sawPicture = false;
    bool codesSound = true;
    bool isSpinner = false;
    std::uint64_t padding = 0;
    for (;;) {
        const auto kind = view.u8(at);
        if (!kind)
            return cutOffAt(view, at, facts);
        Skipped next;
        if (*kind == 0x3B && sawPicture) {
            // Writers that leave pixels out are forgiven by readers, so this alone spoils nothing.
            const auto end = isSpinner ? behindSpinnerZeros(view, at + 1) : at + 1;
            const Extent whole = completeAt(view, end, facts);
            return codesSound ? withContent(whole) : whole;
        }
        if (*kind == 0x3B)
            return damagedAt(view, at + 1, facts);
        if (*kind == 0x21) {
            isSpinner = isSpinner || view.matches(at + 3, "Created with ajaxload.info");
            next = skipSubBlocks(view, at + 2);
        } else if (*kind == 0x2C) {
            sawPicture = true;
            const auto flags = view.u8(at + 9);
            const auto codeBits = view.u8(at + 10 + colourTableBytes(flags.value_or(0)));
            if (flags && codeBits && (*codeBits < 1 || *codeBits > 11))
                return damagedAt(view, at, facts);
            const auto codes = at + 11 + colourTableBytes(flags.value_or(0));
            next = skipSubBlocks(view, codes);
            const std::uint64_t pixels =
                std::uint64_t{view.le16(at + 5).value_or(0)} * view.le16(at + 7).value_or(0);
            codesSound = codesSound && next.verdict == Verdict::Complete &&
                         areCodesOf(pixels, codeBits.value_or(1), view, codes);
        } else if (*kind == 0 && ++padding <= kGifMostPadding) {
            next.at = at + 1;
        } else {
            return damagedAt(view, at, facts);
        }
        if (next.verdict == Verdict::CutOff)
            return cutOffAt(view, next.at, facts);
        if (next.verdict == Verdict::Damaged)
            return damagedAt(view, next.at, facts);
        at = next.at;
    }
}

}  // namespace

extern constexpr Format kGif = {
    .name = "GIF",
    .group = Group::Pictures,
    .walk = walkGif,
    .extensions = " GIF ",
};

}  // namespace vantor
