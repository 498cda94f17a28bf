// AVI: RIFF lists of Motion JPEG frames with the sound between them.
#include <algorithm>

#include "samples/Bytes.h"
#include "samples/MovieWriters.h"

namespace vantor::samples {

namespace {

QByteArray chunk(const char* type, const QByteArray& content) {
    Bytes out;
    return out.text(type).le32(static_cast<std::uint64_t>(content.size())).raw(content).alignTo(2).bytes();
}

QByteArray list(const char* type, const QByteArray& content) {
    return chunk("LIST", QByteArray(type) + content);
}

QByteArray streamHeader(const char* kind, const char* codec, std::uint64_t scale, std::uint64_t rate,
                        std::uint64_t length, std::uint64_t largest, std::uint64_t sampleSize) {
    Bytes out;
    out.text(kind).field(codec, 4).le32(0).le32(0).le32(0).le32(scale).le32(rate).le32(0).le32(length);
    return chunk("strh", out.le32(largest).le32(0xFFFFFFFF).le32(sampleSize).le64(0).bytes());
}

}  // namespace

QByteArray aviFile(const JpegMovie& movie, const Sound& sound) {
    const auto width = static_cast<std::uint64_t>(movie.width);
    const auto height = static_cast<std::uint64_t>(movie.height);
    const auto rate = static_cast<std::uint64_t>(sound.rate);
    const auto framesPerSecond = static_cast<std::uint64_t>(movie.framesPerSecond);
    const std::size_t samplesPerFrame = static_cast<std::size_t>(sound.rate / movie.framesPerSecond);
    constexpr int kKeyFrame = 0x10;

    Bytes data;
    Bytes index;
    std::uint64_t largest = 0;
    const auto put = [&](const char* type, const QByteArray& content) {
        // Offsets count from the word "movi".
        index.text(type)
            .le32(kKeyFrame)
            .le32(static_cast<std::uint64_t>(data.size()) + 4)
            .le32(static_cast<std::uint64_t>(content.size()));
        data.raw(chunk(type, content));
        largest = std::max(largest, static_cast<std::uint64_t>(content.size()));
    };
    for (std::size_t i = 0; i < movie.frames.size(); ++i) {
        put("00dc", movie.frames[i]);
        Bytes samples;
        for (std::size_t s = i * samplesPerFrame;
             s < std::min((i + 1) * samplesPerFrame, sound.samples.size()); ++s)
            samples.le16(static_cast<std::uint16_t>(sound.samples[s]));
        put("01wb", samples.bytes());
    }

    Bytes main;
    main.le32(1000000 / framesPerSecond)
        .le32(largest * framesPerSecond)
        .le32(0)
        .le32(kKeyFrame)
        .le32(movie.frames.size());
    main.le32(0).le32(2).le32(largest).le32(width).le32(height).zeros(16);
    Bytes bitmap;
    bitmap.le32(40).le32(width).le32(height).le16(1).le16(24).text("MJPG").le32(width * height * 3).zeros(16);
    Bytes wave;
    wave.le16(1).le16(1).le32(rate).le32(rate * 2).le16(2).le16(16);
    const QByteArray video =
        streamHeader("vids", "MJPG", 1, framesPerSecond, movie.frames.size(), largest, 0) +
        chunk("strf", bitmap.bytes());
    const QByteArray audio =
        streamHeader("auds", "", 1, rate, movie.frames.size() * samplesPerFrame, rate, 2) +
        chunk("strf", wave.bytes());
    const QByteArray headers =
        list("hdrl", chunk("avih", main.bytes()) + list("strl", video) + list("strl", audio));
    return chunk("RIFF", "AVI " + headers + list("movi", data.bytes()) + chunk("idx1", index.bytes()));
}

}  // namespace vantor::samples
