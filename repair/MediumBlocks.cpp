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
    if (m_blocks.size() >= kMostBlocks) {
        m_places.erase(m_blocks.back().number);
        m_blocks.splice(m_blocks.begin(), m_blocks, std::prev(m_blocks.end()));
    } else {
        m_blocks.emplace_front();
    }
    ++m_fetched;
    Block& block = m_blocks.front();
    block.number = number;
    block.bytes.assign(kBlockSectors * kSectorBytes, 0);
    m_places[number] = m_blocks.begin();
    const std::uint64_t first = number * kBlockSectors;
    const std::uint64_t end = std::min(first + kBlockSectors, sectors());
    for (std::uint64_t at = first; at < end; ++at) {
        if ((m_medium.position() == at || m_medium.seek(at)) && m_medium.read()) {
            std::memcpy(block.bytes.data() + (at - first) * kSectorBytes, m_medium.current(), kSectorBytes);
        }
    }
    return block.bytes;
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
