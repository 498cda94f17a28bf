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
    canvas.gradient({{0, colours.sky}, {5200, colours.horizon}, {kUnitsHigh, colours.horizon}});
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
    canvas.polygon({{centre.x - radius / 7, basket},
                    {centre.x + radius / 7, basket},
                    {centre.x + radius / 9, basket + radius / 5},
                    {centre.x - radius / 9, basket + radius / 5}},
                   {124, 84, 50});
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

void dunes(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {42, 110, 184}},
                     {3600, {150, 196, 224}},
                     {5200, {250, 226, 190}},
                     {kUnitsHigh, {250, 226, 190}}});
    canvas.glow({wide * 18 / 100, 1500}, 3000, {255, 248, 222}, 190);
    canvas.disc({wide * 18 / 100, 1500}, 420, {255, 252, 238});
    for (int layer = 0; layer < 5; ++layer) {
        const double base = 5000 + layer * 1150;
        const double phase = layer * 23000 + 4000;
        const double length = 15000 - layer * 900;
        const auto crest = [=](double x) {
            return base - 900 * sine(x * kFullTurn / length + phase) -
                   260 * sine(x * 3 * kFullTurn / length + phase);
        };
        const Colour lit = mix({250, 206, 150}, {240, 160, 84}, layer * 60);
        const Colour shade = mix({206, 140, 110}, {124, 62, 44}, layer * 60);
        canvas.below(crest, [=](double x, double y, double edge) {
            // The wind-blown side turns from light to shade along a line that falls away from the crest.
            const double slope = (crest(x + 60) - crest(x - 60)) * 3 + (y - edge) / 9;
            const double ripple = 22 * sine((y * 5 + 160 * sine(x * 19) + x / 3) * 110);
            return mix(lit, shade, 110 + slope + ripple * (layer + 1) / 4);
        });
    }
    for (int i = 0; i < 5; ++i) {  // a caravan on the far crest
        const double x = wide * 52 / 100 + i * 430;
        const double y =
            6150 - 900 * sine(x * kFullTurn / 14100 + 27000) - 260 * sine(x * 3 * kFullTurn / 14100 + 27000);
        const Colour dark{70, 36, 30};
        canvas.ellipse({x, y - 190}, 130, 70, 0, dark);
        canvas.ellipse({x - 10, y - 260}, 50, 50, 0, dark);
        canvas.stroke({x + 110, y - 200}, {x + 170, y - 300}, 36, 26, dark);
        canvas.stroke({x + 160, y - 300}, {x + 215, y - 285}, 40, 26, dark);
        for (const double leg : {-95, -60, 60, 95})
            canvas.stroke({x + leg, y - 160}, {x + leg, y + 10}, 26, 18, dark);
    }
}

void rainbowHills(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {86, 110, 140}},
                     {3800, {164, 186, 202}},
                     {6200, {224, 232, 226}},
                     {kUnitsHigh, {224, 232, 226}}});
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
    for (int i = 0; i < 11; ++i) {  // sheep
        const double x = wide * (8 + i * 8) / 100;
        const double y = hillLine(9000, 1100, 14000, 20000)(x) + 260 + (i * 397) % 620;
        for (const double leg : {-70, 60})
            canvas.stroke({x + leg, y}, {x + leg, y + 130}, 28, 24, {50, 44, 44});
        canvas.ellipse({x, y}, 150, 95, 0, {214, 210, 204});
        canvas.ellipse({x - 10, y - 16}, 140, 80, 0, {248, 246, 240});
        canvas.ellipse({x + 150, y - 30}, 55, 45, 0, {56, 48, 48});
    }
}

void balloons(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {70, 140, 210}},
                     {4600, {180, 212, 232}},
                     {7200, {255, 226, 190}},
                     {kUnitsHigh, {255, 226, 190}}});
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

void autumnTrees(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {150, 184, 210}}, {5000, {244, 232, 206}}, {kUnitsHigh, {250, 226, 180}}});
    canvas.glow({wide / 2, 5200}, 5000, {255, 236, 180}, 210);
    Random random(1234);
    static constexpr Colour kCrowns[] = {{236, 140, 34}, {214, 80, 36}, {246, 196, 60}, {196, 54, 40}};
    canvas.below(hillLine(6500, 300, 9000, 0), fading({206, 160, 90}, {186, 120, 60}, 3000));
    for (int row = 0; row < 3; ++row) {
        for (int i = 0; i < 10 - row * 2; ++i) {
            double x = wide * (2 * i + row % 2) / (18 - row * 4) + random.between(-200, 200);
            // Nearer rows leave the path open.
            if (row > 0 && x > wide * 40 / 100 && x < wide * 60 / 100)
                x += x < wide / 2 ? -wide / 9 : wide / 9;
            const Colour crown = mix(kCrowns[(i + row) % 4], {250, 226, 190}, 110 - row * 50);
            paintLeafTree(canvas, {x, 6800.0 + row * 900}, 3000 + row * 1500 + random.between(0, 600), crown,
                          mix({60, 40, 34}, {200, 170, 140}, 90 - row * 40), row * 20 + i);
        }
    }
    canvas.polygon({{wide * 49 / 100, 6650},
                    {wide * 51 / 100, 6650},
                    {wide * 66 / 100, 10100},
                    {wide * 30 / 100, 10100}},
                   {6650, {240, 214, 170}}, {10000, {150, 110, 80}}, 230);
    for (int i = 0; i < 700; ++i) {
        const double y = 7100 + std::sqrt(random.between(0, 10000) * 840);
        const double size = 16 + (y - 7000) / 55;
        const Point at{random.between(0, wide), y};
        const int turn = random.between(0, 65535);
        const Colour leaf = mix(kCrowns[i % 4], {90, 40, 20}, random.between(0, 130));
        canvas.ellipse(at, size, size * 3 / 5, turn, leaf);
    }
    for (int i = 0; i < 60; ++i) {
        const Point at{random.between(0, wide), random.between(2500, 8500)};
        canvas.ellipse(at, 46, 28, random.between(0, 65535), kCrowns[i % 4]);
    }
}

void winterCabin(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient(
        {{0, {26, 36, 84}}, {3600, {84, 90, 150}}, {6400, {230, 170, 170}}, {kUnitsHigh, {230, 170, 170}}});
    paintStars(canvas, 150, 3400, 8);
    canvas.below(mountainLine(7000, 3200, 4200, 19, 6), fading({198, 190, 220}, {130, 124, 176}, 1900));
    Random random(33);
    for (int i = 0; i < 54; ++i) {
        const Point foot{wide * i / 52 + random.between(-80, 80), 7200};
        paintFir(canvas, foot, 900 + random.between(0, 900), {30, 44, 76}, {120, 140, 180});
    }
    canvas.below(hillLine(7100, 500, 16000, 12000), [](double x, double y, double edge) {
        const double drift = noise(x / 2600, y / 700, 5, 4);
        const Colour snow = mix({150, 160, 210}, {240, 240, 252}, (drift - 14000) / 120);
        return mix(snow, {120, 130, 190}, within((y - edge) / 24, 0, 110));
    });
    const double x = wide * 36 / 100;
    canvas.glow({x + 500, 7500}, 2300, {255, 200, 110}, 130);
    canvas.polygon({{x - 900, 6300}, {x + 1100, 6300}, {x + 1100, 7700}, {x - 900, 7700}}, {92, 58, 44});
    for (int log = 0; log < 6; ++log)
        canvas.stroke({x - 900, 6430.0 + log * 230}, {x + 1100, 6430.0 + log * 230}, 36, 36, {66, 40, 34});
    canvas.polygon({{x - 1250, 6400}, {x - 300, 5300}, {x + 500, 5300}, {x + 1450, 6400}}, {236, 238, 252});
    canvas.polygon({{x - 1250, 6400}, {x + 1450, 6400}, {x + 1400, 6520}, {x - 1200, 6520}}, {176, 182, 220});
    canvas.polygon({{x + 560, 5050}, {x + 820, 5050}, {x + 820, 5700}, {x + 560, 5450}}, {110, 70, 60});
    for (int puff = 0; puff < 12; ++puff)
        canvas.disc({x + 690 + puff * puff * 7, 4950.0 - puff * 190}, 110 + puff * 32, {220, 214, 230},
                    80 - puff * 5);
    for (const double window : {-560, 620}) {
        canvas.polygon({{x + window - 200, 6750},
                        {x + window + 200, 6750},
                        {x + window + 200, 7200},
                        {x + window - 200, 7200}},
                       {255, 214, 120});
        canvas.stroke({x + window, 6750}, {x + window, 7200}, 30, 30, {70, 44, 36});
        canvas.stroke({x + window - 200, 6970}, {x + window + 200, 6970}, 30, 30, {70, 44, 36});
    }
    canvas.polygon({{x - 160, 6800}, {x + 220, 6800}, {x + 220, 7700}, {x - 160, 7700}}, {60, 36, 34});
    for (const int place : {4, 70, 82, 96})
        paintFir(canvas, {wide * place / 100, 8700.0 + place % 7 * 120}, 3600 + place % 5 * 300, {22, 40, 66},
                 {196, 208, 236});
    for (int i = 0; i < 240; ++i) {
        const Point at{random.between(0, wide), random.between(0, 10000)};
        canvas.disc(at, random.between(10, 34), {255, 255, 255}, 190);
    }
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
