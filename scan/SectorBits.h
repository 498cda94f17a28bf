// A set of sector numbers that is filled in ascending order and never costs more than a bit a sector.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace vantor {

// A page is 65,536 sectors: two bytes for each of its members, or a bit for each of its sectors where that is
// less. One terabyte costs 256 MiB where every other sector is a member.
class SectorBits {
  public:
    static constexpr std::uint64_t kNone = std::numeric_limits<std::uint64_t>::max();

    // Behind all members so far.
    void append(std::uint64_t sector) {
        const std::uint64_t number = sector / kPageSectors;
        if (m_pages.empty() || m_pages.back().number != number) {
            m_pages.push_back({number, {}, {}});
        }
        ++m_count;
        Page& page = m_pages.back();
        const auto place = static_cast<std::uint16_t>(sector % kPageSectors);
        if (page.bits.empty() && page.members.size() == kMostMembers) {
            page.bits.resize(kPageSectors / 64);
            for (const std::uint16_t member : page.members) {
                set(page, member);
            }
            std::vector<std::uint16_t>().swap(page.members);
        }
        if (page.bits.empty()) {
            page.members.push_back(place);
        } else {
            set(page, place);
        }
    }

    // The first member at or behind the sector; kNone when there is none.
    std::uint64_t firstFrom(std::uint64_t sector) const {
        const std::uint64_t number = sector / kPageSectors;
        auto page = std::lower_bound(m_pages.begin(), m_pages.end(), number,
                                     [](const Page& p, std::uint64_t n) { return p.number < n; });
        for (std::uint64_t from = sector % kPageSectors; page != m_pages.end(); ++page, from = 0) {
            const std::uint64_t place = firstOf(*page, page->number == number ? from : 0);
            if (place != kNone) {
                return page->number * kPageSectors + place;
            }
        }
        return kNone;
    }

    std::uint64_t count() const { return m_count; }
    // Of memory, roughly.
    std::size_t bytes() const {
        std::size_t sum = m_pages.capacity() * sizeof(Page);
        for (const Page& page : m_pages) {
            sum += page.members.capacity() * sizeof(std::uint16_t) +
                   page.bits.capacity() * sizeof(std::uint64_t);
        }
        return sum;
    }

  private:
    static constexpr std::uint64_t kPageSectors = 65536;
    static constexpr std::size_t kMostMembers = kPageSectors / 16;

    struct Page {
        std::uint64_t number;
        std::vector<std::uint16_t> members;  // ascending; empty once there are bits
        std::vector<std::uint64_t> bits;
    };

    static void set(Page& page, std::uint16_t place) {
        page.bits[place / 64] |= std::uint64_t{1} << (place % 64);
    }

    static std::uint64_t firstOf(const Page& page, std::uint64_t from) {
        if (page.bits.empty()) {
            const auto member = std::lower_bound(page.members.begin(), page.members.end(), from);
            return member == page.members.end() ? kNone : *member;
        }
        std::uint64_t mask = ~std::uint64_t{0} << (from % 64);
        for (std::size_t word = from / 64; word < page.bits.size(); ++word, mask = ~std::uint64_t{0}) {
            if (const std::uint64_t members = page.bits[word] & mask; members != 0) {
                return word * 64 + static_cast<std::uint64_t>(std::countr_zero(members));
            }
        }
        return kNone;
    }

    std::vector<Page> m_pages;  // by number
    std::uint64_t m_count = 0;
};

}  // namespace vantor
