// Demuxing and decoding with limits on time, size and formats.
#include "decode/movie/MovieFile.h"

#include <unistd.h>

#include <QTransform>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/imgutils.h>
#include <libswscale/swscale.h>
}

namespace vantor::decode {

namespace {

using Clock = std::chrono::steady_clock;

// Opening, and every step to a frame, ends after this.
constexpr auto kStepLimit = std::chrono::seconds{2};
constexpr int kReadBufferBytes = 64 * 1024;
constexpr std::int64_t kMostProbeBytes = 8 * 1024 * 1024;
constexpr std::int64_t kMostPixels = 150'000'000;
constexpr int kMostStreams = 64;
#if defined(__SANITIZE_THREAD__)
// The decoder's own threads are not instrumented, and every hand-over between them looks like a race.
constexpr int kDecoderThreads = 1;
#else
constexpr int kDecoderThreads = 2;
#endif
// Broken packets in a row after which a stream counts as hopeless.
constexpr int kMostFailures = 500;
constexpr double kUsualFrameRate = 25;

constexpr char kFormats[] =
    "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,mpeg,mpegts,asf,flv,dv,mxf,ogg,h264,hevc,rm";

template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const {
        release(&object);
    }
};
struct ReleaseInput {
    void operator()(AVIOContext* io) const {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
};
using Input = std::unique_ptr<AVIOContext, ReleaseInput>;
using Format = std::unique_ptr<AVFormatContext, Release<avformat_close_input>>;
using Codec = std::unique_ptr<AVCodecContext, Release<avcodec_free_context>>;
using Packet = std::unique_ptr<AVPacket, Release<av_packet_free>>;
using RawFrame = std::unique_ptr<AVFrame, Release<av_frame_free>>;

class LimitedMovie : public MovieFile {
  public:
    explicit LimitedMovie(int descriptor) : m_descriptor(descriptor) {}
    ~LimitedMovie() override {
        sws_freeContext(m_scaler);
        m_codec.reset();
        m_format.reset();
        m_input.reset();
        close(m_descriptor);
    }

    bool openStream();
    MovieInfo info() const override;
    std::optional<Frame> next(QSize bound) override;
    std::optional<Frame> at(std::int64_t timeMs, QSize bound) override;

  private:
    static int readSome(void* movie, std::uint8_t* target, int wanted);
    static std::int64_t seekTo(void* movie, std::int64_t offset, int whence);
    static int isOver(void* movie);

    bool openFormat();
    bool openCodec();
    bool receiveFrame();
    bool receiveFrameAt(std::int64_t timeMs);
    bool jumpTo(std::int64_t stamp, int flags);
    std::int64_t frameTimeMs() const;
    std::optional<Frame> display(QSize bound);
    QSize displayedSize(QSize stored) const;
    void startStep() { m_stepEnd = Clock::now() + kStepLimit; }

    int m_descriptor;
    std::int64_t m_position = 0;
    Clock::time_point m_stepEnd;
    Input m_input;
    Format m_format;
    Codec m_codec;
    Packet m_packet{av_packet_alloc()};
    RawFrame m_frame{av_frame_alloc()};
    SwsContext* m_scaler = nullptr;
    int m_stream = -1;
    int m_turn = 0;  // degrees clockwise, a multiple of 90
    std::int64_t m_framesSeen = 0;
    bool m_draining = false;
};

int LimitedMovie::readSome(void* movie, std::uint8_t* target, int wanted) {
    auto& self = *static_cast<LimitedMovie*>(movie);
    const ssize_t got = pread(self.m_descriptor, target, static_cast<std::size_t>(wanted), self.m_position);
    if (got <= 0) {
        return got == 0 ? AVERROR_EOF : AVERROR(EIO);
    }
    self.m_position += got;
    return static_cast<int>(got);
}

std::int64_t LimitedMovie::seekTo(void* movie, std::int64_t offset, int whence) {
    auto& self = *static_cast<LimitedMovie*>(movie);
    const std::int64_t size = lseek(self.m_descriptor, 0, SEEK_END);
    if (whence == AVSEEK_SIZE) {
        return size;
    }
    const std::int64_t base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? self.m_position : size;
    std::int64_t target = 0;
    if (__builtin_add_overflow(base, offset, &target) || target < 0) {
        return AVERROR(EINVAL);
    }
    return self.m_position = target;
}

int LimitedMovie::isOver(void* movie) {
    return Clock::now() > static_cast<LimitedMovie*>(movie)->m_stepEnd;
}

bool LimitedMovie::openStream() {
    startStep();
    return openFormat() && openCodec();
}

bool LimitedMovie::openFormat() {
    auto* buffer = static_cast<std::uint8_t*>(av_malloc(kReadBufferBytes));
    m_input.reset(avio_alloc_context(buffer, kReadBufferBytes, 0, this, readSome, nullptr, seekTo));
    AVFormatContext* format = avformat_alloc_context();
    format->pb = m_input.get();
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    format->interrupt_callback = {isOver, this};
    format->probesize = kMostProbeBytes;
    format->max_streams = kMostStreams;
    format->format_whitelist = av_strdup(kFormats);
    format->protocol_whitelist = av_strdup("");
    // Frees the context itself when it fails.
    if (avformat_open_input(&format, "", nullptr, nullptr) < 0) {
        return false;
    }
    m_format.reset(format);
    return avformat_find_stream_info(format, nullptr) >= 0;
}

bool LimitedMovie::openCodec() {
    const AVCodec* decoder = nullptr;
    m_stream = av_find_best_stream(m_format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (m_stream < 0 || !decoder) {
        return false;
    }
    AVStream* stream = m_format->streams[m_stream];
    // The cover of a sound file is no movie.
    if (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) {
        return false;
    }
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        m_format->streams[i]->discard = static_cast<int>(i) == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
    if (const std::uint8_t* matrix = av_stream_get_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr)) {
        std::int32_t values[9];
        std::memcpy(values, matrix, sizeof values);
        const double degrees = av_display_rotation_get(values);
        m_turn = std::isfinite(degrees)
                     ? ((static_cast<int>(std::lround(-degrees / 90)) * 90) % 360 + 360) % 360
                     : 0;
    }
    m_codec.reset(avcodec_alloc_context3(decoder));
    if (!m_codec || avcodec_parameters_to_context(m_codec.get(), stream->codecpar) < 0) {
        return false;
    }
    m_codec->pkt_timebase = stream->time_base;
    m_codec->max_pixels = kMostPixels;
    m_codec->thread_count = kDecoderThreads;
    return avcodec_open2(m_codec.get(), decoder, nullptr) >= 0;
}

// Leaves the next decoded frame in m_frame.
bool LimitedMovie::receiveFrame() {
    int failures = 0;
    while (!isOver(this) && failures < kMostFailures) {
        const int received = avcodec_receive_frame(m_codec.get(), m_frame.get());
        if (received == 0) {
            ++m_framesSeen;
            return m_frame->width > 0 && m_frame->height > 0;
        }
        if (received == AVERROR_EOF) {
            return false;
        }
        if (received != AVERROR(EAGAIN)) {
            ++failures;
        }
        if (m_draining) {
            return false;
        }
        if (av_read_frame(m_format.get(), m_packet.get()) < 0) {
            m_draining = true;
            avcodec_send_packet(m_codec.get(), nullptr);
            continue;
        }
        if (m_packet->stream_index == m_stream && avcodec_send_packet(m_codec.get(), m_packet.get()) < 0) {
            ++failures;
        }
        av_packet_unref(m_packet.get());
    }
    return false;
}

std::int64_t LimitedMovie::frameTimeMs() const {
    const AVStream* stream = m_format->streams[m_stream];
    const std::int64_t stamp = m_frame->best_effort_timestamp;
    if (stamp == AV_NOPTS_VALUE) {
        const double rate = av_q2d(stream->avg_frame_rate);
        return static_cast<std::int64_t>(1000.0 * static_cast<double>(m_framesSeen - 1) /
                                         (rate > 0 && std::isfinite(rate) ? rate : kUsualFrameRate));
    }
    const std::int64_t first = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    std::int64_t sinceFirst = 0;
    if (__builtin_sub_overflow(stamp, first, &sinceFirst)) {
        return 0;
    }
    return std::max<std::int64_t>(0, av_rescale_q(sinceFirst, stream->time_base, AVRational{1, 1000}));
}

// Square pixels, before turning.
QSize LimitedMovie::displayedSize(QSize stored) const {
    AVStream* stream = m_format->streams[m_stream];
    const AVRational aspect = av_guess_sample_aspect_ratio(m_format.get(), stream, nullptr);
    const double ratio = aspect.num > 0 && aspect.den > 0 ? av_q2d(aspect) : 1;
    // Stranger shapes are damage.
    if (ratio < 0.1 || ratio > 10) {
        return stored;
    }
    return {std::max(1, static_cast<int>(std::lround(stored.width() * ratio))), stored.height()};
}

MovieInfo LimitedMovie::info() const {
    MovieInfo info;
    const QSize displayed = displayedSize({m_codec->width, m_codec->height});
    info.size = m_turn % 180 == 0 ? displayed : displayed.transposed();
    if (m_format->duration != AV_NOPTS_VALUE) {
        info.durationMs = std::max<std::int64_t>(0, m_format->duration / (AV_TIME_BASE / 1000));
    }
    info.hasSound = av_find_best_stream(m_format.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0) >= 0;
    return info;
}

std::optional<Frame> LimitedMovie::display(QSize bound) {
    const AVFrame& frame = *m_frame;
    QSize size = displayedSize({frame.width, frame.height});
    const QSize room = m_turn % 180 == 0 ? bound : bound.transposed();
    if (size.width() > room.width() || size.height() > room.height()) {
        size = size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    }
    m_scaler = sws_getCachedContext(m_scaler, frame.width, frame.height,
                                    static_cast<AVPixelFormat>(frame.format), size.width(), size.height(),
                                    AV_PIX_FMT_BGR0, SWS_BILINEAR, nullptr, nullptr, nullptr);
    // The scaler may write beyond a row's end, so it gets memory of its own kind.
    const RawFrame scaled(av_frame_alloc());
    scaled->format = AV_PIX_FMT_BGR0;
    scaled->width = size.width();
    scaled->height = size.height();
    if (!m_scaler || av_frame_get_buffer(scaled.get(), 0) < 0 ||
        sws_scale(m_scaler, frame.data, frame.linesize, 0, frame.height, scaled->data, scaled->linesize) <=
            0) {
        return std::nullopt;
    }
    const QImage image(scaled->data[0], size.width(), size.height(), scaled->linesize[0],
                       QImage::Format_RGB32);
    return Frame{m_turn == 0 ? image.copy() : image.transformed(QTransform().rotate(m_turn)), frameTimeMs()};
}

std::optional<Frame> LimitedMovie::next(QSize bound) {
    startStep();
    return receiveFrame() ? display(bound) : std::nullopt;
}

bool LimitedMovie::jumpTo(std::int64_t stamp, int flags) {
    if (av_seek_frame(m_format.get(), m_stream, stamp, flags) < 0) {
        return false;
    }
    avcodec_flush_buffers(m_codec.get());
    m_draining = false;
    return true;
}

bool LimitedMovie::receiveFrameAt(std::int64_t timeMs) {
    while (receiveFrame()) {
        if (frameTimeMs() >= timeMs) {
            return true;
        }
    }
    return false;
}

std::optional<Frame> LimitedMovie::at(std::int64_t timeMs, QSize bound) {
    startStep();
    const AVStream* stream = m_format->streams[m_stream];
    const std::int64_t first = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    std::int64_t target = av_rescale_q(timeMs, AVRational{1, 1000}, stream->time_base);
    if (__builtin_add_overflow(target, first, &target)) {
        return std::nullopt;
    }
    if (jumpTo(target, AVSEEK_FLAG_BACKWARD) && receiveFrameAt(timeMs)) {
        return display(bound);
    }
    // Streams without an index may have landed where nothing can be decoded: from the beginning, then.
    return jumpTo(0, AVSEEK_FLAG_BYTE) && receiveFrameAt(timeMs) ? display(bound) : std::nullopt;
}

}  // namespace

std::unique_ptr<MovieFile> MovieFile::open(int descriptor) {
    auto movie = std::make_unique<LimitedMovie>(descriptor);
    return movie->openStream() ? std::move(movie) : nullptr;
}

}  // namespace vantor::decode
