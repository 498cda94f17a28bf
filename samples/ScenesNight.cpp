// Motifs of the dark hours.
#include <algorithm>
#include <cmath>

#include "samples/SceneParts.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

void paintMilkyWay(Canvas& canvas, double to) {
    const double wide = canvas.wide();
    canvas.cover(0, to, [=](double x, double y, double& alpha) {
        const double along = x * 6000 / wide + 600;
        const double off = y - (7200 - along) + 500;
        const double dust = noise(x / 1500, y / 1500, 1, 5);
        const double band = within(256 - off * off / 12000, 0, 256);
        alpha = within(band * (dust - 15000) / 50000, 0, 150);
        return mix({120, 110, 190}, {250, 226, 216}, (dust - 24000) / 90);
    });
}

void paintBurst(Canvas& canvas, Point centre, double radius, Colour colour, int seed) {
    Random random(seed);
    canvas.glow(centre, radius * 3 / 2, colour, 110);
    constexpr int kRays = 64;
    for (int ray = 0; ray < kRays; ++ray) {
        const double angle = ray * kFullTurn / kRays + random.between(-300, 300);
        const double reach = radius * random.between(55, 100) / 100;
        Point last = centre;
        for (int i = 1; i <= 12; ++i) {
            const double along = reach * i / 12;
            const Point next{centre.x + along * cosine(angle),
                             centre.y + along * sine(angle) + radius * i * i / 900};
            if (i > 3)
                canvas.stroke(last, next, radius / 90 + 6, radius / 90 + 6,
                              mix(colour, {255, 255, 255}, i * 14), 60 + i * 15);
            last = next;
        }
        canvas.disc(last, radius / 50 + 8, mix(colour, {255, 255, 255}, 190));
        canvas.glow(last, radius / 9, colour, 150);
    }
}

void paintTowers(Canvas& canvas, double ground, int count, double tallest, Colour body, int litShare,
                 int seed) {
    Random random(seed);
    const double wide = canvas.wide();
    for (int i = 0; i < count; ++i) {
        const double half = 180 + random.between(0, 330);
        const double x = wide * i / (count - 1) + random.between(-150, 150);
        const double toMiddle = x > wide / 2 ? x - wide / 2 : wide / 2 - x;
        const double height = (tallest * random.between(40, 100) / 100) * (wide - toMiddle) / wide;
        const double top = ground - height;
        canvas.polygon({{x - half, ground}, {x - half, top}, {x + half, top}, {x + half, ground}},
                       {top, mix(body, {120, 110, 170}, 50)}, {ground, body});
        if (i % 4 == 1)
            canvas.stroke({x, top}, {x, top - height / 5}, 36, 12, body);
        if (i % 4 == 3)
            canvas.polygon({{x - half, top}, {x, top - half}, {x + half, top}}, body);
        for (double y = top + 130; y < ground - 100; y += 170) {
            for (double wx = x - half + 70; wx < x + half - 80; wx += 120) {
                if (random.between(0, 99) >= litShare)
                    continue;
                const bool isCold = random.between(0, 4) == 0;
                const Colour light = isCold ? Colour{190, 220, 255} : Colour{255, 216, 140};
                canvas.box(wx, y, wx + 66, y + 92, light, random.between(150, 256));
            }
        }
    }
}

}  // namespace

void starryNight(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {6, 10, 34}}, {4500, {22, 34, 84}}, {7600, {80, 76, 130}}});
    paintMilkyWay(canvas, 7800);
    paintStars(canvas, 1500, 7600, 42);
    canvas.below(mountainLine(8300, 2400, 4300, 7, 6), fading({34, 36, 76}, {52, 52, 98}, 1500));
    canvas.below(hillLine(8900, 700, 10000, 8000), fading({14, 18, 44}, {8, 10, 28}, 1200));
    Random random(4);
    for (int i = 0; i < 40; ++i) {
        const double x = random.between(0, wide);
        paintFir(canvas, {x, hillLine(8900, 700, 10000, 8000)(x) + 160}, 500 + random.between(0, 800),
                 {6, 8, 24}, {14, 18, 40});
    }
    // A lit tent.
    const double x = wide * 66 / 100;
    canvas.glow({x, 9300}, 1700, {255, 190, 90}, 150);
    canvas.polygon({{x - 620, 9500}, {x, 8700}, {x + 620, 9500}}, {8700, {255, 214, 120}},
                   {9500, {236, 130, 50}});
    canvas.polygon({{x - 60, 9500}, {x, 8760}, {x + 150, 9500}}, {140, 70, 40});
}

void aurora(Canvas& canvas) {
    const double wide = canvas.wide();
    canvas.gradient({{0, {6, 12, 40}}, {6200, {16, 50, 80}}});
    paintStars(canvas, 500, 6000, 17);
    for (int curtain = 0; curtain < 3; ++curtain) {
        const auto seed = curtain + 60;
        canvas.cover(0, 6300, [=](double x, double y, double& alpha) {
            const double foot = 5200 - curtain * 1100 + 700 * sine(x * kFullTurn / 11000 + curtain * 21000) +
                                noise(x / 1700, 0, seed, 3) / 60;
            const double above = foot - y;
            const double ray = noise(x / 260, 0, seed + 5, 3);
            const double reach = 1500 + ray / 24;
            if (above < -260 || above > reach)
                return Colour{0, 0, 0};
            const double fall = above < 0 ? 256 + above : 256 - above * 256 / reach;
            alpha = within(fall * fall / 256 * (ray / 300 + 60) / 256, 0, 215);
            return mix({90, 255, 160}, {170, 80, 220}, above * 300 / reach);
        });
    }
    constexpr double kShore = 6600;
    canvas.below(mountainLine(kShore + 200, 1700, 4200, 3, 6), fading({24, 44, 66}, {14, 26, 46}, 900),
                 kShore);
    Random random(7);
    for (int i = 0; i < 80; ++i) {
        const Point foot{wide * i / 78 + random.between(-80, 80), kShore + 40};
        paintFir(canvas, foot, 360 + random.between(0, 560), {4, 12, 22}, {10, 26, 34});
    }
    canvas.mirrorBelow(kShore, {4, 14, 34}, 60, 260, 12);
}

void citySkyline(Canvas& canvas) {
    constexpr double kShore = 7000;
    canvas.gradient(
        {{0, {24, 26, 74}}, {3200, {90, 60, 120}}, {5400, {230, 120, 110}}, {kShore, {255, 190, 120}}}, 0,
        kShore);
    paintClouds(canvas, 500, 5200, {250, 150, 130}, {70, 50, 110}, 34500, 44, 170);
    paintTowers(canvas, kShore, 22, 3300, {90, 66, 112}, 14, 5);
    paintTowers(canvas, kShore, 17, 4900, {44, 38, 78}, 34, 11);
    paintTowers(canvas, kShore, 20, 2400, {22, 22, 50}, 50, 19);
    canvas.mirrorBelow(kShore, {20, 20, 56}, 60, 330, 2);
}

void fireworks(Canvas& canvas) {
    const double wide = canvas.wide();
    constexpr double kShore = 7600;
    canvas.gradient({{0, {6, 8, 30}}, {kShore, {34, 30, 74}}}, 0, kShore);
    paintStars(canvas, 160, 5000, 3);
    paintBurst(canvas, {wide * 28 / 100, 2900}, 2100, {255, 120, 90}, 1);
    paintBurst(canvas, {wide * 66 / 100, 2200}, 1800, {110, 190, 255}, 2);
    paintBurst(canvas, {wide * 50 / 100, 4700}, 1400, {255, 214, 100}, 3);
    paintBurst(canvas, {wide * 86 / 100, 4300}, 1300, {190, 120, 255}, 4);
    paintBurst(canvas, {wide * 10 / 100, 4900}, 1000, {120, 255, 170}, 5);
    paintTowers(canvas, kShore, 26, 1300, {14, 14, 36}, 40, 23);
    canvas.mirrorBelow(kShore, {8, 10, 34}, 50, 380, 6);
}

}  // namespace vantor::samples
