// Decodes as a player would and counts what the decoders complain of.
#include "decode/movie/MovieTrial.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdarg>
#include <limits>
#include <optional>
#include <span>

#include "decode/DecodeProtocol.h"
#include "decode/movie/CodedUnits.h"
#include "decode/movie/LimitedFormat.h"

extern "C" {
#include <libavutil/log.h>
}

namespace vantor::decode {

namespace {

std::atomic<std::uint32_t> g_complaints{0};

void countComplaint(void*, int level, const char*, va_list) {
    if (level <= AV_LOG_ERROR) {
        ++g_complaints;
    }
}

class CountedComplaints {
  public:
    CountedComplaints() {
        g_complaints = 0;
        av_log_set_callback(countComplaint);
    }
    CountedComplaints(const CountedComplaints&) = delete;
    CountedComplaints& operator=(const CountedComplaints&) = delete;
    ~CountedComplaints() { av_log_set_callback(av_log_default_callback); }

    static std::uint32_t count() { return g_complaints; }
};

Codec decoderOf(const AVStream& stream) {
    const AVCodec* const decoder = avcodec_find_decoder(stream.codecpar->codec_id);
    Codec codec(decoder == nullptr ? nullptr : avcodec_alloc_context3(decoder));
    if (!codec || avcodec_parameters_to_context(codec.get(), stream.codecpar) < 0) {
        return nullptr;
    }
    codec->thread_count = 1;
    return avcodec_open2(codec.get(), decoder, nullptr) >= 0 ? std::move(codec) : nullptr;
}

// Whether the decoder complains of a cluster of another file's. Those of H.265, VP9 and WMV decode most,
// those of DV and plain sound all; of what is not named here nothing is known.
bool isTelling(AVCodecID codec) {
    switch (codec) {
        case AV_CODEC_ID_H264:
        case AV_CODEC_ID_MPEG4:
        case AV_CODEC_ID_H263:
        case AV_CODEC_ID_MPEG1VIDEO:
        case AV_CODEC_ID_MPEG2VIDEO:
        case AV_CODEC_ID_MJPEG:
        case AV_CODEC_ID_AAC:
        case AV_CODEC_ID_AC3:
        case AV_CODEC_ID_MP2:
        case AV_CODEC_ID_MP3:
        case AV_CODEC_ID_FLAC:
            return true;
        default:
            return false;
    }
}

// The longest stretch of the file of which no decoder would have told that it is foreign.
class BlindStretch {
  public:
    void add(const AVPacket& packet) {
        m_bytes = packet.pos >= 0 && packet.pos == m_end ? m_bytes + packet.size : packet.size;
        m_end = packet.pos + packet.size;
        m_longest = packet.pos < 0 ? kUnknown : std::max(m_longest, m_bytes);
    }
    // A cluster that is another's reaches beyond it.
    bool isShort() const { return m_longest <= kSmallestCluster; }

  private:
    static constexpr std::int64_t kSmallestCluster = 4096;
    static constexpr std::int64_t kUnknown = std::numeric_limits<std::int64_t>::max();

    std::int64_t m_end = -1;
    std::int64_t m_bytes = 0;
    std::int64_t m_longest = 0;
};

// One kind of stream of the movie.
class TriedStream {
  public:
    TriedStream(AVFormatContext& format, AVMediaType kind)
        : m_index(av_find_best_stream(&format, kind, -1, -1, nullptr, 0)) {
        m_codec = m_index < 0 ? nullptr : decoderOf(*format.streams[m_index]);
        if (m_codec && m_codec->codec_id == AV_CODEC_ID_H264) {
            // The container's record begins with its version, 1, and tells how long the lengths are.
            constexpr int kRecordBytes = 7;
            const bool isRecord = m_codec->extradata_size >= kRecordBytes && m_codec->extradata[0] == 1;
            m_lengthBytes = isRecord ? (m_codec->extradata[4] & 3U) + 1 : 0;
        }
    }

    bool has(const AVPacket& packet) const { return m_codec && packet.stream_index == m_index; }
    // Whether decoding the packet tells whether it is whole.
    bool judges(const AVPacket& packet) const { return has(packet) && isTelling(m_codec->codec_id); }
    std::uint32_t frames() const { return m_frames; }
    std::uint32_t errors() const { return m_errors; }

    // Null: what the decoder still holds.
    void decode(const AVPacket* packet) {
        if (!m_codec) {
            return;
        }
        if (packet != nullptr && m_lengthBytes) {
            const std::span units(packet->data, static_cast<std::size_t>(std::max(packet->size, 0)));
            m_errors += hasForbiddenZeros(units, *m_lengthBytes) ? 1 : 0;
        }
        m_errors += avcodec_send_packet(m_codec.get(), packet) < 0 ? 1 : 0;
        int received = 0;
        while ((received = avcodec_receive_frame(m_codec.get(), m_frame.get())) >= 0) {
            ++m_frames;
            m_errors += m_frame->decode_error_flags != 0 ? 1 : 0;
        }
        m_errors += received != AVERROR(EAGAIN) && received != AVERROR_EOF ? 1 : 0;
    }

  private:
    int m_index;
    Codec m_codec;
    std::optional<unsigned> m_lengthBytes;  // of H.264's units; 0: start codes
    RawFrame m_frame{av_frame_alloc()};
    std::uint32_t m_frames = 0;
    std::uint32_t m_errors = 0;
};

}  // namespace

std::vector<std::uint32_t> tryMovie(int descriptor, std::int64_t mostMs, bool onlyWhole) {
    LimitedFormat file(descriptor);
    if (!file.open()) {
        return {};
    }
    AVFormatContext& format = file.container();
    const CountedComplaints complaints;
    TriedStream pictures(format, AVMEDIA_TYPE_VIDEO);
    TriedStream sound(format, AVMEDIA_TYPE_AUDIO);
    const Packet packet(av_packet_alloc());
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(mostMs);
    const auto errors = [&] { return pictures.errors() + sound.errors() + CountedComplaints::count(); };
    int read = 0;
    BlindStretch blind;
    const auto isSettled = [&] { return onlyWhole && (!blind.isShort() || errors() != 0); };
    file.startStep();
    while (!file.isOver() && !isSettled() && (read = av_read_frame(&format, packet.get())) >= 0) {
        const AVMediaType kind = format.streams[packet->stream_index]->codecpar->codec_type;
        const bool counts = kind == AVMEDIA_TYPE_VIDEO || kind == AVMEDIA_TYPE_AUDIO;
        if (counts && !pictures.judges(*packet) && !sound.judges(*packet)) {
            blind.add(*packet);
        }
        for (TriedStream* const stream : {&pictures, &sound}) {
            // What a decoder that complains of nothing makes of it says nothing about the file.
            if (stream->has(*packet) && (!onlyWhole || stream->judges(*packet))) {
                stream->decode(packet.get());
            }
        }
        av_packet_unref(packet.get());
        if (std::chrono::steady_clock::now() < end) {
            file.startStep();
        }
    }
    pictures.decode(nullptr);
    sound.decode(nullptr);
    const bool whole = blind.isShort() && read == AVERROR_EOF && !file.isOver();
    return {pictures.frames(), sound.frames(), errors(), whole ? 1U : 0U};
}

}  // namespace vantor::decode
