// Baseline JPEG: colour transform, cosine transform, quantisation and Huffman coding in whole numbers.
#include "samples/JpegEncoder.h"

#include <algorithm>
#include <array>

#include "samples/BitWriter.h"
#include "samples/Bytes.h"
#include "samples/JpegTables.h"

namespace vantor::samples {

namespace {

constexpr int kBlock = 8;
using Block = std::array<int, 64>;

// cos(k·π/16) · 8192 for k = 0..8.
constexpr int kCosines[9] = {8192, 8035, 7568, 6811, 5793, 4551, 3135, 1598, 0};

int cosineOf(int sixteenths) {
    const int k = sixteenths % 32;
    if (k <= 8)
        return kCosines[k];
    if (k <= 16)
        return -kCosines[16 - k];
    if (k <= 24)
        return -kCosines[k - 16];
    return kCosines[32 - k];
}

std::array<int, 64> transformMatrix() {
    std::array<int, 64> matrix{};
    for (int u = 0; u < kBlock; ++u)
        for (int x = 0; x < kBlock; ++x)  // the factor of row 0 is cos(π/4)
            matrix[static_cast<std::size_t>(u * kBlock + x)] =
                u == 0 ? kCosines[4] : cosineOf((2 * x + 1) * u);
    return matrix;
}

// The two-dimensional cosine transform; results are 8 times the coefficients the standard defines.
Block transformed(const Block& samples) {
    static const std::array<int, 64> kMatrix = transformMatrix();
    std::array<std::int64_t, 64> rows{};
    for (std::size_t y = 0; y < 8; ++y)
        for (std::size_t u = 0; u < 8; ++u)
            for (std::size_t x = 0; x < 8; ++x)
                rows[y * 8 + u] += std::int64_t{kMatrix[u * 8 + x]} * samples[y * 8 + x];
    Block result{};
    for (std::size_t v = 0; v < 8; ++v) {
        for (std::size_t u = 0; u < 8; ++u) {
            std::int64_t sum = 0;
            for (std::size_t y = 0; y < 8; ++y)
                sum += std::int64_t{kMatrix[v * 8 + y]} * rows[y * 8 + u];
            // Two factors of 8192, a quarter for the transform's norm: 26 + 2 bits, less 3 that are kept.
            result[v * 8 + u] = static_cast<int>((sum + (1 << 24)) >> 25);
        }
    }
    return result;
}

struct HuffmanCode {
    std::uint32_t code = 0;
    int bits = 0;
};
using HuffmanTable = std::array<HuffmanCode, 256>;

HuffmanTable codesOf(const JpegHuffmanSpec& spec) {
    HuffmanTable table{};
    std::uint32_t code = 0;
    std::size_t next = 0;
    for (int length = 1; length <= 16; ++length) {
        for (int i = 0; i < spec.counts[static_cast<std::size_t>(length - 1)]; ++i)
            table[spec.symbols[next++]] = {code++, length};
        code <<= 1;
    }
    return table;
}

int bitLength(int value) {
    int bits = 0;
    for (int rest = value < 0 ? -value : value; rest != 0; rest >>= 1)
        ++bits;
    return bits;
}

class Scan {
  public:
    Scan(const Picture& picture, const JpegOptions& options, const Block& luma, const Block& chroma)
        : m_picture(picture), m_options(options), m_quantisers{luma, chroma} {
        for (std::size_t kind = 0; kind < 2; ++kind) {
            m_dcCodes[kind] = codesOf(kJpegDcTables[kind]);
            m_acCodes[kind] = codesOf(kJpegAcTables[kind]);
        }
    }

    QByteArray encode() {
        const int step = m_options.sampling == ChromaSampling::Halved ? 16 : 8;
        int done = 0;
        int restarts = 0;
        for (int y = 0; y < m_picture.height; y += step) {
            for (int x = 0; x < m_picture.width; x += step) {
                if (m_options.restartInterval > 0 && done > 0 && done % m_options.restartInterval == 0)
                    restart(restarts++);
                for (int by = 0; by < step; by += kBlock)
                    for (int bx = 0; bx < step; bx += kBlock)
                        putBlock(lumaBlock(x + bx, y + by), 0);
                for (int component = 1; component < 3; ++component)
                    putBlock(chromaBlock(x, y, component, step / kBlock), component);
                ++done;
            }
        }
        finishBits();
        return m_out;
    }

  private:
    const std::uint8_t* pixel(int x, int y) const {
        return m_picture.pixel(std::min(x, m_picture.width - 1), std::min(y, m_picture.height - 1));
    }

    Block lumaBlock(int x, int y) const {
        Block block{};
        for (int j = 0; j < kBlock; ++j) {
            for (int i = 0; i < kBlock; ++i) {
                const std::uint8_t* p = pixel(x + i, y + j);
                block[static_cast<std::size_t>(j * kBlock + i)] =
                    ((19595 * p[0] + 38470 * p[1] + 7471 * p[2] + 32768) >> 16) - 128;
            }
        }
        return block;
    }

    // Blue difference (component 1) or red difference (2), averaged over scale × scale pixels.
    Block chromaBlock(int x, int y, int component, int scale) const {
        Block block{};
        for (int j = 0; j < kBlock; ++j) {
            for (int i = 0; i < kBlock; ++i) {
                int sum = 0;
                for (int sy = 0; sy < scale; ++sy) {
                    for (int sx = 0; sx < scale; ++sx) {
                        const std::uint8_t* p = pixel(x + i * scale + sx, y + j * scale + sy);
                        sum += component == 1 ? -11059 * p[0] - 21709 * p[1] + 32768 * p[2]
                                              : 32768 * p[0] - 27439 * p[1] - 5329 * p[2];
                    }
                }
                block[static_cast<std::size_t>(j * kBlock + i)] = (sum / (scale * scale) + 32768) >> 16;
            }
        }
        return block;
    }

    void putBlock(const Block& samples, int component) {
        const std::size_t kind = component == 0 ? 0 : 1;
        const Block coefficients = transformed(samples);
        Block ordered{};
        for (std::size_t i = 0; i < 64; ++i) {
            const int value = coefficients[kJpegZigZag[i]];
            const int divisor = m_quantisers[kind][kJpegZigZag[i]] * 8;
            ordered[i] = (value < 0 ? value - divisor / 2 : value + divisor / 2) / divisor;
        }
        int& last = m_lastDc[static_cast<std::size_t>(component)];
        putValue(m_dcCodes[kind], 0, ordered[0] - last);
        last = ordered[0];
        putAc(m_acCodes[kind], ordered);
    }

    void putAc(const HuffmanTable& codes, const Block& ordered) {
        constexpr int kSixteenZeros = 0xF0;
        constexpr int kEndOfBlock = 0;
        int zeros = 0;
        for (std::size_t i = 1; i < 64; ++i) {
            if (ordered[i] == 0) {
                ++zeros;
                continue;
            }
            for (; zeros > 15; zeros -= 16)
                putCode(codes[kSixteenZeros]);
            putValue(codes, zeros << 4, ordered[i]);
            zeros = 0;
        }
        if (zeros > 0)
            putCode(codes[kEndOfBlock]);
    }

    void putValue(const HuffmanTable& codes, int runBits, int value) {
        const int bits = bitLength(value);
        putCode(codes[static_cast<std::size_t>(runBits | bits)]);
        putBits(static_cast<std::uint32_t>(value < 0 ? value + (1 << bits) - 1 : value), bits);
    }

    void putCode(const HuffmanCode& code) { putBits(code.code, code.bits); }

    void putBits(std::uint32_t value, int bits) {
        m_pending = (m_pending << bits) | value;
        m_pendingBits += bits;
        while (m_pendingBits >= 8) {
            const auto byte = static_cast<char>(m_pending >> (m_pendingBits - 8));
            m_out.append(byte);
            if (byte == '\xFF')
                m_out.append('\0');  // or it would read as a marker
            m_pendingBits -= 8;
        }
    }

    void finishBits() {
        if (m_pendingBits > 0)
            putBits((1u << (8 - m_pendingBits)) - 1, 8 - m_pendingBits);
        m_pending = 0;
    }

    void restart(int number) {
        finishBits();
        m_out.append('\xFF').append(static_cast<char>(0xD0 + number % 8));
        m_lastDc = {};
    }

    const Picture& m_picture;
    const JpegOptions& m_options;
    std::array<Block, 2> m_quantisers;
    std::array<HuffmanTable, 2> m_dcCodes;
    std::array<HuffmanTable, 2> m_acCodes;
    std::array<int, 3> m_lastDc{};
    std::uint64_t m_pending = 0;
    int m_pendingBits = 0;
    QByteArray m_out;
};

Block quantiserFor(const std::array<std::uint8_t, 64>& base, int quality) {
    const int scale = quality < 50 ? 5000 / quality : 200 - 2 * quality;
    Block result{};
    for (std::size_t i = 0; i < 64; ++i)
        result[i] = std::clamp((base[i] * scale + 50) / 100, 1, 255);
    return result;
}

QByteArray quantiserSegment(const Block& table, int number) {
    Bytes content;
    content.u8(static_cast<std::uint64_t>(number));
    for (const std::uint8_t at : kJpegZigZag)
        content.u8(static_cast<std::uint64_t>(table[at]));
    return jpegSegment(0xDB, content.bytes());
}

QByteArray huffmanSegment(const JpegHuffmanSpec& spec, int identifier) {
    Bytes content;
    content.u8(static_cast<std::uint64_t>(identifier));
    for (const std::uint8_t count : spec.counts)
        content.u8(count);
    for (const std::uint8_t symbol : spec.symbols)
        content.u8(symbol);
    return jpegSegment(0xC4, content.bytes());
}

QByteArray frameSegment(const Picture& picture, ChromaSampling sampling) {
    Bytes content;
    content.u8(8)
        .be16(static_cast<std::uint64_t>(picture.height))
        .be16(static_cast<std::uint64_t>(picture.width));
    content.u8(3);
    content.u8(1).u8(sampling == ChromaSampling::Halved ? 0x22 : 0x11).u8(0);
    content.u8(2).u8(0x11).u8(1).u8(3).u8(0x11).u8(1);
    return jpegSegment(0xC0, content.bytes());
}

}  // namespace

QByteArray jpegSegment(int marker, const QByteArray& content) {
    Bytes segment;
    segment.u8(0xFF)
        .u8(static_cast<std::uint64_t>(marker))
        .be16(static_cast<std::uint64_t>(content.size()) + 2);
    return segment.raw(content).bytes();
}

QByteArray encodeJpeg(const Picture& picture, const JpegOptions& options) {
    const Block luma = quantiserFor(kJpegLumaQuantiser, options.quality);
    const Block chroma = quantiserFor(kJpegChromaQuantiser, options.quality);
    Bytes out;
    out.be16(0xFFD8);
    if (options.jfif == JfifHeader::Written)
        out.raw(jpegSegment(0xE0,
                            Bytes().text("JFIF").u8(0).be16(0x0102).u8(1).be16(72).be16(72).be16(0).bytes()));
    out.raw(options.segments);
    out.raw(quantiserSegment(luma, 0)).raw(quantiserSegment(chroma, 1));
    out.raw(frameSegment(picture, options.sampling));
    for (int kind = 0; kind < 2; ++kind) {
        out.raw(huffmanSegment(kJpegDcTables[static_cast<std::size_t>(kind)], kind));
        out.raw(huffmanSegment(kJpegAcTables[static_cast<std::size_t>(kind)], 0x10 | kind));
    }
    if (options.restartInterval > 0)
        out.raw(jpegSegment(0xDD, Bytes().be16(static_cast<std::uint64_t>(options.restartInterval)).bytes()));
    out.raw(jpegSegment(0xDA, QByteArray::fromHex("03010002110311003f00")));
    out.raw(Scan(picture, options, luma, chroma).encode());
    return out.be16(0xFFD9).bytes();
}

}  // namespace vantor::samples
