// File records of NTFS that no master file table leads to any more.
#pragma once

#include <optional>
#include <vector>

#include "filesystem/CardTable.h"
#include "filesystem/FoundStarts.h"
#include "filesystem/NtfsRecord.h"
#include "filesystem/SectorSource.h"
#include "filesystem/VolumeShape.h"

namespace vantor {

// A quick format writes the first records anew and leaves the others as they were, behind or beside the new
// table, with names, folders and runs.
class LostRecords {
  public:
    // All outlive it.
    LostRecords(SectorSource& card, const FoundStarts& found) : m_card(card), m_found(found) {}

    // Appends what the records among the traces tell. `known`: where records have been read already, sorted
    // and apart. The records of one table lie a record's number apart from where it began. Their clusters are
    // those of the shape that puts most files where such a file begins, else those that the found beginnings
    // vote for; tables whose clusters are the same are parts of one.
    void tell(const std::vector<SectorRun>& traces, const std::vector<SectorRun>& known,
              const std::vector<VolumeShape>& shapes, CardTable& table);

  private:
    using Records = std::vector<NtfsRecord>;

    // Of each table by itself, the largest first.
    std::vector<Records> tablesAt(const std::vector<SectorRun>& traces, const std::vector<SectorRun>& known);
    std::optional<VolumeShape> shapeOf(const std::vector<NtfsRecord>& records,
                                       const std::vector<VolumeShape>& shapes);
    std::optional<VolumeShape> votedShape(const std::vector<NtfsRecord>& records) const;
    bool standsThere(const NtfsRecord& record, const VolumeShape& shape);

    SectorSource& m_card;
    const FoundStarts& m_found;
};

}  // namespace vantor
