// A window of items over the stream: workers fill it anywhere, delivery empties it from the front.
#include "decode/ThumbnailQueue.h"

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

// What an item truly keeps: a carving buffer may have room to spare behind its bytes.
std::uint64_t weightOf(const QByteArray& bytes) {
    return static_cast<std::uint64_t>(std::max(bytes.capacity(), bytes.size()));
}

}  // namespace

ThumbnailQueue::ThumbnailQueue(MakeThumbnail makeThumbnail, ThumbnailQueueOptions options)
    : m_makeThumbnail(std::move(makeThumbnail)), m_options(options) {
    for (int i = 0; i < std::max(1, options.workers); ++i) {
        m_threads.emplace_back([this] { work(); });
    }
    m_threads.emplace_back([this] { deliverInOrder(); });
}

ThumbnailQueue::~ThumbnailQueue() {
    cancel();
    {
        const std::scoped_lock lock(m_mutex);
        m_closing = true;
        m_work.notify_all();
        m_done.notify_all();
    }
    for (std::thread& thread : m_threads) {
        thread.join();
    }
}

bool ThumbnailQueue::hasRoomFor(std::uint64_t bytes) const {
    const bool bytesFit = m_bytes == 0 || m_bytes + bytes <= m_options.maxBytes;
    return bytesFit && m_items.size() < m_options.maxItems;
}

bool ThumbnailQueue::submit(QByteArray encoded, Deliver deliver, QString extension, Deliver late) {
    const std::uint64_t weight = weightOf(encoded);
    std::unique_lock lock(m_mutex);
    m_room.wait(lock, [&] { return m_cancelled || m_hurrying || hasRoomFor(weight); });
    if (m_cancelled) {
        return false;
    }
    m_bytes += weight;
    m_mostBytes = std::max(m_mostBytes, m_bytes);
    auto item = std::make_shared<Item>();
    item->generation = m_generation;
    item->encoded = std::move(encoded);
    item->extension = std::move(extension);
    item->deliver = std::move(deliver);
    item->late = std::move(late);
    item->overdue = m_hurrying && item->late;
    if (item->overdue) {
        m_done.notify_all();
    }
    m_toDecode.push_back(item);
    m_items.push_back(std::move(item));
    m_work.notify_one();
    return true;
}

bool ThumbnailQueue::submitMade(QByteArray thumbnail, Deliver deliver) {
    std::unique_lock lock(m_mutex);
    m_room.wait(lock, [&] { return m_cancelled || m_hurrying || hasRoomFor(0); });
    if (m_cancelled) {
        return false;
    }
    auto item = std::make_shared<Item>();
    item->generation = m_generation;
    item->thumbnail = std::move(thumbnail);
    item->deliver = std::move(deliver);
    item->ready = true;
    m_items.push_back(std::move(item));
    m_done.notify_all();
    return true;
}

void ThumbnailQueue::hurry() {
    const std::scoped_lock lock(m_mutex);
    m_hurrying = true;
    for (const auto& item : m_items) {
        item->overdue = item->late != nullptr;
    }
    m_room.notify_all();
    m_done.notify_all();
}

void ThumbnailQueue::work() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_work.wait(lock, [&] { return m_closing || !m_toDecode.empty(); });
        if (m_closing) {
            return;
        }
        const std::shared_ptr<Item> item = std::move(m_toDecode.front());
        m_toDecode.pop_front();
        QByteArray encoded = std::exchange(item->encoded, {});
        const std::uint64_t weight = weightOf(encoded);
        const QString extension = item->extension;
        lock.unlock();
        QByteArray thumbnail = m_makeThumbnail(encoded, extension);
        encoded = {};
        lock.lock();
        m_bytes -= weight;
        m_room.notify_all();
        item->thumbnail = std::move(thumbnail);
        item->ready = true;
        if (item->delivered) {
            deliverLate(lock, *item);
        } else {
            m_done.notify_all();
        }
    }
}

void ThumbnailQueue::deliverInOrder() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_done.wait(lock, [&] {
            return m_closing || (!m_items.empty() && (m_items.front()->ready || m_items.front()->overdue));
        });
        if (m_closing) {
            return;
        }
        const std::shared_ptr<Item> item = std::move(m_items.front());
        m_items.pop_front();
        ++m_firstPosition;
        m_delivering = true;
        const bool inTime = item->ready;
        const QByteArray thumbnail = inTime ? item->thumbnail : QByteArray();
        lock.unlock();
        item->deliver(thumbnail);
        lock.lock();
        item->delivered = true;
        if (!inTime && item->ready) {
            deliverLate(lock, *item);
        }
        m_delivering = false;
        m_room.notify_all();
        m_idle.notify_all();
    }
}

// Hands over what came behind its item's delivery; the lock is open meanwhile.
void ThumbnailQueue::deliverLate(std::unique_lock<std::mutex>& lock, const Item& item) {
    if (item.generation != m_generation) {
        return;
    }
    ++m_lateUnderWay;
    lock.unlock();
    item.late(item.thumbnail);
    lock.lock();
    --m_lateUnderWay;
    m_idle.notify_all();
}

void ThumbnailQueue::flush() {
    std::unique_lock lock(m_mutex);
    const std::uint64_t end = m_firstPosition + m_items.size();
    const std::uint64_t generation = m_generation;
    m_idle.wait(lock, [&] {
        return m_generation != generation || m_firstPosition > end ||
               (m_firstPosition == end && !m_delivering);
    });
}

void ThumbnailQueue::cancel() {
    std::unique_lock lock(m_mutex);
    m_cancelled = true;
    ++m_generation;
    for (const auto& item : m_toDecode) {
        m_bytes -= weightOf(item->encoded);
    }
    m_toDecode.clear();
    m_firstPosition += m_items.size();
    m_items.clear();
    m_room.notify_all();
    m_idle.notify_all();
    m_idle.wait(lock, [&] { return !m_delivering && m_lateUnderWay == 0; });
}

void ThumbnailQueue::resume() {
    const std::scoped_lock lock(m_mutex);
    m_cancelled = false;
    m_hurrying = false;
}

std::uint64_t ThumbnailQueue::bytesHeld() const {
    const std::scoped_lock lock(m_mutex);
    return m_bytes;
}

std::uint64_t ThumbnailQueue::mostBytesHeld() const {
    const std::scoped_lock lock(m_mutex);
    return m_mostBytes;
}

}  // namespace vantor
