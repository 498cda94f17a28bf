// The order of the steps: what can be looked at first comes first.
#include "window/preview/ViewLoader.h"

#include <QMetaObject>
#include <utility>

namespace vantor {

ViewLoader::ViewLoader(PicturePreviewer picture, MovieLoader movie)
    : m_picture(std::move(picture)), m_movie(std::move(movie)) {}

ViewLoader::~ViewLoader() {
    requestEnd();
    m_thread.join();
}

void ViewLoader::load(ViewOrder order) {
    forget();
    m_whole = std::make_shared<WholePreview>();
    const QSize bound = order.bound;
    give({std::move(order), bound, m_whole, m_newest});
}

void ViewLoader::enlarge(QSize bound) {
    if (m_whole) {
        give({std::nullopt, bound, m_whole, m_newest});
    }
}

void ViewLoader::forget() {
    ++m_newest;
    if (m_whole) {
        m_whole->cancel();
        m_whole.reset();
    }
    const std::lock_guard guard(m_mutex);
    m_next.reset();
}

void ViewLoader::give(Work work) {
    {
        const std::lock_guard guard(m_mutex);
        m_next = std::move(work);
        m_busy = true;
    }
    m_thread.begin([this] { run(); });
    m_wake.notify_all();
}

void ViewLoader::requestEnd() {
    forget();
    {
        const std::lock_guard guard(m_mutex);
        m_ending = true;
    }
    m_wake.notify_all();
}

void ViewLoader::run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_busy = m_next.has_value();
        m_wake.wait(lock, [this] { return m_ending || m_next; });
        if (m_ending) {
            return;
        }
        const Work work = std::move(*std::exchange(m_next, std::nullopt));
        lock.unlock();
        if (work.order) {
            loadFile(work);
        } else if (const QImage picture = pictureOf(work.whole->path(), work.bound); !picture.isNull()) {
            tell(work.ticket, [this, picture] { onEnlarged(picture); });
        }
        lock.lock();
    }
}

QImage ViewLoader::pictureOf(const QString& file, QSize bound) const {
    return m_picture && !file.isEmpty() ? m_picture(file, bound) : QImage();
}

// What needs the rest of a long file for its picture is shown once more when the rest is there.
void ViewLoader::loadFile(const Work& work) {
    WholePreview& whole = *work.whole;
    whole.begin(work.order->file, work.order->openMedium ? work.order->openMedium() : nullptr);
    const auto thing = std::make_shared<ViewedThing>();
    thing->file = whole.path();
    thing->bytes = whole.bytes();
    thing->lengthIsKnown = whole.lengthIsKnown();
    if (!isNewest(work.ticket)) {
        return;
    }
    if (work.order->playable && m_movie && !thing->file.isEmpty()) {
        thing->movie = m_movie(thing->file);
    }
    if (!thing->movie) {
        thing->picture = pictureOf(thing->file, work.bound);
    }
    const bool nothingYet = !thing->movie && thing->picture.isNull();
    tell(work.ticket, [this, thing] { onLoaded(std::move(*thing)); });
    if (whole.isToBeFilled() && whole.fill() && nothingYet) {
        if (const QImage picture = pictureOf(whole.path(), work.bound); !picture.isNull()) {
            tell(work.ticket, [this, picture] { onEnlarged(picture); });
        }
    }
}

void ViewLoader::tell(std::uint64_t ticket, std::function<void()> what) {
    QMetaObject::invokeMethod(
        this,
        [this, ticket, what = std::move(what)] {
            if (isNewest(ticket)) {
                what();
            }
        },
        Qt::QueuedConnection);
}

}  // namespace vantor
