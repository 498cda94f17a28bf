// Broken items of one kind, put together from their pieces and written beside what was saved of them.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <vector>

#include "media/SectorReader.h"
#include "results/Assembly.h"
#include "results/CarvedRun.h"

namespace vantor {

struct MendableItem {
    QString type;
    QString name;
    CarvedRun carved;
    bool complete = false;    // by its own format
    bool checked = false;     // complete, and its content was looked at
    std::uint64_t bytes = 0;  // of a complete one
    std::size_t pieces = 1;   // that it was saved from; of more than one the carved run tells the first alone
};

struct CompletableKind {
    QString summary;  // how many of how many were completed and put together: %1, %2 and %3
    std::function<bool(const QString& type)> includes;
    // Whether a complete item takes places away.
    std::function<bool(const MendableItem& item)> yieldsTo;
    // For each first sector of a broken item its pieces; the runs are what is explained by others.
    std::function<std::vector<std::optional<Assembly>>(std::span<const std::uint64_t> broken,
                                                       std::span<const SectorRun> whole)>
        find;
};

struct Completed {
    QStringList lines;                     // what became of each that was found, for the user, and a sum
    std::set<std::uint64_t> firstSectors;  // of those that were written
    std::vector<SectorRun> whole;          // what is explained now
    bool failed = false;                   // something could not be written
};

// `whole`: what is explained beside the items. A stop that is not 0 ends it soon. Any one thread.
Completed completeBroken(const CompletableKind& kind, const std::vector<MendableItem>& items,
                         std::vector<SectorRun> whole, SectorReader& medium, const std::atomic<int>& stop,
                         const QString& destination);

bool isPictureWithSyntax(const QString& type);  // JPEG and PNG
bool isMovieOfBoxes(const QString& type);       // MP4, QuickTime and what is built like them

}  // namespace vantor
