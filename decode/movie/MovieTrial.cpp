// Decodes as a player would and counts what the decoders complain of.
#include "decode/movie/MovieTrial.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cstdarg>

#include "decode/DecodeProtocol.h"
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

// One kind of stream of the movie.
class TriedStream {
  public:
    TriedStream(AVFormatContext& format, AVMediaType kind)
        : m_index(av_find_best_stream(&format, kind, -1, -1, nullptr, 0)) {
        m_codec = m_index < 0 ? nullptr : decoderOf(*format.streams[m_index]);
    }

    bool has(const AVPacket& packet) const { return m_codec && packet.stream_index == m_index; }
    std::uint32_t frames() const { return m_frames; }
    std::uint32_t errors() const { return m_errors; }

    // Null: what the decoder still holds.
    void decode(const AVPacket* packet) {
        if (!m_codec) {
            return;
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
    RawFrame m_frame{av_frame_alloc()};
    std::uint32_t m_frames = 0;
    std::uint32_t m_errors = 0;
};

}  // namespace

std::vector<std::uint32_t> tryMovie(int descriptor, std::int64_t mostMs) {
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
    file.startStep();
    while (!file.isOver() && av_read_frame(&format, packet.get()) >= 0) {
        for (TriedStream* const stream : {&pictures, &sound}) {
            if (stream->has(*packet)) {
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
    return {pictures.frames(), sound.frames(),
            pictures.errors() + sound.errors() + CountedComplaints::count()};
}

}  // namespace vantor::decode
