// Thumbnails of a stream of pictures: decoded side by side, handed over in the order they came.
#pragma once

#include <QByteArray>
#include <QString>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace vantor {

struct ThumbnailQueueOptions {
    int workers = 2;  // thumbnails under way at a time; as many as the pool has helpers
    std::uint64_t maxBytes = std::uint64_t{128} << 20;  // of encoded bytes that wait or are under way
    std::size_t maxItems = 1024;                        // submitted and not yet delivered
};

// Thread-safe. A full queue blocks submit(), so a scan is slowed and the memory stays; one item larger than
// the whole bound passes alone.
class ThumbnailQueue {
  public:
    using MakeThumbnail = std::function<QByteArray(const QByteArray& encoded, const QString& extension)>;
    // Gets the thumbnail, or an empty array where there is none. Called on the queue's own thread, one call
    // at a time, in the order of submission. May submit nothing to the queue and must not flush or cancel it.
    using Deliver = std::function<void(const QByteArray& thumbnail)>;

    // `makeThumbnail` is called from several threads at a time.
    ThumbnailQueue(MakeThumbnail makeThumbnail, ThumbnailQueueOptions options);
    ThumbnailQueue(const ThumbnailQueue&) = delete;
    ThumbnailQueue& operator=(const ThumbnailQueue&) = delete;
    // Cancels.
    ~ThumbnailQueue();

    // False once the queue is cancelled; the item is then dropped. The extension is the item's, for formats
    // that carry no mark of their own. With `late` the item may be delivered without a thumbnail while the
    // queue hurries; `late` then gets the thumbnail when it is made, on any of the queue's threads, and may
    // be called for several items at a time.
    bool submit(QByteArray encoded, Deliver deliver, QString extension = {}, Deliver late = {});
    // The same for a thumbnail that is there already: it is delivered in its turn.
    bool submitMade(QByteArray thumbnail, Deliver deliver);
    // Nobody waits for a thumbnail any more, until resume(): items that may be late are delivered at once,
    // and a submitter finds room.
    void hurry();
    // Returns when everything submitted before has been delivered, or the queue was cancelled.
    void flush();
    // Drops what was not delivered yet, late thumbnails included: no delivery begins after the return, and
    // blocked submitters return. Waits for the delivery under way but not for decoding. The queue takes
    // nothing more until resume().
    void cancel();
    void resume();

    // Encoded bytes that wait or are under way, and the most there ever were.
    std::uint64_t bytesHeld() const;
    std::uint64_t mostBytesHeld() const;

  private:
    struct Item {
        std::uint64_t generation = 0;  // of the cancellation before it
        QByteArray encoded;
        QString extension;
        Deliver deliver;
        Deliver late;
        QByteArray thumbnail;  // read once ready
        bool ready = false;
        bool overdue = false;
        bool delivered = false;
    };

    void work();
    void deliverInOrder();
    void deliverLate(std::unique_lock<std::mutex>& lock, const Item& item);
    bool hasRoomFor(std::uint64_t bytes) const;

    const MakeThumbnail m_makeThumbnail;
    const ThumbnailQueueOptions m_options;

    mutable std::mutex m_mutex;
    std::condition_variable m_room, m_work, m_done, m_idle;
    // Positions are counted over the queue's whole life: m_items[0] is item m_firstPosition.
    std::deque<std::shared_ptr<Item>> m_items;  // not yet delivered
    std::uint64_t m_firstPosition = 0;
    std::deque<std::shared_ptr<Item>> m_toDecode;  // nobody has begun with
    std::uint64_t m_generation = 0;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_mostBytes = 0;
    bool m_delivering = false;
    int m_lateUnderWay = 0;
    bool m_hurrying = false;
    bool m_cancelled = false;
    bool m_closing = false;

    std::vector<std::thread> m_threads;  // last: they use everything above
};

}  // namespace vantor
