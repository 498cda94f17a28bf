// Reading, probing and decoding within the limits.
#include "decode/movie/LimitedFormat.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>

#include "decode/helper/PictureLimits.h"

namespace vantor::decode {

namespace {

constexpr auto kHoleWait = std::chrono::milliseconds{5};
constexpr int kReadBufferBytes = 64 * 1024;
constexpr std::int64_t kMostProbeBytes = 8 * 1024 * 1024;
constexpr int kMostStreams = 64;

constexpr char kFormats[] =
    "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,mpeg,mpegts,asf,flv,dv,mxf,ogg,h264,hevc,rm,mp3,aac,flac,wav,"
    "aiff,au,amr,ape,caf,wv,ac3,mpc,mpc8";

}  // namespace

LimitedFormat::~LimitedFormat() {
    m_codec.reset();
    m_format.reset();
    m_input.reset();
    close(m_descriptor);
}

int LimitedFormat::readSome(void* format, std::uint8_t* target, int wanted) {
    auto& self = *static_cast<LimitedFormat*>(format);
    const auto there = self.bytesThere(wanted);
    if (there < 0) {
        return AVERROR(EIO);
    }
    const ssize_t got = pread(self.m_descriptor, target, static_cast<std::size_t>(there), self.m_position);
    if (got <= 0) {
        return got == 0 ? AVERROR_EOF : AVERROR(EIO);
    }
    self.m_position += got;
    return static_cast<int>(got);
}

// How much of what is wanted stands in the file. A hole is what is still being filled in: waits for it as
// long as the step may take, below 0 in vain.
int LimitedFormat::bytesThere(int wanted) {
    for (;;) {
        const off_t data = lseek(m_descriptor, m_position, SEEK_DATA);
        // The end, or a file system that knows no holes.
        const bool isHole = data > m_position ||
                            (data < 0 && errno == ENXIO && m_position < lseek(m_descriptor, 0, SEEK_END));
        if (!isHole) {
            const off_t hole = lseek(m_descriptor, m_position, SEEK_HOLE);
            return hole > m_position ? static_cast<int>(std::min<off_t>(wanted, hole - m_position)) : wanted;
        }
        if (isOver()) {
            return -1;
        }
        std::this_thread::sleep_for(kHoleWait);
        m_clock.paused(kHoleWait);
    }
}

std::int64_t LimitedFormat::seekTo(void* format, std::int64_t offset, int whence) {
    auto& self = *static_cast<LimitedFormat*>(format);
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

int LimitedFormat::askWhetherOver(void* format) {
    return static_cast<const LimitedFormat*>(format)->isOver();
}

bool LimitedFormat::open() {
    startStep();
    auto* buffer = static_cast<std::uint8_t*>(av_malloc(kReadBufferBytes));
    m_input.reset(avio_alloc_context(buffer, kReadBufferBytes, 0, this, readSome, nullptr, seekTo));
    AVFormatContext* format = avformat_alloc_context();
    format->pb = m_input.get();
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    format->interrupt_callback = {askWhetherOver, this};
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

bool LimitedFormat::openCodec(AVMediaType kind, int threads) {
    const AVCodec* decoder = nullptr;
    m_stream = av_find_best_stream(m_format.get(), kind, -1, -1, &decoder, 0);
    if (m_stream < 0 || !decoder) {
        return false;
    }
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        m_format->streams[i]->discard = static_cast<int>(i) == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
    m_codec.reset(avcodec_alloc_context3(decoder));
    if (!m_codec || avcodec_parameters_to_context(m_codec.get(), stream().codecpar) < 0) {
        return false;
    }
    m_codec->pkt_timebase = stream().time_base;
    m_codec->max_pixels = static_cast<std::int64_t>(kMostFramePixels);
    m_codec->thread_count = threads;
    // Each of the threads may work as long.
    m_clock = StepClock(kStepLimit * threads);
    return avcodec_open2(m_codec.get(), decoder, nullptr) >= 0;
}

bool LimitedFormat::receiveFrame() {
    int failures = 0;
    while (!isOver() && failures < kMostFailures) {
        const int received = avcodec_receive_frame(m_codec.get(), m_frame.get());
        if (received == 0) {
            return true;
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

bool LimitedFormat::jumpTo(std::int64_t stamp, int flags) {
    return seek(m_stream, stamp, flags);
}

bool LimitedFormat::jumpToTime(std::int64_t time) {
    return seek(-1, time, AVSEEK_FLAG_BACKWARD);
}

bool LimitedFormat::seek(int stream, std::int64_t stamp, int flags) {
    if (av_seek_frame(m_format.get(), stream, stamp, flags) < 0) {
        return false;
    }
    avcodec_flush_buffers(m_codec.get());
    m_draining = false;
    return true;
}

std::int64_t LimitedFormat::durationMs() const {
    return m_format->duration == AV_NOPTS_VALUE
               ? 0
               : std::max<std::int64_t>(0, m_format->duration / (AV_TIME_BASE / 1000));
}

bool LimitedFormat::has(AVMediaType kind) const {
    return av_find_best_stream(m_format.get(), kind, -1, -1, nullptr, 0) >= 0;
}

}  // namespace vantor::decode
