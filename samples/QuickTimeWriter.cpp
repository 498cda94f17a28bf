// QuickTime and MP4: boxes in boxes (ISO/IEC 14496-12), every sample of a track in one chunk a second.
#include <algorithm>

#include "samples/Bytes.h"
#include "samples/MovieWriters.h"

namespace vantor::samples {

namespace {

constexpr std::uint64_t kMovieScale = 600;  // units of a second

QByteArray box(const char* type, const QByteArray& content) {
    return Bytes().be32(static_cast<std::uint64_t>(content.size()) + 8).text(type).raw(content).bytes();
}

QByteArray fullBox(const char* type, std::uint64_t versionAndFlags, const QByteArray& content) {
    return box(type, Bytes().be32(versionAndFlags).raw(content).bytes());
}

const QByteArray kMatrix =
    QByteArray::fromHex("000100000000000000000000000000000001000000000000000000000000000040000000");

struct Track {
    const char* handler;
    QByteArray mediaHeader;  // vmhd or smhd
    QByteArray sampleEntry;
    std::uint64_t scale;     // units a second
    std::uint64_t duration;  // of one sample, in units
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    std::vector<std::uint64_t> sizes;  // one a sample, or one for all
    std::uint64_t samples = 0;
    std::vector<std::uint64_t> chunkOffsets;
    std::uint64_t samplesPerChunk = 1;
    std::vector<std::uint64_t> keySamples;  // counted from 1; empty when every sample is one
};

QByteArray sampleTable(const Track& track) {
    QByteArray table = fullBox("stsd", 0, Bytes().be32(1).raw(track.sampleEntry).bytes());
    table += fullBox("stts", 0, Bytes().be32(1).be32(track.samples).be32(track.duration).bytes());
    if (!track.keySamples.empty()) {
        Bytes keys;
        keys.be32(track.keySamples.size());
        for (const std::uint64_t key : track.keySamples)
            keys.be32(key);
        table += fullBox("stss", 0, keys.bytes());
    }
    Bytes chunks;
    const std::uint64_t rest = track.samples % track.samplesPerChunk;
    const std::uint64_t count = track.chunkOffsets.size();
    chunks.be32(rest != 0 && count > 1 ? 2 : 1);
    chunks.be32(1).be32(std::min(track.samplesPerChunk, track.samples)).be32(1);
    if (rest != 0 && count > 1)
        chunks.be32(count).be32(rest).be32(1);
    table += fullBox("stsc", 0, chunks.bytes());
    Bytes sizes;
    if (track.sizes.size() == 1) {
        sizes.be32(track.sizes.front()).be32(track.samples);
    } else {
        sizes.be32(0).be32(track.samples);
        for (const std::uint64_t size : track.sizes)
            sizes.be32(size);
    }
    table += fullBox("stsz", 0, sizes.bytes());
    Bytes offsets;
    offsets.be32(count);
    for (const std::uint64_t offset : track.chunkOffsets)
        offsets.be32(offset);
    return box("stbl", table + fullBox("stco", 0, offsets.bytes()));
}

QByteArray trackBox(const Track& track, std::uint64_t identifier) {
    const std::uint64_t length = track.samples * track.duration;
    Bytes header;
    header.be32(0)
        .be32(0)
        .be32(identifier)
        .be32(0)
        .be32(length * kMovieScale / track.scale)
        .be64(0)
        .be16(0)
        .be16(0);
    header.be16(track.width == 0 ? 0x0100 : 0)
        .be16(0)
        .raw(kMatrix)
        .be32(track.width << 16)
        .be32(track.height << 16);
    Bytes media;
    media.be32(0).be32(0).be32(track.scale).be32(length).be16(0x55C4).be16(0);
    Bytes handler;
    handler.be32(0).text(track.handler).zeros(12).u8(0);
    const QByteArray reference =
        box("dinf", fullBox("dref", 0, Bytes().be32(1).raw(fullBox("url ", 1, {})).bytes()));
    const QByteArray information = box("minf", track.mediaHeader + reference + sampleTable(track));
    return box("trak", fullBox("tkhd", 7, header.bytes()) +
                           box("mdia", fullBox("mdhd", 0, media.bytes()) +
                                           fullBox("hdlr", 0, handler.bytes()) + information));
}

QByteArray movieBox(const std::vector<Track>& tracks) {
    std::uint64_t duration = 0;
    QByteArray boxes;
    std::uint64_t identifier = 1;
    for (const Track& track : tracks) {
        duration = std::max(duration, track.samples * track.duration * kMovieScale / track.scale);
        boxes += trackBox(track, identifier++);
    }
    Bytes header;
    header.be32(0)
        .be32(0)
        .be32(kMovieScale)
        .be32(duration)
        .be32(0x10000)
        .be16(0x100)
        .zeros(10)
        .raw(kMatrix)
        .zeros(24)
        .be32(identifier);
    return box("moov", fullBox("mvhd", 0, header.bytes()) + boxes);
}

QByteArray videoEntry(const char* type, int width, int height, const QByteArray& extension) {
    Bytes out;
    out.zeros(6)
        .be16(1)
        .zeros(16)
        .be16(static_cast<std::uint64_t>(width))
        .be16(static_cast<std::uint64_t>(height));
    out.be32(0x480000).be32(0x480000).be32(0).be16(1).zeros(32).be16(24).be16(0xFFFF).raw(extension);
    return box(type, out.bytes());
}

const QByteArray kVideoHeader = fullBox("vmhd", 1, QByteArray(8, '\0'));
const QByteArray kSoundHeader = fullBox("smhd", 0, QByteArray(4, '\0'));

}  // namespace

QByteArray movFile(const JpegMovie& movie, const Sound& sound) {
    Track video{"vide",
                kVideoHeader,
                videoEntry("jpeg", movie.width, movie.height, {}),
                static_cast<std::uint64_t>(movie.framesPerSecond),
                1,
                0,
                0,
                {},
                0,
                {},
                1,
                {}};
    video.width = static_cast<std::uint64_t>(movie.width);
    video.height = static_cast<std::uint64_t>(movie.height);
    video.samples = movie.frames.size();
    Bytes entry;
    entry.zeros(6).be16(1).zeros(8).be16(1).be16(16).be32(0).be32(static_cast<std::uint64_t>(sound.rate)
                                                                  << 16);
    Track audio{"soun",
                kSoundHeader,
                box("sowt", entry.bytes()),
                static_cast<std::uint64_t>(sound.rate),
                1,
                0,
                0,
                {2},
                sound.samples.size(),
                {},
                1,
                {}};
    audio.samplesPerChunk = static_cast<std::uint64_t>(sound.rate);

    QByteArray frames;
    std::vector<std::uint64_t> frameOffsets;
    for (const QByteArray& frame : movie.frames) {
        video.sizes.push_back(static_cast<std::uint64_t>(frame.size()));
        frameOffsets.push_back(static_cast<std::uint64_t>(frames.size()));
        frames += frame;
    }
    Bytes samples;
    std::vector<std::uint64_t> soundOffsets;
    for (std::size_t i = 0; i < sound.samples.size(); ++i) {
        if (i % static_cast<std::size_t>(sound.rate) == 0)
            soundOffsets.push_back(static_cast<std::uint64_t>(frames.size() + samples.size()));
        samples.le16(static_cast<std::uint16_t>(sound.samples[i]));
    }
    const QByteArray type = box("ftyp", Bytes().text("qt  ").be32(0x20050300).text("qt  ").bytes());
    // The index comes first, and its size does not hang on the offsets it holds.
    video.chunkOffsets.assign(frameOffsets.size(), 0);
    audio.chunkOffsets.assign(soundOffsets.size(), 0);
    const auto dataAt = static_cast<std::uint64_t>(type.size() + movieBox({video, audio}).size() + 8);
    for (std::size_t i = 0; i < frameOffsets.size(); ++i)
        video.chunkOffsets[i] = dataAt + frameOffsets[i];
    for (std::size_t i = 0; i < soundOffsets.size(); ++i)
        audio.chunkOffsets[i] = dataAt + soundOffsets[i];
    return type + movieBox({video, audio}) + box("mdat", frames + samples.bytes());
}

QByteArray mp4File(const H264Video& video, int framesPerSecond, Mp4Brand brand) {
    const QByteArray configuration = box("avcC", avcConfiguration(video));
    Track track{"vide",
                kVideoHeader,
                videoEntry("avc1", video.width, video.height, configuration),
                static_cast<std::uint64_t>(framesPerSecond),
                1,
                0,
                0,
                {},
                0,
                {},
                1,
                {1}};
    track.width = static_cast<std::uint64_t>(video.width);
    track.height = static_cast<std::uint64_t>(video.height);
    track.samples = video.frames.size();
    track.samplesPerChunk = track.samples;
    track.chunkOffsets = {0};
    QByteArray data;
    for (const QByteArray& frame : video.frames) {
        data += lengthPrefixed(frame);
        track.sizes.push_back(static_cast<std::uint64_t>(frame.size()) + 4);
    }
    Bytes brands;
    if (brand == Mp4Brand::ThreeGp)
        brands.text("3gp5").be32(0x100).text("3gp5").text("isom");
    else if (brand == Mp4Brand::ThreeG2)
        brands.text("3g2a").be32(0x10000).text("3g2a").text("isom");
    else if (brand == Mp4Brand::F4v)
        brands.text("f4v ").be32(0).text("isom").text("mp42");
    else if (brand == Mp4Brand::M4v)
        brands.text("M4V ").be32(1).text("M4V ").text("mp42").text("isom");
    else
        brands.text("mp42").be32(0).text("mp42").text("isom").text("avc1");
    const QByteArray type = box("ftyp", brands.bytes());
    if (brand == Mp4Brand::M4v) {
        track.chunkOffsets = {static_cast<std::uint64_t>(type.size() + movieBox({track}).size() + 8)};
        return type + movieBox({track}) + box("mdat", data);
    }
    track.chunkOffsets = {static_cast<std::uint64_t>(type.size() + 8)};
    return type + box("mdat", data) + movieBox({track});
}

}  // namespace vantor::samples
