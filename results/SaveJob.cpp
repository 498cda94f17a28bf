// One reader and one destination for all items of a choice.
#include "results/SaveJob.h"

#include "results/ItemSaver.h"
#include "results/MyImageObject.h"
#include "results/ResultRow.h"

namespace vantor {

void SaveJob::run() {
    const std::unique_ptr<SectorReader> medium = m_request.openMedium ? m_request.openMedium() : nullptr;
    m_report.mediumOpened = medium != nullptr;
    const ItemSaver saver(m_request.destination);
    for (const auto& item : m_request.items) {
        if (!medium || cancelled) {
            break;
        }
        const QString type = item->type().isEmpty() ? pathExtension(item->imageTitle()) : item->type();
        const SaveOutcome outcome = saver.saveRuns(type, item->imageTitle(), item->carved(), *medium);
        if (outcome.saved) {
            m_report.saved.push_back(item);
            m_report.withUnreadableSectors += outcome.sectorsUnreadable > 0 ? 1 : 0;
            m_report.duplicates += outcome.duplicate ? 1 : 0;
        } else {
            if (m_report.failed++ == 0) {
                m_report.firstError = outcome.error;
            }
        }
        ++done;
    }
    finished = true;
}

}  // namespace vantor
