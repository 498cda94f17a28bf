// A recovery without a window: the engine with a terminal for its view.
#pragma once

#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <memory>
#include <optional>

#include "cli/Options.h"
#include "saving/RecoveryReport.h"
#include "saving/SaveQueue.h"
#include "saving/SaveTally.h"
#include "scan/ScanSession.h"

namespace vantor {

// A found item as it was published.
struct PublishedItem {
    QString pass;
    QString type;
    QString name;
    QString uid;
    std::uint64_t firstSector = 0;
    std::uint64_t endSector = 0;  // exclusive
    std::uint64_t bytes = 0;
    bool readFailed = false;  // while it was searched
    QByteArray sha256;        // raw; of raw items only once they were checksummed, empty where that failed
    CarvedRun carved = {};
};

// The view of a scan that nobody watches: it answers from the options and keeps the alerts.
class CliView : public ScanView {
  public:
    CliView(const CliOptions& options, std::uint64_t mediumSectors);

    const QStringList& alerts() const { return m_alerts; }

    RangeControls rangeControls(ControlSet) const override { return m_range; }
    bool thoroughBoxOn(ControlSet) const override { return m_thorough; }
    QString destinationFolder() const override { return m_destination; }
    bool modalSessionRunning() const override { return false; }
    void showAlert(const QString& message) override { m_alerts.append(message); }

    // A terminal has none of the controls behind these.
    void showModeLabel(const QString&) override {}
    void showSectorLabel(const QString&) override {}
    void showHelpInfo(const QString&) override {}
    void setProgressRange(std::uint64_t) override {}
    void startProgress() override {}
    void setProgress(double) override {}
    void invalidateTimer() override {}
    void setScanOptionsEnabled(bool) override {}
    void resetPhotoBrowser() override {}
    void reloadBrowser(ControlSet) override {}
    void scrollBrowserTo(ControlSet, qsizetype) override {}
    QIcon iconForFileType(const QString&) override { return {}; }
    void clearPreviewTitle() override {}
    void resultRowsChanged() override {}
    void fileTypeRowsChanged() override {}
    void returnFromScanScreen(ControlSet) override {}
    void hideScanProgress() override {}
    void runEndPanel(ControlSet) override {}
    void showResultControls(ControlSet) override {}
    void enableAfterScan() override {}

  private:
    RangeControls m_range;
    bool m_thorough;
    QString m_destination;
    QStringList m_alerts;
};

// The view is constructed before the session that refers to it.
class CliSession : private CliView, public ScanSession {
  public:
    CliSession(const CliOptions& options, std::uint64_t mediumSectors);
    ~CliSession() override;

    // Asked before each file is saved.
    void setLiesOnMedium(ItemSaver::LiesOnMedium asked) { m_liesOnMedium = std::move(asked); }

    // Ticks the chosen types and cuts the catalogues; the types that no catalogue has, when there are any.
    QStringList chooseTypes(const QStringList& types);
    void chooseAllTypes();

    // Both passes; returns when the scan has ended and all that it published is saved. Items are saved while
    // the scan goes on.
    void run();

    // Behind run(): completes and repairs broken movies as the options say, beside what was saved.
    void mendMovies();
    // What became of that, for the user; and whether something could not be written.
    const QStringList& mendingLines() const { return m_mendingLines; }
    bool mendingFailed() const { return m_mendingFailed; }

    // Checksums of raw items, from a copy of their sectors as the preview makes it.
    bool checksumRawItems();

    std::vector<QJsonObject> jsonLines() const;

    const std::vector<PublishedItem>& published() const { return m_published; }
    const SaveTally& saveTally() const { return m_tally; }
    // Every published item with what became of it; without a destination none.
    const std::vector<ReportedItem>& reportedItems() const { return m_reported; }
    using CliView::alerts;
    std::size_t publishedCount() const { return m_publishedCount; }  // any thread

  private:
    void addImageWithData(const QByteArray& data, const QString& imageName,
                          const QString& image_UID) override;
    void addImageWithData_2(const QByteArray& data, const QString& imageName, const QString& image_UID,
                            std::uint64_t File_Start_Sec, std::uint64_t File_End_Sec) override;
    void publish(PublishedItem item);
    void save(const PublishedItem& item, const QByteArray& firstBytes);
    void finishSaving();

    CliOptions m_options;
    std::vector<PublishedItem> m_published;
    std::atomic<std::size_t> m_publishedCount{0};
    std::vector<SaveOutcome> m_outcomes;  // in the order of m_published; the saving thread's until it ends
    ItemSaver::LiesOnMedium m_liesOnMedium;
    std::unique_ptr<SaveQueue> m_queue;  // while a scan runs that saves
    std::vector<ReportedItem> m_reported;
    SaveTally m_tally;
    QStringList m_mendingLines;
    bool m_mendingFailed = false;
};

}  // namespace vantor
