// A carved movie's sound, decoded in a helper process of its own, so that neither slow pictures nor a decoder
// that breaks on them can hold it up.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "decode/MovieHelper.h"

namespace vantor {

// Sample frames a second, and samples (left, right) in each.
constexpr int kSoundFramesPerSecond = decode::kSoundFramesPerSecond;
constexpr int kSoundChannels = 2;

struct SoundPiece {
    std::vector<std::int16_t> samples;  // kSoundChannels a frame
    std::int64_t timeMs = 0;            // of the first, since the movie's beginning

    std::int64_t frames() const { return static_cast<std::int64_t>(samples.size()) / kSoundChannels; }
};

// Made, used and destroyed on one thread, as a MovieReader is, and over as that is.
class SoundReader {
  public:
    // Null when the file holds no sound that can be played, or no helper can be started.
    static std::unique_ptr<SoundReader> open(const QString& path, MovieReaderOptions options = {});

    // 0 when not known.
    std::int64_t durationMs() const { return m_durationMs; }

    // The first piece after opening, then what follows the piece given out last, a tenth of a second at most;
    // nullopt at the end.
    std::optional<SoundPiece> next();
    // The piece around the time; nullopt when there is none.
    std::optional<SoundPiece> seek(std::int64_t timeMs);

    bool isOver() const { return m_helper->isOver(); }
    pid_t helperPid() const { return m_helper->pid(); }

  private:
    SoundReader(std::unique_ptr<decode::MovieHelper> helper, const decode::Answer& answer);
    std::optional<SoundPiece> pieceAt(std::int64_t timeMs);
    SoundPiece pieceOf(const decode::Answer& answer) const;

    const std::unique_ptr<decode::MovieHelper> m_helper;
    const std::int64_t m_durationMs;
    std::optional<SoundPiece> m_first;  // until it is given out
};

}  // namespace vantor
