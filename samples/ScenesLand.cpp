// Motifs of hills, mountains and woods.
#include <algorithm>
#include <cmath>

#include "samples/SceneParts.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

struct RidgeColours {
    Colour sky, horizon, far, near;
    Colour sun;
};

void ridges(Canvas& canvas, const RidgeColours& colours, int seed) {
    const double wide = canvas.wide();
    canvas.gradient({{0, colours.sky}, {5200, colours.horizon}});
    const Point sun{wide * 68 / 100, 2700};
    canvas.glow(sun, 4200, colours.sun, 180);
    paintClouds(canvas, 0, 3800, mix(colours.horizon, {255, 255, 255}, 130), colours.sky, 36000, seed + 50,
                150);
    canvas.disc(sun, 360, mix(colours.sun, {255, 255, 255}, 160));
    constexpr int kLayers = 6;
    for (int layer = 0; layer < kLayers; ++layer) {
        const Colour body = mix(colours.far, colours.near, layer * 256 / (kLayers - 1));
        const Colour haze = mix(body, colours.horizon, 190 - layer * 22);
        canvas.below(
            mountainLine(5100 + layer * 1050, 2500 - layer * 170, 4600 - layer * 420, seed + layer * 13, 6),
            fading(body, haze, 1900));
    }
    Random random(seed);
    for (int i = 0; i < 46; ++i) {
        const double size = 500 + random.between(0, 900);
        const double x = random.between(-200, wide + 200);
        const double rise = (x - wide / 2) * (x - wide / 2) * 1300 / (wide * wide / 4);
        paintFir(canvas, {x, 10350 - rise}, size, mix(colours.near, {8, 12, 20}, 130),
                 mix(colours.near, {20, 30, 30}, 60));
    }
    canvas.below([&](double x) { return 10250 - (x - wide / 2) * (x - wide / 2) * 1300 / (wide * wide / 4); },
                 fading(mix(colours.near, {6, 10, 16}, 150), mix(colours.near, {4, 8, 12}, 200), 900));
}

void paintBalloon(Canvas& canvas, Point centre, double radius, Colour one, Colour other) {
    constexpr int kGores = 10;
    constexpr int kSteps = 24;
    const auto profile = [&](int step, double& y) {
        const double t = step * kHalfTurn / kSteps;
        y = centre.y - radius * cosine(t);
        double half = radius * sine(t);
        if (t > kHalfTurn / 2) {  // below its middle the envelope runs out to the mouth
            y = centre.y - radius * 14 / 10 * cosine(t);
            half = std::max(half * (kHalfTurn * 5 / 4 - t) / (kHalfTurn * 3 / 4), radius / 7);
        }
        return half;
    };
    for (int gore = 0; gore < kGores; ++gore) {
        std::vector<Point> outline;
        const auto side = [&](int edge, int step) {
            double y = 0;
            const double half = profile(step, y);
            outline.push_back({centre.x - half * cosine(edge * kHalfTurn / kGores), y});
        };
        for (int step = 0; step <= kSteps; ++step)
            side(gore, step);
        for (int step = kSteps; step >= 0; --step)
            side(gore + 1, step);
        const Colour base = gore % 2 == 0 ? one : other;
        canvas.polygon(outline, mix(base, gore < 4 ? Colour{255, 255, 255} : Colour{20, 10, 40},
                                    gore < 4 ? (4 - gore) * 14 : (gore - 3) * 15));
    }
    const double mouth = centre.y + radius * 14 / 10;
    const double basket = mouth + radius * 5 / 10;
    canvas.stroke({centre.x - radius / 7, mouth}, {centre.x - radius / 9, basket}, radius / 50, radius / 50,
                  {60, 44, 40});
    canvas.stroke({centre.x + radius / 7, mouth}, {centre.x + radius / 9, basket}, radius / 50, radius / 50,
                  {60, 44, 40});
    canvas.shape({centre.x, basket}, radius, {-14, 0, 14, 0, 11, 20, -11, 20}, {124, 84, 50});
}

// Grass whose brightness runs with noise.
Canvas::Shade grass(Colour dark, Colour light, int seed) {
    return [=](double x, double y, double edge) {
        const double depth = y - edge + 300;
        const double grain = noise(x / (60 + depth / 12), y / (90 + depth / 8), seed, 4);
        const double patch = noise(x / 2400, y / 900, seed + 7, 3);
        return mix(dark, light, (grain / 2 + patch - 26000) / 120);
    };
}

}  // namespace

void blueRidges(Canvas& canvas) {
    ridges(canvas, {{96, 150, 204}, {236, 238, 232}, {150, 180, 206}, {18, 44, 66}, {255, 244, 214}}, 300);
}

void pinkRidges(Canvas& canvas) {
    ridges(canvas, {{88, 84, 150}, {255, 196, 170}, {214, 150, 170}, {50, 24, 60}, {255, 220, 170}}, 710);
}

void rainbowHills(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {86, 110, 140}}, {3800, {164, 186, 202}}, {6200, {224, 232, 226}}});
    paintClouds(canvas, 0, 5400, {240, 242, 246}, {96, 112, 138}, 28500, 611, 220);
    static constexpr Colour kBow[] = {{230, 60, 60},  {246, 140, 50}, {250, 224, 80}, {90, 196, 100},
                                      {70, 140, 230}, {90, 90, 200},  {150, 80, 190}};
    for (int band = 0; band < 7; ++band) {
        const double outer = 6900 - band * 150;
        for (int soft = 0; soft < 3; ++soft)
            canvas.ring({wide * 46 / 100, 8000}, outer - 190 + soft * 20, outer + 40 - soft * 20, kBow[band],
                        46);
    }
    canvas.below(hillLine(6900, 1300, 12000, 9000), grass({70, 124, 92}, {142, 186, 120}, 4));
    canvas.below(hillLine(7700, 1400, 9000, 40000), grass({62, 122, 60}, {156, 196, 84}, 9));
    Random random(21);
    for (int i = 0; i < 9; ++i) {
        const double x = wide * (5 + i * 11) / 100;
        const double y = hillLine(7700, 1400, 9000, 40000)(x) + 80;
        paintLeafTree(canvas, {x, y}, 700 + random.between(0, 500), {70, 136, 52}, {80, 56, 40}, i + 31);
    }
    canvas.below(hillLine(9000, 1100, 14000, 20000), grass({48, 104, 40}, {170, 206, 84}, 15));
}

void balloons(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {70, 140, 210}}, {4600, {180, 212, 232}}, {7200, {255, 226, 190}}});
    canvas.glow({wide * 8 / 100, 6600}, 6000, {255, 226, 160}, 190);
    paintClouds(canvas, 3200, 7200, {255, 244, 230}, {210, 200, 216}, 36000, 17, 170);
    canvas.below(mountainLine(8300, 1600, 5200, 81, 5), fading({160, 160, 190}, {224, 206, 196}, 1300));
    canvas.below(mountainLine(8900, 1200, 3600, 27, 5), fading({116, 124, 120}, {190, 180, 150}, 1100));
    canvas.below(hillLine(9300, 500, 9000, 5000), grass({86, 110, 56}, {196, 190, 96}, 2));
    struct One {
        double x, y, radius;
        Colour one, other;
    };
    static constexpr One kBalloons[] = {
        {18, 5600, 330, {236, 130, 60}, {250, 226, 160}}, {47, 6300, 240, {70, 110, 170}, {220, 226, 236}},
        {90, 5700, 300, {120, 70, 140}, {240, 200, 90}},  {60, 4300, 520, {50, 150, 130}, {246, 244, 226}},
        {81, 2500, 1000, {240, 190, 50}, {226, 80, 50}},  {31, 3000, 1500, {206, 46, 60}, {250, 246, 236}}};
    for (const One& b : kBalloons)
        paintBalloon(canvas, {wide * b.x / 100, b.y}, b.radius, b.one, b.other);
}

void mistyForest(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {170, 196, 196}}, {4000, {226, 230, 214}}, {kUnitsHigh, {206, 214, 200}}});
    canvas.glow({wide * 58 / 100, 2300}, 3600, {255, 248, 214}, 210);
    Random random(5150);
    constexpr int kLayers = 5;
    for (int layer = 0; layer < kLayers; ++layer) {
        const Colour tree = mix({168, 190, 184}, {16, 40, 36}, layer * 256 / (kLayers - 1));
        const double base = 5200 + layer * 1250;
        const auto line = mountainLine(base, 900, 5000, layer + 90, 3);
        for (int i = 0; i < 46 - layer * 7; ++i) {
            const double x = random.between(-300, wide + 300);
            paintFir(canvas, {x, line(x) + 200}, 1100 + layer * 480 + random.between(0, 700), tree,
                     mix(tree, {120, 150, 120}, 40));
        }
        canvas.below(line, fading(tree, mix(tree, {226, 232, 222}, 200 - layer * 20), 1300));
        canvas.cover(base - 700, base + 1300, [=](double x, double y, double& alpha) {
            const double mist = noise(x / 3800, y / 900, layer + 7, 4);
            const double middle = y - base - 300;
            alpha = within((mist - 21000) / 90, 0, 210) * within(256 - middle * middle / 3900, 0, 256) / 256;
            return Colour{232, 236, 226};
        });
    }
}

}  // namespace vantor::samples
