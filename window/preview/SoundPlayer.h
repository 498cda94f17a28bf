// Plays a movie's sound from any place in it, and is the clock that its pictures follow.
#pragma once

#include <QString>
#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

#include "decode/SoundReader.h"
#include "window/preview/HelperThread.h"
#include "window/preview/SoundDevice.h"

namespace vantor {

// Thread-safe. A thread of its own asks the helper for pieces a little ahead; nothing is decoded before the
// first start.
class SoundPlayer {
  public:
    SoundPlayer(QString file, std::unique_ptr<SoundDevice> device, MovieReaderOptions options = {});
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    ~SoundPlayer();

    // From this time on; replaces what plays. Silence where the file's sound has ended or cannot be decoded.
    void start(std::int64_t timeMs);
    // Silent when it returns.
    void stop();
    void setMuted(bool muted) { m_muted = muted; }
    void setVolume(double volume) { m_volume = volume; }  // 0 to 1

    // What is heard now, in milliseconds since the movie's beginning; goes on beyond the end of the sound.
    std::int64_t positionMs();
    // Everything there is has been heard.
    bool isFinished();
    // There is no device or no sound to play, and positionMs() will not move.
    bool hasFailed() const { return m_failed || m_device->hasFailed(); }

  private:
    void decode();
    bool wantsPiece() const;
    void take(const SoundPiece& piece);
    void appendSilence(std::int64_t frames);
    void beginOutput(std::uint64_t turn);
    void fill(std::span<std::int16_t> samples);

    const QString m_file;
    MovieReaderOptions m_options;
    std::atomic<bool> m_muted{false};
    std::atomic<double> m_volume{1};
    std::atomic<bool> m_failed{false};

    std::mutex m_deviceLock;  // taken before the worker's lock, never while that is held
    const std::unique_ptr<SoundDevice> m_device;

    HelperThread m_worker;  // its lock is for what follows
    bool m_playing = false;
    std::uint64_t m_turn = 0;  // counts starts and stops
    std::int64_t m_startMs = 0;
    bool m_outputBegun = false;
    bool m_ended = false;                // the file has no more for us
    std::deque<std::int16_t> m_samples;  // decoded, not yet handed to the device
    std::int64_t m_nextMs = 0;           // where the decoded samples end
    std::int64_t m_given = 0;            // frames of sound handed over
    std::int64_t m_starved = 0;          // frames of silence handed over while a piece was late
    std::int64_t m_lastPositionMs = 0;
};

}  // namespace vantor
