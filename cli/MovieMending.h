// Movies without an index among what was found: repaired, behind the search.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <memory>
#include <set>
#include <vector>

#include "cli/Completing.h"
#include "decode/SoundSplitter.h"
#include "repair/ReferenceShelf.h"
#include "results/MediumBytes.h"

namespace vantor {

// Any one thread.
class MovieMending {
  public:
    // Both outlive the object; a stop that is not 0 ends it soon.
    MovieMending(SectorReader& medium, const std::atomic<int>& stop) : m_medium(medium), m_stop(stop) {}

    // A movie of the user's choice in place of those that were found; a sentence for the user when it is of
    // no use.
    QString useReference(const QString& path);
    // Movies that begin there need no repair.
    void passOver(const std::set<std::uint64_t>& firstSectors) { m_completed = firstSectors; }
    // Writes a twin of each movie that has no index and fits a whole one.
    void repair(const std::vector<MendableItem>& items, const QString& destination);

    // What became of it, a line each, for the user.
    const QStringList& lines() const { return m_lines; }
    bool failed() const { return m_failed; }

  private:
    struct Broken {
        const MendableItem* item = nullptr;
        DataPlace data;
    };

    ItemSource sourceOf(const MendableItem& item) const;
    std::vector<Broken> sortOut(const std::vector<MendableItem>& items);
    void mend(const Broken& broken, const QString& destination);

    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
    std::vector<std::uint8_t> m_kept;
    ReferenceShelf m_shelf;
    std::unique_ptr<ReferenceShelf::Kept> m_named;
    SoundSplitter m_splitter;
    QStringList m_lines;
    std::size_t m_repaired = 0;
    std::set<std::uint64_t> m_completed;  // first sectors
    bool m_failed = false;
};

}  // namespace vantor
