// What became of the found items, counted for the summary at the end.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "saving/ItemSaver.h"

namespace vantor {

struct SaveTally {
    static constexpr qsizetype kFailuresTold = 20;

    // Files that were written, by their soundness.
    std::uint64_t saved = 0;
    std::uint64_t bytes = 0;
    std::uint64_t complete = 0;   // their content checked
    std::uint64_t unchecked = 0;  // complete by their lengths only
    std::uint64_t cutOff = 0;
    std::uint64_t damaged = 0;
    std::uint64_t unknownLength = 0;
    std::uint64_t mended = 0;  // put together or repaired beside the items themselves
    std::uint64_t withUnreadableSectors = 0;

    std::uint64_t duplicates = 0;
    std::uint64_t tooSmall = 0;
    std::uint64_t unsound = 0;
    std::uint64_t stillThere = 0;
    std::uint64_t parts = 0;
    std::uint64_t named = 0;  // of those saved: the card told their names
    std::uint64_t failed = 0;
    QStringList failures;  // the first few, a sentence each; one for all that went with the destination

    void add(const QString& name, const SaveOutcome& outcome);
    // Only now the content of a file that was added was looked at.
    void noteChecked(const SaveOutcome& outcome);
    // Whatever was saved has gone since then, for that reason.
    void loseSaved(const QString& why);
    // Of those that failed, how many the first so many sentences say nothing of.
    std::uint64_t failedBeside(qsizetype sentences) const;

    // How many of the saved are how sound: "10 complete", "2 cut off", ...
    QStringList bySoundness() const;
    // "12 saved in /out (3.4 MB): 10 complete, 2 cut off", and a line for each thing left out.
    QStringList lines(const QString& destination) const;

  private:
    std::uint64_t m_lost = 0;  // of those that failed: they were saved before
};

}  // namespace vantor
