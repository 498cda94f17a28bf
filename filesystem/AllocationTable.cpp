// Source: Microsoft's published descriptions of FAT and exFAT.
#include "filesystem/AllocationTable.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::uint64_t kPageSectors = 128;
constexpr std::uint64_t kPageBytes = kPageSectors * 512;
constexpr std::size_t kMostPages = 1024;  // 64 MiB

}  // namespace

const std::vector<std::uint8_t>& AllocationTable::page(std::uint64_t number) {
    if (m_last && m_lastNumber == number) {
        return *m_last;
    }
    auto found = m_pages.find(number);
    if (found == m_pages.end()) {
        if (m_pages.size() >= kMostPages) {
            m_pages.clear();
        }
        found = m_pages.emplace(number, std::vector<std::uint8_t>(kPageBytes)).first;
        const std::uint64_t inTable = number * kPageSectors;
        for (std::uint32_t copy = 0; copy < m_shape.tableCopies; ++copy) {
            const std::uint64_t sector = m_shape.table + copy * m_shape.tableSectors + inTable;
            if (inTable >= m_shape.tableSectors || sector >= m_card.sectors()) {
                break;
            }
            const std::uint64_t sectors =
                std::min({kPageSectors, m_shape.tableSectors - inTable, m_card.sectors() - sector});
            if (m_card.readAt(sector, {found->second.data(), sectors * 512})) {
                break;
            }
        }
    }
    m_lastNumber = number;
    m_last = &found->second;
    return *m_last;
}

std::uint32_t AllocationTable::valueAt(std::uint64_t byte, unsigned bytes) {
    std::uint32_t value = 0;
    for (unsigned i = 0; i < bytes; ++i) {
        const std::uint64_t at = byte + i;
        value |= static_cast<std::uint32_t>(page(at / kPageBytes)[at % kPageBytes]) << (8 * i);
    }
    return value;
}

AllocationTable::Entry AllocationTable::at(std::uint32_t cluster) {
    if (m_shape.table == 0 || !m_shape.holds(cluster)) {
        return {};
    }
    std::uint32_t value = 0;
    std::uint32_t end = 0;
    switch (m_shape.kind) {
        case FileSystemKind::Fat12:
            value = valueAt(std::uint64_t{cluster} + cluster / 2, 2);
            value = cluster % 2 != 0 ? value >> 4 : value & 0xFFF;
            end = 0xFF8;
            break;
        case FileSystemKind::Fat16:
            value = valueAt(std::uint64_t{cluster} * 2, 2);
            end = 0xFFF8;
            break;
        case FileSystemKind::Fat32:
            value = valueAt(std::uint64_t{cluster} * 4, 4) & 0x0FFFFFFF;
            end = 0x0FFFFFF8;
            break;
        case FileSystemKind::Exfat:
            value = valueAt(std::uint64_t{cluster} * 4, 4);
            end = 0xFFFFFFF8;
            break;
        case FileSystemKind::Ntfs:
            return {};
    }
    if (value == 0) {
        return {Link::Free, 0};
    }
    if (value >= end) {
        return {Link::End, 0};
    }
    return m_shape.holds(value) ? Entry{Link::Next, value} : Entry{};
}

}  // namespace vantor
