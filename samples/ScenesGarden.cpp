// Motifs of flowers.
#include <algorithm>
#include <cmath>

#include "samples/SceneParts.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

// Soft discs out of focus, as behind a flower taken from near.
void paintBlur(Canvas& canvas, const std::vector<Colour>& colours, int count, int seed) {
    Random random(seed);
    const int wide = canvas.wide();
    for (int i = 0; i < count; ++i) {
        const Point at{random.between(-300, wide + 300), random.between(-300, 10300)};
        const Colour colour = colours[i % colours.size()];
        const double reach = random.between(900, 3400);
        canvas.glow(at, reach, colour, random.between(50, 150));
    }
    for (int i = 0; i < count / 3; ++i) {
        const Point at{random.between(0, wide), random.between(0, 6500)};
        const double radius = random.between(180, 520);
        canvas.disc(at, radius, {255, 255, 230}, 26);
        canvas.ring(at, radius - 30, radius, {255, 255, 236}, 30);
    }
}

void paintStem(Canvas& canvas, Point top, double bottomX, double width, Colour colour) {
    const Point bottom{bottomX, 10300};
    canvas.stroke(top, bottom, width, width * 5 / 4, colour);
    canvas.stroke({top.x - width / 5, top.y}, {bottom.x - width / 5, bottom.y}, width / 4, width / 4,
                  mix(colour, {220, 240, 150}, 90), 160);
}

void paintLeaf(Canvas& canvas, Point foot, double length, double angle, Colour colour) {
    const Point tip{foot.x + length * cosine(angle), foot.y + length * sine(angle)};
    const Point middle{(foot.x + tip.x) / 2, (foot.y + tip.y) / 2};
    canvas.ellipse(middle, length / 2, length / 6, angle, colour);
    canvas.stroke(foot, tip, length / 50, length / 90, mix(colour, {210, 235, 140}, 120));
}

// Rows of lavender that run towards a point on the horizon.
void paintRows(Canvas& canvas, double horizon, int seed) {
    const double wide = canvas.wide();
    const auto bloomOf = [](double row) {
        static constexpr Colour kBlooms[] = {{134, 84, 200}, {116, 72, 186}, {150, 96, 210}};
        return kBlooms[(int(row) + 3000) % 3];
    };
    canvas.cover(horizon, kUnitsHigh, [&](double x, double y, double& alpha) {
        alpha = kOpaque;
        const double depth = y - horizon + 90;
        const double across = (x - wide * 55 / 100) * 4096 / depth;
        const double row = std::floor(across / 1900);
        const double inside = across - row * 1900;
        const double grain = noise(across / 260, 50000000 / depth / 140, seed, 4);
        const double bulge = within(inside < 950 ? inside : 1900 - inside, 0, 950);
        if (bulge + grain / 160 < 430)
            return mix(mix({96, 74, 60}, {86, 110, 60}, grain / 300), {255, 236, 200},
                       within(130 - depth / 8, 0, 110));
        const Colour bloom = bloomOf(row);
        const Colour shaded =
            mix({bloom.red / 3, bloom.green / 3, bloom.blue / 2}, bloom, bulge / 5 + (grain - 26000) / 110);
        return mix(shaded, {255, 226, 214}, within(110 - depth / 14, 0, 100));
    });
    Random random(seed);
    for (int i = 0; i < 900; ++i) {  // single blossoms in the foreground
        const double depth = 1200 + random.between(0, kUnitsHigh - horizon - 1200);
        const double row = random.between(-12, 12);
        const double across = row * 1900 + 950 + random.between(-480, 480);
        const Point at{wide * 55 / 100 + across * (depth + 90) / 4096,
                       horizon + depth - random.between(0, depth / 12)};
        const double turn = random.between(-5000, 5000);
        const Colour lit = mix(bloomOf(row), {255, 240, 255}, random.between(0, 120));
        canvas.ellipse(at, 10 + depth / 70, 16 + depth / 46, turn, lit);
    }
}

}  // namespace

void lavenderRows(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 4700;
    canvas.gradient(
        {{0, {66, 108, 190}}, {2400, {160, 160, 214}}, {4000, {250, 196, 160}}, {kHorizon, {255, 226, 160}}},
        0, kHorizon);
    canvas.glow({wide * 55 / 100, 4250}, 4000, {255, 226, 150}, 210);
    paintClouds(canvas, 300, 4000, {255, 214, 190}, {150, 120, 180}, 34500, 29, 190);
    canvas.disc({wide * 55 / 100, 4250}, 330, {255, 250, 220});
    canvas.below(mountainLine(4760, 1200, 5200, 44, 5), fading({116, 96, 150}, {196, 150, 160}, 900),
                 kHorizon);
    paintRows(canvas, kHorizon, 6);
    for (int i = 0; i < 3; ++i)
        paintLeafTree(canvas, {wide * (14 + i * 7) / 100, 4850}, 1000 + i % 2 * 300, {80, 96, 60},
                      {60, 44, 40}, i + 3);
}

void meadow(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {64, 144, 224}}, {3600, {170, 216, 244}}, {4800, {236, 244, 240}}});
    paintClouds(canvas, 200, 4600, {255, 255, 255}, {186, 208, 232}, 32500, 49);
    canvas.below(mountainLine(5100, 1700, 4600, 75, 5), fading({110, 150, 180}, {176, 206, 196}, 1500));
    canvas.below(hillLine(5300, 700, 11000, 3000), fading({96, 160, 84}, {150, 196, 90}, 900));
    canvas.below(hillLine(5900, 400, 15000, 30000), [](double x, double y, double edge) {
        const double depth = y - edge + 200;
        const double grain = noise(x / (40 + depth / 20), y / (90 + depth / 6), 3, 4);
        return mix({50, 120, 40}, {176, 214, 84}, (grain - 14000) / 130 + 60 - depth / 60);
    });
    Random random(606);
    static constexpr Colour kOuter[] = {
        {232, 50, 50}, {250, 250, 246}, {90, 110, 220}, {250, 200, 50}, {230, 120, 190}};
    static constexpr Colour kEye[] = {
        {40, 20, 30}, {250, 200, 40}, {60, 50, 130}, {180, 110, 20}, {250, 220, 90}};
    for (int i = 0; i < 380; ++i) {
        const double t = i * 3900 / 380;
        const double y = 6100 + t;
        const double size = 34 + t * t / 42000;
        const Point at{random.between(-100, wide + 100), y + random.between(-120, 120)};
        const int kind = random.between(0, 4);
        canvas.stroke(at, {at.x + random.between(-60, 60), at.y + size * 4}, size / 7 + 6, size / 6 + 6,
                      {50, 116, 40});
        paintFlower(canvas, {at, size, 5 + kind % 3 * 3, mix(kOuter[kind], {255, 255, 255}, 60), kOuter[kind],
                             kEye[kind], random.between(0, 65535), 190 + random.between(0, 66)});
    }
}

void sunflower(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {96, 170, 226}}, {5000, {170, 206, 160}}, {kUnitsHigh, {70, 120, 50}}});
    paintBlur(canvas, {{150, 200, 110}, {250, 226, 110}, {120, 180, 220}, {90, 150, 70}}, 40, 18);
    for (int i = 0; i < 5; ++i) {
        const Point at{wide * (8 + i * 22) / 100, 5400.0 + i % 2 * 900};
        canvas.glow(at, 1500, {240, 190, 40}, 170);
        canvas.glow(at, 600, {90, 50, 20}, 190);
    }
    const Point heart{wide * 54 / 100, 4700};
    paintStem(canvas, heart, wide * 50 / 100, 330, {84, 140, 50});
    paintLeaf(canvas, {wide * 51 / 100, 9300}, 3400, kFullTurn - 3500, {86, 150, 52});
    paintLeaf(canvas, {wide * 50 / 100, 9700}, 3300, kHalfTurn + 4500, {70, 132, 46});
    paintFlower(canvas, {heart, 3900, 21, {240, 140, 10}, {255, 206, 40}, {110, 62, 24}, 900, 250});
    canvas.disc(heart, 1040, {84, 46, 20});
    for (int i = 0; i < 620; ++i) {
        const double angle = i * 25034;
        const double reach = 1180 * std::sqrt(i * 10000) / std::sqrt(620 * 10000);
        const Colour seed = mix({60, 34, 16}, {226, 150, 50}, reach * 230 / 1180 + (i % 3) * 14 - 30);
        canvas.disc({heart.x + reach * cosine(angle), heart.y + reach * sine(angle) * 250 / 256}, 38, seed);
    }
}

void daisies(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {130, 190, 120}}, {5000, {80, 150, 80}}, {kUnitsHigh, {34, 84, 44}}});
    paintBlur(canvas, {{190, 226, 130}, {60, 120, 60}, {240, 244, 200}, {110, 176, 100}}, 44, 27);
    struct Place {
        double x, y, radius, turn, flat;
    };
    static constexpr Place kPlaces[] = {{14, 3000, 900, 500, 190},   {84, 2500, 1000, 2500, 200},
                                        {60, 6900, 1250, 1200, 220}, {20, 7200, 1600, 900, 214},
                                        {90, 7400, 1350, 3000, 226}, {46, 3700, 2250, 100, 246}};
    for (const Place& p : kPlaces) {
        const Point at{wide * p.x / 100, p.y};
        paintStem(canvas, at, at.x + (int(p.turn) % 7 - 3) * 130, p.radius / 9, {70, 140, 60});
    }
    for (const Place& p : kPlaces)
        paintFlower(canvas, {{wide * p.x / 100, p.y},
                             p.radius,
                             17,
                             {206, 214, 236},
                             {252, 252, 255},
                             {252, 200, 40},
                             p.turn,
                             p.flat});
}

void pinkCosmos(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {250, 196, 150}}, {4500, {236, 160, 170}}, {kUnitsHigh, {96, 70, 110}}});
    paintBlur(canvas, {{255, 226, 170}, {246, 140, 170}, {140, 100, 160}, {255, 200, 150}}, 42, 63);
    struct Place {
        double x, y, radius, flat;
    };
    static constexpr Place kPlaces[] = {{10, 5200, 800, 150},
                                        {78, 2200, 900, 170},
                                        {88, 6000, 1500, 200},
                                        {24, 3000, 1500, 220},
                                        {58, 5000, 2200, 236}};
    for (const Place& p : kPlaces)
        paintStem(canvas, {wide * p.x / 100, p.y}, wide * p.x / 100 + p.y / 9 - 500, p.radius / 13,
                  {76, 110, 70});
    for (const Place& p : kPlaces) {
        const Colour outer = int(p.x) % 4 == 0 ? Colour{206, 50, 120} : Colour{244, 130, 184};
        paintFlower(
            canvas,
            {{wide * p.x / 100, p.y}, p.radius, 8, {170, 30, 100}, outer, {246, 196, 50}, p.x * 777, p.flat});
    }
}

}  // namespace vantor::samples
