// The bytes of the photo under construction, kept in memory up to a bound.
#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

#include "media/SectorReader.h"
#include "scan/PhotoMemory.h"

namespace vantor {

// Collects sectors. An item beyond kMaxBytesInMemory keeps its first bytes only, but its length and checksum
// go on, so that a catalogue with an absurd limit cannot eat the memory.
class PhotoItemBuffer {
  public:
    static constexpr std::uint64_t kMaxBytesInMemory = std::uint64_t{256} * 1024 * 1024;

    explicit PhotoItemBuffer(PhotoMemory& memory) : m_memory(memory) {}

    void append(const std::uint8_t* sector) {
        m_size += kSectorBytes;
        if (m_size > kMaxBytesInMemory) {
            addToOverflow(sector);
            return;
        }
        if (m_size > static_cast<std::uint64_t>(m_bytes.size())) {
            grow();
        }
        std::memcpy(m_data + (m_size - kSectorBytes), sector, kSectorBytes);
    }

    // Takes a sector into account without its bytes; none can be appended behind it.
    void passOver() { m_passedOver += kSectorBytes; }

    // Room for the largest item so far is asked for at once, since growing step by step copies each
    // item once more. The old bytes are left to whoever still holds them, who may give their memory back.
    void clear() {
        m_room = std::max(m_room, heldBytes());
        m_memory.giveBack(std::exchange(m_bytes, {}));
        m_bytes = m_memory.take(m_room);
        m_size = m_passedOver = 0;
        m_overflow.reset();
    }

    const QByteArray& bytes() {
        // Bytes that somebody shares would be copied.
        if (m_bytes.size() != heldBytes()) {
            m_bytes.resize(heldBytes());
        }
        return m_bytes;
    }
    // With what was passed over.
    std::uint64_t size() const { return m_size + m_passedOver; }
    // Checksum of an item that outgrew the memory; empty for all others.
    QByteArray overflowSha256() const { return m_overflow ? m_overflow->result() : QByteArray(); }

  private:
    qsizetype heldBytes() const { return static_cast<qsizetype>(std::min(m_size, kMaxBytesInMemory)); }

    // To all the room there is, or to twice of it: a size set once a sector would cost more than the copying.
    void grow() {
        const qsizetype most = static_cast<qsizetype>(kMaxBytesInMemory);
        const bool isFull = m_bytes.size() == m_bytes.capacity();
        const qsizetype wanted = isFull ? 2 * m_bytes.size() : m_bytes.capacity();
        m_bytes.resize(std::max(static_cast<qsizetype>(m_size), std::min(wanted, most)));
        m_data = m_bytes.data();
    }

    void addToOverflow(const std::uint8_t* sector) {
        if (!m_overflow) {
            m_overflow.emplace(QCryptographicHash::Sha256);
            m_overflow->addData(m_bytes);
        }
        m_overflow->addData(QByteArrayView(sector, kSectorBytes));
    }

    PhotoMemory& m_memory;
    QByteArray m_bytes;      // longer than what was collected, until it is asked for
    char* m_data = nullptr;  // of m_bytes
    qsizetype m_room = 0;    // bytes
    std::uint64_t m_size = 0;
    std::uint64_t m_passedOver = 0;  // bytes
    std::optional<QCryptographicHash> m_overflow;
};

}  // namespace vantor
