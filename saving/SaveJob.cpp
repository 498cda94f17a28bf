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
    const std::lock_guard lock(m_lock);
    m_cancelled = true;
    m_watch.ended = true;
}

void SaveJob::skip(std::size_t place) {
    const std::lock_guard lock(m_lock);
    if (m_progress.done == place) {
        m_watch.ended = true;
    }
}

SaveProgress SaveJob::progress() const {
    const std::lock_guard lock(m_lock);
    SaveProgress progress = m_progress;
    // An item may be longer or shorter than it was found.
    progress.share += std::min(m_watch.sectorsRead.load(), m_sectorsOfCurrent.load());
    progress.refused = m_watch.sectorsRefused;
    return progress;
}

void SaveJob::run() {
    const std::unique_ptr<SectorReader> medium = m_request.openMedium ? m_request.openMedium() : nullptr;
    m_report.mediumOpened = medium != nullptr;
    const auto held = [](const ChosenItem& chosen) { return !chosen.item->heldBytes().isEmpty(); };
    if (medium || std::any_of(m_request.items.begin(), m_request.items.end(), held)) {
        saveAll(medium.get());
        m_request.saver->flush();
        writeTheReport();
    }
    m_finished = true;
}

void SaveJob::begin(const MyImageObject& item) {
    const std::lock_guard lock(m_lock);
    m_progress.current = item.imageTitle();
    m_sectorsOfCurrent = foundSectors(item);
    m_watch.sectorsRead = 0;
    m_watch.sectorsRefused = 0;
    m_watch.ended = m_cancelled.load();
}

void SaveJob::saveAll(SectorReader* medium) {
    for (const ChosenItem& chosen : m_request.items) {
        const MyImageObject& item = *chosen.item;
        begin(item);
        std::optional<WatchedReader> watched;
        if (medium != nullptr) {
            watched.emplace(*medium, m_watch);
        }
        FoundItem found{item.fileType(),
                        item.imageTitle(),
                        {item.carved(),
                         item.heldBytes(),
                         [&watched] { return watched ? &*watched : nullptr; },
                         medium != nullptr ? medium->mediumSectors() : 0,
                         false,
                         {{}, m_request.card}},
                        &m_watch.ended};
        SaveOutcome outcome = m_request.saver->save(found);
        if (m_cancelled && !outcome.saved) {
            return;
        }
        if (m_watch.ended && !outcome.saved) {
            outcome.error = QStringLiteral("Skipped");
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
