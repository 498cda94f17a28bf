// A movie whose frames a helper process decodes.
#pragma once

#include <QString>
#include <QTimer>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "results/Movie.h"

namespace vantor {

class MovieReader;

// Opened on any thread; used and destroyed on the interface thread. A helper that dies ends the movie where
// it stood.
class HelperMovie : public Movie {
  public:
    // Blocks until the first frame is there; null when the file is no movie that can be shown.
    static std::unique_ptr<Movie> open(const QString& file, QSize largest);
    ~HelperMovie() override;

    float rate() const override { return m_playing ? 1.0F : 0.0F; }
    QImage poster() const override { return m_poster; }
    void play() override;
    void stop() override;

  private:
    HelperMovie() = default;
    void run(const QString& file, QSize largest);
    void playFrames(MovieReader& reader);
    void showLatest();

    std::thread m_thread;  // the reader's
    std::unique_ptr<QTimer> m_poll;
    QImage m_poster;

    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    QImage m_latest;
    bool m_opened = false;  // or failed
    bool m_closing = false;
    std::atomic<bool> m_playing{false};
};

}  // namespace vantor
