// Saves a choice of found items one after the other, while somebody watches.
#pragma once

#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

#include "media/SectorReader.h"
#include "media/WatchedReader.h"
#include "saving/LengthClaims.h"
#include "saving/RecoveryReport.h"
#include "saving/SaveTally.h"

namespace vantor {

class MendedItems;
class MyImageObject;

struct ChosenItem {
    std::size_t index = 0;  // in the list of found items
    std::shared_ptr<const MyImageObject> item;
};

struct SaveRequest {
    std::vector<ChosenItem> items;
    std::shared_ptr<const ItemSaver> saver;
    std::shared_ptr<const CardIndex> card;  // null: nothing is known
    // What was made of the broken ones: what is proved is saved in place of the item, the rest beside it.
    std::shared_ptr<const MendedItems> mended;  // null: nothing
    // Files that only the card's directory tells of, saved behind the items; those that are no files of their
    // type after all are passed over.
    std::vector<std::shared_ptr<const CardFile>> told;
    std::function<std::unique_ptr<SectorReader>()> openMedium;
    // Written behind the last item; none when absent.
    std::optional<ReportHead> report;
    QString destination;     // that of the saver, for the report and what is said
    QByteArray placeholder;  // the picture of items without a thumbnail, which the report leaves out
};

// What became of the items, in the order of the request, behind them of what was made of broken ones, and of
// the files that only the card's directory tells of; those that a cancel came before are absent.
struct SaveReport {
    bool mediumOpened = false;  // else only what memory holds was saved
    SaveTally tally;
    std::vector<std::size_t> indexes;  // of the items; of the files there is none
    std::vector<ReportedItem> items;
    std::vector<std::shared_ptr<const CardFile>> toldFailed;  // neither saved nor left out, a cancel included
    WrittenReport written;
};

// How far a job is.
struct SaveProgress {
    std::size_t done = 0;       // items
    std::size_t turn = 0;       // of the item at hand; one that comes again has another then
    QString current;            // name of the item at hand
    std::uint64_t share = 0;    // of total(), in sectors of the items as they were found
    std::uint64_t refused = 0;  // sectors of the item at hand that the medium could not read
    // Behind the last item: of so many saved files the content is looked at, and so many were. 0: not yet.
    std::size_t toCheck = 0;
    std::size_t checked = 0;
};

// run() belongs to one thread; everything else may be used by any other meanwhile.
class SaveJob {
  public:
    explicit SaveJob(SaveRequest request);

    void run();

    // The item at hand is given up at once, unless the medium keeps it waiting; nothing of it stays behind.
    // Once all is saved only the look at the contents ends, which is no cancel.
    void cancel();
    bool isCancelled() const { return m_cancelled; }
    // Gives up the item of that turn (see SaveProgress) as cancel() does, and goes on with the next; no
    // effect when another is at hand.
    void skip(std::size_t turn);
    bool isFinished() const { return m_finished; }

    std::size_t count() const { return m_request.items.size() + m_request.told.size(); }
    std::uint64_t total() const { return m_total; }
    SaveProgress progress() const;

    // Once finished.
    const SaveReport& report() const { return m_report; }

  private:
    void saveAll(SectorReader* medium);
    bool saveItem(std::size_t place, SectorReader* medium, WaitingClaims* later);
    void saveTold(SectorReader* medium);
    void saveTwin(const FoundItem& found, const MyImageObject& item, const SaveOutcome& outcome);
    void begin(const QString& name, std::uint64_t sectors);
    void checkContents();
    void compileReport();
    bool destinationKeepsAll();
    void writeTheReport();

    SaveRequest m_request;
    SaveReport m_report;
    std::uint64_t m_total = 0;
    std::vector<std::optional<SaveOutcome>> m_outcomes;  // by place in the request
    std::vector<std::size_t> m_reportedPlaces;           // of the report's items
    std::vector<ReportedItem> m_furtherOutcomes;         // of twins, then of told files
    std::set<const Mend*> m_twinsSaved;
    ReadWatch m_watch;
    std::atomic<bool> m_cancelled{false};
    std::atomic<bool> m_checkedEnough{false};
    std::atomic<bool> m_finished{false};
    std::atomic<std::uint64_t> m_sectorsOfCurrent{0};

    mutable std::mutex m_lock;
    SaveProgress m_progress;  // up to the item at hand
};

// What is found as one run of sectors, for the estimates before and while it is saved.
std::uint64_t foundSectors(const MyImageObject& item);

}  // namespace vantor
