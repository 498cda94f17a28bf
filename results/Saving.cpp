// Saving of found items from both results screens: how, where to, how far, and what came of it.
#include <QLocale>
#include <map>
#include <numeric>

#include "app/MyTableController.h"
#include "results/RecoveryMode.h"
#include "results/SaveJob.h"
#include "results/SaveSummary.h"
#include "wizard/Alerts.h"
#include "wizard/SavingSheet.h"

namespace vantor {

namespace {

// Types that share a header find the same sectors; they are saved once.
std::uint64_t bytesNeeded(const std::vector<ChosenItem>& items) {
    std::map<std::uint64_t, std::uint64_t> sectorsAt;
    for (const ChosenItem& chosen : items) {
        const CarvedRun& carved = chosen.item->carved();
        if (!carved.runs.empty()) {
            std::uint64_t& most = sectorsAt[carved.runs.front().first];
            most = std::max(most, carved.sectors());
        }
    }
    std::uint64_t sectors = 0;
    for (const auto& place : sectorsAt) {
        sectors += place.second;
    }
    return sectors * kSectorBytes;
}

QString wordsForMode() {
    switch (Recovery_MODE.load()) {
        case kVideoMode:
            return QStringLiteral("videos");
        case kRawFileMode:
            return QStringLiteral("files");
        default:
            return QStringLiteral("photos");
    }
}

}  // namespace

bool MyTableController::hasUnsavedItems() const {
    return itemCount() > m_marks.settled();
}

void MyTableController::saveSelected() {
    saveItems(browserOf(activeSet())->selectionIndexes());
}

void MyTableController::saveAll() {
    QList<qsizetype> all(static_cast<qsizetype>(itemCount()));
    std::iota(all.begin(), all.end(), 0);
    saveItems(all);
}

void MyTableController::askSavingOptions() {
    if (m_savingOptions->ask(m_savingChoices)) {
        showItemCounts();
    }
}

void MyTableController::saveItems(const QList<qsizetype>& indexes) {
    if (indexes.isEmpty() || session) {
        return;
    }
    if (m_saveRunning) {
        runAlert(
            {QStringLiteral("\n") + tr("The storage medium does not answer."),
             tr("It still holds up the saving that you cancelled. Take the medium out and put it back in, "
                "then try again.")},
            window);
        return;
    }
    const QString destination = pathInView()->text().isEmpty() ? askDestination() : pathInView()->text();
    if (destination.isEmpty() || !acceptDestination(destination)) {
        return;
    }
    SaveRequest request;
    for (const qsizetype index : indexes) {
        const auto at = static_cast<std::size_t>(index);
        if (auto item = itemAt(at)) {
            request.items.push_back({at, std::move(item)});
        }
    }
    if (!mayFillDestination(destination, bytesNeeded(request.items))) {
        return;
    }
    request.saver = saverFor(destination);
    request.openMedium = [open = m_parts.openMedium, device = devicePath()] {
        return open ? open(device) : nullptr;
    };
    request.destination = destination;
    request.placeholder = Null_Image_Data;
    if (m_savingChoices.report) {
        request.report = reportHead();
    }
    const auto job = std::make_shared<SaveJob>(std::move(request));
    if (watchSaving(job)) {
        reportSaving(*job, destination);
    }
}

// The items that were saved are no longer the ones that are listed.
void MyTableController::forgetSaved() {
    m_marks.clear();
    m_itemSaver.reset();
}

// One saver as long as it writes the same way into the same folder, so that what was saved before is known.
std::shared_ptr<const ItemSaver> MyTableController::saverFor(const QString& destination) {
    if (!m_itemSaver || m_saverDestination != destination || m_saverPolicy != m_savingChoices.policy) {
        m_itemSaver = std::make_shared<const ItemSaver>(destination, m_savingChoices.policy);
        m_saverDestination = destination;
        m_saverPolicy = m_savingChoices.policy;
    }
    return m_itemSaver;
}

// The need is that of the items as they were found; a file may turn out longer or shorter.
bool MyTableController::mayFillDestination(const QString& destination, std::uint64_t bytes) {
    const auto free = m_parts.freeBytes ? m_parts.freeBytes(destination) : std::nullopt;
    if (!free || *free >= bytes) {
        return true;
    }
    const auto size = [](std::uint64_t n) {
        return QLocale().formattedDataSize(static_cast<qint64>(n), 1, QLocale::DataSizeSIFormat);
    };
    return runAlert(
               {QStringLiteral("\n") + tr("There may not be enough room in the destination."),
                tr("Some %1 are needed and %2 are free in %3. What fits is saved whole; the rest is left "
                   "out and stays in the list.")
                    .arg(size(bytes), size(*free), destination),
                {tr("Save What Fits"), tr("Cancel")},
                1},
               window) == 0;
}

ReportHead MyTableController::reportHead() const {
    ReportHead head;
    const QString name = (Recovery_MODE == kPhotoMode ? _vol_name_val : _vol_name_val_Sig)->text();
    head.medium = QStringLiteral("%1 (%2)").arg(name, _disk_identifier->text());
    head.sectors = _sectors_val->text().toULongLong();
    head.mode = wordsForMode();
    head.begun = m_scanBegun;
    head.searchEnded = !scanRunning() && lastOutcome() == PassOutcome::Completed;
    return head;
}

// Runs the job beside the window under a sheet; false when the program ends meanwhile or the medium does not
// answer a cancel.
bool MyTableController::watchSaving(const std::shared_ptr<SaveJob>& job) {
    if (m_saver.joinable()) {
        m_saver.join();
    }
    m_saveRunning = true;
    m_saver = std::thread([this, job] {
        job->run();
        m_saveRunning = false;
    });
    SavingSheet(window, job).run([this] { return m_ending; });
    return job->isFinished() && !m_ending;
}

void MyTableController::reportSaving(const SaveJob& job, const QString& destination) {
    const SaveReport& report = job.report();
    for (std::size_t i = 0; i < report.items.size(); ++i) {
        const SaveOutcome& outcome = report.items[i].outcome;
        m_marks.note(report.indexes[i], outcome);
        if (const auto soundness = soundnessOf(outcome)) {
            m_board.note(report.indexes[i], *soundness);
        }
    }
    showItemCounts();
    if (!report.mediumOpened) {
        runAlert({QStringLiteral("\n") + tr("Nothing was saved."),
                  tr("The storage medium cannot be read any more. Put it back in and try again.")},
                 window);
        return;
    }
    const SaveSummary summary{report.tally, destination, job.isCancelled(),
                              !report.written.html.isEmpty() && report.written.error.isEmpty(),
                              report.written.error};
    Alert alert{QStringLiteral("\n") + summaryHeadline(summary), summaryDetails(summary)};
    const bool somethingThere = report.tally.saved + report.tally.duplicates > 0;
    if (somethingThere) {
        alert.buttons = {tr("Open Folder"), QStringLiteral("OK")};
        alert.defaultButton = 1;
        alert.picture = report.tally.failed > 0 ? QStringLiteral("info") : QStringLiteral("ok");
    }
    if (runAlert(alert, window) == 0 && somethingThere) {
        openDestination();
    }
}

}  // namespace vantor
