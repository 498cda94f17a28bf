// Saving of found items from both results screens: where to, how far, and what came of it.
#include <QLocale>
#include <QProgressDialog>
#include <QPushButton>
#include <numeric>

#include "app/MyTableController.h"
#include "results/SaveJob.h"
#include "wizard/Alerts.h"
#include "wizard/Theme.h"

namespace vantor {

namespace {

constexpr int kPollMilliseconds = 20;

QString countOfItems(std::size_t count) {
    return count == 1 ? QObject::tr("1 item")
                      : QObject::tr("%1 items").arg(QLocale().toString(quint64{count}));
}

// What the summary says below its headline.
QString details(const SaveReport& report, const QString& destination, bool cancelled) {
    QStringList lines;
    if (!report.saved.empty()) {
        lines << QObject::tr("They are in %1, in a folder for each type.").arg(destination);
    }
    if (report.duplicates > 0) {
        lines << QObject::tr("%1 had the same contents as another; the same contents are written once.")
                     .arg(countOfItems(report.duplicates));
    }
    if (report.withUnreadableSectors > 0) {
        lines << QObject::tr("%1 could only be read in part; what could not be read is filled with zeros.")
                     .arg(countOfItems(report.withUnreadableSectors));
    }
    if (report.failed > 0) {
        lines << QObject::tr("%1 could not be saved: %2").arg(countOfItems(report.failed), report.firstError);
    }
    if (cancelled) {
        lines << QObject::tr("The rest was not saved because you cancelled.");
    }
    return lines.join(u'\n');
}

}  // namespace

bool MyTableController::hasUnsavedItems() const {
    return itemCount() > m_saved.size();
}

void MyTableController::saveSelected() {
    saveItems(browserOf(activeSet())->selectionIndexes());
}

void MyTableController::saveAll() {
    QList<qsizetype> all(static_cast<qsizetype>(itemCount()));
    std::iota(all.begin(), all.end(), 0);
    saveItems(all);
}

void MyTableController::saveItems(const QList<qsizetype>& indexes) {
    if (indexes.isEmpty() || session || m_saveRunning) {
        return;
    }
    const QString destination = pathInView()->text().isEmpty() ? askDestination() : pathInView()->text();
    if (destination.isEmpty() || !acceptDestination(destination)) {
        return;
    }
    SaveRequest request;
    for (const qsizetype index : indexes) {
        if (auto item = itemAt(static_cast<std::size_t>(index))) {
            request.items.push_back(std::move(item));
        }
    }
    request.destination = destination;
    request.openMedium = [open = m_parts.openMedium, device = devicePath()] {
        return open ? open(device) : nullptr;
    };
    const auto job = std::make_shared<SaveJob>(std::move(request));
    if (watchSaving(job)) {
        reportSaving(job->report(), destination, job->cancelled);
    }
}

// Runs the job beside the window under a sheet with a Cancel button; false when the program ends meanwhile or
// the medium does not answer a cancel.
bool MyTableController::watchSaving(const std::shared_ptr<SaveJob>& job) {
    QProgressDialog sheet(tr("Saving %1…").arg(countOfItems(job->total())), tr("Cancel"), 0,
                          static_cast<int>(job->total()), window);
    sheet.setObjectName(QStringLiteral("saveProgress"));
    sheet.setWindowTitle(tr("Saving"));
    sheet.setWindowModality(Qt::WindowModal);
    sheet.setMinimumDuration(0);
    sheet.setAutoClose(false);
    sheet.setAutoReset(false);
    sheet.setMinimumWidth(420);
    setCommonBackground(&sheet);
    connect(&sheet, &QProgressDialog::canceled, this, [job] { job->cancelled = true; });

    if (m_saver.joinable()) {
        m_saver.join();
    }
    m_saveRunning = true;
    m_saver = std::thread([this, job] {
        job->run();
        m_saveRunning = false;
    });
    QTimer poll;
    connect(&poll, &QTimer::timeout, &sheet, [&sheet, job] {
        sheet.setValue(static_cast<int>(job->done));
        if (job->finished || job->cancelled) {
            sheet.done(0);
        }
    });
    poll.start(kPollMilliseconds);
    sheet.exec();
    // A cancelled item is finished if the medium answers; one that hangs is left behind.
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    while (!job->finished && !m_ending && std::chrono::steady_clock::now() < until) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return job->finished && !m_ending;
}

void MyTableController::reportSaving(const SaveReport& report, const QString& destination, bool cancelled) {
    for (const auto& item : report.saved) {
        m_saved.insert(item.get());
    }
    showItemCounts();
    if (!report.mediumOpened) {
        runAlert({QStringLiteral("\n") + tr("Nothing was saved."),
                  tr("The storage medium cannot be read any more. Put it back in and try again.")},
                 window);
        return;
    }
    const QString headline = report.saved.size() == 1 ? tr("1 item was saved.")
                             : report.saved.empty()
                                 ? tr("Nothing was saved.")
                                 : tr("%1 were saved.").arg(countOfItems(report.saved.size()));
    Alert summary{QStringLiteral("\n") + headline, details(report, destination, cancelled)};
    if (!report.saved.empty()) {
        summary.buttons = {tr("Open Folder"), QStringLiteral("OK")};
        summary.defaultButton = 1;
    }
    if (runAlert(summary, window) == 0 && !report.saved.empty()) {
        openDestination();
    }
}

}  // namespace vantor
