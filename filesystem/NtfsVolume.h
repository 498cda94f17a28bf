// One NTFS file system, as its file records tell it.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <unordered_map>
#include <vector>

#include "filesystem/CardTable.h"
#include "filesystem/NtfsRecord.h"
#include "filesystem/SectorSource.h"
#include "filesystem/VolumeShape.h"

namespace vantor {

class NtfsVolume {
  public:
    // The card outlives it.
    NtfsVolume(SectorSource& card, const VolumeShape& shape, bool isCurrent)
        : m_card(card), m_shape(shape), m_isCurrent(isCurrent) {}

    // Reads all records and appends the files and, for a current file system, what it holds as in use. False
    // when there are no records where the boot sector says.
    bool tell(CardTable& table);

    // Appends what these records tell, which belonged to a file system of this shape and were found apart.
    void tellLost(std::vector<NtfsRecord> records, CardTable& table);

    // Where its own records lie, as far as tell() has read them.
    const std::vector<SectorRun>& recordPlaces() const { return m_places; }

  private:
    struct Named {
        NtfsReference base;
        NtfsReference parent;
        QString name;
    };

    std::vector<SectorRun> sectorsOf(const std::vector<NtfsRun>& runs) const;
    void readRecords(const std::vector<SectorRun>& places, std::uint64_t records);
    void keep(std::uint64_t number, NtfsRecord record);
    void joinParts();
    void tellFiles(CardTable& table);
    // Nothing for a folder of the file system's own.
    std::optional<QString> folderOf(const NtfsReference& parent) const;
    // The same, made once.
    const std::optional<QString>& knownFolderOf(const NtfsReference& parent);
    void placeFile(const NtfsRecord& record, std::uint64_t sectors, CardFile& file) const;
    // The same for one that is packed or has holes.
    void layOut(const NtfsRecord& record, std::uint64_t clusters, CardFile& file) const;
    void tellFile(const NtfsRecord& record, CardTable& table);

    SectorSource& m_card;
    const VolumeShape m_shape;
    const bool m_isCurrent;
    std::vector<SectorRun> m_places;
    std::vector<SectorRun> m_held;  // by what is there
    std::map<std::uint64_t, NtfsRecord> m_records;
    // Further parts of a file's contents, by the record that they go on, in the order of its clusters.
    std::unordered_map<std::uint64_t, std::multimap<std::uint64_t, NtfsRecord>> m_parts;
    std::size_t m_partsKept = 0;
    // Names that stand in a further record, by the record that they belong to.
    std::multimap<std::uint64_t, Named> m_names;
    std::uint64_t m_runsKept = 0;
    std::uint64_t m_contentsKept = 0;  // bytes
    std::map<std::pair<std::uint64_t, std::uint16_t>, std::optional<QString>> m_folders;
};

}  // namespace vantor
