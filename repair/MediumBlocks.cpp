#include "repair/MediumBlocks.h"

#include <algorithm>
#include <cstring>

namespace vantor {

std::span<const std::uint8_t> MediumBlocks::blockOf(std::uint64_t sector) {
    const std::uint64_t number = sector / kBlockSectors;
    if (const auto known = m_places.find(number); known != m_places.end()) {
        m_blocks.splice(m_blocks.begin(), m_blocks, known->second);
        return m_blocks.front().bytes;
    }
    if (isEmptyBlock(number)) {
        return m_zeros;
    }
    if (m_blocks.size() >= kMostBlocks) {
        m_places.erase(m_blocks.back().number);
        m_blocks.splice(m_blocks.begin(), m_blocks, std::prev(m_blocks.end()));
    } else {
        m_blocks.emplace_front();
    }
    Block& block = m_blocks.front();
    block.number = number;
    m_places[number] = m_blocks.begin();
    fill(block);
    if (block.bytes == m_zeros) {
        m_empty.resize(std::max(m_empty.size(), static_cast<std::size_t>(number) + 1), false);
        m_empty[static_cast<std::size_t>(number)] = true;
        // Its memory is the next one's.
        m_places.erase(number);
        m_blocks.splice(m_blocks.end(), m_blocks, m_blocks.begin());
        return m_zeros;
    }
    return block.bytes;
}

void MediumBlocks::fill(Block& block) {
    ++m_fetched;
    block.bytes.assign(kBlockSectors * kSectorBytes, 0);
    const std::uint64_t first = block.number * kBlockSectors;
    const std::uint64_t end = std::min(first + kBlockSectors, sectors());
    for (std::uint64_t at = first; at < end; ++at) {
        if ((m_medium.position() == at || m_medium.seek(at)) && m_medium.read()) {
            std::memcpy(block.bytes.data() + (at - first) * kSectorBytes, m_medium.current(), kSectorBytes);
        }
    }
}

bool MediumBlocks::isKnownEmpty(std::uint64_t at, std::uint64_t bytes) const {
    constexpr std::uint64_t kBlockBytes = kBlockSectors * kSectorBytes;
    for (std::uint64_t number = at / kBlockBytes; number * kBlockBytes < at + bytes; ++number) {
        if (!isEmptyBlock(number)) {
            return false;
        }
    }
    return true;
}

void MediumBlocks::read(std::uint64_t at, std::span<std::uint8_t> into) {
    constexpr std::uint64_t kBlockBytes = kBlockSectors * kSectorBytes;
    while (!into.empty()) {
        const auto block = blockOf(at / kSectorBytes).subspan(static_cast<std::size_t>(at % kBlockBytes));
        const std::size_t count = std::min(block.size(), into.size());
        std::copy_n(block.begin(), count, into.begin());
        into = into.subspan(count);
        at += count;
    }
}

}  // namespace vantor
