// Small movies made for the tests of repairing: pictures in AVC syntax that nothing could decode, and plain
// sound.
#pragma once

#include <QByteArray>
#include <QtEndian>
#include <cstdint>
#include <random>
#include <vector>

#include "formats/IsoTracks.h"
#include "repair/BoxWriter.h"
#include "repair/IndexWriter.h"

namespace vantor::test {

inline std::span<const std::uint8_t> asSpan(const QByteArray& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

// Bits, highest first, as text: "1", "010".
inline QByteArray packed(QByteArray bits) {
    while (bits.size() % 8 != 0) {
        bits += '1';
    }
    QByteArray bytes;
    for (qsizetype i = 0; i < bits.size(); i += 8) {
        bytes += static_cast<char>(bits.mid(i, 8).toInt(nullptr, 2));
    }
    return bytes;
}

inline QByteArray inBits(unsigned value, int bits) {
    return QByteArray::number(value, 2).rightJustified(bits, '0');
}

struct PictureSpec {
    char kind = 'P';      // I (decoding begins here), P or B (nothing refers to it)
    unsigned number = 0;  // frame number
    unsigned order = 0;   // of display, since the last I
    int bytes = 200;      // of the coded unit
};

// A slice that is a whole picture: one unit, its length before it.
inline QByteArray pictureBytes(const PictureSpec& spec, std::mt19937& random) {
    const bool instant = spec.kind == 'I';
    QByteArray bits = "1";  // first macroblock
    bits += instant ? "0001000" : spec.kind == 'P' ? "00110" : "00111";
    bits += "1" + inBits(spec.number % 16, 4) + (instant ? "1" : "") + inBits(spec.order % 16, 4);
    QByteArray unit(1, instant ? '\x65' : spec.kind == 'P' ? '\x41' : '\x01');
    unit += packed(bits);
    while (unit.size() < spec.bytes) {
        unit += static_cast<char>(1 + random() % 255);
    }
    BoxWriter out;
    out.u32(static_cast<std::uint32_t>(unit.size())).bytes(unit);
    return out.taken();
}

// The stsd box of an AVC track: a baseline stream that writes 4 bits of frame number and of display order.
inline QByteArray avcDescription() {
    const QByteArray sequence = QByteArray("\x67\x42\x00\x1E", 4) + packed(
                                                                        "1"
                                                                        "1"
                                                                        "1"
                                                                        "1"
                                                                        "010"
                                                                        "0"
                                                                        "1"
                                                                        "1"
                                                                        "1"
                                                                        "1");
    const QByteArray picture = QByteArray("\x68", 1) + packed(
                                                           "1"
                                                           "1"
                                                           "1");
    BoxWriter out;
    {
        const auto table = out.box("stsd");
        out.u32(0).u32(1);
        const auto entry = out.box("avc1");
        out.bytes(QByteArray(78, '\0'));
        const auto configuration = out.box("avcC");
        out.bytes(QByteArray("\x01\x42\x00\x1E\xFF\xE1", 6));
        out.u16(static_cast<std::uint16_t>(sequence.size())).bytes(sequence);
        out.bytes("\x01").u16(static_cast<std::uint16_t>(picture.size())).bytes(picture);
    }
    return out.taken();
}

inline QByteArray plainSoundDescription() {
    BoxWriter out;
    {
        const auto table = out.box("stsd");
        out.u32(0).u32(1);
        const auto entry = out.box("sowt");
        out.u32(0).u32(1).u64(0).u16(2).u16(16).u32(0).u32(48000U << 16);
    }
    return out.taken();
}

inline QByteArray handlerBox(const char* kind) {
    BoxWriter out;
    {
        const auto box = out.box("hdlr");
        out.u32(0).u32(0).bytes(QByteArrayView(kind, 4)).u32(0).u32(0).u32(0).bytes(QByteArrayView("\0", 1));
    }
    return out.taken();
}

constexpr std::uint32_t kFrameUnits = 1000;    // at 30,000 a second
constexpr std::uint64_t kSoundFrameBytes = 4;  // 48,000 a second
constexpr std::uint64_t kSoundFramesAPicture = 1600;

inline ReferenceTrack videoTrack() {
    return {{'a', 'v', 'c', '1'}, 30000, kFrameUnits,         avcDescription(),
            handlerBox("vide"),   {},    QByteArray(44, '\1')};
}

inline ReferenceTrack soundTrack() {
    return {{'s', 'o', 'w', 't'}, 48000, 1, plainSoundDescription(), handlerBox("soun"), {},
            QByteArray(44, '\1')};
}

// A movie as a camera writes it: type, data, and behind it the index.
struct MadeMovie {
    QByteArray bytes;
    qsizetype indexAt = 0;
    std::vector<IsoSample> pictures;
    std::vector<IsoSample> sound;  // one for each picture; empty where it is silent

    QByteArray withoutIndex() const { return bytes.first(indexAt); }
};

inline MadeMovie makeMovie(const std::vector<PictureSpec>& specs, bool withSound, unsigned seed) {
    const ReferenceTrack videoShape = videoTrack();
    const ReferenceTrack soundShape = soundTrack();
    IndexedTrack video;
    video.described = &videoShape;
    video.video = true;
    IndexedTrack sound;
    sound.described = &soundShape;
    sound.sampleBytes = kSoundFrameBytes;
    std::mt19937 random(seed);
    MadeMovie movie;
    BoxWriter out;
    {
        const auto type = out.box("ftyp");
        out.bytes("isom").u32(512).bytes("isomavc1");
    }
    QByteArray data;
    const std::uint64_t dataAt = 24 + 8;
    for (const PictureSpec& spec : specs) {
        const QByteArray picture = pictureBytes(spec, random);
        const std::uint64_t at = dataAt + static_cast<std::uint64_t>(data.size());
        video.chunks.push_back({at, 1});
        video.sizes.push_back(static_cast<std::uint32_t>(picture.size()));
        if (spec.kind == 'I') {
            video.sync.push_back(static_cast<std::uint32_t>(video.sizes.size()));
        }
        movie.pictures.push_back({at, static_cast<std::uint64_t>(picture.size())});
        data += picture;
        if (withSound) {
            const std::uint64_t soundAt = dataAt + static_cast<std::uint64_t>(data.size());
            sound.chunks.push_back({soundAt, kSoundFramesAPicture});
            movie.sound.push_back({soundAt, kSoundFramesAPicture * kSoundFrameBytes});
            // Quiet: most of its numbers look like the length of something.
            for (std::uint64_t i = 0; i < kSoundFramesAPicture * kSoundFrameBytes / 2; ++i) {
                data += static_cast<char>(random() % 200);
                data += '\0';
            }
        }
    }
    out.u32(static_cast<std::uint32_t>(8 + data.size())).bytes("mdat").bytes(data);
    movie.bytes = out.taken();
    movie.indexAt = movie.bytes.size();
    movie.bytes += writeIndex({video, sound});
    return movie;
}

// The same with the index in front: it tells of places that much further.
inline QByteArray withIndexInFront(const MadeMovie& movie) {
    constexpr qsizetype kTypeBytes = 24;
    const auto shift = static_cast<quint32>(movie.bytes.size() - movie.indexAt);
    QByteArray index = movie.bytes.mid(movie.indexAt);
    for (qsizetype at = index.indexOf("stco"); at >= 0; at = index.indexOf("stco", at + 1)) {
        const auto count = qFromBigEndian<quint32>(index.constData() + at + 8);
        for (quint32 i = 0; i < count; ++i) {
            char* const place = index.data() + at + 12 + 4 * i;
            qToBigEndian(qFromBigEndian<quint32>(place) + shift, place);
        }
    }
    return movie.bytes.left(kTypeBytes) + index + movie.bytes.mid(kTypeBytes, movie.indexAt - kTypeBytes);
}

// `count` pictures: every tenth begins anew, the others refer to the one before.
inline std::vector<PictureSpec> plainPictures(int count) {
    std::vector<PictureSpec> specs;
    for (unsigned i = 0; i < static_cast<unsigned>(count); ++i) {
        specs.push_back(
            {i % 10 == 0 ? 'I' : 'P', i % 10, 2 * (i % 10), 150 + static_cast<int>(37 * i % 100)});
    }
    return specs;
}

// As those, each of a size that hardly another one has.
inline std::vector<PictureSpec> picturesOfManySizes(int count, unsigned seed) {
    std::vector<PictureSpec> specs = plainPictures(count);
    std::mt19937 random(seed);
    for (PictureSpec& spec : specs) {
        spec.bytes = 150 + static_cast<int>(random() % 1000);
    }
    return specs;
}

}  // namespace vantor::test
