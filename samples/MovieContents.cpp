// The movies of the card: the sun goes down, and a boat sails by.
#include "samples/CardContents.h"
#include "samples/JpegEncoder.h"
#include "samples/MovieWriters.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

constexpr int kFramesPerSecond = 10;

JpegMovie sunsetMovie() {
    constexpr int kFrames = 50;
    JpegMovie movie{480, 320, kFramesPerSecond, {}};
    JpegOptions options;
    options.quality = 75;
    for (int i = 0; i < kFrames; ++i) {
        const int share = i * 255 / (kFrames - 1);
        movie.frames.push_back(encodeJpeg(sunsetAt(movie.width, movie.height, share, share), options));
    }
    return movie;
}

// Only the boat moves, so that most of each frame is as in the one before.
H264Video boatMovie() {
    constexpr int kFrames = 30;
    std::vector<Picture> frames;
    for (int i = 0; i < kFrames; ++i)
        frames.push_back(sunsetAt(320, 240, 170, i * 255 / (kFrames - 1)));
    return encodeH264(frames);
}

}  // namespace

void addMovies(std::vector<CardFile>& files) {
    const auto add = [&files](const char* name, const QByteArray& bytes, Gap gap = Gap::None,
                              std::int64_t clusters = 0) {
        files.push_back(
            {QStringLiteral("VIDEO"), QString::fromLatin1(name), bytes, gap, clusters, Pieces::One});
    };
    const JpegMovie sunset = sunsetMovie();
    const Sound sound = playTune(22050, 50);
    add("MOV_0001.MOV", movFile(sunset, sound), Gap::Zeros, 6);
    add("MOV_0002.AVI", aviFile(sunset, sound));
    const H264Video boat = boatMovie();
    add("MOV_0003.MP4", mp4File(boat, kFramesPerSecond, Mp4Brand::Mp4), Gap::Noise, 7);
    add("MOV_0004.3GP", mp4File(boat, kFramesPerSecond, Mp4Brand::ThreeGp));
    add("MOV_0005.M4V", mp4File(boat, kFramesPerSecond, Mp4Brand::M4v));
    add("MOV_0006.MTS", transportStreamFile(boat, kFramesPerSecond, PacketSize::Timed192), Gap::Zeros, 4);
    add("MOV_0007.TS", transportStreamFile(boat, kFramesPerSecond, PacketSize::Plain188));
    add("MOV_0008.MKV", mkvFile(boat, kFramesPerSecond));
    add("MOV_0009.FLV", flvFile(boat, kFramesPerSecond), Gap::Noise, 1);
    add("MOV_0010.3G2", mp4File(boat, kFramesPerSecond, Mp4Brand::ThreeG2));
    add("MOV_0011.F4V", mp4File(boat, kFramesPerSecond, Mp4Brand::F4v));
    add("MOV_0012.H264", h264File(boat), Gap::Zeros, 1);
    add("MOV_0013.Y4M",
        y4mFile({sunsetAt(96, 72, 40, 40), sunsetAt(96, 72, 120, 120), sunsetAt(96, 72, 200, 200)}));
}

}  // namespace vantor::samples
