// Writes found items into the destination folder, each as long as its own format says it is.
#pragma once

#include <QByteArray>
#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "formats/Extent.h"
#include "media/SectorReader.h"
#include "results/CarvedRun.h"
#include "results/ItemBytes.h"
#include "results/MediumBytes.h"
#include "results/Soundness.h"
#include "saving/Destination.h"
#include "saving/SavePolicy.h"
#include "saving/SavedName.h"

namespace vantor {

struct SavedFile;
struct TrueLength;
class FilesWithin;
class LengthClaims;
class SavedContents;
class SavingFolder;
class WholeFile;

// Why an item was not written although nothing failed.
enum class LeftOut { No, TooSmall, Unsound, StillThere, Part };

struct SaveOutcome {
    bool saved = false;      // its bytes lie at `path`
    bool duplicate = false;  // saved, as bytes that were saved before: `path` is the earlier file or a second
                             // name of it
    LeftOut leftOut = LeftOut::No;
    QString partOf;      // the name of the file that the item was left out for as its part, or waits for
    bool later = false;  // nothing was decided: the item has its turn in the second round
    QString path;
    QString error;                        // a sentence for the user when saving failed
    std::uint64_t bytes = 0;              // of the file
    std::uint64_t sectorsUnreadable = 0;  // written as zeros
    bool mediumGone = false;              // before all of it was read: another time may give more
    // Of the file as saved: Complete only when all of its sectors could be read.
    Verdict verdict = Verdict::Unknown;
    // Complete, and its content was looked at, but of a movie's no more than its frames' heads and lengths
    // until it was decoded without an error; see SavedContents.
    bool checked = false, framesOnly = false;
    bool exactLength = true;         // false: the format does not mark its end to the byte
    std::optional<CivilTime> taken;  // also the file's modification time
    std::uint64_t durationMs = 0;    // of a movie or sound; 0: not told
    std::uint32_t width = 0;         // pixels; 0: not told
    std::uint32_t height = 0;
    QByteArray sha256;                         // raw; may be empty where the policy asks for none
    std::shared_ptr<const CardFile> original;  // null where the card does not tell
    std::size_t pieces = 1;                    // on the medium, as the bytes were put together
    std::vector<SectorRun> runs;               // of more than one piece
    std::shared_ptr<const Mend> mend;          // of a file made of a broken item

    bool contentChecked() const { return checked && !framesOnly; }
    // Among those that wait: whole files before broken ones, and before what may be their parts.
    bool comesFirst() const { return verdict == Verdict::Complete && partOf.isEmpty(); }
};

// What saving found out; nothing when it did not come that far.
std::optional<Soundness> soundnessOf(const SaveOutcome& outcome);

struct FoundItem {
    QString type;  // `Ext_Name`
    QString name;
    ItemSource source;
    // Set by anybody once the item is no longer wanted: it then fails, and nothing of it stays behind.
    const std::atomic<bool>* unwanted = nullptr;
    // Whether it may be told to come again in a second round, when all others had their turn.
    bool mayWait = false;
};

// One medium and one destination, which has to be there. An item becomes `<destination>/<type>/<name>`, or
// takes the folder and name that the card tells, as the policy says; whole or not at all. Nothing is ever
// overwritten, and no type or name leads out of the destination. What does not fit is told and left out; a
// smaller item behind it may still fit. An item of which nothing could be read fails. Any one thread.
//
// The same bytes are saved once: again under the same type they are left out, under another type (a header
// that several types share) the file gets a second name there, or is written again where the file system has
// no second names. Files that lie in the type's folder from earlier are known by their bytes too. Zeros in
// place of what could not be read count for nothing here.
//
// What lies within a file of the same choice that is saved whole is left out, unless the policy or the card
// says otherwise; see FilesWithin.
//
// An item that claims far more than was carved of it waits for the others, where it may; see LengthClaims.
class ItemSaver {
  public:
    explicit ItemSaver(const QString& destination, const SavePolicy& policy = {},
                       Destination::LiesOnMedium liesOnMedium = {});
    ItemSaver(const ItemSaver&) = delete;
    ItemSaver& operator=(const ItemSaver&) = delete;
    ~ItemSaver();

    const SavePolicy& policy() const { return m_policy; }
    // For what is written beside the items, and to be asked behind the last of all.
    const std::shared_ptr<Destination>& destination() const { return m_destination; }
    // For a look into what was saved, behind the last of all.
    const std::shared_ptr<SavedContents>& contents() const { return m_contents; }

    SaveOutcome save(const FoundItem& item) const;

    // An item that was saved before the card told anything of it, with what the card tells now: the file gets
    // its name and folder, or is saved anew where it lies in other pieces, and the one saved first goes.
    void saveAsOnCard(const FoundItem& item, SaveOutcome& outcome) const;
    // Before the first item of a choice and before those of it that were told to come again.
    void beginRound() const;
    void beginSecondRound() const;

    // To be called behind the last item: the names of all files survive a loss of power from here on.
    void flush() const;

    // An item that is read from its medium from the first byte on.
    SaveOutcome saveRuns(const QString& type, const QString& name, const CarvedRun& carved,
                         SectorReader& medium) const;

  private:
    struct State;
    struct Writing;

    LengthClaims& claimsOn(std::uint64_t mediumSectors) const;
    bool moveAsOnCard(const FoundItem& item, const CardFile& file, SaveOutcome& outcome) const;
    std::optional<SavingFolder> folderOf(const QString& path) const;
    void remove(const QString& path) const;
    bool isStillThere(const FoundItem& item) const;
    bool isOfTables(const FoundItem& item, const SaveOutcome& outcome) const;
    bool isPart(const FoundItem& item, SaveOutcome& outcome) const;
    void noteWhole(const FoundItem& item, const SaveOutcome& outcome) const;
    static void noteOnCard(const FoundItem& item, const SaveOutcome& outcome, FilesWithin& files);
    bool decideLength(const FoundItem& item, ItemBytes& bytes, SaveOutcome& outcome) const;
    static std::optional<std::uint64_t> toldLengthOf(const FoundItem& item);
    TrueLength lengthOf(const FoundItem& item, MediumBytes& bytes, SaveOutcome& outcome) const;
    void saveBytes(const FoundItem& item, const SavingFolder& destination, ItemBytes& bytes,
                   SaveOutcome& outcome) const;
    std::optional<SavingFolder> folderFor(const FoundItem& item, const SavingFolder& destination,
                                          SavedName& name, SaveOutcome& outcome) const;
    bool settleBeforeWriting(const Writing& writing, MediumBytes& bytes, SaveOutcome& outcome) const;
    static bool readEnough(const MediumBytes& bytes, std::uint64_t done, SaveOutcome& outcome);
    bool settleAs(const SavedFile& earlier, const Writing& writing, SaveOutcome& outcome) const;
    std::uint64_t copyBytes(const FoundItem& item, std::uint64_t length, MediumBytes& bytes, WholeFile& file,
                            bool summing) const;
    bool writeFile(const Writing& writing, MediumBytes& bytes, SaveOutcome& outcome) const;

    const std::shared_ptr<Destination> m_destination;
    const std::shared_ptr<SavedContents> m_contents;
    SavePolicy m_policy;
    std::unique_ptr<State> m_state;  // what was saved before, and memory that serves all items
};

}  // namespace vantor
