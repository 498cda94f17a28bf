// The parts that motifs are put together from.
#include "samples/SceneParts.h"

#include <algorithm>
#include <cmath>

namespace vantor::samples {

Canvas::Edge mountainLine(double base, double height, double width, int seed, int octaves) {
    return [=](double x) { return base - height * noise(x / width, 0, seed, octaves) / 65536; };
}

Canvas::Edge hillLine(double base, double height, double width, double phase) {
    return [=](double x) {
        const double angle = x * kFullTurn / width + phase;
        return base - height * sine(angle) / 2 - height * sine(angle * 2 + phase * 3) / 6;
    };
}

Canvas::Shade fading(Colour edge, Colour deep, double depth) {
    return [=](double, double y, double top) { return mix(edge, deep, (y - top) * 256 / depth); };
}

void paintClouds(Canvas& canvas, double from, double to, Colour light, Colour shadow, int clear, int seed,
                 int strongest) {
    canvas.cover(from, to, [=](double x, double y, double& alpha) {
        const double half = (to - from) / 2;
        const double fromMiddle = y > from + half ? y - from - half : from + half - y;
        const double band = 256 - fromMiddle * fromMiddle * 256 / (half * half);
        // Clouds lie flat: their noise is stretched across the sky, more so near the horizon.
        const double stretch = 2600;
        const double density = noise(x / stretch, y / (stretch * 2 / 5), seed, 5);
        alpha = within((density - clear) * 256 / 14000, 0, strongest) * band / 256;
        if (alpha <= 0)
            return Colour{};
        const double above = noise(x / stretch, (y - 120) / (stretch * 2 / 5), seed, 3);
        return mix(shadow, light, 128 + (density - above) / 40);
    });
}

void paintStars(Canvas& canvas, int count, double to, int seed) {
    Random random(seed);
    for (int i = 0; i < count; ++i) {
        const Point at{random.between(0, canvas.wide()), random.between(0, to)};
        const int brightness = random.between(60, 256);
        const Colour tint = random.between(0, 3) == 0 ? Colour{255, 226, 190} : Colour{225, 235, 255};
        const int size = random.between(0, 30) == 0 ? 22 : random.between(7, 13);
        canvas.disc(at, size, tint, brightness);
        if (size > 20)
            canvas.glow(at, 130, tint, 90);
    }
}

void paintFir(Canvas& canvas, Point foot, double height, Colour dark, Colour light) {
    canvas.shape(foot, height, {-2.5, 0, 2.5, 0, 1.7, -25, -1.7, -25}, mix(dark, {40, 26, 18}, 140));
    constexpr int kTiers = 6;
    for (int tier = 0; tier < kTiers; ++tier) {
        const double bottom = 11 + 81.25 * tier / kTiers;
        const double half = 20.0 * (kTiers - tier + 1) / kTiers;
        const double inner = half / 3;
        canvas.shape(foot, height,
                     {0, -bottom - 27.8, inner, -bottom - 8.3, half, -bottom, inner, -bottom - 1.7, 0,
                      -bottom + 2, -inner, -bottom - 1.7, -half, -bottom, -inner, -bottom - 8.3},
                     mix(dark, light, 256 * tier / kTiers));
    }
}

void paintLeafTree(Canvas& canvas, Point foot, double height, Colour crown, Colour trunk, int seed) {
    Random random(seed);
    const double fork = foot.y - height * 45 / 100;
    canvas.stroke(foot, {foot.x, fork}, height / 14, height / 22, trunk);
    for (int branch = -2; branch <= 2; ++branch) {
        const Point tip{foot.x + height * branch / 9, fork - height * (4 - branch * branch / 2) / 16};
        canvas.stroke({foot.x, fork + height / 20}, tip, height / 32, height / 80, trunk);
    }
    const Point middle{foot.x, foot.y - height * 67 / 100};
    constexpr int kTufts = 420;
    for (int i = 0; i < kTufts; ++i) {
        const double angle = random.between(0, kFullTurn - 1);
        const double reach = std::sqrt(random.between(0, 10000) * 10000);
        const Point at{middle.x + height * 36 / 100 * reach / 10000 * cosine(angle),
                       middle.y + height * 31 / 100 * reach / 10000 * sine(angle)};
        // Light falls from the upper left; later tufts lie in front.
        const double lit = (middle.y - at.y + (middle.x - at.x) / 2) * 256 / height;
        const Colour shade = mix({crown.red / 3, crown.green / 3, crown.blue / 3}, crown, 130 + lit + i / 6);
        const Colour sunny = mix(shade, {255, 240, 190}, within(lit / 2 + random.between(-30, 30), 0, 90));
        canvas.ellipse(at, height / 34 + random.between(0, height / 60), height / 50, angle, sunny, 225);
    }
}

void paintSail(Canvas& canvas, Point at, double height, Colour sail, Colour hull) {
    canvas.shape(at, height, {-0.8, -8, 0.8, -8, 0.5, -100, -0.5, -100}, hull);
    canvas.shape(at, height, {2, -97, 19, -50, 40, -11.7, 2, -11.7}, sail);
    canvas.shape(at, height, {-2.5, -86, -30, -11.7, -2.5, -13.3}, mix(sail, hull, 50));
    canvas.shape(at, height, {-36, -8.3, 46, -10, 34, 0, -26, 0}, hull);
}

void paintFlower(Canvas& canvas, const Flower& flower) {
    const auto squash = [&](double y) { return y * flower.flatness / 256; };
    for (int ring = 0; ring < 2; ++ring) {
        const double radius = ring == 0 ? flower.radius : flower.radius * 4 / 5;
        for (int i = 0; i < flower.petals; ++i) {
            const double angle = flower.turn + (2 * i + ring) * kFullTurn / (2 * flower.petals);
            const double width = radius * 5 / (flower.petals + 3);
            const Colour petal = mix(flower.outer, flower.inner, ring * 70 + (i % 3) * 24);
            const auto place = [&](double along, double across) {
                return Point{flower.centre.x + (along * cosine(angle) - across * sine(angle)),
                             flower.centre.y + squash((along * sine(angle) + across * cosine(angle)))};
            };
            std::vector<Point> outline;
            constexpr int kSteps = 14;
            for (int step = 0; step <= 2 * kSteps; ++step) {
                const int t = step <= kSteps ? step : 2 * kSteps - step;
                const double bulge = width * sine(t * t * kHalfTurn / (kSteps * kSteps + kSteps)) / 2;
                outline.push_back(place(radius * (2 + t) / (2 + kSteps), step <= kSteps ? bulge : -bulge));
            }
            canvas.polygon(outline, petal);
            canvas.stroke(place(radius / 5, 0), place(radius * 4 / 5, 0), radius / 40, radius / 90,
                          flower.inner, 120);
        }
    }
    canvas.ellipse(flower.centre, flower.radius * 3 / 10, squash(flower.radius * 3 / 10), 0,
                   mix(flower.eye, {0, 0, 0}, 90));
    canvas.ellipse({flower.centre.x - flower.radius / 40, flower.centre.y - flower.radius / 40},
                   flower.radius * 27 / 100, squash(flower.radius * 27 / 100), 0, flower.eye);
    // Seeds on a golden spiral.
    const int seeds = 130;
    for (int i = 0; i < seeds; ++i) {
        const double angle = i * 25034;
        const double reach = flower.radius * 25 / 100 * std::sqrt(i * 10000) / std::sqrt(seeds * 10000);
        canvas.disc({flower.centre.x + reach * cosine(angle), flower.centre.y + squash(reach * sine(angle))},
                    std::max<double>(4, flower.radius / 70),
                    mix(flower.eye, i % 2 == 0 ? Colour{255, 245, 200} : Colour{60, 30, 10}, 110));
    }
}

}  // namespace vantor::samples
