// Movies without a container: the bare H.264 stream, and pictures one after another.
#include "samples/Bytes.h"
#include "samples/MovieWriters.h"

namespace vantor::samples {

namespace {

// ITU-R BT.601 in whole numbers, one plane after another.
QByteArray yuvPlanes(const Picture& picture) {
    constexpr int kWeights[3][4] = {{66, 129, 25, 16}, {-38, -74, 112, 128}, {112, -94, -18, 128}};
    Bytes out;
    for (const auto& weight : kWeights) {
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                const std::uint8_t* p = picture.pixel(x, y);
                const int sum = weight[0] * p[0] + weight[1] * p[1] + weight[2] * p[2] + 128;
                out.u8(static_cast<std::uint64_t>((sum >> 8) + weight[3]));
            }
        }
    }
    return out.bytes();
}

}  // namespace

QByteArray h264File(const H264Video& video) {
    QByteArray stream = kStartCode + video.sequenceParameters + kStartCode + video.pictureParameters;
    for (const QByteArray& frame : video.frames)
        stream += kStartCode + frame;
    return stream;
}

QByteArray y4mFile(const std::vector<Picture>& frames) {
    QByteArray out = "YUV4MPEG2 W" + QByteArray::number(frames.front().width) + " H" +
                     QByteArray::number(frames.front().height) + " F10:1 Ip A1:1 C444\n";
    for (const Picture& frame : frames)
        out += "FRAME\n" + yuvPlanes(frame);
    return out;
}

}  // namespace vantor::samples
