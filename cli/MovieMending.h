// Broken movies among what was found: put together from their pieces, or repaired, behind the search.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <memory>
#include <set>
#include <vector>

#include "decode/SoundSplitter.h"
#include "repair/ReferenceShelf.h"
#include "results/Assembly.h"
#include "results/CarvedRun.h"
#include "results/MediumBytes.h"

namespace vantor {

struct MendableItem {
    QString type;
    QString name;
    CarvedRun carved;
    bool complete = false;    // by its own format
    std::uint64_t bytes = 0;  // of a complete one
};

// Any one thread.
class MovieMending {
  public:
    // Both outlive the object; a stop that is not 0 ends it soon.
    MovieMending(SectorReader& medium, const std::atomic<int>& stop) : m_medium(medium), m_stop(stop) {}

    // Whether items of the type (`Ext_Name`) are worth handing over.
    static bool mayMend(const QString& type);
    // A movie of the user's choice in place of those that were found; a sentence for the user when it is of
    // no use.
    QString useReference(const QString& path);
    // Writes each broken movie of which the pieces are found; repair() passes over these then.
    void complete(const std::vector<MendableItem>& items, const QString& destination);
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

    bool writeAssembly(const MendableItem& item, const Assembly& assembly, const QString& destination);
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
