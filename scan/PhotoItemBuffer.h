// The bytes of the photo under construction, kept in memory up to a bound.
#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <cstdint>
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
        const auto* bytes = reinterpret_cast<const char*>(sector);
        m_size += kSectorBytes;
        if (m_size <= kMaxBytesInMemory) {
            m_bytes.append(bytes, kSectorBytes);
            return;
        }
        if (!m_overflow) {
            m_overflow.emplace(QCryptographicHash::Sha256);
            m_overflow->addData(m_bytes);
        }
        m_overflow->addData(QByteArrayView(bytes, kSectorBytes));
    }

    // Room for the largest item so far is asked for at once, since growing step by step copies each
    // item once more. The old bytes are left to whoever still holds them, who may give their memory back.
    void clear() {
        m_room = std::max(m_room, m_bytes.size());
        m_memory.giveBack(std::exchange(m_bytes, {}));
        m_bytes = m_memory.take(m_room);
        m_size = 0;
        m_overflow.reset();
    }

    const QByteArray& bytes() const { return m_bytes; }
    std::uint64_t size() const { return m_size; }
    // Checksum of an item that outgrew the memory; empty for all others.
    QByteArray overflowSha256() const { return m_overflow ? m_overflow->result() : QByteArray(); }

  private:
    PhotoMemory& m_memory;
    QByteArray m_bytes;
    qsizetype m_room = 0;  // bytes
    std::uint64_t m_size = 0;
    std::optional<QCryptographicHash> m_overflow;
};

}  // namespace vantor
