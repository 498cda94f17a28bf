// Brings the item that is looked at large: its true bytes into a private file, and from there what can be
// seen or played.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "window/preview/FilePreviewer.h"
#include "window/preview/Movie.h"
#include "window/preview/OrderThread.h"
#include "window/preview/WholePreview.h"

namespace vantor {

struct ViewOrder {
    WholePreviewRequest file;
    std::function<std::unique_ptr<SectorReader>()> openMedium;
    bool playable = false;  // a movie or a sound is tried before a picture
    QSize bound;            // of the picture
};

// What has come so far of the order that was given last.
struct ViewedThing {
    QString file;    // empty: the medium gave nothing
    QImage picture;  // null: none
    std::optional<std::uint64_t> bytes;
    bool lengthIsKnown = false;
    std::unique_ptr<Movie> movie;
};

// Lives on the interface thread, and is told there. One thread of its own does the work, of which only the
// newest counts: who steps quickly through many items waits for none of them. A file stays as long as its
// item is looked at.
class ViewLoader : public QObject {
    Q_OBJECT

  public:
    ViewLoader(PicturePreviewer picture, MovieLoader movie);
    // Waits for the medium; see hasEnded().
    ~ViewLoader() override;

    void load(ViewOrder order);
    // The same file's picture anew, within a larger bound.
    void enlarge(QSize bound);
    // Nothing is looked at any more.
    void forget();
    // The medium is being read or a file decoded.
    bool isBusy() const { return m_busy; }

    // Ends the thread; hasEnded() is false as long as a medium that hangs holds it.
    void requestEnd();
    bool hasEnded() const { return m_thread.hasEnded(); }

    std::function<void(ViewedThing thing)> onLoaded;
    std::function<void(const QImage& picture)> onEnlarged;

  private:
    struct Work {
        std::optional<ViewOrder> order;  // none: `bound` is what is new
        QSize bound;
        std::shared_ptr<WholePreview> whole;
        std::uint64_t ticket = 0;
    };

    void give(Work work);
    void run();
    void loadFile(const Work& work);
    QImage pictureOf(const QString& file, QSize bound) const;
    void tell(std::uint64_t ticket, std::function<void()> what);
    bool isNewest(std::uint64_t ticket) const { return ticket == m_newest; }

    const PicturePreviewer m_picture;
    const MovieLoader m_movie;

    // Interface thread.
    std::shared_ptr<WholePreview> m_whole;  // of the newest order

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<Work> m_next;
    bool m_ending = false;

    std::atomic<std::uint64_t> m_newest{0};
    std::atomic<bool> m_busy{false};
    OrderThread m_thread;  // started with the first order
};

}  // namespace vantor
