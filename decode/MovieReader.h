// A carved movie's frames, decoded in a helper process of its own.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

#include "decode/MovieHelper.h"

namespace vantor {

struct MovieFrame {
    QImage image;             // upright, within the bound
    std::int64_t timeMs = 0;  // since the movie's beginning
};

// Made, used and destroyed on one thread, which must outlive it: the system ends the helper with that thread.
// Every call blocks until its deadline at most; after a crash or a missed deadline the reader is over,
// isOver() says so, and the program goes on.
class MovieReader {
  public:
    // Null when the file is no movie that can be shown, or no helper can be started.
    static std::unique_ptr<MovieReader> open(const QString& path, QSize bound,
                                             MovieReaderOptions options = {});

    // The picture that a sound file carries, or a movie's first frame; null when there is none.
    static QImage cover(const QString& path, QSize bound, MovieReaderOptions options = {});

    // The displayed size, upright; the length, 0 when not known; whether there is sound.
    QSize fullSize() const { return m_fullSize; }
    std::int64_t durationMs() const { return m_durationMs; }
    bool hasSound() const { return m_hasSound; }
    // The first frame.
    const MovieFrame& poster() const { return m_poster; }

    // The frame after the last one given out (the poster counts as the first); nullopt at the end.
    std::optional<MovieFrame> next();
    // The first frame at or after the time; nullopt when there is none.
    std::optional<MovieFrame> seek(std::int64_t timeMs);

    bool isOver() const { return m_helper->isOver(); }
    pid_t helperPid() const { return m_helper->pid(); }

  private:
    static std::unique_ptr<MovieReader> openAs(decode::RequestKind kind, const QString& path, QSize bound,
                                               MovieReaderOptions options);
    MovieReader(std::unique_ptr<decode::MovieHelper> helper, const decode::Answer& answer);
    std::optional<MovieFrame> frameAt(std::int64_t timeMs);
    MovieFrame frameOf(const decode::Answer& answer) const;

    const std::unique_ptr<decode::MovieHelper> m_helper;
    const QSize m_fullSize;
    const std::int64_t m_durationMs;
    const bool m_hasSound;
    const MovieFrame m_poster;
};

}  // namespace vantor
