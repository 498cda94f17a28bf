// What the card's motifs are painted with: QPainter, and the pixels themselves where noise decides.
//
// Places and lengths are in units of 1/10000 of the canvas's height, so that a scene is painted alike at any
// size. Shares and alphas run from 0 to 256, angles in 1/65536 of a turn.
#pragma once

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

namespace vantor::samples {

struct Colour {
    double red = 0;  // each channel 0..255
    double green = 0;
    double blue = 0;
};

// The colour `share` of the way from one to the other.
Colour mix(Colour from, Colour to, double share);

struct Point {
    double x = 0;
    double y = 0;
};

// One colour of a vertical gradient, at a height.
struct Stop {
    double y = 0;
    Colour colour;
};

constexpr double kUnitsHigh = 10000;
constexpr double kOpaque = 256;
constexpr int kHalfTurn = 32768;
constexpr int kFullTurn = 2 * kHalfTurn;

inline double sine(double angle) {
    return std::sin(angle * std::numbers::pi / kHalfTurn);
}
inline double cosine(double angle) {
    return std::cos(angle * std::numbers::pi / kHalfTurn);
}
inline double within(double value, double low, double high) {
    return std::clamp(value, low, high);
}
// Octaves of smooth noise, each half as strong and twice as fine, at a point in cells; 0 to 65535.
double noise(double x, double y, int seed, int octaves);

class Canvas {
  public:
    Canvas(int width, int height);

    double wide() const { return kUnitsHigh * m_image.width() / m_image.height(); }

    // Whole rows of [from, to) in the colours of the stops, which come in rising order.
    void gradient(const std::vector<Stop>& stops, double from = 0, double to = kUnitsHigh);
    void disc(Point centre, double radius, Colour colour, double alpha = kOpaque) {
        ellipse(centre, radius, radius, 0, colour, alpha);
    }
    // Light that fades to nothing at the radius.
    void glow(Point centre, double radius, Colour colour, double alpha);
    void ring(Point centre, double inner, double outer, Colour colour, double alpha);
    void polygon(const std::vector<Point>& corners, Colour colour, double alpha = kOpaque);
    // A polygon whose colour runs from one to another between two heights.
    void polygon(const std::vector<Point>& corners, Stop top, Stop bottom, double alpha = kOpaque);
    // A polygon of pairs of coordinates in hundredths of `size`, counted from `at`.
    void shape(Point at, double size, std::initializer_list<double> corners, Colour colour);
    void box(double left, double top, double right, double bottom, Colour colour, double alpha = kOpaque);
    void ellipse(Point centre, double radiusX, double radiusY, double turn, Colour colour,
                 double alpha = kOpaque);
    // A line with round ends, thicker or thinner towards its end.
    void stroke(Point from, Point to, double startWidth, double endWidth, Colour colour,
                double alpha = kOpaque);

    // Everything below a skyline: `edge` gives its height at a place across, `shade` the colour of a point
    // below it.
    using Edge = std::function<double(double x)>;
    using Shade = std::function<Colour(double x, double y, double edge)>;
    void below(const Edge& edge, const Shade& shade, double bottom = kUnitsHigh);
    // Every pixel of the rows [from, to) blended with what `paint` says; it sets alpha, 0 leaves the pixel.
    using Paint = std::function<Colour(double x, double y, double& alpha)>;
    void cover(double from, double to, const Paint& paint);
    // The rows from `horizon` down become water: what stands above, mirrored, rippled and tinted.
    void mirrorBelow(double horizon, Colour tint, double tintShare, double ripple, int seed);

    // The picture in 24 bits, dithered so that slow gradients show no bands.
    QImage finish();

  private:
    QRgba64* row(int y) { return reinterpret_cast<QRgba64*>(m_image.scanLine(y)); }
    double unitsAt(int pixel) const { return (pixel + 0.5) * kUnitsHigh / m_image.height(); }
    int rowOf(double y) const;

    QImage m_image;  // 16 bits a channel
    QPainter m_painter;
};

}  // namespace vantor::samples
