// Frames out of the video stream: displayed size, turning, times.
#include "decode/movie/MovieFile.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "decode/movie/LimitedFormat.h"

extern "C" {
#include <libavutil/display.h>
#include <libavutil/imgutils.h>
#include <libswscale/swscale.h>
}

namespace vantor::decode {

namespace {

#if defined(__SANITIZE_THREAD__)
// The decoder's own threads are not instrumented, and every hand-over between them looks like a race.
constexpr int kDecoderThreads = 1;
#else
constexpr int kDecoderThreads = 2;
#endif
constexpr double kUsualFrameRate = 25;

class LimitedMovie : public MovieFile {
  public:
    explicit LimitedMovie(int descriptor) : m_format(descriptor) {}
    ~LimitedMovie() override { sws_freeContext(m_scaler); }

    bool openStream(Pictures pictures);
    MovieInfo info() const override;
    std::optional<Frame> next(QSize bound) override;
    std::optional<Frame> at(std::int64_t timeMs, QSize bound) override;

  private:
    bool receiveFrame();
    bool receiveFrameAt(std::int64_t timeMs);
    std::int64_t frameTimeMs() const;
    std::optional<Frame> display(QSize bound);
    QSize displayedSize(QSize stored) const;

    LimitedFormat m_format;
    SwsContext* m_scaler = nullptr;
    int m_turn = 0;  // degrees clockwise, a multiple of 90
    std::int64_t m_framesSeen = 0;
};

// A multiple of 90 degrees clockwise.
int turnOf(AVStream& stream) {
    const std::uint8_t* matrix = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    if (!matrix) {
        return 0;
    }
    std::int32_t values[9];
    std::memcpy(values, matrix, sizeof values);
    const double degrees = av_display_rotation_get(values);
    return std::isfinite(degrees) ? ((static_cast<int>(std::lround(-degrees / 90)) * 90) % 360 + 360) % 360
                                  : 0;
}

bool LimitedMovie::openStream(Pictures pictures) {
    if (!m_format.open() || !m_format.openCodec(AVMEDIA_TYPE_VIDEO, kDecoderThreads)) {
        return false;
    }
    // The cover of a sound file is no movie.
    if (pictures == Pictures::Moving && (m_format.stream().disposition & AV_DISPOSITION_ATTACHED_PIC)) {
        return false;
    }
    m_turn = turnOf(m_format.stream());
    return true;
}

// Leaves the next decoded frame in the format's.
bool LimitedMovie::receiveFrame() {
    if (!m_format.receiveFrame()) {
        return false;
    }
    ++m_framesSeen;
    return m_format.frame().width > 0 && m_format.frame().height > 0;
}

std::int64_t LimitedMovie::frameTimeMs() const {
    const AVStream* stream = &m_format.stream();
    const std::int64_t stamp = m_format.frame().best_effort_timestamp;
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
    AVStream* stream = &m_format.stream();
    const AVRational aspect = av_guess_sample_aspect_ratio(&m_format.container(), stream, nullptr);
    const double ratio = aspect.num > 0 && aspect.den > 0 ? av_q2d(aspect) : 1;
    // Stranger shapes are damage.
    if (ratio < 0.1 || ratio > 10) {
        return stored;
    }
    return {std::max(1, static_cast<int>(std::lround(stored.width() * ratio))), stored.height()};
}

MovieInfo LimitedMovie::info() const {
    MovieInfo info;
    const QSize displayed = displayedSize({m_format.codec().width, m_format.codec().height});
    info.size = m_turn % 180 == 0 ? displayed : displayed.transposed();
    info.durationMs = m_format.durationMs();
    info.hasSound = m_format.has(AVMEDIA_TYPE_AUDIO);
    return info;
}

std::optional<Frame> LimitedMovie::display(QSize bound) {
    const AVFrame& frame = m_format.frame();
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
    m_format.startStep();
    return receiveFrame() ? display(bound) : std::nullopt;
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
    m_format.startStep();
    const AVStream* stream = &m_format.stream();
    const std::int64_t first = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    std::int64_t target = av_rescale_q(timeMs, AVRational{1, 1000}, stream->time_base);
    if (__builtin_add_overflow(target, first, &target)) {
        return std::nullopt;
    }
    if (m_format.jumpTo(target, AVSEEK_FLAG_BACKWARD) && receiveFrameAt(timeMs)) {
        return display(bound);
    }
    // Streams without an index may have landed where nothing can be decoded: from the beginning, then.
    return m_format.jumpTo(0, AVSEEK_FLAG_BYTE) && receiveFrameAt(timeMs) ? display(bound) : std::nullopt;
}

}  // namespace

std::unique_ptr<MovieFile> MovieFile::open(int descriptor, Pictures pictures) {
    auto movie = std::make_unique<LimitedMovie>(descriptor);
    return movie->openStream(pictures) ? std::move(movie) : nullptr;
}

}  // namespace vantor::decode
