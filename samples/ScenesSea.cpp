// Motifs with water.
#include <algorithm>
#include <cmath>

#include "samples/SceneParts.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

void paintPalm(Canvas& canvas, Point foot, double height, double lean, Colour leaf, Colour trunk) {
    Point last = foot;
    constexpr int kParts = 14;
    for (int i = 1; i <= kParts; ++i) {
        const Point next{foot.x + lean * i * i / (kParts * kParts), foot.y - height * i / kParts};
        canvas.stroke(last, next, height / 22 - i * height / 900, height / 24 - i * height / 900,
                      mix(trunk, {30, 20, 12}, i % 2 * 60));
        last = next;
    }
    for (int frond = 0; frond < 11; ++frond) {
        const double angle = kHalfTurn + kHalfTurn * (frond * 14 - 20) / 120;
        const double reach = height * 46 / 100;
        Point before = last;
        for (int i = 1; i <= 18; ++i) {
            const double along = reach * i / 18;
            const Point next{last.x + along * cosine(angle),
                             last.y + along * sine(angle) + reach * i * i / (18 * 18) * 75 / 100};
            canvas.stroke(before, next, height / 90, height / 120, mix(leaf, {10, 40, 20}, 110));
            const double drop = reach * (20 - i) / 70;
            canvas.stroke(before, {next.x - drop / 3, next.y + drop}, height / 70, height / 300,
                          mix(leaf, {200, 220, 90}, frond * 9));
            canvas.stroke(before, {next.x + drop / 3, next.y + drop * 3 / 4}, height / 70, height / 300,
                          mix(leaf, {20, 60, 30}, i * 6));
            before = next;
        }
    }
}

void paintFish(Canvas& canvas, Point at, double length, Colour body, Colour stripe, int facing) {
    const auto x = [&](double along) { return at.x + along * facing; };
    canvas.polygon({{x(-length * 4 / 10), at.y},
                    {x(-length * 7 / 10), at.y - length / 4},
                    {x(-length * 6 / 10), at.y},
                    {x(-length * 7 / 10), at.y + length / 4}},
                   mix(body, stripe, 90));
    canvas.polygon({{x(-length / 6), at.y - length / 5},
                    {x(0), at.y - length * 2 / 5},
                    {x(length / 5), at.y - length / 5}},
                   mix(body, stripe, 120));
    canvas.ellipse(at, length / 2, length / 4, 0, body);
    canvas.ellipse({x(-length / 20), at.y}, length / 22, length * 24 / 100, 0, stripe);
    canvas.ellipse({x(length / 5), at.y}, length / 28, length * 21 / 100, 0, stripe);
    canvas.disc({x(length * 35 / 100), at.y - length / 18}, length / 22, {255, 255, 255});
    canvas.disc({x(length * 36 / 100), at.y - length / 18}, length / 40, {10, 10, 20});
}

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
    for (int i = 0; i < 6; ++i)
        paintBird(canvas, {wide * (38 + i * 5) / 100, 1900.0 + i * 577 % 900}, 330 - i * 26, {50, 28, 56});
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

void palmBeach(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 4700;
    canvas.gradient({{0, {34, 116, 206}}, {3000, {112, 190, 238}}, {kHorizon, {206, 238, 248}}}, 0, kHorizon);
    paintClouds(canvas, 900, 4700, {255, 255, 255}, {184, 212, 236}, 33500, 71);
    canvas.gradient({{kHorizon, {16, 110, 170}},
                     {5600, {20, 164, 190}},
                     {6900, {96, 216, 210}},
                     {kUnitsHigh, {190, 240, 226}}},
                    kHorizon);
    canvas.cover(kHorizon, 8200, [&](double x, double y, double& alpha) {
        const double depth = y - kHorizon + 150;
        const double wave = noise(x / (300 + depth), depth * 65536 * 6 / (300 + depth), 4, 3);
        alpha = within((wave - 38000) / 90, 0, 120);
        return Colour{226, 250, 250};
    });
    canvas.below(mountainLine(kHorizon + 30, 700, 3000, 5, 4), fading({70, 140, 130}, {110, 176, 170}, 500),
                 kHorizon);
    const auto shore = [&](double x) {
        return 8500 - x * 1500 / wide + 260 * sine(x * kFullTurn / 9000 + 9000);
    };
    canvas.below([&](double x) { return shore(x) - 160; },
                 [](double, double, double) {
                     return Colour{244, 252, 250};
                 });
    canvas.below(shore, [](double x, double y, double edge) {
        const double grain = noise(x / 260, y / 120, 19, 4);
        const Colour wet = mix({206, 178, 132}, {250, 228, 182}, (y - edge) * 256 / 700);
        return mix(wet, {190, 160, 118}, within((grain - 32768) / 200, 0, 100));
    });
    canvas.ellipse({wide * 86 / 100, 9450}, 1500, 200, 0, {150, 120, 86}, 120);
    paintPalm(canvas, {wide * 88 / 100, 9400}, 7000, -2600, {40, 128, 62}, {134, 100, 68});
    paintPalm(canvas, {wide * 95 / 100, 9700}, 5600, 900, {34, 116, 58}, {120, 90, 62});
    paintSail(canvas, {wide * 26 / 100, 5350}, 1100, {255, 252, 246}, {210, 70, 60});
}

void lighthouse(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kHorizon = 6700;
    canvas.gradient({{0, {60, 128, 196}}, {3600, {150, 200, 230}}, {kHorizon, {240, 236, 216}}}, 0, kHorizon);
    paintClouds(canvas, 0, 5600, {255, 255, 252}, {170, 192, 216}, 31000, 23);
    canvas.mirrorBelow(kHorizon, {24, 84, 128}, 110, 240, 41);
    canvas.below(
        [&](double x) {
            return 7000 + (wide - x) * (wide - x) * 2900 / (wide * wide / 2) - 700 +
                   noise(x / 800, 0, 3, 4) / 90;
        },
        [](double x, double y, double edge) {
            const double grain = noise(x / 300, y / 200, 66, 4);
            const Colour grass = mix({70, 122, 54}, {136, 168, 74}, (grain - 20000) / 90);
            const Colour rock = mix({88, 78, 72}, {168, 152, 136}, (grain - 18000) / 100);
            return mix(grass, rock, (y - edge - 420) / 2);
        });
    const double x = wide * 74 / 100;
    constexpr double kFoot = 6900;
    for (int stripe = 0; stripe < 6; ++stripe) {
        const double top = kFoot - 4300 * (stripe + 1) / 6;
        const double bottom = kFoot - 4300 * stripe / 6;
        const auto half = [](double y) { return 360 + (y - 2600) * 240 / 4300; };
        const Colour paint = stripe % 2 == 0 ? Colour{206, 52, 46} : Colour{248, 246, 240};
        for (int slice = -6; slice < 6; ++slice) {
            const Colour lit = mix(paint, {60, 50, 80}, within((slice + 4) * 18, 0, 150));
            canvas.polygon({{x + half(top) * slice / 6, top},
                            {x + half(top) * (slice + 1) / 6 + 8, top},
                            {x + half(bottom) * (slice + 1) / 6 + 8, bottom},
                            {x + half(bottom) * slice / 6, bottom}},
                           lit);
        }
    }
    canvas.polygon({{x - 480, 2620}, {x + 480, 2620}, {x + 420, 2500}, {x - 420, 2500}}, {60, 60, 72});
    canvas.polygon({{x - 260, 2500}, {x + 260, 2500}, {x + 260, 1960}, {x - 260, 1960}}, {255, 236, 160});
    canvas.stroke({x - 90, 2500}, {x - 90, 1960}, 26, 26, {70, 70, 80});
    canvas.stroke({x + 110, 2500}, {x + 110, 1960}, 26, 26, {70, 70, 80});
    canvas.polygon({{x - 340, 1980}, {x, 1560}, {x + 340, 1980}}, {196, 48, 44});
    canvas.glow({x, 2230}, 1500, {255, 246, 200}, 150);
    for (int i = 0; i < 7; ++i)
        paintBird(canvas, {wide * (12 + i * 7) / 100, 2500.0 + i * 733 % 1500}, 420 - i * 30,
                  {250, 250, 252});
}

void underWater(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient(
        {{0, {110, 224, 230}}, {3000, {26, 150, 196}}, {7500, {10, 74, 140}}, {kUnitsHigh, {8, 44, 96}}});
    for (int ray = 0; ray < 9; ++ray) {
        const double x = wide * (6 + ray * 12) / 100;
        canvas.polygon(
            {{x, -100}, {x + 380 + ray % 3 * 180, -100}, {x - 1400 + ray % 4 * 220, 9000}, {x - 2400, 9000}},
            {0, {220, 255, 250}}, {8000, {20, 120, 170}}, 34);
    }
    canvas.below(mountainLine(9300, 900, 1800, 15, 5), [](double x, double y, double) {
        const double grain = noise(x / 300, y / 120, 8, 4);
        return mix({60, 96, 120}, {196, 190, 150}, (grain - 16000) / 140);
    });
    Random random(404);
    for (int coral = 0; coral < 16; ++coral) {
        const double x = wide * coral / 15 + random.between(-300, 300);
        const Colour colour = coral % 3 == 0   ? Colour{236, 96, 110}
                              : coral % 3 == 1 ? Colour{250, 160, 70}
                                               : Colour{176, 96, 190};
        for (int branch = 0; branch < 9; ++branch) {
            const double angle = kHalfTurn + kHalfTurn * (20 + branch * 17) / 180;
            const double reach = 700 + random.between(0, 900);
            canvas.stroke({x, 9500}, {x + reach * cosine(angle), 9500 + reach * sine(angle)}, 150, 60,
                          mix(colour, {255, 220, 200}, branch * 12));
        }
    }
    for (int i = 0; i < 15; ++i) {
        const Point at{random.between(400, wide - 400), 1200.0 + i * 460};
        const Colour body = i % 3 == 0   ? Colour{255, 176, 40}
                            : i % 3 == 1 ? Colour{250, 236, 90}
                                         : Colour{255, 120, 70};
        paintFish(canvas, at, 520 + i * 42, body, i % 3 == 1 ? Colour{40, 60, 140} : Colour{250, 250, 250},
                  i % 4 == 0 ? -1 : 1);
    }
    for (int i = 0; i < 40; ++i) {
        const Point at{wide * 20 / 100 + random.between(-300, 300), random.between(300, 8600)};
        canvas.ring(at, 40 + i, 52 + i, {220, 250, 255}, 150);
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
