// Which cluster follows which: the file allocation table of FAT and exFAT.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "filesystem/SectorSource.h"
#include "filesystem/VolumeShape.h"
#include "media/SectorRun.h"

namespace vantor {

// Reads the table page by page as it is asked for; both outlive it.
class AllocationTable {
  public:
    AllocationTable(SectorSource& card, const VolumeShape& shape) : m_card(card), m_shape(shape) {}

    enum class Link { Free, Next, End, None };  // None: not known, or no number of a cluster
    struct Entry {
        Link link = Link::None;
        std::uint32_t next = 0;
    };
    Entry at(std::uint32_t cluster);

  private:
    const std::vector<std::uint8_t>& page(std::uint64_t number);
    std::uint32_t valueAt(std::uint64_t byte, unsigned bytes);

    SectorSource& m_card;
    const VolumeShape& m_shape;
    std::unordered_map<std::uint64_t, std::vector<std::uint8_t>> m_pages;
    std::uint64_t m_lastNumber = 0;
    const std::vector<std::uint8_t>* m_last = nullptr;
};

}  // namespace vantor
