// Flash video with H.264 in it (Adobe's FLV file format, version 10.1).
#include "samples/Bytes.h"
#include "samples/MovieWriters.h"

namespace vantor::samples {

namespace {

void putTag(Bytes& out, int type, std::int64_t milliseconds, const QByteArray& content) {
    const auto time = static_cast<std::uint64_t>(milliseconds);
    const auto size = static_cast<std::uint64_t>(content.size());
    out.u8(static_cast<std::uint64_t>(type))
        .be24(size)
        .be24(time & 0xFFFFFF)
        .u8(time >> 24)
        .be24(0)
        .raw(content)
        .be32(size + 11);
}

}  // namespace

QByteArray flvFile(const H264Video& video, int framesPerSecond) {
    constexpr int kVideoTag = 9;
    Bytes out;
    out.text("FLV").u8(1).u8(1).be32(9).be32(0);
    putTag(out, kVideoTag, 0, Bytes().u8(0x17).u8(0).be24(0).raw(avcConfiguration(video)).bytes());
    for (std::size_t i = 0; i < video.frames.size(); ++i) {
        const Bytes packet =
            Bytes().u8(i == 0 ? 0x17 : 0x27).u8(1).be24(0).raw(lengthPrefixed(video.frames[i]));
        putTag(out, kVideoTag, static_cast<std::int64_t>(i) * 1000 / framesPerSecond, packet.bytes());
    }
    const Bytes end = Bytes().u8(0x17).u8(2).be24(0);
    putTag(out, kVideoTag, static_cast<std::int64_t>(video.frames.size()) * 1000 / framesPerSecond,
           end.bytes());
    return out.bytes();
}

}  // namespace vantor::samples
