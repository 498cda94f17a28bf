// The photos of the card: a holiday's worth of JPEG files as a camera numbers them.
#include <algorithm>

#include "samples/CardContents.h"
#include "samples/Exif.h"
#include "samples/JpegEncoder.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

enum class Notes { Jfif, Exif, ExifTurned };

struct PhotoPlan {
    const char* scene;
    int width;
    int height;
    Notes notes;
    ChromaSampling sampling = ChromaSampling::Halved;
    int quality = 88;
    Gap gap = Gap::None;
    std::int64_t gapClusters = 0;
    Pieces pieces = Pieces::One;
};

constexpr PhotoPlan kPhotos[] = {
    {"seaSunset", 2048, 1536, Notes::Exif},
    {"lavenderRows", 1600, 1200, Notes::Exif},
    {"sunflower", 1600, 1200, Notes::Exif},
    {"alpineLake", 2048, 1365, Notes::Exif, ChromaSampling::Halved, 90, Gap::Zeros, 3},
    {"balloons", 1600, 1200, Notes::Exif},
    {"lighthouse", 1200, 1600, Notes::Exif},
    {"blueRidges", 1600, 1067, Notes::Exif, ChromaSampling::Full, 90},
    {"palmBeach", 1600, 1200, Notes::Exif, ChromaSampling::Halved, 88, Gap::Noise, 5},
    {"starryNight", 1600, 1067, Notes::Exif},
    {"meadow", 1600, 1200, Notes::Exif},
    {"citySkyline", 1600, 1067, Notes::Exif},
    {"cherryBranch", 1280, 960, Notes::Exif, ChromaSampling::Full, 92, Gap::Zeros, 1},
    {"rainbowHills", 1600, 1200, Notes::Exif},
    {"dunes", 1600, 1067, Notes::Exif},
    {"daisies", 960, 1280, Notes::ExifTurned},
    {"aurora", 1600, 1067, Notes::Exif},
    {"autumnTrees", 1280, 960, Notes::Exif, ChromaSampling::Halved, 88, Gap::Noise, 12},
    {"underWater", 1280, 960, Notes::Exif},
    {"winterCabin", 1600, 1200, Notes::Exif},
    {"tulipRows", 1280, 960, Notes::Exif},
    {"lilacBay", 1280, 960, Notes::Jfif},
    {"mistyForest", 1280, 960, Notes::Jfif, ChromaSampling::Full, 85},
    {"fireworks", 1280, 960, Notes::Jfif, ChromaSampling::Halved, 88, Gap::Zeros, 8},
    {"pinkRidges", 1280, 853, Notes::Jfif},
    {"autumnLake", 1280, 960, Notes::Jfif},
    {"pinkCosmos", 1024, 768, Notes::Jfif, ChromaSampling::Halved, 80},
    {"moonDesert", 1024, 768, Notes::Jfif, ChromaSampling::Halved, 92},
    {"cityLights", 1280, 960, Notes::Jfif, ChromaSampling::Halved, 88, Gap::Noise, 4, Pieces::Two},
};

// The picture as a camera held on its side stores it: a quarter turn against the clock.
Picture turnedLeft(const Picture& upright) {
    Picture turned{upright.height, upright.width, {}};
    turned.rgb.reserve(upright.rgb.size());
    for (int y = 0; y < turned.height; ++y) {
        for (int x = 0; x < turned.width; ++x) {
            const std::uint8_t* p = upright.pixel(upright.width - 1 - y, x);
            turned.rgb.insert(turned.rgb.end(), p, p + 3);
        }
    }
    return turned;
}

QByteArray exifPhoto(const Picture& picture, const PhotoPlan& plan, int number) {
    constexpr int kTurnClockwiseToSee = 6;
    const int longSide = std::max(picture.width, picture.height);
    ExifNotes notes;
    const QByteArray day = QByteArray::number(1 + number / 2).rightJustified(2, '0');
    const QByteArray minute = QByteArray::number(number * 7 % 60).rightJustified(2, '0');
    notes.takenAt = "2024:06:" + day + " " + QByteArray::number(10 + number % 9) + ":" + minute + ":00";
    notes.orientation = plan.notes == Notes::ExifTurned ? kTurnClockwiseToSee : 1;
    notes.width = picture.width;
    notes.height = picture.height;
    JpegOptions small;
    small.quality = 70;
    small.jfif = JfifHeader::Omitted;
    notes.thumbnail = encodeJpeg(
        scaledDown(picture, picture.width * 160 / longSide, picture.height * 160 / longSide), small);
    JpegOptions options{plan.quality, plan.sampling, JfifHeader::Omitted, exifSegment(notes), 0};
    return encodeJpeg(picture, options);
}

QByteArray photo(const PhotoPlan& plan, int number) {
    Picture picture = sceneNamed(plan.scene).paint(plan.width, plan.height);
    if (plan.notes == Notes::Jfif)
        return encodeJpeg(picture,
                          {plan.quality, plan.sampling, JfifHeader::Written, {}, number % 2 == 0 ? 40 : 0});
    if (plan.notes == Notes::ExifTurned)
        picture = turnedLeft(picture);
    return exifPhoto(picture, plan, number);
}

}  // namespace

void addPhotos(std::vector<CardFile>& files) {
    int number = 0;
    for (const PhotoPlan& plan : kPhotos) {
        ++number;
        const QString name = QStringLiteral("IMG_%1.JPG").arg(number, 4, 10, QLatin1Char('0'));
        files.push_back({QStringLiteral("DCIM/100VANTR"), name, photo(plan, number), plan.gap,
                         plan.gapClusters, plan.pieces});
    }
}

}  // namespace vantor::samples
