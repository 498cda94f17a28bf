// Shapes by QPainter; skylines, clouds and water pixel by pixel.
#include "samples/Canvas.h"

#include <QRgba64>
#include <algorithm>
#include <cmath>

namespace vantor::samples {

namespace {

QColor toQt(Colour colour, double alpha = kOpaque) {
    const auto share = [](double value, double whole) { return float(within(value / whole, 0, 1)); };
    return QColor::fromRgbF(share(colour.red, 255), share(colour.green, 255), share(colour.blue, 255),
                            share(alpha, kOpaque));
}

void blend(QRgba64& pixel, Colour colour, double alpha) {
    if (alpha <= 0)
        return;
    const double share = std::min(alpha / kOpaque, 1.0);
    const auto channel = [share](quint16 old, double fresh) {
        return quint16(old + (within(fresh, 0, 255) * 257 - old) * share);
    };
    pixel = qRgba64(channel(pixel.red(), colour.red), channel(pixel.green(), colour.green),
                    channel(pixel.blue(), colour.blue), 0xFFFF);
}

double between(double from, double to, double share) {
    return from + (to - from) * share;
}

// The value of a corner of the noise's grid, 0 to 65535.
double corner(int x, int y, int seed) {
    quint32 hash = quint32(x) * 0x9E3779B1u + quint32(y) * 0x85EBCA77u + quint32(seed) * 0xC2B2AE3Du;
    hash = (hash ^ (hash >> 15)) * 0x2C1B3C6Du;
    hash = (hash ^ (hash >> 12)) * 0x297A2D39u;
    return (hash ^ (hash >> 15)) & 0xFFFF;
}

double smoothNoise(double x, double y, int seed) {
    const auto smooth = [](double t) { return t * t * (3 - 2 * t); };
    const int column = int(x) - (x < 0 ? 1 : 0);
    const int line = int(y) - (y < 0 ? 1 : 0);
    const double right = smooth(x - column);
    const double top = between(corner(column, line, seed), corner(column + 1, line, seed), right);
    if (y == line)
        return top;
    const double bottom = between(corner(column, line + 1, seed), corner(column + 1, line + 1, seed), right);
    return between(top, bottom, smooth(y - line));
}

}  // namespace

Colour mix(Colour from, Colour to, double share) {
    const double s = within(share / kOpaque, 0, 1);
    return {between(from.red, to.red, s), between(from.green, to.green, s), between(from.blue, to.blue, s)};
}

double noise(double x, double y, int seed, int octaves) {
    double sum = 0;
    double weights = 0;
    for (int octave = 0; octave < octaves; ++octave) {
        const double finer = 1 << octave;
        sum += smoothNoise(x * finer, y * finer, seed + octave * 101) / finer;
        weights += 1 / finer;
    }
    return sum / weights;
}

Canvas::Canvas(int width, int height)
    : m_image(width, height, QImage::Format_RGBA64_Premultiplied), m_painter(&m_image) {
    m_image.fill(Qt::black);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
    m_painter.scale(height / kUnitsHigh, height / kUnitsHigh);
}

int Canvas::rowOf(double y) const {
    return int(within(std::floor(y * m_image.height() / kUnitsHigh), 0, m_image.height()));
}

void Canvas::gradient(const std::vector<Stop>& stops, double from, double to) {
    const double span = stops.back().y - stops.front().y;
    QLinearGradient colours(0, stops.front().y, 0, stops.back().y);
    for (const Stop& stop : stops)
        colours.setColorAt((stop.y - stops.front().y) / span, toQt(stop.colour));
    const double first = rowOf(from) * kUnitsHigh / m_image.height();
    m_painter.fillRect(QRectF(0, first, wide(), to - first), colours);
}

void Canvas::glow(Point centre, double radius, Colour colour, double alpha) {
    constexpr int kSteps = 16;
    QRadialGradient light({centre.x, centre.y}, radius);
    for (int i = 0; i <= kSteps; ++i) {
        const double strength = 1 - double(i * i) / (kSteps * kSteps);
        light.setColorAt(double(i) / kSteps, toQt(colour, alpha * strength * strength));
    }
    m_painter.setBrush(light);
    m_painter.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
}

void Canvas::ring(Point centre, double inner, double outer, Colour colour, double alpha) {
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(toQt(colour, alpha), outer - inner));
    m_painter.drawEllipse(QPointF(centre.x, centre.y), (inner + outer) / 2, (inner + outer) / 2);
    m_painter.setPen(Qt::NoPen);
}

void Canvas::polygon(const std::vector<Point>& corners, Colour colour, double alpha) {
    polygon(corners, {0, colour}, {kUnitsHigh, colour}, alpha);
}

void Canvas::polygon(const std::vector<Point>& corners, Stop top, Stop bottom, double alpha) {
    QPolygonF shape;
    for (const Point& at : corners)
        shape << QPointF(at.x, at.y);
    QLinearGradient colours(0, top.y, 0, bottom.y);
    colours.setColorAt(0, toQt(top.colour, alpha));
    colours.setColorAt(1, toQt(bottom.colour, alpha));
    const bool plain = toQt(top.colour) == toQt(bottom.colour);
    m_painter.setBrush(plain ? QBrush(toQt(top.colour, alpha)) : QBrush(colours));
    m_painter.drawPolygon(shape);
}

void Canvas::shape(Point at, double size, std::initializer_list<double> corners, Colour colour) {
    std::vector<Point> points;
    for (const double* c = corners.begin(); c != corners.end(); c += 2)
        points.push_back({at.x + c[0] * size / 100, at.y + c[1] * size / 100});
    polygon(points, colour);
}

void Canvas::box(double left, double top, double right, double bottom, Colour colour, double alpha) {
    m_painter.fillRect(QRectF(QPointF(left, top), QPointF(right, bottom)), toQt(colour, alpha));
}

void Canvas::ellipse(Point centre, double radiusX, double radiusY, double turn, Colour colour, double alpha) {
    m_painter.save();
    m_painter.translate(centre.x, centre.y);
    m_painter.rotate(turn * 360 / kFullTurn);
    m_painter.setBrush(toQt(colour, alpha));
    m_painter.drawEllipse(QPointF(), radiusX, radiusY);
    m_painter.restore();
}

void Canvas::stroke(Point from, Point to, double startWidth, double endWidth, Colour colour, double alpha) {
    const double length = std::max(1.0, std::hypot(to.x - from.x, to.y - from.y));
    const Point across{(from.y - to.y) / (2 * length), (to.x - from.x) / (2 * length)};
    const auto side = [across](Point at, double width) {
        return Point{at.x + across.x * width, at.y + across.y * width};
    };
    polygon({side(from, startWidth), side(to, endWidth), side(to, -endWidth), side(from, -startWidth)},
            colour, alpha);
    if (alpha != kOpaque)
        return;  // round ends would show where they overlap
    disc(from, startWidth / 2, colour);
    disc(to, endWidth / 2, colour);
}

void Canvas::below(const Edge& edge, const Shade& shade, double bottom) {
    const int lastRow = rowOf(bottom);
    for (int x = 0; x < m_image.width(); ++x) {
        const double across = unitsAt(x);
        const double height = edge(across);
        const double top = height * m_image.height() / kUnitsHigh;
        for (int y = int(std::max(0.0, std::floor(top))); y < lastRow; ++y)
            blend(row(y)[x], shade(across, unitsAt(y), height), (y + 1 - top) * kOpaque);
    }
}

void Canvas::cover(double from, double to, const Paint& paint) {
    const int last = rowOf(to);
    for (int y = rowOf(from); y < last; ++y) {
        for (int x = 0; x < m_image.width(); ++x) {
            double alpha = 0;
            const Colour colour = paint(unitsAt(x), unitsAt(y), alpha);
            blend(row(y)[x], colour, alpha);
        }
    }
}

void Canvas::mirrorBelow(double horizon, Colour tint, double tintShare, double ripple, int seed) {
    const int first = rowOf(horizon);
    for (int y = first; y < m_image.height(); ++y) {
        const double depth = unitsAt(y) - horizon;
        // Ripples grow larger and wider apart towards the viewer.
        const double scale = 800 + depth * 2 / 3;
        for (int x = 0; x < m_image.width(); ++x) {
            const double across = unitsAt(x) - wide() / 2;
            const double wave = noise(across / scale, depth * 7 / scale, seed, 3) - 32768;
            const double shift = ripple * wave / 32768 * (600 + depth) / 3000;
            const double from = 2 * first - y - 1 + shift * m_image.height() / kUnitsHigh;
            row(y)[x] = row(int(within(from, 0, first - 1)))[x];
            blend(row(y)[x], tint, within(tintShare + depth / 120 + wave / 1400, 0, 230));
        }
    }
}

QImage Canvas::finish() {
    static constexpr int kBayer[16] = {0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};
    m_painter.end();
    QImage picture(m_image.size(), QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y) {
        uchar* out = picture.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const QRgba64 pixel = row(y)[x];
            const int threshold = kBayer[y % 4 * 4 + x % 4] * 16;
            for (const int channel : {pixel.red(), pixel.green(), pixel.blue()})
                *out++ = uchar((channel - channel / 256 + threshold) >> 8);
        }
    }
    return picture;
}

}  // namespace vantor::samples
