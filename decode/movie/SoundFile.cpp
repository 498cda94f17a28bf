// Decoding and resampling to the one form that the program plays.
#include "decode/movie/SoundFile.h"

#include <algorithm>
#include <cstdlib>

#include "decode/DecodeProtocol.h"
#include "decode/movie/LimitedFormat.h"

extern "C" {
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

namespace vantor::decode {

namespace {

// Stamps this far from where the samples so far end are a gap and not rounding.
constexpr std::int64_t kJumpMs = 60;
// A seek that lands so far behind its aim has missed it.
constexpr std::int64_t kMostBeyondMs = 500;
// More samples or channels in one decoded frame are damage.
constexpr int kMostFrameSamples = 1 << 20;
constexpr int kMostChannels = 32;
constexpr int kMostRate = 768000;

using Resampler = std::unique_ptr<SwrContext, Release<swr_free>>;

// What a resampler was made for.
struct SoundForm {
    int format = AV_SAMPLE_FMT_NONE;
    int rate = 0;
    int channels = 0;
    bool operator==(const SoundForm&) const = default;
};

class LimitedSound : public SoundFile {
  public:
    explicit LimitedSound(int descriptor) : m_format(descriptor) {}

    bool openStream();
    std::int64_t durationMs() const override { return m_format.durationMs(); }
    std::optional<SoundPiece> next(std::span<std::byte> room) override;
    std::optional<SoundPiece> at(std::int64_t timeMs, std::span<std::byte> room) override;

  private:
    bool receiveFrame();
    bool skipTo(std::int64_t timeMs, std::int64_t mostBeyondMs);
    bool toBeginning();
    bool fitResampler();
    std::int64_t frameTimeMs() const;
    std::int64_t frameLengthMs() const;
    std::optional<SoundPiece> fill(std::span<std::byte> room);
    int convert(std::span<std::byte> room, bool takeFrame);

    LimitedFormat m_format;
    Resampler m_resampler;
    SoundForm m_form;
    std::int64_t m_originMs = 0;  // the movie's beginning in this stream's time
    std::int64_t m_endMs = 0;     // where the samples given out so far end
    bool m_frameWaits = false;    // decoded, not yet given to the resampler
};

std::int64_t toMs(std::int64_t stamp, AVRational base) {
    return av_rescale_q(stamp, base, AVRational{1, 1000});
}

bool LimitedSound::openStream() {
    if (!m_format.open() || !m_format.openCodec(AVMEDIA_TYPE_AUDIO, 1)) {
        return false;
    }
    // Pictures and sound may begin apart; the pictures' beginning is the movie's.
    const int pictures = av_find_best_stream(&m_format.container(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    const AVStream* leading = pictures >= 0 ? m_format.container().streams[pictures] : nullptr;
    if (!leading || leading->start_time == AV_NOPTS_VALUE ||
        (leading->disposition & AV_DISPOSITION_ATTACHED_PIC)) {
        leading = &m_format.stream();
    }
    const std::int64_t origin =
        leading->start_time == AV_NOPTS_VALUE ? 0 : toMs(leading->start_time, leading->time_base);
    m_originMs = std::clamp(origin, -kMostMs, kMostMs);
    return true;
}

bool LimitedSound::receiveFrame() {
    while (m_format.receiveFrame()) {
        const AVFrame& frame = m_format.frame();
        const int channels = frame.ch_layout.nb_channels;
        if (frame.nb_samples > 0 && frame.nb_samples <= kMostFrameSamples && frame.sample_rate > 0 &&
            frame.sample_rate <= kMostRate && channels > 0 && channels <= kMostChannels) {
            return m_frameWaits = true;
        }
    }
    return false;
}

// Where the stamps say nothing, the samples follow those before.
std::int64_t LimitedSound::frameTimeMs() const {
    const std::int64_t stamp = m_format.frame().best_effort_timestamp;
    const std::int64_t time = stamp == AV_NOPTS_VALUE ? kMostMs : toMs(stamp, m_format.stream().time_base);
    return time > -kMostMs && time < kMostMs ? time - m_originMs : m_endMs;
}

std::int64_t LimitedSound::frameLengthMs() const {
    return std::int64_t{m_format.frame().nb_samples} * 1000 / m_format.frame().sample_rate;
}

bool LimitedSound::fitResampler() {
    const AVFrame& frame = m_format.frame();
    const SoundForm form{frame.format, frame.sample_rate, frame.ch_layout.nb_channels};
    if (m_resampler && form == m_form) {
        return true;
    }
    AVChannelLayout from{};
    // A layout that names no places gets the usual ones.
    if (frame.ch_layout.order == AV_CHANNEL_ORDER_UNSPEC) {
        av_channel_layout_default(&from, form.channels);
    } else if (av_channel_layout_copy(&from, &frame.ch_layout) < 0) {
        return false;
    }
    AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
    SwrContext* made = nullptr;
    swr_alloc_set_opts2(&made, &stereo, AV_SAMPLE_FMT_S16, kSoundFramesPerSecond, &from,
                        static_cast<AVSampleFormat>(form.format), form.rate, 0, nullptr);
    av_channel_layout_uninit(&from);
    m_resampler.reset(made);
    m_form = form;
    if (!made || swr_init(made) < 0) {
        m_resampler.reset();
    }
    return m_resampler != nullptr;
}

// Sample frames written: of what the resampler still holds, after the waiting frame was added where wanted.
int LimitedSound::convert(std::span<std::byte> room, bool takeFrame) {
    auto* out = reinterpret_cast<std::uint8_t*>(room.data());
    const auto most = static_cast<int>(room.size() / kBytesPerSoundFrame);
    const AVFrame& frame = m_format.frame();
    auto** in = takeFrame ? const_cast<const std::uint8_t**>(frame.extended_data) : nullptr;
    return swr_convert(m_resampler.get(), &out, most, in, takeFrame ? frame.nb_samples : 0);
}

std::optional<SoundPiece> LimitedSound::fill(std::span<std::byte> room) {
    SoundPiece piece;
    piece.timeMs = m_endMs;
    const auto left = [&] { return room.subspan(piece.frames * kBytesPerSoundFrame); };
    if (m_resampler) {
        piece.frames += static_cast<std::size_t>(std::max(0, convert(left(), false)));
    }
    while (left().size() >= kBytesPerSoundFrame && (m_frameWaits || receiveFrame())) {
        const std::int64_t time = frameTimeMs();
        const std::int64_t end =
            piece.timeMs + static_cast<std::int64_t>(piece.frames) * 1000 / kSoundFramesPerSecond;
        if (std::abs(time - end) > kJumpMs) {
            if (piece.frames > 0) {
                break;
            }
            piece.timeMs = time;
        }
        m_frameWaits = false;
        if (fitResampler()) {
            piece.frames += static_cast<std::size_t>(std::max(0, convert(left(), true)));
        }
    }
    m_endMs = piece.timeMs + static_cast<std::int64_t>(piece.frames) * 1000 / kSoundFramesPerSecond;
    return piece.frames > 0 ? std::optional(piece) : std::nullopt;
}

std::optional<SoundPiece> LimitedSound::next(std::span<std::byte> room) {
    m_format.startStep();
    return fill(room);
}

// False when the file ends before the time, or nothing before it and so much beyond was reached.
bool LimitedSound::skipTo(std::int64_t timeMs, std::int64_t mostBeyondMs) {
    while (receiveFrame()) {
        m_endMs = frameTimeMs();
        if (m_endMs + frameLengthMs() > timeMs) {
            return m_endMs <= timeMs + mostBeyondMs;
        }
        // Where there are no stamps, the next frame's time is this one's end.
        m_endMs += frameLengthMs();
    }
    return false;
}

bool LimitedSound::toBeginning() {
    m_endMs = 0;
    const std::int64_t start = m_format.container().start_time;
    return m_format.jumpToTime(start == AV_NOPTS_VALUE ? 0 : start) || m_format.jumpTo(0, AVSEEK_FLAG_BYTE);
}

std::optional<SoundPiece> LimitedSound::at(std::int64_t timeMs, std::span<std::byte> room) {
    m_format.startStep();
    m_resampler.reset();
    m_frameWaits = false;
    m_endMs = 0;
    std::int64_t target = 0;
    if (timeMs > kMostMs || __builtin_add_overflow(timeMs, m_originMs, &target)) {
        return std::nullopt;
    }
    const std::int64_t stamp = av_rescale_q(target, AVRational{1, 1000}, m_format.stream().time_base);
    // Sound has no index of its own in some files, and seeking by it lands anywhere.
    const bool there = (m_format.jumpTo(stamp, AVSEEK_FLAG_BACKWARD) && skipTo(timeMs, kMostBeyondMs)) ||
                       (m_format.jumpToTime(target * 1000) && skipTo(timeMs, kMostBeyondMs)) ||
                       (toBeginning() && skipTo(timeMs, kMostMs));
    return there ? fill(room) : std::nullopt;
}

}  // namespace

std::unique_ptr<SoundFile> SoundFile::open(int descriptor) {
    auto sound = std::make_unique<LimitedSound>(descriptor);
    return sound->openStream() ? std::move(sound) : nullptr;
}

}  // namespace vantor::decode
