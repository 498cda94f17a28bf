// One reader and one destination for all items of a choice.
#include "saving/SaveJob.h"

#include <algorithm>
#include <utility>

#include "results/MyImageObject.h"
#include "saving/ItemSaver.h"

namespace vantor {

std::uint64_t foundSectors(const MyImageObject& item) {
    return item.carved().sectors();
}

SaveJob::SaveJob(SaveRequest request) : m_request(std::move(request)) {
    for (const ChosenItem& chosen : m_request.items) {
        m_total += foundSectors(*chosen.item);
    }
}

void SaveJob::cancel() {
    m_watch.ended = true;
}

SaveProgress SaveJob::progress() const {
    const std::lock_guard lock(m_lock);
    SaveProgress progress = m_progress;
    // An item may be longer or shorter than it was found.
    progress.share += std::min(m_watch.sectorsRead.load(), m_sectorsOfCurrent.load());
    return progress;
}

void SaveJob::run() {
    const std::unique_ptr<SectorReader> medium = m_request.openMedium ? m_request.openMedium() : nullptr;
    m_report.mediumOpened = medium != nullptr;
    if (medium) {
        saveAll(*medium);
        m_request.saver->flush();
        writeTheReport();
    }
    m_finished = true;
}

void SaveJob::saveAll(SectorReader& medium) {
    for (const ChosenItem& chosen : m_request.items) {
        const MyImageObject& item = *chosen.item;
        {
            const std::lock_guard lock(m_lock);
            m_progress.current = item.imageTitle();
            m_sectorsOfCurrent = foundSectors(item);
            m_watch.sectorsRead = 0;
        }
        WatchedReader watched(medium, m_watch);
        FoundItem found{item.fileType(),
                        item.imageTitle(),
                        {item.carved(), {}, [&watched] { return &watched; }, medium.mediumSectors()},
                        &m_watch.ended};
        SaveOutcome outcome = m_request.saver->save(found);
        if (m_watch.ended && !outcome.saved) {
            return;
        }
        m_report.tally.add(item.imageTitle(), outcome);
        m_report.indexes.push_back(chosen.index);
        m_report.items.push_back({item.imageTitle(), found.type, item.publishedSectors().first,
                                  item.publishedSectors().end, std::move(outcome)});
        const std::lock_guard lock(m_lock);
        ++m_progress.done;
        m_progress.share += m_sectorsOfCurrent.exchange(0);
    }
}

void SaveJob::writeTheReport() {
    if (!m_request.report || m_report.items.empty()) {
        return;
    }
    m_request.report->ended = QDateTime::currentDateTime();
    // The report's items are the first of the request's.
    const auto pictureOf = [this](const ReportedItem& reported) {
        const auto place = static_cast<std::size_t>(&reported - m_report.items.data());
        const QByteArray& picture = m_request.items[place].item->imageData();
        return picture == m_request.placeholder ? QByteArray() : picture;
    };
    const bool pictures =
        std::any_of(m_request.items.begin(), m_request.items.end(),
                    [](const ChosenItem& chosen) { return !chosen.item->imageData().isEmpty(); });
    m_report.written = writeReport(m_request.destination, *m_request.report, m_report.items,
                                   pictures ? ReportThumbnail(pictureOf) : ReportThumbnail());
}

}  // namespace vantor
