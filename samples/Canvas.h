// An integer rasteriser: what is painted with it is the same, bit for bit, on every machine.
//
// Places and lengths are in units of 1/10000 of the canvas's height, so that a scene is painted alike at any
// size.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace vantor::samples {

struct Colour {
    int red = 0;  // each channel 0..255
    int green = 0;
    int blue = 0;
};

// The colour `share`/256 of the way from one to the other.
Colour mix(Colour from, Colour to, int share);

struct Point {
    std::int64_t x = 0;  // units
    std::int64_t y = 0;
};

// One colour of a vertical gradient, at a height in units.
struct Stop {
    std::int64_t y = 0;
    Colour colour;
};

// A finished picture: three bytes a pixel, rows from the top without padding.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;

    const std::uint8_t* pixel(int x, int y) const {
        return &rgb[(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                     static_cast<std::size_t>(x)) *
                    3];
    }
};

// The picture made smaller by averaging boxes of pixels; never larger than it is.
Picture scaledDown(const Picture& source, int width, int height);

constexpr std::int64_t kUnitsHigh = 10000;
constexpr int kOpaque = 256;

class Canvas {
  public:
    Canvas(int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }
    std::int64_t unitsWide() const { return kUnitsHigh * m_width / m_height; }

    // Units of the middle of a pixel.
    std::int64_t unitsAtColumn(int x) const { return (2 * x + 1) * kUnitsHigh / (2 * m_height); }
    std::int64_t unitsAtRow(int y) const { return (2 * y + 1) * kUnitsHigh / (2 * m_height); }
    int rowOf(std::int64_t y) const;

    // Whole rows of [from, to) in the colours of the stops, which come in rising order.
    void gradient(const std::vector<Stop>& stops, std::int64_t from = 0, std::int64_t to = kUnitsHigh);

    void disc(Point centre, std::int64_t radius, Colour colour, int alpha = kOpaque);
    // Light that fades to nothing at the radius.
    void glow(Point centre, std::int64_t radius, Colour colour, int alpha);
    void ring(Point centre, std::int64_t inner, std::int64_t outer, Colour colour, int alpha);
    void polygon(const std::vector<Point>& corners, Colour colour, int alpha = kOpaque);
    // A polygon whose colour runs from one to another between two heights.
    void polygon(const std::vector<Point>& corners, Stop top, Stop bottom, int alpha = kOpaque);
    void ellipse(Point centre, std::int64_t radiusX, std::int64_t radiusY, std::int64_t turn, Colour colour,
                 int alpha = kOpaque);
    // A line with round ends, thicker or thinner towards its end.
    void stroke(Point from, Point to, std::int64_t startWidth, std::int64_t endWidth, Colour colour,
                int alpha = kOpaque);

    // Everything below a skyline: `edge` gives its height at a place across, `shade` the colour of a point
    // below it.
    using Edge = std::function<std::int64_t(std::int64_t x)>;
    using Shade = std::function<Colour(std::int64_t x, std::int64_t y, std::int64_t edge)>;
    void below(const Edge& edge, const Shade& shade, std::int64_t bottom = kUnitsHigh);

    // Every pixel of the rows [from, to) blended with what `paint` says; it sets alpha, 0 leaves the pixel.
    using Paint = std::function<Colour(std::int64_t x, std::int64_t y, int& alpha)>;
    void cover(std::int64_t from, std::int64_t to, const Paint& paint);

    // The rows from `horizon` down become water: what stands above, mirrored, rippled and tinted.
    void mirrorBelow(std::int64_t horizon, Colour tint, int tintShare, std::int64_t ripple,
                     std::uint32_t seed);

    Picture finish() const;

  private:
    struct Pixel {
        std::uint16_t red, green, blue;  // 8.8 fixed point, so that slow gradients show no bands
    };

    Pixel& at(int x, int y) {
        return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                        static_cast<std::size_t>(x)];
    }
    std::int64_t toSub(std::int64_t units) const;  // units to 1/256 pixels
    void blend(int x, int y, Colour colour, std::int64_t alpha);
    void fillCorners(const std::vector<Point>& corners, const std::function<Colour(int row)>& colourOf,
                     int alpha);

    int m_width;
    int m_height;
    std::vector<Pixel> m_pixels;
};

}  // namespace vantor::samples
