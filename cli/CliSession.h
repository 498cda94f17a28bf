// A recovery without a window: the engine with a terminal for its view.
#pragma once

#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <set>

#include "cli/Options.h"
#include "media/AbandonableSource.h"
#include "repair/CompletionProgress.h"
#include "repair/ItemMending.h"
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
    bool readFailed = false;      // while it was searched

    std::uint64_t bytes() const { return (endSector - firstSector) * kSectorBytes; }
};

// What the range controls of a window would say.
RangeControls controlsFor(const CliOptions& options, std::uint64_t mediumSectors);

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

    // Where to save, in place of the folder that the options name.
    void setDestination(const QString& folder) { m_options.saveFolder = folder; }
    // Asked before each file is saved.
    void setLiesOnMedium(Destination::LiesOnMedium asked) { m_liesOnMedium = std::move(asked); }

    // Whether the user wants the end, whatever is at hand. The search itself is stopped by stop_now.
    void setStopRequest(StopRequest stop) { m_stop = std::move(stop); }

    // Ticks the chosen types and cuts the catalogues; the types that no catalogue has, when there are any.
    QStringList chooseTypes(const QStringList& types);
    void chooseAllTypes();

    // Both passes; returns when the scan has ended and all that it published is saved. Items are saved while
    // the scan goes on.
    void run();

    // Behind run(): completes and repairs what is broken as the options say, beside what was saved.
    void mend();
    // What became of that, for the user; and whether something could not be written.
    const QStringList& mendingLines() const { return m_mendingLines; }
    bool mendingFailed() const { return m_mendingFailed; }
    const CompletionProgress& completing() const { return m_completing; }
    // Whether a stop behind the search left some of what comes there undone.
    bool leftUndone() const { return m_leftUndone; }

    // Behind everything that is saved: decodes the movies of which no more than the frames were followed.
    void checkContents();
    const CompletionProgress& checking() const { return m_checking; }

    // To be asked behind everything that is saved: false once the destination has gone, and what was saved
    // counts as failed then.
    bool destinationKeepsAll();

    // An object for each item, and one for the end. Raw items get their checksums from a copy of their
    // sectors as the preview makes it; false when not all could be read.
    bool forEachJsonLine(const std::function<void(const QJsonObject&)>& take) const;

    PublishedItem published(std::size_t index) const;
    const SaveTally& saveTally() const { return m_tally; }
    // Every published item with what became of it; none unless a report or a repair is wanted.
    const std::vector<ReportedItem>& reportedItems() const { return m_reported; }
    // Files that only the card's directories tell of and that were saved all the same.
    std::size_t toldCount() const { return m_told; }
    // And those that were left out, as with toldOnly().
    std::uint64_t toldBeyondRoom() const { return m_toldBeyondRoom; }
    using CliView::alerts;
    std::size_t publishedCount() const { return m_publishedCount; }  // any thread

  private:
    void addImageWithData(const QByteArray& data, const QString& imageName,
                          const QString& image_UID) override;
    void addImageWithData_2(const QByteArray& data, const QString& imageName, const QString& image_UID,
                            std::uint64_t File_Start_Sec, std::uint64_t File_End_Sec) override;
    // Listed checksums are of all of a photo, and a list without them needs nothing but its name. A saver
    // takes what is at hand and reads the rest for itself.
    PhotoBytes photoBytesNeeded() const override {
        if (m_options.listJson) {
            return PhotoBytes::All;
        }
        return m_options.saveFolder.isEmpty() ? PhotoBytes::First : PhotoBytes::AtHand;
    }
    void publish(const QByteArray& sha256);
    void save(const QString& name, const QByteArray& firstBytes);
    void noteOutcome(const SaveTask& task, const SaveOutcome& outcome);
    // Whether somebody asks what became of each item.
    bool isReported() const { return m_options.report || m_options.complete || m_options.repairMovies; }
    void report(ReportedItem item, bool wanted);
    void finishSaving();
    bool isStopped();
    void nameWhatTheCardTellsNow();
    void saveToldFiles();
    std::vector<MendableItem> mendableItems() const;
    bool takeMend(const MendableItem& item, Mend mend, SectorReader& medium);
    void completeItems(ItemMending& mending, const std::vector<MendableItem>& items);
    void repairItems(ItemMending& mending, const std::vector<MendableItem>& items);
    bool useReference(ItemMending& mending);
    QByteArray checksumOf(const PublishedItem& item, std::unique_ptr<SectorReader>& medium) const;
    QJsonObject endLine() const;

    CliOptions m_options;
    std::atomic<std::size_t> m_publishedCount{0};
    std::size_t m_firstThorough = 0;          // items before it are of the general pass
    std::deque<std::array<char, 32>> m_sums;  // of photos, where they are listed
    std::deque<SaveOutcome> m_outcomes;       // the saving thread's until it ends
    Destination::LiesOnMedium m_liesOnMedium;
    std::shared_ptr<Destination> m_savedInto;  // null before run(), and where nothing is saved
    std::unique_ptr<SaveQueue> m_queue;        // while a scan runs that saves
    std::vector<ReportedItem> m_reported;
    std::vector<SaveOutcome> m_unreported;  // but to be looked into
    std::shared_ptr<SavedContents> m_contents;
    SaveTally m_tally;  // the saving thread's until it ends
    std::size_t m_told = 0;
    std::uint64_t m_toldBeyondRoom = 0;
    QStringList m_mendingLines;
    bool m_mendingFailed = false;
    StopRequest m_stop;
    bool m_leftUndone = false;
    CompletionProgress m_completing, m_checking;
};

// Why the movie cannot be the guide for others, in a sentence; empty when it can.
QString refuseReference(const QString& path);

}  // namespace vantor
