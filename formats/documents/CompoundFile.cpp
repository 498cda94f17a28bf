// OLE2 compound files (DOC, XLS, PPT, MSG …): the highest sector that the allocation table holds in use.
// Source: [MS-CFB].
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kTable = 0xFFFFFFFD;  // the table's mark for its own sectors
constexpr std::uint32_t kChainEnd = 0xFFFFFFFE;
constexpr std::uint32_t kMostRegular = 0xFFFFFFFA;
constexpr std::uint64_t kInHeader = 109;  // table sectors listed in the header itself

class CompoundWalk {
  public:
    CompoundWalk(ByteView& view, unsigned shift) : m_view(view), m_shift(shift) {}

    Extent walk();

  private:
    std::uint64_t position(std::uint32_t sector) const { return (std::uint64_t{sector} + 1) << m_shift; }
    std::uint64_t headerEnd() const { return std::uint64_t{1} << m_shift; }
    bool tableSector(std::uint32_t sector);
    bool isListedInHeader(std::uint64_t sector) const;
    void forgetFilling();

    ByteView& m_view;
    const unsigned m_shift;
    std::uint64_t m_tables = 0;
    std::uint64_t m_marked = 0;  // sectors that the table says are its own
    std::array<std::uint32_t, kInHeader> m_inHeader{};
    std::uint64_t m_lastUsed = 0;
    std::uint64_t m_lastNamed = 0;  // by another entry, the header or the list of tables
    std::uint64_t m_ends = 0;       // marks of chains' ends that the table closes with
};

bool CompoundWalk::isListedInHeader(std::uint64_t sector) const {
    return std::find(m_inHeader.begin(), m_inHeader.end(), sector) != m_inHeader.end();
}

// Takes one sector of the allocation table; false where it does not lie in the view.
bool CompoundWalk::tableSector(std::uint32_t sector) {
    const std::uint64_t entries = std::uint64_t{1} << (m_shift - 2);
    const auto at = position(sector);
    const auto first = m_tables++ * entries;
    m_lastUsed = std::max<std::uint64_t>(m_lastUsed, sector);
    m_lastNamed = std::max<std::uint64_t>(m_lastNamed, sector);
    const auto bytes = m_view.window(at, entries * 4);
    if (bytes.size() < entries * 4)
        return false;
    for (std::uint64_t i = 0; i < entries; ++i) {
        const auto* const entry = bytes.data() + i * 4;
        const auto next = static_cast<std::uint32_t>(entry[0] | entry[1] << 8 | entry[2] << 16) |
                          static_cast<std::uint32_t>(entry[3]) << 24;
        // Writers in Java marked the table's own sectors as the ends of chains.
        m_marked += next == kTable || (next == kChainEnd && isListedInHeader(first + i)) ? 1 : 0;
        m_ends = next == kChainEnd ? m_ends + 1 : 0;
        if (next <= kMostRegular)
            m_lastNamed = std::max<std::uint64_t>(m_lastNamed, next);
        if (next != kFree)
            m_lastUsed = std::max(m_lastUsed, first + i);
    }
    return true;
}

// Some writers fill the rest of the table with the marks of chains' ends, of sectors that nothing names.
void CompoundWalk::forgetFilling() {
    constexpr std::uint64_t kShortChains = 16;  // of one sector each, that a file may well end with
    const auto entries = m_tables << (m_shift - 2);
    if (m_ends < kShortChains || m_lastUsed + 1 != entries)
        return;
    for (const std::uint64_t at : {48U, 60U}) {  // the directory, the table of small sectors
        if (const auto sector = m_view.le32(at).value_or(kFree); sector <= kMostRegular)
            m_lastNamed = std::max<std::uint64_t>(m_lastNamed, sector);
    }
    m_lastUsed = m_ends < entries ? std::max(m_lastNamed, entries - m_ends - 1) : m_lastNamed;
}

Extent CompoundWalk::walk() {
    const std::uint64_t tables = m_view.le32(44).value_or(0);
    std::uint32_t list = m_view.le32(68).value_or(kFree);
    const std::uint64_t lists = m_view.le32(72).value_or(0);
    const std::uint64_t most = (m_view.size() >> m_shift) + 1;
    if (tables == 0 || (std::uint64_t{1} << m_shift) * tables > (std::uint64_t{1} << 40))
        return damagedAt(m_view, headerEnd());
    m_inHeader.fill(kFree);
    for (std::uint64_t i = 0; i < std::min(tables, kInHeader); ++i)
        m_inHeader[i] = m_view.le32(76 + i * 4).value_or(kFree);
    bool inside = true;
    for (std::uint64_t i = 0; inside && i < std::min(tables, kInHeader); ++i)
        inside = tableSector(m_inHeader[i]);
    const std::uint64_t links =
        (std::uint64_t{1} << (m_shift - 2)) - 1;  // the last entry names the next list
    for (std::uint64_t i = 0; inside && i < std::min(lists, most) && list < kMostRegular; ++i) {
        const auto at = position(list);
        m_lastUsed = std::max<std::uint64_t>(m_lastUsed, list);
        m_lastNamed = std::max<std::uint64_t>(m_lastNamed, list);
        for (std::uint64_t link = 0; inside && link < links && m_tables < tables; ++link)
            inside = tableSector(m_view.le32(at + link * 4).value_or(kFree));
        list = m_view.le32(at + links * 4).value_or(kFree);
    }
    forgetFilling();
    const auto end = (m_lastUsed + 2) << m_shift;
    if (!inside)
        return end > m_view.size() && m_lastUsed < kMostRegular ? cutOffAt(m_view, m_view.size())
                                                                : damagedAt(m_view, headerEnd());
    // What the header calls the table is none: nothing that it says of the length counts.
    if (m_marked < m_tables)
        return damagedAt(m_view, headerEnd());
    if (m_tables < tables)
        return damagedAt(m_view, end);
    // Free sectors behind the last one in use may have belonged to the file; they hold nothing.
    return inexact(completeAt(m_view, end));
}

Extent walkCompoundFile(ByteView& view) {
    if (!view.matches(0, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") || view.le16(28) != 0xFFFE)
        return unknownExtent();
    const auto shift = view.le16(30).value_or(0);
    if (shift != 9 && shift != 12)
        return unknownExtent();
    return CompoundWalk(view, shift).walk();
}

}  // namespace

extern constexpr Format kCompoundFile = {
    .name = "OLE2",
    .group = Group::Documents,
    .walk = walkCompoundFile,
    .extensions = " DOC DOT XLS XLT PPT PPS POT MSG VSD PUB MPP FPX MSI DB OFT WPS XLA SUO MAX HWP ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
