// PNG and animated PNG, compressed with our own deflate.
#include "samples/Bytes.h"
#include "samples/Checksums.h"
#include "samples/Deflate.h"
#include "samples/PictureWriters.h"

namespace vantor::samples {

QByteArray pngChunk(const char* type, const QByteArray& content) {
    const QByteArray body = QByteArray(type) + content;
    return Bytes().be32(static_cast<std::uint64_t>(content.size())).raw(body).be32(crc32(body)).bytes();
}

namespace {

constexpr int kFilterUp = 2;  // each byte less the one above it

QByteArray header(const Picture& picture) {
    Bytes content;
    content.be32(static_cast<std::uint64_t>(picture.width)).be32(static_cast<std::uint64_t>(picture.height));
    return pngChunk("IHDR", content.u8(8).u8(2).u8(0).u8(0).u8(0).bytes());
}

QByteArray pixels(const Picture& picture) {
    QByteArray rows;
    rows.reserve(static_cast<qsizetype>(picture.rgb.size()) + picture.height);
    const std::size_t stride = static_cast<std::size_t>(picture.width) * 3;
    for (std::size_t y = 0; y < static_cast<std::size_t>(picture.height); ++y) {
        rows.append(static_cast<char>(kFilterUp));
        for (std::size_t i = 0; i < stride; ++i) {
            const int above = y == 0 ? 0 : picture.rgb[(y - 1) * stride + i];
            rows.append(static_cast<char>(picture.rgb[y * stride + i] - above));
        }
    }
    return zlibStream(rows);
}

const QByteArray kSignature("\x89PNG\r\n\x1A\n", 8);

QByteArray frameControl(const Picture& frame, int sequence) {
    Bytes content;
    content.be32(static_cast<std::uint64_t>(sequence));
    content.be32(static_cast<std::uint64_t>(frame.width)).be32(static_cast<std::uint64_t>(frame.height));
    return pngChunk("fcTL", content.be32(0).be32(0).be16(1).be16(10).u8(0).u8(0).bytes());
}

}  // namespace

QByteArray pngFile(const Picture& picture) {
    return kSignature + header(picture) + pngChunk("IDAT", pixels(picture)) + pngChunk("IEND", {});
}

QByteArray animatedPngFile(const std::vector<Picture>& frames) {
    QByteArray out = kSignature + header(frames.front());
    out += pngChunk("acTL", Bytes().be32(frames.size()).be32(0).bytes());
    int sequence = 0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        out += frameControl(frames[i], sequence++);
        if (i == 0)
            out += pngChunk("IDAT", pixels(frames[i]));
        else
            out += pngChunk(
                "fdAT", Bytes().be32(static_cast<std::uint64_t>(sequence++)).raw(pixels(frames[i])).bytes());
    }
    return out + pngChunk("IEND", {});
}

QByteArray icnsFile(const Picture& picture256) {
    const QByteArray png = pngFile(picture256);
    const auto size = static_cast<std::uint64_t>(png.size());
    return Bytes().text("icns").be32(size + 16).text("ic08").be32(size + 8).raw(png).bytes();
}

}  // namespace vantor::samples
