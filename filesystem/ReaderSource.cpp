#include "filesystem/ReaderSource.h"

#include <algorithm>
#include <cstring>

namespace vantor {

namespace {

constexpr std::uint64_t kPieceSectors = 512;  // 256 KiB, as much as a medium is asked for at a time
constexpr std::size_t kMostPieces = 64;

}  // namespace

const ReaderSource::Piece& ReaderSource::piece(std::uint64_t number) {
    const auto known = m_pieces.find(number);
    if (known != m_pieces.end()) {
        if (m_order.front() != number) {
            m_order.remove(number);
            m_order.push_front(number);
        }
        return known->second;
    }
    if (m_pieces.size() >= kMostPieces) {
        m_pieces.erase(m_order.back());
        m_order.pop_back();
    }
    m_order.push_front(number);
    const std::uint64_t first = number * kPieceSectors;
    const std::uint64_t count = std::min(kPieceSectors, m_sectors - first);
    Piece& made = m_pieces[number];
    made.bytes.resize(count * kSectorBytes);
    made.isRead.resize(count);
    for (std::uint64_t i = 0; i < count && !m_medium.isGone(); ++i) {
        if ((m_medium.position() == first + i || m_medium.seek(first + i)) && m_medium.read()) {
            std::memcpy(made.bytes.data() + i * kSectorBytes, m_medium.current(), kSectorBytes);
            made.isRead[i] = true;
        }
    }
    return made;
}

bool ReaderSource::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    bool all = true;
    for (std::size_t done = 0; done < into.size(); done += kSectorBytes, ++sector) {
        const bool inside = sector < m_sectors;
        const Piece* from = inside ? &piece(sector / kPieceSectors) : nullptr;
        if (from && from->isRead[sector % kPieceSectors]) {
            std::memcpy(into.data() + done, from->bytes.data() + sector % kPieceSectors * kSectorBytes,
                        kSectorBytes);
        } else {
            std::memset(into.data() + done, 0, kSectorBytes);
            all = false;
        }
    }
    return all;
}

}  // namespace vantor
