// What a run of the program knows and the scans that work on it: the engine behind the window and the command
// line.
//
// Contents, in the order of the declarations below, each under the file that holds the bodies:
//   Catalogue and file types    scan/SessionCatalogue.cpp
//   Found items and rows        scan/SessionItems.cpp
//   The card's directories      scan/CardKnowledge.cpp
//   Naming                      scan/Naming.cpp
//   Photo scan                  scan/PhotoScan.cpp
//   Raw file scan               scan/RawFileScan.cpp
//   Drivers, progress, end      scan/ScanDrivers.cpp
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "catalogue/FileTypeList.h"
#include "catalogue/NumberText.h"
#include "filesystem/CardCollector.h"
#include "media/RefusedSectors.h"
#include "media/SectorReader.h"
#include "media/WatchedReader.h"
#include "results/CardIndex.h"
#include "results/FoundItems.h"
#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "results/ResultRow.h"
#include "scan/PhotoMemory.h"
#include "scan/ScanView.h"
#include "scan/SearchEnd.h"

namespace vantor {

class HeaderMatcher;
class PassMemory;
struct PassReading;
class SearchKeeper;

// The names of the passes.
inline constexpr QStringView kGeneralPass = u"GEN";
inline constexpr QStringView kThoroughPass = u"THD";

// Makes a thumbnail (JPEG, longer side at most 100 pixels, upright) of encoded picture bytes; empty when they
// cannot be decoded. The extension of the item's name helps with formats that carry no mark of their own.
using Thumbnailer = std::function<QByteArray(const QByteArray& encoded, const QString& extension)>;

// Opens the medium behind "/dev/r" + identifier at sector 0, read-only; null when it cannot be opened.
using MediumOpener = std::function<std::unique_ptr<SectorReader>(const QString& devicePath)>;

// Identifiers that begin with an underscore and a capital, or that hold unusual capitals, are the program's
// own terms and kept as they are.
//
// Threads: the members under "Shared words" may be touched by any thread; `images` and the result rows are
// guarded by listLock(); everything else belongs to whoever runs the scan, or to the main thread while none
// runs.
class ScanSession : public HexText {
  public:
    explicit ScanSession(ScanView& view);
    ScanSession(const ScanSession&) = delete;
    ScanSession& operator=(const ScanSession&) = delete;
    virtual ~ScanSession();

    // Where the list of very many items may be kept; see ByteSpool. It must not lie on the medium.
    void setSpillFolder(ByteSpool::Folder folder) { images.setSpillFolder(std::move(folder)); }
    // Whether a sector that was refused twice in a search is asked for again by its later pass and by saving.
    enum class RefusedSectorsAre { KnownToAll, AskedForAgain };
    void setMediumOpener(MediumOpener opener, RefusedSectorsAre refused = RefusedSectorsAre::KnownToAll) {
        m_openMedium =
            refused == RefusedSectorsAre::KnownToAll ? knowingRefusals(std::move(opener)) : std::move(opener);
    }
    // The same for others who read the searched medium, such as previews and badges. It may be called on any
    // thread, also when the session has ended.
    MediumOpener knowingRefusals(MediumOpener opener) const;
    // Sectors that were refused in this search may be asked for again. Any thread.
    void forgetRefusals() { m_refusals->forget(); }
    void setThumbnailer(Thumbnailer thumbnailer) { m_thumbnailer = std::move(thumbnailer); }

    // The next search is kept in the keeper's file, and goes on with the one that the keeper knows. Null: it
    // is not kept.
    void keepSearch(std::shared_ptr<SearchKeeper> keeper) { m_keeper = std::move(keeper); }
    // The general pass of the next searches ends before the sector as if it had been told to stop there.
    void stopBefore(std::optional<std::uint64_t> sector) { m_stopBefore = sector; }

    // --- Catalogue and file types (SessionCatalogue.cpp) ---

    // Of all records that a search of the mode looks for, as they are chosen now.
    QByteArray catalogueSum() const;

    // Fills the six catalogue arrays from the files in the folder; an unreadable file leaves its array empty.
    void loadCatalogues(const QString& folder);

    // The file-type list of the current mode, all ticked, sorted.
    void buildFileTypeList();
    void createExtensionListTableRecord(const QString& extension, bool ExtState, const QString& ExtDescp,
                                        const QString& Thoro);
    // Re-creates every row with the state.
    void setAllFileTypes(bool ticked);
    bool Check_For_One_Extension_Selection() const;
    // Cuts both catalogues of the mode down to the ticked types and makes a results row a ticked type.
    void cutCataloguesToTickedTypes();

    // --- Found items and rows (SessionItems.cpp) ---

    virtual void addImageWithData(const QByteArray& data, const QString& imageName, const QString& image_UID);
    void addImageWithPath(const QString& path, const QString& imageName, const QString& image_UID);
    // `data` is not used: a raw item is a run of sectors.
    virtual void addImageWithData_2(const QByteArray& data, const QString& imageName,
                                    const QString& image_UID, std::uint64_t File_Start_Sec,
                                    std::uint64_t File_End_Sec);
    void addImageWithPath_2(const QString& path, const QString& imageName, const QString& image_UID);
    void createSignatureListTableRecord(const QString& type, std::uint64_t NoOfFile, const QString& FileName,
                                        const QString& FilePath, const QString& FileTypes_Hidden);
    // Reads "NoPreview.png" of the folder; a missing file leaves the placeholder empty.
    void loadPlaceholder(const QString& resourcesFolder);

    std::size_t itemCount() const;
    std::shared_ptr<MyImageObject> itemAt(std::size_t index) const;  // null beyond the end
    void clearItems();
    QList<ResultRow> resultRows() const;  // a snapshot

    // --- The card's directories (CardKnowledge.cpp) ---

    // Whether searches also read the card's own directories, as they begin and again as they end.
    void setAskCard(bool ask) { m_askCard = ask; }
    // What they told, of the last search; null as long as that is not known. Any thread.
    std::shared_ptr<const CardIndex> card() const;
    // Whether they could not be read although nobody stopped that, in the last search. Any thread.
    bool cardIsUnread() const { return m_cardIsUnread; }
    // Files in the searched range that no item is and that only the directories tell of; `beyondRoom` as with
    // toldOnly().
    std::vector<std::shared_ptr<const CardFile>> toldFiles(std::uint64_t* beyondRoom = nullptr) const;

    // --- Naming (Naming.cpp) ---

    QString Generate_File_Name(std::uint64_t number, const QString& Prefix, const QString& Extension) const;
    QString Generate_File_UID_Num(std::uint64_t number, bool Thoro_Hai, const QString& Extension) const;

    // --- Photo scan (PhotoScan.cpp) and raw file scan (RawFileScan.cpp) ---

    // One pass, "GEN" or "THD", over the chosen range; true when it ran to its end and the last read
    // succeeded. Runs on the scan thread; stop_now is the only request it takes meanwhile.
    bool Photo_Recovey_Mode(const QString& pass);
    bool Raw_File_Recovey_Mode(const QString& pass);

    // --- Drivers, progress, end (ScanDrivers.cpp) ---

    void Photo_Rec_Thread();
    void Raw_File_Rec_Thread();
    // One refresh of label and bar from the shared words.
    void timerTickSetLabel();
    // The end of a scan, its steps on the interface thread.
    void Final_or_Stop_Screen();
    // The help text that goes with the results of a scan.
    static QString endHelp();

    // How the last pass ended; not while one runs.
    const SearchEnd& searchEnd() const { return m_end; }
    PassOutcome lastOutcome() const { return m_end.outcome; }

    // --- Fields ---

    // Shared words.
    std::atomic<int> stop_now{0};
    std::atomic<int> stop_screen_already_show{0};
    std::atomic<std::uint64_t> for_index{0};     // next sector to be read
    std::atomic<std::uint64_t> start_sector{0};  // first sector of the pass
    std::atomic<std::uint64_t> end_sector{0};    // one past its last
    std::atomic<std::uint64_t> total_sector{0};  // end_sector - start_sector
    std::atomic<int> screen_counter{0};          // wizard screen
    std::atomic<std::uint32_t> Prev_Index{kNoPreview};

    static constexpr std::uint32_t kNoPreview = 0x7fffffff;

    // Read once at start.
    QStringList Ext_Array, Adv_Ext_Array;
    QStringList Video_Array, Adv_Video_Array;
    QStringList RawFile_Array, Adv_RawFile_Array;
    QString noprevfile = QStringLiteral("");
    QByteArray Null_Image_Data;

    // Chosen on the file-type screen.
    QList<FileTypeRow> nsCheckedListDataObject;
    QStringList CheckListHeader_Array, CheckListHeader_Adv_Array;

    // Set afresh by every pass.
    QStringList REC_PROC_Array;
    QVariantList Fol_Cnt_Array;     // Ext_Name, counter from -1, Ext_Name
    QStringList MultiHeader_Array;  // seven entries an item under carving
    std::unique_ptr<SectorReader> pFile_Disk;

    // Run on from scan to scan.
    std::uint64_t GND_Image_number = 0;
    std::uint64_t THD_Image_number = 0;

    // Items added since the count was last set to 0; paces the scrolling.
    std::uint64_t addedItemCount() const { return m_addedItems; }
    void resetAddedItemCount() { m_addedItems = 0; }

    // What the item handed over at this moment was read from; valid inside the adders.
    struct HandOver {
        QString pass;
        QString type;                   // `Ext_Name`
        std::uint64_t firstSector = 0;  // as published
        std::uint64_t bytes = 0;        // photo items: carved bytes, also those beyond what is kept in memory
        QByteArray sha256;              // of a photo item that outgrew the memory, else empty
        CarvedRun carved;
        // Of a photo with failed reads the bytes as published, where memory allows: the medium may not give
        // them again.
        QByteArray heldBytes = {};
    };

  protected:
    const HandOver& handOver() const { return m_handOver; }
    // The second half of addImageWithData: lists a photo item by its thumbnail, the placeholder when that is
    // empty. Any one thread at a time.
    void addThumbnail(const QByteArray& thumbnail, const QString& imageName, const QString& image_UID,
                      const HandOver& from);
    const RefusedSectors& refusals() const { return *m_refusals; }
    // How much of a photo addImageWithData() has to be given: the first sector, as far as its picture
    // reaches, all that the pass reads anyway, which is the first sector where an earlier pass read it, or
    // everything.
    enum class PhotoBytes { First, Picture, AtHand, All };
    virtual PhotoBytes photoBytesNeeded() const { return PhotoBytes::All; }
    // Whether the picture of the photo handed over at this moment is known: its bytes are then not read
    // again.
    virtual bool pictureIsKnown() const { return false; }
    // Gives the listed item of the place and UID its thumbnail; nothing when it is no longer there. Any
    // thread.
    void replaceThumbnail(std::size_t index, const QString& image_UID, const QByteArray& thumbnail);
    // The chosen medium (of the control set of the mode), opened afresh at sector 0; null when it cannot be
    // opened.
    std::unique_ptr<SectorReader> openMedium() const;
    // Guards `images` and nsSIGFileInfoDataObject; held for moments.
    std::mutex& listLock() const { return m_listLock; }
    // For whoever held a photo's bytes longest.
    void giveBackPhotoBytes(QByteArray bytes) { m_photoMemory.giveBack(std::move(bytes)); }

    FoundItems images;
    QList<ResultRow> nsSIGFileInfoDataObject;

  private:
    struct PhotoPass;
    struct RawPass;

    void appendItem(const MyImageObject& item);
    void addRawItem(MyImageObject& item, const QString& name, const QString& path);
    void pacePhotoBrowser();
    void paceBrowser(ControlSet set, std::uint64_t step);
    void prepareRange(ControlSet set);
    void showProgressText();
    void fillTypeCounters();
    bool beginPass(ControlSet set, const QString& passName);
    bool anotherPassFollows(ControlSet set, const QString& passName) const;
    PassReading beginReading(ControlSet set, const QString& passName,
                             const std::shared_ptr<const HeaderMatcher>& matcher);
    void prepareRecords(const QString& passName, const QStringList& general, const QStringList& thorough);
    void openFailed(ControlSet set);
    // An item that is still open begins at the sector.
    void learnOfCard(bool stopped);
    std::shared_ptr<const SectorScreen> screenFor(std::shared_ptr<const SectorScreen> headers) const;
    // Of the sector that was read last.
    void noteTrace(const SectorReader& medium, std::uint64_t sector) {
        if (m_traces && medium.worthALook()) {
            m_traces->look(sector, medium.current(), 1);
        }
    }
    void forgetCard();
    void passEnds(PassOutcome outcome, std::optional<std::uint64_t> openItemAt = std::nullopt);
    bool endOfRange(bool lastReadSucceeded, std::optional<std::uint64_t> openItemAt = std::nullopt);
    const QStringList& generalCatalogueOfMode() const;
    const QStringList& thoroughCatalogueOfMode() const;

    // Bodies beside their scans.
    void runPhotoLoop(PhotoPass& pass);
    void collectPhotoSector(PhotoPass& pass);
    void startPhotoItem(PhotoPass& pass, int record);
    QByteArray photoBytes(PhotoPass& pass) const;
    void handOverPhoto(PhotoPass& pass);

    bool runRawLoop(RawPass& pass);
    void openRawItems(RawPass& pass, int record);
    void publishRawItem(const RawPass& pass, qsizetype at);
    void closeRawItems(RawPass& pass);

    ScanView& m_view;
    bool m_askCard = false;
    std::unique_ptr<CardCollector> m_traces;  // in the passes of a search that asks the card
    ReadWatch m_cardWatch;
    std::shared_ptr<const CardIndex> m_card;  // guarded by listLock()
    std::atomic<bool> m_cardIsUnread = false;
    MediumOpener m_openMedium;
    const std::shared_ptr<RefusedSectors> m_refusals = std::make_shared<RefusedSectors>();
    bool m_hasSearched = false;
    std::shared_ptr<SearchKeeper> m_keeper;
    std::optional<std::uint64_t> m_stopBefore;
    std::shared_ptr<PassMemory> m_memory;  // of the general pass, for the thorough one
    Thumbnailer m_thumbnailer;
    HandOver m_handOver;
    std::uint64_t m_heldBytes = 0;  // of all listed photos
    PhotoMemory m_photoMemory;
    QString m_placeholderPath;
    ReadFailures m_readFailures;  // of the pass
    SearchEnd m_end;
    std::atomic<std::uint64_t> m_addedItems{0};
    mutable std::mutex m_listLock;
};

}  // namespace vantor
