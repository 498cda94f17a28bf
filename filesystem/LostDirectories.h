// Directories that nothing leads to any more: to which file system each belonged.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "filesystem/ClusterVolume.h"
#include "filesystem/ClusterVote.h"
#include "filesystem/FoundStarts.h"
#include "filesystem/SectorSource.h"

namespace vantor {

class LostDirectories {
  public:
    using Volumes = std::vector<std::unique_ptr<ClusterVolume>>;

    // New file systems are appended to the volumes. All outlive it.
    LostDirectories(SectorSource& card, const FoundStarts& found, Volumes& volumes)
        : m_card(card), m_found(found), m_volumes(volumes) {}

    // Looks at the sectors that no directory of the volumes has claimed, and hands each to the volume that it
    // fits: one there is, one of the shapes, or one that the directories themselves tell of.
    void read(const std::vector<SectorRun>& traces, std::vector<VolumeShape> shapes);

  private:
    void sortOut(const std::vector<SectorRun>& traces);
    void placeRoots();
    void placeBeginnings();
    void placeKnownBeginnings();
    std::optional<ClusterPlaces> placesOfRow(const ClusterSighting& directory);
    void placeParts(bool exfat);
    std::vector<ClusterSighting> sightings(const std::vector<SectorRun>& parts, bool exfat);
    // How much of what the parts say is found where the shape puts it.
    std::size_t evidence(const SectorRun& part, const VolumeShape& shape);
    static bool followsPart(const std::vector<DirectoryEntry>& entries, const SectorRun& part,
                            const VolumeShape& shape);
    bool standsThere(const DirectoryEntry& entry, const VolumeShape& shape);
    DirectoryRows rowsOf(const SectorRun& part, bool exfat);
    ClusterVolume* volumeOf(const VolumeShape& shape);
    bool isClaimed(std::uint64_t sector) const;

    SectorSource& m_card;
    const FoundStarts& m_found;
    Volumes& m_volumes;
    std::vector<VolumeShape> m_shapes;          // known, with or without a volume
    std::vector<ClusterSighting> m_beginnings;  // of FAT subdirectories
    std::vector<SectorRun> m_fatParts;
    std::vector<SectorRun> m_exfatParts;
};

}  // namespace vantor
