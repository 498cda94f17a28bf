// One picture of each kind that is not a camera's JPEG.
#include "samples/CardContents.h"
#include "samples/PictureWriters.h"
#include "samples/Scenes.h"

namespace vantor::samples {

void addPictures(std::vector<CardFile>& files) {
    const auto paint = [](const char* scene, int width, int height) {
        return sceneNamed(scene).paint(width, height);
    };
    const auto add = [&files](const char* name, const QByteArray& bytes, Gap gap = Gap::None,
                              std::int64_t clusters = 0) {
        files.push_back(
            {QStringLiteral("PICTURES"), QString::fromLatin1(name), bytes, gap, clusters, Pieces::One});
    };
    std::vector<Picture> sunset;
    for (int i = 0; i < 12; ++i)
        sunset.push_back(sunsetAt(240, 180, i * 255 / 11, i * 255 / 11));

    add("TESTCARD.PNG", pngFile(testCard(800, 600)), Gap::Zeros, 4);
    add("BALLOONS.PNG", pngFile(paint("balloons", 640, 480)));
    add("LAVENDER.BMP", bmpFile(paint("lavenderRows", 640, 480)));
    add("MEADOW.BMP", bmpFile(paint("meadow", 321, 240)), Gap::Noise, 3);
    add("SUNSET.GIF", gifFile(sunset, 12));
    add("CHERRY.GIF", gifFile({paint("cherryBranch", 480, 360)}, 0));
    add("LAKE.TIF", tiffFile(paint("alpineLake", 640, 480)));
    add("AURORA.TIFF", bigEndianTiffFile(paint("aurora", 480, 360)));
    add("DUNES.DNG", dngFile(paint("dunes", 640, 480)), Gap::Zeros, 2);
    add("BEACH.PPM", ppmFile(paint("palmBeach", 400, 300)));
    add("FOREST.PGM", pgmFile(paint("mistyForest", 400, 300)));
    add("DAISIES.TGA", tgaFile(paint("daisies", 320, 240)));
    add("FISHES.PCX", pcxFile(paint("underWater", 320, 240)));
    add("TULIPS.SGI", sgiFile(paint("tulipRows", 320, 240)));
    add("COSMOS.PSD", psdFile(paint("pinkCosmos", 400, 300)));
    add("FLOWER.ICO", icoFile({scaledDown(paint("sunflower", 256, 256), 64, 64),
                               scaledDown(paint("sunflower", 256, 256), 32, 32)}));
    add("CABIN.XPM", xpmFile(paint("winterCabin", 160, 120)));
    add("SAIL.WEBP", webpFile(sunsetAt(400, 300, 190, 128)));
    add("RIDGES.QOI", qoiFile(paint("pinkRidges", 400, 300)));
    add("CITY.MPO", mpoFile(paint("citySkyline", 640, 480), paint("citySkyline", 640, 480)));
    add("MOON.ICNS", icnsFile(paint("moonDesert", 256, 256)));
    add("SUNSET.APNG", animatedPngFile(sunset), Gap::Noise, 2);
    add("CLIFF.CUR", curFile(scaledDown(paint("lighthouse", 256, 256), 32, 32)));
    add("DAISIES.PSB", psbFile(paint("daisies", 200, 150)));
    add("RIDGES.PBM", pbmFile(paint("pinkRidges", 400, 300)));
    add("BEACH.PAM", pamFile(paint("palmBeach", 200, 150)));
    add("DUNES.PFM", pfmFile(paint("dunes", 160, 120)));
    add("AURORA.HDR", radianceFile(paint("aurora", 200, 150)));
    add("MOON.FITS", fitsFile(paint("moonDesert", 240, 180)), Gap::Zeros, 1);
    add("MEADOW.RAS", sunRasterFile(paint("meadow", 200, 150)));
    add("TULIPS.DDS", ddsFile(paint("tulipRows", 128, 128)));
    add("LAKE.KTX", ktxFile(paint("alpineLake", 128, 128)));
    add("FISHES.LBM", lbmFile(paint("underWater", 160, 128)));
    add("COSMOS.DPX", dpxFile(paint("pinkCosmos", 200, 150)));
    add("CABIN.MIFF", miffFile(paint("winterCabin", 160, 120)));
    add("SAIL.JNG", jngFile(sunsetAt(400, 300, 150, 90)));
    add("FOREST.DCX", dcxFile({paint("mistyForest", 160, 120), paint("balloons", 160, 120)}));
}

}  // namespace vantor::samples
