// Motifs with water.
#include <algorithm>
#include <cmath>

#include "samples/SceneParts.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

// Snow above a line that runs with the noise, rock below it.
Canvas::Shade snowyRock(Colour rock, Colour shadow, double snowDepth, int seed) {
    return [=](double x, double y, double edge) {
        const double grain = noise(x / 700, y / 900, seed, 5);
        const double slope = noise((x + y / 2) / 900, y / 1900, seed + 9, 4);
        const Colour stone = mix(shadow, rock, (slope - 22000) / 70);
        const double line = edge + snowDepth * grain / 40000;
        const Colour snow = mix({170, 190, 222}, {252, 253, 255}, (slope - 24000) / 60);
        return mix(snow, stone, (y - line) / 2);
    };
}

}  // namespace

void seaSunset(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 5900;
    canvas.gradient({{0, {44, 38, 92}},
                     {2000, {120, 60, 120}},
                     {3800, {226, 96, 90}},
                     {5100, {252, 160, 84}},
                     {kHorizon, {255, 214, 130}}},
                    0, kHorizon);
    const Point sun{wide * 62 / 100, 5250};
    canvas.glow(sun, 5200, {255, 210, 120}, 190);
    paintClouds(canvas, 600, 5200, {255, 186, 130}, {120, 60, 110}, 34000, 31, 190);
    canvas.glow(sun, 1800, {255, 240, 190}, 220);
    canvas.disc(sun, 520, {255, 248, 214});
    canvas.below(mountainLine(kHorizon + 150, 1500, 3900, 12, 5), fading({92, 50, 92}, {150, 76, 92}, 900),
                 kHorizon);
    canvas.mirrorBelow(kHorizon, {50, 30, 74}, 40, 420, 8);
    paintSail(canvas, {wide * 30 / 100, 7000}, 2500, {74, 38, 62}, {36, 20, 40});
    paintSail(canvas, {wide * 78 / 100, 6150}, 700, {96, 50, 70}, {60, 32, 56});
}

void lilacBay(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 5200;
    canvas.gradient(
        {{0, {104, 132, 196}}, {2600, {190, 170, 214}}, {4300, {250, 198, 200}}, {kHorizon, {255, 226, 204}}},
        0, kHorizon);
    paintClouds(canvas, 200, 4400, {255, 232, 226}, {178, 150, 196}, 33000, 55, 200);
    canvas.disc({wide * 24 / 100, 3500}, 380, {255, 244, 226}, 240);
    canvas.glow({wide * 24 / 100, 3500}, 2000, {255, 236, 220}, 150);
    canvas.below(mountainLine(kHorizon + 100, 2200, 4600, 91, 5),
                 fading({146, 132, 182}, {212, 182, 204}, 1500), kHorizon);
    canvas.below(mountainLine(kHorizon + 320, 1300, 2600, 17, 5), fading({96, 88, 150}, {160, 134, 182}, 900),
                 kHorizon);
    canvas.mirrorBelow(kHorizon, {96, 96, 160}, 30, 330, 3);
    // Stones on the shore.
    Random random(77);
    for (int i = 0; i < 90; ++i) {
        const double y = 9000 + random.between(0, 1100);
        const double size = 120 + (y - 9000) / 5 + random.between(0, 160);
        const Point at{random.between(-200, wide + 200), y};
        const Colour stone = mix({78, 72, 96}, {156, 146, 170}, random.between(0, 256));
        canvas.ellipse({at.x + 20, at.y + size / 5}, size, size / 2, 0, {46, 42, 70}, 200);
        canvas.ellipse(at, size, size / 2, random.between(-1500, 1500), stone);
        canvas.ellipse({at.x - size / 5, at.y - size / 6}, size * 3 / 5, size / 5, 0,
                       mix(stone, {255, 236, 230}, 110), 150);
    }
}

void alpineLake(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 6200;
    canvas.gradient({{0, {38, 104, 190}}, {4000, {148, 200, 238}}, {kHorizon, {222, 236, 244}}}, 0, kHorizon);
    paintClouds(canvas, 200, 3800, {255, 255, 255}, {190, 210, 234}, 36000, 3);
    canvas.below(mountainLine(6900, 6600, 4200, 240, 6), snowyRock({138, 132, 140}, {62, 70, 96}, 1900, 5),
                 kHorizon);
    canvas.below(mountainLine(6700, 2600, 3000, 33, 5), fading({52, 84, 96}, {70, 110, 100}, 1200), kHorizon);
    Random random(12);
    for (int i = 0; i < 120; ++i) {
        const double x = wide * i / 118 + random.between(-90, 90);
        paintFir(canvas, {x, kHorizon + 30}, 460 + random.between(0, 520), {18, 50, 44}, {44, 92, 64});
    }
    canvas.mirrorBelow(kHorizon, {20, 92, 120}, 50, 170, 14);
    canvas.below(
        [&](double x) {
            return 9900 - 900 * (x < wide / 2 ? (wide / 2 - x) : 0) / (wide / 2) +
                   noise(x / 300, 0, 2, 3) / 240;
        },
        [](double x, double y, double) {
            const double grain = noise(x / 90, y / 220, 6, 3);
            return mix({44, 84, 40}, {132, 164, 74}, (grain - 18000) / 110);
        });
}

void autumnLake(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 5600;
    canvas.gradient({{0, {120, 160, 206}}, {3600, {206, 216, 224}}, {kHorizon, {250, 234, 206}}}, 0,
                    kHorizon);
    paintClouds(canvas, 0, 4200, {255, 252, 244}, {186, 190, 208}, 33000, 88, 180);
    canvas.below(mountainLine(5400, 2700, 5200, 61, 5), fading({122, 132, 160}, {196, 186, 180}, 1900),
                 kHorizon);
    canvas.below(mountainLine(5700, 1500, 2600, 47, 5), fading({124, 96, 70}, {170, 130, 84}, 1000),
                 kHorizon);
    Random random(91);
    static constexpr Colour kCrowns[] = {
        {226, 120, 30}, {206, 70, 34}, {240, 180, 50}, {150, 130, 50}, {180, 50, 40}};
    for (int i = 0; i < 26; ++i) {
        const double x = wide * i / 25 + random.between(-160, 160);
        paintLeafTree(canvas, {x, kHorizon + 60}, 1150 + random.between(0, 700), kCrowns[i * 3 % 5],
                      {70, 48, 38}, i + 5);
    }
    canvas.mirrorBelow(kHorizon, {64, 70, 90}, 40, 260, 70);
    for (int i = 0; i < 60; ++i) {
        const double y = 7200 + random.between(0, 2700);
        const Point at{random.between(0, wide), y};
        canvas.ellipse(at, 40 + (y - 7200) / 40, 20 + (y - 7200) / 110, random.between(-3000, 3000),
                       kCrowns[i % 5]);
    }
}

}  // namespace vantor::samples
