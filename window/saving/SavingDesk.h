// Saves found items for the user: says what does not fit, shows how far it is, and tells what came of it.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "results/Soundness.h"
#include "saving/RecoveryReport.h"
#include "saving/SavedMarks.h"
#include "window/saving/SavingOptions.h"

class QWidget;

namespace vantor {

class MendedItems;
class MyImageObject;
class SaveJob;
struct CardFile;
struct SaveRequest;

// What saving needs of the program around it; everything is called on the interface thread.
struct SavingParts {
    QWidget* window = nullptr;  // the alerts and the sheet are over it
    std::function<std::shared_ptr<MyImageObject>(std::size_t)> itemAt;
    // What saving would write of the item; nothing as long as that was not found out.
    std::function<std::optional<std::uint64_t>(std::size_t)> bytesToWrite;
    // Gives what opens the medium of the moment, which is called on the thread of the job.
    std::function<std::function<std::unique_ptr<SectorReader>()>()> medium;
    std::function<std::shared_ptr<const CardIndex>()> card;      // of that medium; null: nothing is known
    std::function<std::shared_ptr<const MendedItems>()> mended;  // what was made of broken items
    // Gives what tells whether a folder lies on the medium of the moment; asked on the thread of the job.
    std::function<Destination::LiesOnMedium()> liesOnMedium;
    std::function<std::optional<std::uint64_t>(const QString& folder)> freeBytes;
    std::function<QByteArray()> placeholder;  // the picture of items without a thumbnail
    std::function<ReportHead()> reportHead;
    std::function<void(std::size_t, const Soundness&)> examined;  // found out while an item was saved
    std::function<void()> openFolder;
    std::function<bool()> canEject;  // the medium; none: it cannot be
    std::function<void()> eject;
    std::function<QString()> chooseFolder;  // another destination; "" when the user chose none
    std::function<bool()> ending;           // the program ends: nothing is waited for
};

// Interface thread.
class SavingDesk : public QObject {
    Q_OBJECT

  public:
    explicit SavingDesk(SavingParts parts) : m_parts(std::move(parts)) {}
    ~SavingDesk() override;

    // Files that only the card's directory tells of.
    using ToldFiles = std::vector<std::shared_ptr<const CardFile>>;
    // Items by their places in the list, and such files. Returns when they are saved or the user cancelled;
    // where the destination failed them the user may choose another on the way.
    void save(QList<qsizetype> indexes, QString destination, ToldFiles told = {});

    // One item under this name, or with a number behind it where the name is taken.
    void saveAs(qsizetype index, const QString& folder, const QString& name);

    // After a cancel a medium that does not answer may hold a job up; nothing is saved meanwhile.
    bool isRunning() const { return m_running; }
    // Waits for the last job.
    void join();

    // The items are no longer the ones that are listed.
    void forget();
    const SavedMarks& marks() const { return m_marks; }
    // They were saved in an earlier run of the program.
    void markSaved(const std::vector<std::uint64_t>& places);

    SavingChoices& choices() { return m_choices; }
    const SavingChoices& choices() const { return m_choices; }

  signals:
    void marksChanged();

  private:
    // Where to go on, and with what.
    struct Next {
        QList<qsizetype> indexes;
        ToldFiles told;
        QString destination;
    };

    std::optional<Next> saveOnce(const Next& wish);
    enum class Room { Enough, Elsewhere, Cancelled };
    // Bytes; `isKnown` when every file has been examined.
    struct Need {
        std::uint64_t bytes = 0;
        bool isKnown = true;
    };
    Room askForRoom(const QString& destination, const Need& need) const;
    Need roomNeeded(const SaveRequest& request) const;
    std::shared_ptr<const ItemSaver> saverFor(const QString& destination);
    bool watch(const std::shared_ptr<SaveJob>& job);
    void note(const SaveJob& job);
    std::optional<Next> tell(const SaveJob& job, const QString& destination);

    const SavingParts m_parts;
    SavingChoices m_choices;  // kept while the program runs

    // Set as items are saved; emptied with the items.
    SavedMarks m_marks;
    std::shared_ptr<const ItemSaver> m_saver;
    QString m_saverDestination;
    SavePolicy m_saverPolicy;

    std::atomic<bool> m_running{false};
    std::thread m_thread;
};

}  // namespace vantor
