// One folder, known by its path, the disk that it lay on first and the time when it was made.
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
    return folder && isTheFirst(*folder) ? std::move(folder) : std::nullopt;
}

bool Destination::isTheFirst(const SavingFolder& folder) const {
    const auto device = folder.device();
    const auto birth = folder.birth();
    return device && m_device.value_or(*device) == *device && (!birth || m_birth.value_or(*birth) == *birth);
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
    m_birth = folder->birth();
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
