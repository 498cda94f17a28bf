// The list of motifs, the movie's motif and the test card.
#include "samples/Scenes.h"

#include <QtGlobal>
#include <cstring>

#include "samples/Fixed.h"
#include "samples/SceneList.h"
#include "samples/SceneParts.h"

namespace vantor::samples {

const std::vector<Scene>& scenes() {
    static const std::vector<Scene> kScenes = {{"seaSunset", seaSunset},
                                               {"lavenderRows", lavenderRows},
                                               {"alpineLake", alpineLake},
                                               {"sunflower", sunflower},
                                               {"balloons", balloons},
                                               {"blueRidges", blueRidges},
                                               {"palmBeach", palmBeach},
                                               {"starryNight", starryNight},
                                               {"meadow", meadow},
                                               {"citySkyline", citySkyline},
                                               {"rainbowHills", rainbowHills},
                                               {"cherryBranch", cherryBranch},
                                               {"dunes", dunes},
                                               {"aurora", aurora},
                                               {"lighthouse", lighthouse},
                                               {"autumnTrees", autumnTrees},
                                               {"underWater", underWater},
                                               {"winterCabin", winterCabin},
                                               {"tulipRows", tulipRows},
                                               {"lilacBay", lilacBay},
                                               {"daisies", daisies},
                                               {"mistyForest", mistyForest},
                                               {"fireworks", fireworks},
                                               {"pinkRidges", pinkRidges},
                                               {"autumnLake", autumnLake},
                                               {"pinkCosmos", pinkCosmos},
                                               {"moonDesert", moonDesert},
                                               {"cityLights", cityLights}};
    return kScenes;
}

const Scene& sceneNamed(const char* name) {
    for (const Scene& scene : scenes()) {
        if (std::strcmp(scene.name, name) == 0)
            return scene;
    }
    qFatal("There is no motif of the name \"%s\".", name);
}

Picture sunsetAt(int width, int height, int evening, int voyage) {
    Canvas canvas(width, height);
    constexpr std::int64_t kHorizon = 6400;
    const std::int64_t wide = canvas.unitsWide();
    const Colour zenith = mix({70, 130, 200}, {38, 30, 80}, evening);
    const Colour low = mix({255, 226, 170}, {250, 120, 70}, evening);
    canvas.gradient({{0, zenith}, {4000, mix(zenith, low, 120)}, {kHorizon, low}}, 0, kHorizon);
    const Point sun{wide / 3 + wide * evening / 1024, 1800 + 4600 * evening / 255};
    canvas.glow(sun, 4200, {255, 220, 150}, 170);
    canvas.disc(sun, 620, mix({255, 250, 215}, {255, 150, 80}, evening));
    canvas.below(mountainLine(kHorizon, 1300, 4200, 7, 4),
                 fading(mix({90, 120, 150}, {70, 50, 90}, evening), {60, 60, 90}, 1200), kHorizon);
    canvas.mirrorBelow(kHorizon, mix({30, 80, 120}, {30, 24, 60}, evening), 60, 300, 5);
    const Point boat{wide / 5 + wide * voyage / 450, 7300};
    paintSail(canvas, boat, 1900, {250, 244, 232}, {60, 44, 50});
    return canvas.finish();
}

Picture testCard(int width, int height) {
    Canvas canvas(width, height);
    const std::int64_t wide = canvas.unitsWide();
    static constexpr Colour kBars[] = {{235, 235, 235}, {235, 235, 16}, {16, 235, 235}, {16, 235, 16},
                                       {235, 16, 235},  {235, 16, 16},  {16, 16, 235},  {16, 16, 16}};
    canvas.cover(0, kUnitsHigh, [&](std::int64_t x, std::int64_t y, int& alpha) {
        alpha = kOpaque;
        if (y < 6500)
            return kBars[clampTo(x * 8 / wide, 0, 7)];
        const int ramp = static_cast<int>(clampTo(x * 255 / wide, 0, 255));
        if (y < 8000)
            return Colour{ramp, ramp, ramp};
        const int third = static_cast<int>((y - 8000) * 3 / 2001);
        return Colour{third == 0 ? ramp : 0, third == 1 ? ramp : 0, third == 2 ? ramp : 0};
    });
    canvas.ring({wide / 2, 5000}, 3900, 4020, {255, 255, 255}, kOpaque);
    canvas.stroke({wide / 2, 1000}, {wide / 2, 9000}, 40, 40, {255, 255, 255});
    canvas.stroke({wide / 2 - 4000, 5000}, {wide / 2 + 4000, 5000}, 40, 40, {255, 255, 255});
    return canvas.finish();
}

}  // namespace vantor::samples
