// H.264 from I_PCM macroblocks and skipped ones: no transform, no prediction, yet a stream every player
// takes.
#include "samples/H264Encoder.h"

#include "samples/BitWriter.h"
#include "samples/Bytes.h"

namespace vantor::samples {

namespace {

constexpr int kBlock = 16;
constexpr int kBaselineProfile = 66;
constexpr int kConstraints = 0xC0;  // constrained baseline
constexpr int kLevel = 30;
constexpr std::uint32_t kPcmInIntraSlice = 25;  // mb_type I_PCM
constexpr std::uint32_t kPcmInPredictedSlice = 5 + kPcmInIntraSlice;
constexpr int kFrameNumberBits = 8;

void putUnsigned(HighBitFirst& out, std::uint32_t value) {  // ue(v), 9.1
    int bits = 0;
    while (((value + 1) >> (bits + 1)) != 0)
        ++bits;
    out.put(0, bits);
    out.put(value + 1, bits + 1);
}

void finishPayload(HighBitFirst& out) {
    out.putBit(1);
    out.align(0);
}

// A byte 3 goes wherever two zero bytes would be followed by one below 4 (7.4.1).
QByteArray unit(int header, const QByteArray& payload) {
    QByteArray out(1, static_cast<char>(header));
    int zeros = 0;
    for (const char c : payload) {
        if (zeros >= 2 && static_cast<std::uint8_t>(c) <= 3) {
            out.append('\3');
            zeros = 0;
        }
        out.append(c);
        zeros = c == 0 ? zeros + 1 : 0;
    }
    return out;
}

using Macroblock = QByteArray;  // 256 luma samples, 64 blue differences, 64 red ones

// Limited-range BT.601, kept off 0 as the standard asks of plain samples.
char luma(const std::uint8_t* p) {
    return static_cast<char>(16 + ((66 * p[0] + 129 * p[1] + 25 * p[2] + 128) >> 8));
}
char blueDifference(int r, int g, int b) {
    return static_cast<char>(128 + ((-38 * r - 74 * g + 112 * b + 128) >> 8));
}
char redDifference(int r, int g, int b) {
    return static_cast<char>(128 + ((112 * r - 94 * g - 18 * b + 128) >> 8));
}

Macroblock macroblockAt(const Picture& picture, int left, int top) {
    QByteArray samples;
    QByteArray blue;
    QByteArray red;
    for (int y = 0; y < kBlock; ++y)
        for (int x = 0; x < kBlock; ++x)
            samples.append(luma(picture.pixel(left + x, top + y)));
    for (int y = 0; y < kBlock; y += 2) {
        for (int x = 0; x < kBlock; x += 2) {
            int sum[3] = {0, 0, 0};
            for (int i = 0; i < 4; ++i)
                for (int c = 0; c < 3; ++c)
                    sum[c] += picture.pixel(left + x + i % 2, top + y + i / 2)[c];
            blue.append(blueDifference(sum[0] / 4, sum[1] / 4, sum[2] / 4));
            red.append(redDifference(sum[0] / 4, sum[1] / 4, sum[2] / 4));
        }
    }
    return samples + blue + red;
}

// Whether no sample differs by more than the eye would see.
bool looksAlike(const Macroblock& a, const Macroblock& b) {
    constexpr int kUnseen = 3;
    for (qsizetype i = 0; i < a.size(); ++i) {
        const int difference = static_cast<std::uint8_t>(a[i]) - static_cast<std::uint8_t>(b[i]);
        if (difference > kUnseen || difference < -kUnseen)
            return false;
    }
    return true;
}

void putPlain(HighBitFirst& out, std::uint32_t type, const Macroblock& block) {
    putUnsigned(out, type);
    out.align(0);
    out.bytes().append(block);
}

void putSliceStart(HighBitFirst& out, bool key, int number) {
    putUnsigned(out, 0);            // first macroblock
    putUnsigned(out, key ? 7 : 5);  // every slice of the picture is of type I, or P
    putUnsigned(out, 0);            // picture parameters 0
    out.put(static_cast<std::uint32_t>(number), kFrameNumberBits);
    if (key) {
        putUnsigned(out, 0);  // idr_pic_id
        out.put(0, 2);        // no_output_of_prior_pics, long_term_reference
    } else {
        out.put(0, 3);  // no override of the reference count, no reordering, no memory marking
    }
    putUnsigned(out, 0);  // slice_qp_delta
    putUnsigned(out, 1);  // no deblocking
}

QByteArray sequenceParameters(int width, int height) {
    HighBitFirst out;
    out.put(kBaselineProfile, 8);
    out.put(kConstraints, 8);
    out.put(kLevel, 8);
    putUnsigned(out, 0);                     // identifier
    putUnsigned(out, kFrameNumberBits - 4);  // log2_max_frame_num
    putUnsigned(out, 2);                     // output order is coding order
    putUnsigned(out, 1);                     // one reference frame
    out.putBit(0);                           // no gaps in frame numbers
    putUnsigned(out, static_cast<std::uint32_t>(width / kBlock - 1));
    putUnsigned(out, static_cast<std::uint32_t>(height / kBlock - 1));
    out.put(0b1100, 4);  // whole frames, direct_8x8_inference; no cropping, no further information
    finishPayload(out);
    return unit(0x67, out.bytes());
}

QByteArray pictureParameters() {
    HighBitFirst out;
    putUnsigned(out, 0);  // identifier
    putUnsigned(out, 0);  // of sequence 0
    out.put(0, 2);        // variable length codes, no extra order counts
    for (int i = 0; i < 3; ++i)
        putUnsigned(out, 0);  // one slice group, one reference in each list
    out.put(0, 3);            // no weighted prediction
    for (int i = 0; i < 3; ++i)
        putUnsigned(out, 0);  // quantiser offsets
    out.put(0b100, 3);        // slices say whether they deblock
    finishPayload(out);
    return unit(0x68, out.bytes());
}

}  // namespace

H264Video encodeH264(const std::vector<Picture>& frames) {
    H264Video video;
    video.width = frames.front().width / kBlock * kBlock;
    video.height = frames.front().height / kBlock * kBlock;
    video.sequenceParameters = sequenceParameters(video.width, video.height);
    video.pictureParameters = pictureParameters();
    const int across = video.width / kBlock;
    const int blocks = across * (video.height / kBlock);
    std::vector<Macroblock> shown(static_cast<std::size_t>(blocks));
    for (std::size_t f = 0; f < frames.size(); ++f) {
        const bool key = f == 0;
        HighBitFirst out;
        putSliceStart(out, key, static_cast<int>(f % (1 << kFrameNumberBits)));
        std::uint32_t skipped = 0;
        for (int i = 0; i < blocks; ++i) {
            Macroblock block = macroblockAt(frames[f], i % across * kBlock, i / across * kBlock);
            Macroblock& before = shown[static_cast<std::size_t>(i)];
            if (!key && looksAlike(block, before)) {
                ++skipped;
                continue;
            }
            if (!key)
                putUnsigned(out, skipped);
            skipped = 0;
            putPlain(out, key ? kPcmInIntraSlice : kPcmInPredictedSlice, block);
            before = block;
        }
        if (skipped > 0)
            putUnsigned(out, skipped);
        finishPayload(out);
        video.frames.push_back(unit(key ? 0x65 : 0x41, out.bytes()));
    }
    return video;
}

QByteArray avcConfiguration(const H264Video& video) {
    Bytes out;
    out.u8(1).u8(kBaselineProfile).u8(kConstraints).u8(kLevel).u8(0xFF).u8(0xE1);
    out.be16(static_cast<std::uint64_t>(video.sequenceParameters.size())).raw(video.sequenceParameters);
    out.u8(1).be16(static_cast<std::uint64_t>(video.pictureParameters.size())).raw(video.pictureParameters);
    return out.bytes();
}

QByteArray lengthPrefixed(const QByteArray& part) {
    return Bytes().be32(static_cast<std::uint64_t>(part.size())).raw(part).bytes();
}

}  // namespace vantor::samples
