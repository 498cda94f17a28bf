#include "filesystem/CachedSource.h"

#include <algorithm>
#include <cstring>

namespace vantor {

namespace {

constexpr std::size_t kMostPieces = 64;
constexpr std::size_t kCachedSector = 512;

}  // namespace

const CachedSource::Piece& CachedSource::piece(std::uint64_t number) {
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
    const std::uint64_t count = std::min(kPieceSectors, sectors() - first);
    Piece& made = m_pieces[number];
    made.bytes.resize(count * kCachedSector);
    made.isRead.assign(count, true);
    if (!m_source.readAt(first, made.bytes)) {
        for (std::uint64_t i = 0; i < count; ++i) {
            made.isRead[i] =
                m_source.readAt(first + i, {made.bytes.data() + i * kCachedSector, kCachedSector});
        }
    }
    return made;
}

bool CachedSource::isFirstLook(std::uint64_t number) {
    std::uint64_t& looked = m_looked[number % m_looked.size()];
    const bool isFirst = looked != number + 1 && !m_pieces.contains(number);
    looked = number + 1;
    return isFirst;
}

bool CachedSource::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    if (into.size() == kCachedSector && sector < sectors() && isFirstLook(sector / kPieceSectors)) {
        return m_source.readAt(sector, into);
    }
    bool all = true;
    for (std::size_t done = 0; done < into.size(); done += kCachedSector, ++sector) {
        const Piece* from = sector < sectors() ? &piece(sector / kPieceSectors) : nullptr;
        const std::uint64_t inPiece = sector % kPieceSectors;
        if (from && from->isRead[inPiece]) {
            std::memcpy(into.data() + done, from->bytes.data() + inPiece * kCachedSector, kCachedSector);
        } else {
            std::memset(into.data() + done, 0, kCachedSector);
            all = false;
        }
    }
    return all;
}

}  // namespace vantor
