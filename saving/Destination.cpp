// One folder, known by its path and the disk that it lay on first.
#include "saving/Destination.h"

#include <QObject>
#include <utility>

#include "saving/RecoveryReport.h"
#include "saving/SaveTally.h"

namespace vantor {

Destination::Destination(QString path, LiesOnMedium liesOnMedium)
    : m_path(std::move(path)), m_liesOnMedium(std::move(liesOnMedium)) {}

std::optional<SavingFolder> Destination::open() const {
    auto folder = SavingFolder::open(m_path);
    const auto device = folder ? folder->device() : std::nullopt;
    return device && m_device.value_or(*device) == *device ? std::move(folder) : std::nullopt;
}

std::optional<SavingFolder> Destination::openToWrite(QString& why) {
    auto folder = open();
    if (!folder) {
        why = goneWords();
        return std::nullopt;
    }
    if (m_liesOnMedium && m_liesOnMedium(m_path)) {
        why = QObject::tr("The folder %1 lies on the medium that is searched").arg(m_path);
        return std::nullopt;
    }
    m_device = folder->device();
    return folder;
}

QString Destination::goneWords() const {
    return QObject::tr("The folder %1 is no longer there").arg(m_path);
}

bool Destination::keeps(SaveTally& tally, std::vector<ReportedItem>& items) const {
    if (open()) {
        return true;
    }
    tally.loseSaved(goneWords());
    for (ReportedItem& item : items) {
        SaveOutcome& outcome = item.outcome;
        if (std::exchange(outcome.saved, false)) {
            outcome.error = goneWords();
            outcome.duplicate = false;
            outcome.path.clear();
        }
    }
    return false;
}

}  // namespace vantor
