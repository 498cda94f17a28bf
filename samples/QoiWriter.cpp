// QOI, "The Quite OK Image Format" 1.0.
#include <array>

#include "samples/Bytes.h"
#include "samples/PictureWriters.h"

namespace vantor::samples {

namespace {

using Pixel = std::array<std::uint8_t, 3>;

constexpr int kLongestRun = 62;

std::size_t slotOf(const Pixel& p) {
    return (p[0] * 3u + p[1] * 5u + p[2] * 7u + 255u * 11u) % 64;
}

// A small step from the last pixel in one byte, a larger one in two, anything else in full.
void putPixel(Bytes& out, const Pixel& p, const Pixel& last) {
    const int r = static_cast<std::int8_t>(p[0] - last[0]);
    const int g = static_cast<std::int8_t>(p[1] - last[1]);
    const int b = static_cast<std::int8_t>(p[2] - last[2]);
    const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
    if (within(r, -2, 1) && within(g, -2, 1) && within(b, -2, 1))
        out.u8(static_cast<std::uint64_t>(0x40 | (r + 2) << 4 | (g + 2) << 2 | (b + 2)));
    else if (within(g, -32, 31) && within(r - g, -8, 7) && within(b - g, -8, 7))
        out.u8(static_cast<std::uint64_t>(0x80 | (g + 32)))
            .u8(static_cast<std::uint64_t>((r - g + 8) << 4 | (b - g + 8)));
    else
        out.u8(0xFE).u8(p[0]).u8(p[1]).u8(p[2]);
}

}  // namespace

QByteArray qoiFile(const Picture& picture) {
    Bytes out;
    out.text("qoif")
        .be32(static_cast<std::uint64_t>(picture.width))
        .be32(static_cast<std::uint64_t>(picture.height))
        .u8(3)
        .u8(0);
    std::array<Pixel, 64> seen{};
    std::array<bool, 64> filled{};  // slots start transparent, which no pixel of ours is
    Pixel last{0, 0, 0};
    int run = 0;
    const auto flushRun = [&] {
        if (run > 0)
            out.u8(static_cast<std::uint64_t>(0xC0 | (run - 1)));
        run = 0;
    };
    for (std::size_t i = 0; i < picture.rgb.size(); i += 3) {
        const Pixel p{picture.rgb[i], picture.rgb[i + 1], picture.rgb[i + 2]};
        if (p == last) {
            if (++run == kLongestRun)
                flushRun();
            continue;
        }
        flushRun();
        const std::size_t slot = slotOf(p);
        if (filled[slot] && seen[slot] == p)
            out.u8(slot);
        else
            putPixel(out, p, last);
        seen[slot] = p;
        filled[slot] = true;
        last = p;
    }
    flushRun();
    return out.zeros(7).u8(1).bytes();
}

}  // namespace vantor::samples
