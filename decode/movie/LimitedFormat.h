// An opened file seen through the demuxer, with limits on time, size and formats. Runs in the movie helper
// only.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>

#include "decode/helper/LibavPointers.h"
#include "decode/movie/StepClock.h"

extern "C" {
#include <libavformat/avformat.h>
}

namespace vantor::decode {

struct ReleaseInput {
    void operator()(AVIOContext* io) const {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
};

// Opening, and every step to a frame, ends after this.
constexpr auto kStepLimit = std::chrono::seconds{2};

// Broken packets in a row after which a stream counts as hopeless.
constexpr int kMostFailures = 500;

// The container and one of its streams. Keeps a position of its own in the file, so that several may read one
// descriptor.
class LimitedFormat {
  public:
    // Takes the descriptor over.
    explicit LimitedFormat(int descriptor) : m_descriptor(descriptor) {}
    LimitedFormat(const LimitedFormat&) = delete;
    LimitedFormat& operator=(const LimitedFormat&) = delete;
    ~LimitedFormat();

    // Reads the container's head; false for kinds not known, hopeless damage, or none told in time.
    bool open();
    // Chooses the best stream of the kind and opens its decoder; packets of all others are dropped from here
    // on. False when there is none.
    bool openCodec(AVMediaType kind, int threads);

    // Every step ends after a fixed time of work; isOver() tells.
    void startStep() { m_clock.start(); }
    bool isOver() const { return m_clock.isOver(); }

    // Leaves the next decoded frame in frame(); false at the end, at a hopeless break, or when the step's
    // time is over.
    bool receiveFrame();
    AVFrame& frame() const { return *m_frame; }
    // To a stamp of the chosen stream, or to a byte with AVSEEK_FLAG_BYTE.
    bool jumpTo(std::int64_t stamp, int flags);
    // To a time of the whole file in microseconds, by the stream that leads it.
    bool jumpToTime(std::int64_t time);

    AVFormatContext& container() const { return *m_format; }
    AVStream& stream() const { return *m_format->streams[m_stream]; }
    AVCodecContext& codec() const { return *m_codec; }
    // Of the whole file; 0 when not known.
    std::int64_t durationMs() const;
    bool has(AVMediaType kind) const;

  private:
    bool seek(int stream, std::int64_t stamp, int flags);
    int bytesThere(int wanted);
    static int readSome(void* format, std::uint8_t* target, int wanted);
    static std::int64_t seekTo(void* format, std::int64_t offset, int whence);
    static int askWhetherOver(void* format);

    int m_descriptor;
    std::int64_t m_position = 0;
    StepClock m_clock{kStepLimit};
    std::unique_ptr<AVIOContext, ReleaseInput> m_input;
    std::unique_ptr<AVFormatContext, Release<avformat_close_input>> m_format;
    Codec m_codec;
    Packet m_packet{av_packet_alloc()};
    RawFrame m_frame{av_frame_alloc()};
    int m_stream = -1;
    bool m_draining = false;
};

}  // namespace vantor::decode
