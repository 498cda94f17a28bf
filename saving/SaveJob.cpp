// One reader and one destination for all items of a choice.
#include "saving/SaveJob.h"

#include <QObject>
#include <algorithm>
#include <utility>

#include "results/MendedItems.h"
#include "results/MyImageObject.h"
#include "results/ToldFiles.h"
#include "saving/ItemSaver.h"
#include "saving/SavedContents.h"
#include "saving/ToldItem.h"
#include "saving/TwinFile.h"

namespace vantor {

std::uint64_t foundSectors(const MyImageObject& item) {
    return item.carved().sectors();
}

SaveJob::SaveJob(SaveRequest request) : m_request(std::move(request)) {
    for (const ChosenItem& chosen : m_request.items) {
        m_total += foundSectors(*chosen.item);
    }
    for (const auto& file : m_request.told) {
        m_total += runsOf(*file).sectors();
    }
}

void SaveJob::cancel() {
    const std::lock_guard lock(m_lock);
    (m_progress.toCheck == 0 ? m_cancelled : m_checkedEnough) = true;
    m_watch.ended = true;
}

void SaveJob::skip(std::size_t turn) {
    const std::lock_guard lock(m_lock);
    if (m_progress.turn == turn) {
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
    std::unique_ptr<SectorReader> medium = m_request.openMedium ? m_request.openMedium() : nullptr;
    m_report.mediumOpened = medium != nullptr;
    const auto held = [](const ChosenItem& chosen) { return !chosen.item->heldBytes().isEmpty(); };
    if (medium || std::any_of(m_request.items.begin(), m_request.items.end(), held)) {
        saveAll(medium.get());
        saveTold(medium.get());
        m_request.saver->flush();
        medium.reset();
        checkContents();
        compileReport();
        if (destinationKeepsAll()) {
            writeTheReport();
            destinationKeepsAll();
        }
    }
    m_finished = true;
}

void SaveJob::begin(const QString& name, std::uint64_t sectors) {
    const std::lock_guard lock(m_lock);
    m_progress.current = name;
    m_sectorsOfCurrent = sectors;
    m_watch.sectorsRead = 0;
    m_watch.sectorsRefused = 0;
    m_watch.ended = m_cancelled || m_checkedEnough;
}

void SaveJob::saveAll(SectorReader* medium) {
    m_outcomes.resize(m_request.items.size());
    m_request.saver->beginRound();
    WaitingClaims later;
    for (std::size_t place = 0; place < m_outcomes.size(); ++place) {
        if (!saveItem(place, medium, later.isFull() ? nullptr : &later)) {
            return;
        }
    }
    m_request.saver->beginSecondRound();
    for (const std::size_t place : later.take()) {
        if (!saveItem(place, medium, nullptr)) {
            return;
        }
    }
}

// False when all is cancelled. `later` takes the item where it has to come again.
bool SaveJob::saveItem(std::size_t place, SectorReader* medium, WaitingClaims* later) {
    const MyImageObject& item = *m_request.items[place].item;
    begin(item.imageTitle(), foundSectors(item));
    std::optional<WatchedReader> watched;
    if (medium != nullptr) {
        watched.emplace(*medium, m_watch);
    }
    FoundItem found{item.fileType(),
                    item.imageTitle(),
                    {item.carved(), item.heldBytes(),
                     [&watched]() -> SectorReader* { return watched ? &*watched : nullptr; },
                     medium != nullptr ? medium->mediumSectors() : 0},
                    &m_watch.ended,
                    later != nullptr};
    found.source.hints.card = m_request.card;
    found.source.hints.mend = m_request.mended ? m_request.mended->provedOf(item) : nullptr;
    SaveOutcome outcome = m_request.saver->save(found);
    if (medium != nullptr && !outcome.later && outcome.error.isEmpty()) {
        saveTwin(found, item, outcome);
    }
    if (m_cancelled && !outcome.saved) {
        return false;
    }
    const std::lock_guard lock(m_lock);
    ++m_progress.turn;
    if (outcome.later) {
        later->add(place, outcome.bytes, item.carved(), outcome.comesFirst());
        m_sectorsOfCurrent = 0;
        return true;
    }
    if (m_watch.ended && !outcome.saved) {
        outcome.error = QObject::tr("Skipped");
    }
    m_outcomes[place] = std::move(outcome);
    ++m_progress.done;
    m_progress.share += m_sectorsOfCurrent.exchange(0);
    return true;
}

// What is not proved to be all of the item lies beside it. Types that share an item share its twin.
void SaveJob::saveTwin(const FoundItem& found, const MyImageObject& item, const SaveOutcome& outcome) {
    const auto mend = m_request.mended ? m_request.mended->of(item) : nullptr;
    const bool unwanted = m_request.saver->policy().asPublished;
    if (!mend || unwanted || mend->kind == MendKind::Completed || !m_twinsSaved.insert(mend.get()).second) {
        return;
    }
    const TwinPlace place = placeOfTwin(m_request.saver->destination(), found, outcome);
    SaveOutcome twin = writeTwin(
        place, mend, found.source, [this] { return m_watch.ended.load(); },
        m_request.saver->policy().checksums);
    if (!m_watch.ended || twin.saved) {
        m_furtherOutcomes.push_back({twinNameOf(found.name, markOf(mend->kind)), found.type,
                                     item.publishedSectors().first, item.publishedSectors().end,
                                     std::move(twin)});
    }
}

void SaveJob::saveTold(SectorReader* medium) {
    for (const auto& file : m_request.told) {
        if (medium == nullptr || m_cancelled) {
            m_report.toldFailed.push_back(file);
            continue;
        }
        WatchedReader watched(*medium, m_watch);
        FoundItem item = toldItem(file, m_request.card, watched);
        item.unwanted = &m_watch.ended;
        const CarvedRun& carved = item.source.carved;
        begin(item.name, carved.sectors());
        SaveOutcome outcome = m_request.saver->save(item);
        const std::lock_guard lock(m_lock);
        ++m_progress.turn;
        ++m_progress.done;
        m_progress.share += m_sectorsOfCurrent.exchange(0);
        if (!outcome.saved && outcome.leftOut == LeftOut::No) {
            m_report.toldFailed.push_back(file);
            if (m_cancelled) {
                continue;
            }
            outcome.error = m_watch.ended ? QObject::tr("Skipped") : outcome.error;
        }
        if (outcome.leftOut != LeftOut::Unsound) {
            m_furtherOutcomes.push_back({item.name, item.type, carved.runs.front().first,
                                         carved.runs.front().end, std::move(outcome)});
        }
    }
}

void SaveJob::checkContents() {
    std::vector<std::pair<SaveOutcome*, QString>> due;
    for (std::size_t place = 0; place < m_outcomes.size(); ++place) {
        if (m_outcomes[place] && SavedContents::isDue(*m_outcomes[place])) {
            due.emplace_back(&*m_outcomes[place], m_request.items[place].item->imageTitle());
        }
    }
    for (ReportedItem& further : m_furtherOutcomes) {
        if (SavedContents::isDue(further.outcome)) {
            due.emplace_back(&further.outcome, further.name);
        }
    }
    SavedContents& contents = *m_request.saver->contents();
    contents.begin();
    for (const auto& [outcome, name] : due) {
        begin(name, 0);
        {
            const std::lock_guard lock(m_lock);
            if (m_cancelled || m_checkedEnough) {
                return;
            }
            m_progress.toCheck = due.size();
        }
        contents.look(*outcome, [this] { return m_watch.ended.load(); });
        const std::lock_guard lock(m_lock);
        ++m_progress.turn;
        ++m_progress.checked;
    }
}

void SaveJob::compileReport() {
    for (std::size_t place = 0; place < m_outcomes.size(); ++place) {
        if (!m_outcomes[place]) {
            continue;
        }
        const MyImageObject& item = *m_request.items[place].item;
        m_report.tally.add(item.imageTitle(), *m_outcomes[place]);
        m_report.indexes.push_back(m_request.items[place].index);
        m_reportedPlaces.push_back(place);
        m_report.items.push_back({item.imageTitle(), item.fileType(), item.publishedSectors().first,
                                  item.publishedSectors().end, std::move(*m_outcomes[place])});
    }
    m_outcomes.clear();
    for (ReportedItem& further : m_furtherOutcomes) {
        m_report.tally.add(further.name, further.outcome);
        m_report.items.push_back(std::move(further));
    }
    m_furtherOutcomes.clear();
}

// Else all of it is to be saved again.
bool SaveJob::destinationKeepsAll() {
    const bool keeps = m_request.saver->destination()->keeps(m_report.tally, m_report.items);
    if (!keeps) {
        m_report.toldFailed = m_request.told;
    }
    return keeps;
}

void SaveJob::writeTheReport() {
    if (!m_request.report || m_report.items.empty()) {
        return;
    }
    m_request.report->ended = QDateTime::currentDateTime();
    const auto pictureOf = [this](const ReportedItem& reported) {
        const auto at = static_cast<std::size_t>(&reported - m_report.items.data());
        if (at >= m_reportedPlaces.size()) {
            return QByteArray();
        }
        const QByteArray& picture = m_request.items[m_reportedPlaces[at]].item->imageData();
        return picture == m_request.placeholder ? QByteArray() : picture;
    };
    const bool pictures =
        std::any_of(m_request.items.begin(), m_request.items.end(),
                    [](const ChosenItem& chosen) { return !chosen.item->imageData().isEmpty(); });
    m_report.written = writeReport(m_request.destination, *m_request.report, m_report.items,
                                   pictures ? ReportThumbnail(pictureOf) : ReportThumbnail());
}

}  // namespace vantor
