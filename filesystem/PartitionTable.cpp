// Sources: public descriptions of the master boot record; the UEFI specification, chapter on GPT.
#include "filesystem/PartitionTable.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "filesystem/LittleEndian.h"

namespace vantor {

namespace {

using Sector = std::array<std::uint8_t, 512>;
constexpr std::size_t kMostPartitions = 256;
constexpr std::size_t kRowsAt = 446;
constexpr std::size_t kRowBytes = 16;

bool isExtended(std::uint8_t type) {
    return type == 0x05 || type == 0x0F || type == 0x85;
}

class TableReader {
  public:
    explicit TableReader(SectorSource& card) : m_card(card) {}

    std::vector<SectorRun> read() {
        readRecord();
        if (!readGuidTable(1)) {
            readGuidTable(m_card.sectors() - 1);
        }
        return std::move(m_found);
    }

  private:
    bool load(std::uint64_t sector, Sector& into) {
        return sector < m_card.sectors() && m_card.readAt(sector, into);
    }

    void add(std::uint64_t first, std::uint64_t sectors) {
        if (first == 0 || first >= m_card.sectors() || sectors == 0 || m_found.size() >= kMostPartitions) {
            return;
        }
        const SectorRun run{first, first + std::min(sectors, m_card.sectors() - first)};
        if (std::find(m_found.begin(), m_found.end(), run) == m_found.end()) {
            m_found.push_back(run);
        }
    }

    void readRecord() {
        Sector record;
        if (!load(0, record) || le16(record, 510) != 0xAA55) {
            return;
        }
        for (std::size_t at = kRowsAt; at < 510; at += kRowBytes) {
            const std::uint64_t first = le32(record, at + 8);
            if (isExtended(record[at + 4])) {
                readExtended(first);
            } else if (record[at + 4] != 0 && (record[at] & 0x7F) == 0) {
                add(first, le32(record, at + 12));
            }
        }
    }

    // A chain of records, each with a partition counted from itself and the next counted from the first.
    void readExtended(std::uint64_t chain) {
        std::uint64_t at = chain;
        for (std::size_t i = 0; i < kMostPartitions; ++i) {
            Sector record;
            if (!load(at, record) || le16(record, 510) != 0xAA55) {
                return;
            }
            add(at + le32(record, kRowsAt + 8), le32(record, kRowsAt + 12));
            const std::uint64_t next = le32(record, kRowsAt + kRowBytes + 8);
            if (next == 0 || !isExtended(record[kRowsAt + kRowBytes + 4])) {
                return;
            }
            at = chain + next;
        }
    }

    bool readGuidTable(std::uint64_t headerAt) {
        Sector header;
        if (!load(headerAt, header) || std::memcmp(header.data(), "EFI PART", 8) != 0) {
            return false;
        }
        const std::uint64_t rowsAt = le64(header, 72);
        const std::uint64_t rows = std::min<std::uint64_t>(le32(header, 80), kMostPartitions);
        const std::uint64_t rowBytes = le32(header, 84);
        if (rowBytes < 128 || rowBytes > 512 || 512 % rowBytes != 0 || rowsAt >= m_card.sectors()) {
            return false;
        }
        const std::uint64_t perSector = 512 / rowBytes;
        Sector table;
        for (std::uint64_t row = 0; row < rows; ++row) {
            if (row % perSector == 0 && !load(rowsAt + row / perSector, table)) {
                break;
            }
            const std::size_t at = row % perSector * rowBytes;
            const bool isUsed = le64(table, at) != 0 || le64(table, at + 8) != 0;
            const std::uint64_t first = le64(table, at + 32);
            const std::uint64_t last = le64(table, at + 40);
            if (isUsed && last >= first && last < m_card.sectors()) {
                add(first, last - first + 1);
            }
        }
        return true;
    }

    SectorSource& m_card;
    std::vector<SectorRun> m_found;
};

}  // namespace

std::vector<SectorRun> partitionsOf(SectorSource& card) {
    return card.sectors() == 0 ? std::vector<SectorRun>{} : TableReader(card).read();
}

}  // namespace vantor
