// The movies of the card: the sun goes down behind a passing sail.
#include "samples/CardContents.h"
#include "samples/JpegEncoder.h"
#include "samples/MovieWriters.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

std::vector<Picture> sunset(int width, int height, int frames) {
    std::vector<Picture> pictures;
    for (int i = 0; i < frames; ++i)
        pictures.push_back(sunsetAt(width, height, i * 255 / (frames - 1)));
    return pictures;
}

JpegMovie jpegMovie(int width, int height, int frames) {
    JpegMovie movie{width, height, 10, {}};
    JpegOptions options;
    options.quality = 75;
    for (const Picture& picture : sunset(width, height, frames))
        movie.frames.push_back(encodeJpeg(picture, options));
    return movie;
}

}  // namespace

void addMovies(std::vector<CardFile>& files) {
    const auto add = [&files](const char* name, const QByteArray& bytes, Gap gap = Gap::None,
                              std::int64_t clusters = 0) {
        files.push_back(
            {QStringLiteral("VIDEO"), QString::fromLatin1(name), bytes, gap, clusters, Pieces::One});
    };
    constexpr int kFramesPerSecond = 10;
    const JpegMovie movie = jpegMovie(480, 320, 50);
    const Sound sound = playTune(22050, 50);
    add("MOV_0001.MOV", movFile(movie, sound), Gap::Zeros, 6);
    add("MOV_0002.AVI", aviFile(movie, sound));
    const H264Video video = encodeH264(sunset(160, 112, 16));
    add("MOV_0003.MP4", mp4File(video, kFramesPerSecond, Mp4Brand::Mp4), Gap::Noise, 7);
    add("MOV_0004.3GP", mp4File(video, kFramesPerSecond, Mp4Brand::ThreeGp));
    add("MOV_0005.M4V", mp4File(video, kFramesPerSecond, Mp4Brand::M4v));
}

}  // namespace vantor::samples
