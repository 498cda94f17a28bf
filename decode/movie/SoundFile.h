// A movie's sound, piece by piece, out of an opened file. Runs in the movie helper only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace vantor::decode {

struct SoundPiece {
    std::size_t frames = 0;   // sample frames written, at least one
    std::int64_t timeMs = 0;  // of the first of them, on the clock of the movie's pictures
};

class SoundFile {
  public:
    // Takes the descriptor over. Null when the bytes hold no sound of a kind we know.
    static std::unique_ptr<SoundFile> open(int descriptor);
    virtual ~SoundFile() = default;

    // Of the whole file; 0 when not known.
    virtual std::int64_t durationMs() const = 0;
    // What follows, in the form that DecodeProtocol.h gives for sound, kBytesPerSoundFrame bytes a sample
    // frame; ends early where the times in the file jump. Nullopt at the end or at a hopeless break.
    virtual std::optional<SoundPiece> next(std::span<std::byte> room) = 0;
    // The piece around the time.
    virtual std::optional<SoundPiece> at(std::int64_t timeMs, std::span<std::byte> room) = 0;
};

}  // namespace vantor::decode
