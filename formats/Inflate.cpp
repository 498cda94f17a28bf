// A deflate decoder that only checks. Sources: RFC 1950, RFC 1951.
#include "formats/Inflate.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "formats/Crc.h"
#include "formats/Huffman.h"

namespace vantor {

namespace {

constexpr std::size_t kHistory = 32 * 1024;
constexpr unsigned kEndOfBlock = 256;

// Output that any stream may have, and beyond it for each byte of input: real files stay under both,
// compressed bombs do not burn minutes.
constexpr std::uint64_t kFreeOutput = 256 * 1024 * 1024;
constexpr std::uint64_t kFairRatio = 64;

class Inflater {
  public:
    Inflater(ByteView& view, std::uint64_t at, std::uint64_t mostOutput)
        : m_view(view), m_first(at), m_at(at), m_most(mostOutput), m_history(kHistory) {}

    InflateResult run();

  private:
    bool fill(unsigned bits);  // false at the end of the view
    unsigned take(unsigned bits);
    std::optional<unsigned> decode(const Huffman& code);
    bool stored();
    bool dynamicCodes();
    bool fixedCodes();
    bool block();
    bool put(std::uint8_t byte);
    void account();
    bool fail(InflateOutcome outcome);

    ByteView& m_view;
    const std::uint64_t m_first;
    std::uint64_t m_at;  // next byte to load
    const std::uint64_t m_most;
    std::span<const std::uint8_t> m_input;
    std::uint64_t m_bitBuffer = 0;
    unsigned m_bitCount = 0;
    std::vector<std::uint8_t> m_history;
    std::size_t m_fill = 0;  // bytes of m_history not yet in the checksums: [m_accounted, m_fill)
    std::size_t m_accounted = 0;
    Huffman m_literals, m_distances;
    InflateResult m_result;
};

bool Inflater::fail(InflateOutcome outcome) {
    m_result.outcome = outcome;
    return false;
}

bool Inflater::fill(unsigned bits) {
    while (m_bitCount < bits) {
        if (m_input.empty()) {
            m_input = m_view.window(m_at);
            if (m_input.empty())
                return false;
        }
        m_bitBuffer |= std::uint64_t{m_input.front()} << m_bitCount;
        m_input = m_input.subspan(1);
        m_bitCount += 8;
        ++m_at;
    }
    return true;
}

unsigned Inflater::take(unsigned bits) {
    const auto value = static_cast<unsigned>(m_bitBuffer & ((std::uint64_t{1} << bits) - 1));
    m_bitBuffer >>= bits;
    m_bitCount -= bits;
    return value;
}

std::optional<unsigned> Inflater::decode(const Huffman& code) {
    // At the very end fewer bits may be left than the longest code has: then decide on what there is.
    const bool enough = fill(code.bits());
    const auto input = static_cast<unsigned>(m_bitBuffer & ((1U << code.bits()) - 1));
    const unsigned length = code.length(input);
    if (length == 0 || length > m_bitCount) {
        fail(enough ? InflateOutcome::Broken : InflateOutcome::Cut);
        return std::nullopt;
    }
    take(length);
    return code.symbol(input);
}

void Inflater::account() {
    const std::span<const std::uint8_t> bytes(m_history.data() + m_accounted, m_fill - m_accounted);
    m_result.crc = crc32(m_result.crc, bytes);
    constexpr std::uint32_t kModulus = 65521;
    std::uint32_t low = m_result.adler & 0xFFFF, high = m_result.adler >> 16;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        low += bytes[i];
        high += low;
        if (i % 4096 == 4095) {  // before 32 bits run over
            low %= kModulus;
            high %= kModulus;
        }
    }
    m_result.adler = (high % kModulus) << 16 | low % kModulus;
    m_accounted = m_fill;
}

bool Inflater::put(std::uint8_t byte) {
    m_history[m_fill++] = byte;
    ++m_result.produced;
    if (m_fill == kHistory) {
        account();
        m_fill = m_accounted = 0;
        const auto fair = addClamped(kFreeOutput, mulClamped(kFairRatio, m_at - m_first));
        if (m_result.produced > m_most || m_result.produced > fair)
            return fail(InflateOutcome::TooMuch);
    }
    return true;
}

bool Inflater::stored() {
    take(m_bitCount % 8);
    if (!fill(32))
        return fail(InflateOutcome::Cut);
    const unsigned length = take(16);
    if (length != (~take(16) & 0xFFFF))
        return fail(InflateOutcome::Broken);
    for (unsigned i = 0; i < length; ++i) {
        if (!fill(8))
            return fail(InflateOutcome::Cut);
        if (!put(static_cast<std::uint8_t>(take(8))))
            return false;
    }
    return true;
}

bool Inflater::fixedCodes() {
    std::array<std::uint8_t, 288> lengths{};
    std::fill_n(lengths.begin(), 144, std::uint8_t{8});
    std::fill_n(lengths.begin() + 144, 112, std::uint8_t{9});
    std::fill_n(lengths.begin() + 256, 24, std::uint8_t{7});
    std::fill_n(lengths.begin() + 280, 8, std::uint8_t{8});
    std::array<std::uint8_t, 32> distances{};
    distances.fill(5);
    return m_literals.build(lengths) && m_distances.build(distances);
}

bool Inflater::dynamicCodes() {
    static constexpr std::array<std::uint8_t, 19> kOrder = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                            11, 4,  12, 3, 13, 2, 14, 1, 15};
    if (!fill(14))
        return fail(InflateOutcome::Cut);
    const unsigned literals = take(5) + 257, distances = take(5) + 1, codes = take(4) + 4;
    if (literals > 286 || distances > 30)
        return fail(InflateOutcome::Broken);
    std::array<std::uint8_t, 19> codeLengths{};
    for (unsigned i = 0; i < codes; ++i) {
        if (!fill(3))
            return fail(InflateOutcome::Cut);
        codeLengths[kOrder[i]] = static_cast<std::uint8_t>(take(3));
    }
    if (!m_literals.build(codeLengths))
        return fail(InflateOutcome::Broken);
    std::array<std::uint8_t, 286 + 30> lengths{};
    for (unsigned i = 0; i < literals + distances;) {
        const auto symbol = decode(m_literals);
        if (!symbol)
            return false;
        if (*symbol < 16) {
            lengths[i++] = static_cast<std::uint8_t>(*symbol);
            continue;
        }
        if (!fill(7))  // the longest repeat field; a sound stream has more than that left
            return fail(InflateOutcome::Cut);
        if (*symbol == 16 && i == 0)
            return fail(InflateOutcome::Broken);
        const auto value = *symbol == 16 ? lengths[i - 1] : std::uint8_t{0};
        const unsigned repeat = *symbol == 16 ? 3 + take(2) : *symbol == 17 ? 3 + take(3) : 11 + take(7);
        if (i + repeat > literals + distances)
            return fail(InflateOutcome::Broken);
        std::fill_n(lengths.begin() + i, repeat, value);
        i += repeat;
    }
    const std::span<const std::uint8_t> all(lengths);
    if (lengths[kEndOfBlock] == 0 || !m_literals.build(all.first(literals)) ||
        !m_distances.build(all.subspan(literals, distances)))
        return fail(InflateOutcome::Broken);
    return true;
}

bool Inflater::block() {
    static constexpr std::array<std::uint16_t, 29> kLengthBase = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                                                  15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                                                  67, 83, 99, 115, 131, 163, 195, 227, 258};
    static constexpr std::array<std::uint8_t, 29> kLengthBits = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                                                 2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
    static constexpr std::array<std::uint16_t, 30> kDistanceBase = {
        1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
        193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
    for (;;) {
        const auto symbol = decode(m_literals);
        if (!symbol)
            return false;
        if (*symbol == kEndOfBlock)
            return true;
        if (*symbol < kEndOfBlock) {
            if (!put(static_cast<std::uint8_t>(*symbol)))
                return false;
            continue;
        }
        const unsigned lengthCode = *symbol - 257;
        if (lengthCode >= kLengthBase.size())
            return fail(InflateOutcome::Broken);
        if (!fill(kLengthBits[lengthCode]))
            return fail(InflateOutcome::Cut);
        const unsigned length = kLengthBase[lengthCode] + take(kLengthBits[lengthCode]);
        const auto distanceCode = decode(m_distances);
        if (!distanceCode)
            return false;
        if (*distanceCode >= kDistanceBase.size())
            return fail(InflateOutcome::Broken);
        const unsigned extra = *distanceCode < 2 ? 0 : *distanceCode / 2 - 1;
        if (!fill(extra))
            return fail(InflateOutcome::Cut);
        const std::size_t distance = kDistanceBase[*distanceCode] + take(extra);
        if (distance > m_result.produced)
            return fail(InflateOutcome::Broken);
        for (unsigned i = 0; i < length; ++i) {
            if (!put(m_history[(m_fill + kHistory - distance) % kHistory]))
                return false;
        }
    }
}

InflateResult Inflater::run() {
    bool last = false;
    bool good = true;
    while (good && !last) {
        if (!fill(3)) {
            good = fail(InflateOutcome::Cut);
            break;
        }
        last = take(1) != 0;
        switch (take(2)) {
            case 0:
                good = stored();
                break;
            case 1:
                good = fixedCodes() && block();
                break;
            case 2:
                good = dynamicCodes() && block();
                break;
            default:
                good = fail(InflateOutcome::Broken);
                break;
        }
    }
    account();
    m_result.end = m_at - m_bitCount / 8;  // whole bytes loaded ahead go back
    if (good)
        m_result.outcome = InflateOutcome::Done;
    return m_result;
}

}  // namespace

InflateResult inflate(ByteView& view, std::uint64_t at, std::uint64_t mostOutput) {
    return Inflater(view, at, mostOutput).run();
}

InflateResult inflateZlib(ByteView& view, std::uint64_t at, std::uint64_t mostOutput) {
    const auto header = view.be16(at);
    InflateResult result;
    result.end = at;
    if (!header) {
        result.outcome = InflateOutcome::Cut;
        return result;
    }
    if (*header % 31 != 0 || (*header >> 8 & 15) != 8 || (*header & 0x20) != 0)
        return result;
    result = inflate(view, at + 2, mostOutput);
    if (result.outcome != InflateOutcome::Done)
        return result;
    const auto told = view.be32(result.end);
    if (!told) {
        result.outcome = InflateOutcome::Cut;
        return result;
    }
    if (*told != result.adler)
        result.outcome = InflateOutcome::Broken;
    else
        result.end += 4;
    return result;
}

}  // namespace vantor
