// Painting a motif; the movie's motif and the test card.
#include "samples/Scenes.h"

#include "samples/SceneParts.h"

namespace vantor::samples {

QImage painted(Scene* scene, int width, int height) {
    Canvas canvas(width, height);
    scene(canvas);
    return canvas.finish();
}

QImage seenAgain(const QImage& picture, const QColor& light) {
    QImage again = picture.mirrored(true, false);
    QPainter painter(&again);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(again.rect(), light);
    return again;
}

QImage sunsetAt(int width, int height, double evening, double voyage) {
    Canvas canvas(width, height);
    constexpr double kHorizon = 6400;
    const double wide = canvas.wide();
    const double dusk = evening * kOpaque;
    const Colour zenith = mix({70, 130, 200}, {38, 30, 80}, dusk);
    const Colour low = mix({255, 226, 170}, {250, 120, 70}, dusk);
    canvas.gradient({{0, zenith}, {4000, mix(zenith, low, 120)}, {kHorizon, low}}, 0, kHorizon);
    const Point sun{wide / 3 + wide * evening / 4, 1800 + 4600 * evening};
    canvas.glow(sun, 4200, {255, 220, 150}, 170);
    canvas.disc(sun, 620, mix({255, 250, 215}, {255, 150, 80}, dusk));
    canvas.below(mountainLine(kHorizon, 1300, 4200, 7, 4),
                 fading(mix({90, 120, 150}, {70, 50, 90}, dusk), {60, 60, 90}, 1200), kHorizon);
    canvas.mirrorBelow(kHorizon, mix({30, 80, 120}, {30, 24, 60}, dusk), 60, 300, 5);
    paintSail(canvas, {wide / 5 + wide * voyage * 0.57, 7300}, 1900, {250, 244, 232}, {60, 44, 50});
    return canvas.finish();
}

QImage testCard(int width, int height) {
    Canvas canvas(width, height);
    const double wide = canvas.wide();
    static constexpr Colour kBars[] = {{235, 235, 235}, {235, 235, 16}, {16, 235, 235}, {16, 235, 16},
                                       {235, 16, 235},  {235, 16, 16},  {16, 16, 235},  {16, 16, 16}};
    canvas.cover(0, kUnitsHigh, [&](double x, double y, double& alpha) {
        alpha = kOpaque;
        if (y < 6500)
            return kBars[int(x * 8 / wide)];
        const double ramp = x * 255 / wide;
        if (y < 8000)
            return Colour{ramp, ramp, ramp};
        const int third = int((y - 8000) * 3 / 2001);
        return Colour{third == 0 ? ramp : 0, third == 1 ? ramp : 0, third == 2 ? ramp : 0};
    });
    canvas.ring({wide / 2, 5000}, 3900, 4020, {255, 255, 255}, kOpaque);
    canvas.stroke({wide / 2, 1000}, {wide / 2, 9000}, 40, 40, {255, 255, 255});
    canvas.stroke({wide / 2 - 4000, 5000}, {wide / 2 + 4000, 5000}, 40, 40, {255, 255, 255});
    return canvas.finish();
}

}  // namespace vantor::samples
