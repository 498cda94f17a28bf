// FLAC: metadata blocks by length, then every frame bit by bit, since a frame does not tell its length; each
// is proved by its checksum. Source: RFC 9639.
#include <array>

#include "formats/AudioTags.h"
#include "formats/Crc.h"
#include "formats/Format.h"
#include "formats/PlayingTime.h"

namespace vantor {

namespace {

constexpr unsigned kStreamInfo = 0;  // type of the first metadata block, and of no other
constexpr std::uint64_t kStreamInfoBytes = 34;
// Types of blocks: readers pass over the reserved ones between these two.
constexpr unsigned kLastKnownType = 6;
constexpr unsigned kForbiddenType = 127;
constexpr std::uint64_t kMostZeros = 1 << 20;  // of one coded sample; more is an empty medium

// Bits from a view, most significant first, with the running checksums over the whole bytes taken so far.
class BitReader {
  public:
    BitReader(ByteView& view, std::uint64_t at) : m_view(view), m_at(at) {}

    bool ok() const { return m_ok; }
    std::uint64_t at() const { return m_at; }  // behind the last byte begun
    std::uint16_t crc16() const { return m_crc16; }
    std::uint8_t crc8() const { return m_crc8; }
    void align() { m_left = 0; }

    std::uint64_t take(unsigned bits) {
        std::uint64_t value = 0;
        while (bits > 0 && m_ok) {
            if (m_left == 0)
                load();
            const unsigned part = bits < m_left ? bits : m_left;
            value = value << part | (m_byte >> (m_left - part) & ((1U << part) - 1));
            m_left -= part;
            bits -= part;
        }
        return value;
    }
    void skip(std::uint64_t bits) {
        for (; bits > 32 && m_ok; bits -= 32)
            take(32);
        take(static_cast<unsigned>(bits));
    }
    // Zero bits before the next one bit.
    std::uint64_t unary() {
        std::uint64_t zeros = 0;
        while (m_ok && take(1) == 0) {
            if (++zeros >= kMostZeros)
                m_ok = false;
        }
        return zeros;
    }

  private:
    void load() {
        if (m_window.empty())
            m_window = m_view.window(m_at);
        m_ok = !m_window.empty();
        m_left = 8;
        m_byte = m_ok ? m_window.front() : 0;
        if (!m_ok)
            return;
        m_window = m_window.subspan(1);
        ++m_at;
        m_crc16 = vantor::crc16(m_crc16, static_cast<std::uint8_t>(m_byte));
        m_crc8 = vantor::crc8(m_crc8, static_cast<std::uint8_t>(m_byte));
    }

    ByteView& m_view;
    std::uint64_t m_at;
    std::span<const std::uint8_t> m_window;
    unsigned m_byte = 0;
    unsigned m_left = 0;
    std::uint16_t m_crc16 = 0;
    std::uint8_t m_crc8 = 0;
    bool m_ok = true;
};

struct Frame {
    bool valid = false;
    bool cut = false;  // the view ended inside
    std::uint64_t end = 0;
    std::uint64_t samples = 0;
};

bool residual(BitReader& in, std::uint64_t samples, unsigned order) {
    const auto method = in.take(2);
    const auto partitionOrder = in.take(4);
    const auto each = samples >> partitionOrder;
    if (method > 1 || (each << partitionOrder) != samples || each < order)
        return false;
    const unsigned width = method == 0 ? 4 : 5;
    const std::uint64_t escape = (1U << width) - 1;
    for (std::uint64_t partition = 0; partition < (std::uint64_t{1} << partitionOrder) && in.ok();
         ++partition) {
        const auto count = each - (partition == 0 ? order : 0);
        const auto parameter = in.take(width);
        if (parameter == escape) {
            in.skip(in.take(5) * count);
            continue;
        }
        for (std::uint64_t i = 0; i < count && in.ok(); ++i) {
            in.unary();
            in.take(static_cast<unsigned>(parameter));
        }
    }
    return in.ok();
}

bool subframe(BitReader& in, std::uint64_t samples, unsigned bits) {
    if (in.take(1) != 0)
        return false;
    const auto type = static_cast<unsigned>(in.take(6));
    if (in.take(1) != 0) {
        const auto wasted = in.unary() + 1;
        if (wasted >= bits)
            return false;
        bits -= static_cast<unsigned>(wasted);
    }
    if (type == 0) {
        in.skip(bits);
    } else if (type == 1) {
        in.skip(bits * samples);
    } else if (type >= 8 && type <= 12) {
        in.skip(std::uint64_t{bits} * (type - 8));
        return residual(in, samples, type - 8);
    } else if (type >= 32) {
        const unsigned order = type - 31;
        in.skip(std::uint64_t{bits} * order);
        const auto precision = in.take(4) + 1;
        in.skip(5);
        if (precision == 16)
            return false;
        in.skip(precision * order);
        return residual(in, samples, order);
    } else {
        return false;
    }
    return in.ok();
}

bool codedNumber(BitReader& in) {
    const auto first = in.take(8);
    unsigned more = 0;
    for (unsigned mask = 0x80; (first & mask) != 0 && mask != 0; mask >>= 1)
        ++more;
    if (more == 1 || more > 7)
        return false;
    for (unsigned i = 1; i < more; ++i) {
        if (in.take(8) >> 6 != 2)
            return false;
    }
    return in.ok();
}

// The frame at `at`; `streamBits` is the sample width told for the whole stream.
Frame readFrame(ByteView& view, std::uint64_t at, unsigned streamBits) {
    static constexpr std::array<unsigned, 8> kWidths = {0, 8, 12, 0, 16, 20, 24, 32};
    BitReader in(view, at);
    Frame frame;
    const auto bad = [&] {
        frame.cut = !in.ok() && in.at() >= view.size();
        return frame;
    };
    if (in.take(15) != 0x7FFC)
        return bad();
    in.take(1);
    const auto sizeCode = in.take(4), rateCode = in.take(4), channelCode = in.take(4), widthCode = in.take(3);
    if (in.take(1) != 0 || sizeCode == 0 || rateCode == 15 || channelCode > 10 || widthCode == 3 ||
        !codedNumber(in))
        return bad();
    switch (sizeCode) {
        case 1:
            frame.samples = 192;
            break;
        case 2:
        case 3:
        case 4:
        case 5:
            frame.samples = 576U << (sizeCode - 2);
            break;
        case 6:
            frame.samples = in.take(8) + 1;
            break;
        case 7:
            frame.samples = in.take(16) + 1;
            break;
        default:
            frame.samples = 256U << (sizeCode - 8);
            break;
    }
    if (rateCode >= 12)
        in.take(rateCode == 12 ? 8 : 16);
    const auto expected = in.crc8();
    if (in.take(8) != expected || !in.ok())
        return bad();
    const unsigned bits = widthCode == 0 ? streamBits : kWidths[widthCode];
    const unsigned channels = channelCode < 8 ? static_cast<unsigned>(channelCode) + 1 : 2;
    for (unsigned channel = 0; channel < channels; ++channel) {
        // The difference channel of a stereo pair takes one bit more.
        const bool side = (channelCode == 8 && channel == 1) || (channelCode == 9 && channel == 0) ||
                          (channelCode == 10 && channel == 1);
        if (!subframe(in, frame.samples, bits + (side ? 1 : 0)))
            return bad();
    }
    in.align();
    const auto checksum = in.crc16();
    if (in.take(16) != checksum || !in.ok())
        return bad();
    frame.valid = true;
    frame.end = in.at();
    return frame;
}

Extent walkFlac(ByteView& view) {
    const auto start = skipLeadingTag(view, 0);
    if (!view.matches(start, "fLaC"))
        return unknownExtent();
    std::uint64_t at = start + 4;
    const std::uint64_t first = at;
    std::uint64_t reserved = 0;  // the first block of a reserved type, believed when sound follows
    for (bool last = false; !last;) {
        const auto head = view.be32(at);
        if (!head)
            return cutOffAt(view, at);
        last = *head >> 31 != 0;
        const auto type = *head >> 24 & 0x7F, bytes = *head & 0xFFFFFF;
        const bool proper = at == first ? type == kStreamInfo && bytes == kStreamInfoBytes
                                        : type != kStreamInfo && type != kForbiddenType;
        if (!proper)
            return damagedAt(view, reserved != 0 ? reserved : at);
        if (type > kLastKnownType && reserved == 0)
            reserved = at;
        at += std::uint64_t{4} + bytes;
    }
    const auto packed = view.be64(first + 4 + 10).value_or(0);
    const auto bits = static_cast<unsigned>((packed >> 36 & 31) + 1);
    const std::uint64_t total = packed & 0xFFFFFFFFF;  // samples a channel; 0 = not told
    Facts facts;
    facts.durationMs = playingTimeMs(total, packed >> 44);
    std::uint64_t samples = 0;
    while (total == 0 || samples < total) {
        const Frame frame = readFrame(view, at, bits);
        if (!frame.valid && total == 0 && samples != 0 && !frame.cut)
            return inexact(completeAt(view, skipTrailingTags(view, at), facts));
        if (!frame.valid && samples == 0 && reserved != 0)
            return damagedAt(view, reserved, facts);
        if (!frame.valid)
            return frame.cut ? cutOffAt(view, total == 0 && at == view.size() ? at : view.size(), facts)
                             : damagedAt(view, at, facts);
        samples += frame.samples;
        at = frame.end;
    }
    return completeAt(view, skipTrailingTags(view, at), facts);
}

}  // namespace

extern constexpr Format kFlac = {
    .name = "FLAC",
    .group = Group::Sounds,
    .walk = walkFlac,
    .extensions = " FLAC FLA ",
    .large = true,
    .checksContent = true,
};

}  // namespace vantor
