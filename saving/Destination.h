// The folder that files are saved into: whether it is still the one it was, and what goes with it.
#pragma once

#include <sys/types.h>

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "saving/SavingFolder.h"

namespace vantor {

struct ReportedItem;
struct SaveOutcome;
struct SaveTally;

// Never made anew, and never taken for one of its name on another disk, such as a mount point leaves behind,
// nor for one that somebody made in its place.
// Not held open in between: the user may want to unmount it. Any one thread at a time.
class Destination {
  public:
    // Asked before each file with the destination: whether it lies on the medium by now, for somebody may
    // have mounted another place there.
    using LiesOnMedium = std::function<bool(const QString& destination)>;

    explicit Destination(QString path, LiesOnMedium liesOnMedium = {});

    const QString& path() const { return m_path; }

    // To write a file into; else why not, in a sentence. What is opened first is the destination from then
    // on.
    std::optional<SavingFolder> openToWrite(QString& why);
    // The same without asking whether it may be written into; nothing once it has gone.
    std::optional<SavingFolder> open() const;

    // To be asked when all is saved. Once the folder has gone, whatever was saved in it failed: false then,
    // and the counts and outcomes say so.
    bool keeps(SaveTally& tally, std::vector<ReportedItem>& items) const;

  private:
    QString goneWords() const;
    bool isTheFirst(const SavingFolder& folder) const;

    QString m_path;
    LiesOnMedium m_liesOnMedium;
    std::optional<dev_t> m_device;  // that it was on first
    std::optional<std::int64_t> m_birth;
};

}  // namespace vantor
