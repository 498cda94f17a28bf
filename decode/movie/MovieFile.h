// A movie's video stream, frame by frame, out of an opened file. Runs in the movie helper only.
#pragma once

#include <QImage>
#include <QSize>
#include <cstdint>
#include <memory>
#include <optional>

namespace vantor::decode {

struct MovieInfo {
    QSize size;                   // displayed, upright
    std::int64_t durationMs = 0;  // 0 when not known
    bool hasSound = false;
};

struct Frame {
    QImage image;  // RGB32, upright, within the bound
    std::int64_t timeMs = 0;
};

enum class Pictures { Moving, CoverToo };

class MovieFile {
  public:
    // Takes the descriptor over. Null when the bytes are no movie with a picture of a kind we know, or when
    // that cannot be told within a step's time.
    static std::unique_ptr<MovieFile> open(int descriptor, Pictures pictures = Pictures::Moving);
    virtual ~MovieFile() = default;

    virtual MovieInfo info() const = 0;
    // The frame after the last; nullopt at the end, at a hopeless break, or when none comes within
    // a step's time.
    virtual std::optional<Frame> next(QSize bound) = 0;
    // The first frame at or after the time.
    virtual std::optional<Frame> at(std::int64_t timeMs, QSize bound) = 0;
};

}  // namespace vantor::decode
