// Memory that photos were collected in, for the photos behind them: fresh memory costs the kernel more than
// the copying.
#pragma once

#include <QByteArray>
#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace vantor {

// Any thread.
class PhotoMemory {
  public:
    static constexpr qsizetype kMostKeptBytes = qsizetype{64} * 1024 * 1024;
    // Of one photo. One that was larger must not make all behind it as large.
    static constexpr qsizetype kMostRoom = qsizetype{16} * 1024 * 1024;

    // Empty, with room for so many bytes, but for no more than kMostRoom.
    QByteArray take(qsizetype room) {
        QByteArray bytes;
        {
            const std::lock_guard lock(m_lock);
            if (!m_kept.empty()) {
                bytes = std::move(m_kept.back());
                m_kept.pop_back();
                m_keptBytes -= bytes.capacity();
            }
        }
        bytes.reserve(std::min(room, kMostRoom));
        return bytes;
    }

    // Lets go of the bytes; their memory is kept where nobody else holds it.
    void giveBack(QByteArray bytes) {
        if (!bytes.isDetached() || bytes.capacity() > kMostRoom) {
            return;
        }
        // Counted up and down once more, so that what others read of it comes before what is written next.
        QByteArray(bytes).clear();
        bytes.resize(0);
        const std::lock_guard lock(m_lock);
        if (m_keptBytes + bytes.capacity() <= kMostKeptBytes) {
            m_keptBytes += bytes.capacity();
            m_kept.push_back(std::move(bytes));
        }
    }

  private:
    std::mutex m_lock;
    std::vector<QByteArray> m_kept;  // empty, each with its capacity
    qsizetype m_keptBytes = 0;       // of capacity
};

}  // namespace vantor
