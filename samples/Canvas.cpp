// Shapes, gradients and reflections in whole numbers.
#include "samples/Canvas.h"

#include <algorithm>

#include "samples/Fixed.h"
#include "samples/Pixels.h"
#include "samples/Random.h"

namespace vantor::samples {

namespace {

constexpr int kSub = 256;      // parts of a pixel
constexpr int kScanLines = 8;  // sub-scanlines a pixel row in a polygon

int mixChannel(int from, int to, int share) {
    return from + (to - from) * share / 256;
}

}  // namespace

Colour mix(Colour from, Colour to, int share) {
    const int s = static_cast<int>(clampTo(share, 0, 256));
    return {mixChannel(from.red, to.red, s), mixChannel(from.green, to.green, s),
            mixChannel(from.blue, to.blue, s)};
}

Canvas::Canvas(int width, int height)
    : m_width(width),
      m_height(height),
      m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), Pixel{0, 0, 0}) {}

std::int64_t Canvas::toSub(std::int64_t units) const {
    return floorDivide(units * m_height * kSub, kUnitsHigh);
}

int Canvas::rowOf(std::int64_t y) const {
    return static_cast<int>(clampTo(floorDivide(y * m_height, kUnitsHigh), 0, m_height));
}

void Canvas::blend(int x, int y, Colour colour, std::int64_t alpha) {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height || alpha <= 0)
        return;
    Pixel& p = at(x, y);
    const std::int64_t a = std::min<std::int64_t>(alpha, kOpaque);
    const auto channel = [a](std::uint16_t old, int fresh) {
        return static_cast<std::uint16_t>(old + (fresh * 256 - old) * a / kOpaque);
    };
    p = {channel(p.red, colour.red), channel(p.green, colour.green), channel(p.blue, colour.blue)};
}

void Canvas::gradient(const std::vector<Stop>& stops, std::int64_t from, std::int64_t to) {
    const int last = rowOf(to);
    for (int y = rowOf(from); y < last; ++y) {
        const std::int64_t at16 = (2 * y + 1) * kUnitsHigh * 8 / m_height;  // sixteenths of a unit
        std::size_t i = 1;
        while (i + 1 < stops.size() && stops[i].y * 16 <= at16)
            ++i;
        const Stop& above = stops[i - 1];
        const Stop& under = stops[i];
        const std::int64_t span = std::max<std::int64_t>(1, (under.y - above.y) * 16);
        const std::int64_t share = clampTo((at16 - above.y * 16) * 65536 / span, 0, 65536);
        const auto channel = [share](int a, int b) {
            return static_cast<std::uint16_t>((a * 65536 + (b - a) * share) / 256);
        };
        const Pixel row{channel(above.colour.red, under.colour.red),
                        channel(above.colour.green, under.colour.green),
                        channel(above.colour.blue, under.colour.blue)};
        for (int x = 0; x < m_width; ++x)
            at(x, y) = row;
    }
}

void Canvas::disc(Point centre, std::int64_t radius, Colour colour, int alpha) {
    ring(centre, -1, radius, colour, alpha);
}

void Canvas::ring(Point centre, std::int64_t inner, std::int64_t outer, Colour colour, int alpha) {
    const std::int64_t cx = toSub(centre.x);
    const std::int64_t cy = toSub(centre.y);
    const std::int64_t r1 = toSub(outer);
    const std::int64_t r0 = inner < 0 ? -kSub : toSub(inner);
    const auto first = [](std::int64_t v) { return static_cast<int>(floorDivide(v, kSub)) - 1; };
    for (int y = std::max(0, first(cy - r1)); y <= std::min(m_height - 1, first(cy + r1) + 2); ++y) {
        for (int x = std::max(0, first(cx - r1)); x <= std::min(m_width - 1, first(cx + r1) + 2); ++x) {
            const std::int64_t dx = x * kSub + kSub / 2 - cx;
            const std::int64_t dy = y * kSub + kSub / 2 - cy;
            const std::int64_t squared = dx * dx + dy * dy;
            if (squared > (r1 + kSub) * (r1 + kSub) || (r0 > kSub && squared < (r0 - kSub) * (r0 - kSub)))
                continue;
            const std::int64_t distance = squareRoot(squared);
            const std::int64_t cover = clampTo(r1 - distance + kSub / 2, 0, kSub);
            const std::int64_t hole = inner < 0 ? 0 : clampTo(r0 - distance + kSub / 2, 0, kSub);
            blend(x, y, colour, std::max<std::int64_t>(0, cover - hole) * alpha / kSub);
        }
    }
}

void Canvas::glow(Point centre, std::int64_t radius, Colour colour, int alpha) {
    const std::int64_t cx = toSub(centre.x);
    const std::int64_t cy = toSub(centre.y);
    const std::int64_t r = std::max<std::int64_t>(1, toSub(radius));
    const int x1 = static_cast<int>(std::min<std::int64_t>(m_width - 1, (cx + r) / kSub + 1));
    const int y1 = static_cast<int>(std::min<std::int64_t>(m_height - 1, (cy + r) / kSub + 1));
    for (int y = static_cast<int>(std::max<std::int64_t>(0, (cy - r) / kSub)); y <= y1; ++y) {
        for (int x = static_cast<int>(std::max<std::int64_t>(0, (cx - r) / kSub)); x <= x1; ++x) {
            const std::int64_t dx = x * kSub + kSub / 2 - cx;
            const std::int64_t dy = y * kSub + kSub / 2 - cy;
            const std::int64_t squared = dx * dx + dy * dy;
            if (squared >= r * r)
                continue;
            const std::int64_t strength = 4096 - squared * 4096 / (r * r);
            const std::int64_t a =
                alpha * strength * strength * 16 / 4096 / 4096;  // in sixteenths, for soft edges
            Pixel& p = at(x, y);
            const auto channel = [a](std::uint16_t old, int fresh) {
                return static_cast<std::uint16_t>(old + (fresh * 256 - old) * a / (kOpaque * 16));
            };
            p = {channel(p.red, colour.red), channel(p.green, colour.green), channel(p.blue, colour.blue)};
        }
    }
}

void Canvas::fillCorners(const std::vector<Point>& corners, const std::function<Colour(int)>& colourOf,
                         int alpha) {
    if (corners.size() < 3)
        return;
    std::vector<Point> sub;
    sub.reserve(corners.size());
    for (const Point& corner : corners)
        sub.push_back({toSub(corner.x), toSub(corner.y)});
    const auto [leftmost, rightmost] =
        std::minmax_element(sub.begin(), sub.end(), [](const Point& a, const Point& b) { return a.x < b.x; });
    const int firstColumn = static_cast<int>(clampTo(floorDivide(leftmost->x, kSub), 0, m_width));
    const int endColumn =
        static_cast<int>(clampTo(floorDivide(rightmost->x, kSub) + 1, firstColumn, m_width));
    const auto [low, high] =
        std::minmax_element(sub.begin(), sub.end(), [](const Point& a, const Point& b) { return a.y < b.y; });
    const int firstRow = static_cast<int>(clampTo(floorDivide(low->y, kSub), 0, m_height));
    const int lastRow = static_cast<int>(clampTo(floorDivide(high->y, kSub), -1, m_height - 1));

    std::vector<int> cover(static_cast<std::size_t>(m_width));
    std::vector<std::int64_t> crossings;
    for (int row = firstRow; row <= lastRow; ++row) {
        std::fill(cover.begin() + firstColumn, cover.begin() + endColumn, 0);
        for (int line = 0; line < kScanLines; ++line) {
            const std::int64_t y = row * kSub + (2 * line + 1) * kSub / (2 * kScanLines);
            crossings.clear();
            for (std::size_t i = 0; i < sub.size(); ++i) {
                const Point& a = sub[i];
                const Point& b = sub[(i + 1) % sub.size()];
                if ((a.y <= y) != (b.y <= y))
                    crossings.push_back(a.x + floorDivide((y - a.y) * (b.x - a.x), b.y - a.y));
            }
            std::sort(crossings.begin(), crossings.end());
            for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
                const std::int64_t left = clampTo(crossings[i], 0, std::int64_t{m_width} * kSub);
                const std::int64_t right = clampTo(crossings[i + 1], 0, std::int64_t{m_width} * kSub);
                for (std::int64_t x = left / kSub; x * kSub < right; ++x)
                    cover[static_cast<std::size_t>(x)] +=
                        static_cast<int>(std::min(right, (x + 1) * kSub) - std::max(left, x * kSub));
            }
        }
        const Colour colour = colourOf(row);
        for (int x = firstColumn; x < endColumn; ++x) {
            if (cover[static_cast<std::size_t>(x)] > 0)
                blend(x, row, colour,
                      std::int64_t{cover[static_cast<std::size_t>(x)]} * alpha / (kSub * kScanLines));
        }
    }
}

void Canvas::polygon(const std::vector<Point>& corners, Colour colour, int alpha) {
    fillCorners(
        corners, [colour](int) { return colour; }, alpha);
}

void Canvas::polygon(const std::vector<Point>& corners, Stop top, Stop bottom, int alpha) {
    const std::int64_t span = std::max<std::int64_t>(1, bottom.y - top.y);
    fillCorners(
        corners,
        [&, this](int row) {
            return mix(top.colour, bottom.colour,
                       static_cast<int>(clampTo((unitsAtRow(row) - top.y) * 256 / span, 0, 256)));
        },
        alpha);
}

void Canvas::ellipse(Point centre, std::int64_t radiusX, std::int64_t radiusY, std::int64_t turn,
                     Colour colour, int alpha) {
    constexpr int kCorners = 40;
    std::vector<Point> corners;
    corners.reserve(kCorners);
    for (int i = 0; i < kCorners; ++i) {
        const std::int64_t x = radiusX * cosine(i * kFullTurn / kCorners) / kUnity;
        const std::int64_t y = radiusY * sine(i * kFullTurn / kCorners) / kUnity;
        corners.push_back({centre.x + (x * cosine(turn) - y * sine(turn)) / kUnity,
                           centre.y + (x * sine(turn) + y * cosine(turn)) / kUnity});
    }
    polygon(corners, colour, alpha);
}

void Canvas::stroke(Point from, Point to, std::int64_t startWidth, std::int64_t endWidth, Colour colour,
                    int alpha) {
    const std::int64_t dx = to.x - from.x;
    const std::int64_t dy = to.y - from.y;
    const std::int64_t length = std::max<std::int64_t>(1, squareRoot(dx * dx + dy * dy));
    const auto across = [&](std::int64_t width) {
        return Point{-dy * width / (2 * length), dx * width / (2 * length)};
    };
    const Point a = across(startWidth);
    const Point b = across(endWidth);
    polygon({{from.x + a.x, from.y + a.y},
             {to.x + b.x, to.y + b.y},
             {to.x - b.x, to.y - b.y},
             {from.x - a.x, from.y - a.y}},
            colour, alpha);
    if (alpha != kOpaque)
        return;  // round ends would show where they overlap
    disc(from, startWidth / 2, colour);
    disc(to, endWidth / 2, colour);
}

void Canvas::below(const Edge& edge, const Shade& shade, std::int64_t bottom) {
    const int lastRow = rowOf(bottom);
    for (int x = 0; x < m_width; ++x) {
        const std::int64_t across = unitsAtColumn(x);
        const std::int64_t height = edge(across);
        const std::int64_t top = toSub(height);
        for (int y = static_cast<int>(std::max<std::int64_t>(0, floorDivide(top, kSub))); y < lastRow; ++y) {
            const std::int64_t cover = clampTo((y + 1) * kSub - top, 0, kSub);
            blend(x, y, shade(across, unitsAtRow(y), height), cover);
        }
    }
}

void Canvas::cover(std::int64_t from, std::int64_t to, const Paint& paint) {
    const int last = rowOf(to);
    for (int y = rowOf(from); y < last; ++y) {
        for (int x = 0; x < m_width; ++x) {
            int alpha = 0;
            const Colour colour = paint(unitsAtColumn(x), unitsAtRow(y), alpha);
            blend(x, y, colour, alpha);
        }
    }
}

void Canvas::mirrorBelow(std::int64_t horizon, Colour tint, int tintShare, std::int64_t ripple,
                         std::uint32_t seed) {
    const int first = rowOf(horizon);
    for (int y = first; y < m_height; ++y) {
        const std::int64_t depth = unitsAtRow(y) - horizon;
        // Ripples grow larger and wider apart towards the viewer.
        const std::int64_t rowScale = 400 + depth / 3;
        for (int x = 0; x < m_width; ++x) {
            const std::int64_t across = unitsAtColumn(x) - unitsWide() / 2;
            const int wave =
                cloudNoise(across * 65536 / (rowScale * 2), depth * 65536 * 7 / (rowScale * 2), seed, 3) -
                32768;
            const std::int64_t shift = ripple * wave / 32768 * (600 + depth) / 3000;
            const std::int64_t from = 2 * std::int64_t{first} - y - 1 + shift * m_height / kUnitsHigh;
            const Pixel seen = at(x, static_cast<int>(clampTo(from, 0, std::max(0, first - 1))));
            at(x, y) = seen;
            blend(x, y, tint, clampTo(tintShare + depth / 120 + wave / 1400, 0, 230));
        }
    }
}

Picture Canvas::finish() const {
    Picture picture{m_width, m_height, {}};
    picture.rgb.reserve(m_pixels.size() * 3);
    // A little ordered noise in place of plain rounding keeps slow gradients smooth.
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            const Pixel& p = m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                                      static_cast<std::size_t>(x)];
            const int threshold = ditherAt(x, y) * 16;
            for (const int channel : {int{p.red}, int{p.green}, int{p.blue}})
                picture.rgb.push_back(static_cast<std::uint8_t>(std::min(255, (channel + threshold) >> 8)));
        }
    }
    return picture;
}

Picture scaledDown(const Picture& source, int width, int height) {
    Picture result{width, height, {}};
    result.rgb.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    for (int y = 0; y < height; ++y) {
        const int y0 = y * source.height / height;
        const int y1 = std::max(y0 + 1, (y + 1) * source.height / height);
        for (int x = 0; x < width; ++x) {
            const int x0 = x * source.width / width;
            const int x1 = std::max(x0 + 1, (x + 1) * source.width / width);
            int sums[3] = {0, 0, 0};
            for (int sy = y0; sy < y1; ++sy)
                for (int sx = x0; sx < x1; ++sx)
                    for (int c = 0; c < 3; ++c)
                        sums[c] += source.pixel(sx, sy)[c];
            for (const int sum : sums)
                result.rgb.push_back(static_cast<std::uint8_t>(sum / ((y1 - y0) * (x1 - x0))));
        }
    }
    return result;
}

}  // namespace vantor::samples
