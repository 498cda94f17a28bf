// What the controller keeps beside its session, by who sets it and when; what it does is in
// MyTableController.h.
#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QSizeF>
#include <QTimer>
#include <array>
#include <atomic>
#include <memory>
#include <optional>
#include <thread>

#include "decode/ThumbnailQueue.h"
#include "media/CopiedMedium.h"
#include "repair/MendingRun.h"
#include "results/TickedItems.h"
#include "scan/ScanInputs.h"
#include "scan/ScanMeter.h"
#include "window/InterfaceQueue.h"
#include "window/ProgramParts.h"
#include "window/ScanTimer.h"
#include "window/WindowPanels.h"
#include "window/browser/BrowserLooks.h"
#include "window/browser/FileTypeIcons.h"
#include "window/browser/PendingView.h"
#include "window/keeping/SearchMemory.h"
#include "window/panels/RangePanel.h"
#include "window/preview/FileManager.h"
#include "window/preview/PreviewFile.h"
#include "window/saving/SavingDesk.h"
#include "window/widgets/TableAdapter.h"

class QCheckBox;
class QDialog;
class QFrame;
class QLabel;
class QMainWindow;
class QPushButton;
class QSettings;

namespace vantor {

class CardStrip;
class CellPictures;
class DraggedFiles;
class KeepingBox;
class KeptSearchBar;
class MendingBar;
class PieceStrip;
class ViewerDesk;
class WholePreview;

// Everything is the interface thread's but what says otherwise.
class ControllerState {
  public:
    // --- With given names ---

    // Set at start, with the interface.
    const FileManager* fileManager = &FileManager::defaultManager();
    QMainWindow* window = nullptr;
    QDialog* BrowseInfo_Window = nullptr;
    QDialog* SaveFile_Info_Window = nullptr;
    QDialog* SaveFile_Info_For_RAW_Window = nullptr;
    QDialog* ClearPreview_Window = nullptr;
    QDialog* LoadDisk_Window = nullptr;
    QDialog* HelpWindow = nullptr;
    QSizeF zero_thumbnail{0, 0};

    // Set by every scan.
    std::shared_ptr<ScanTimer> mSetLabelTimer;
    std::unique_ptr<QFile> pFile_op;

    // Set by every preview.
    QString Preview_Temp_File = QStringLiteral("");
    std::thread mPreviewThread;
    std::atomic<bool> session{false};  // a preview copy or a media query is in its modal session

  protected:
    // `queued` is called by any thread when the queue of steps for the interface thread is no longer empty.
    ControllerState(ProgramParts parts, std::function<void()> queued);
    ~ControllerState();

    // Before the controller is gone, since these ask it while they go.
    void endParts();

    // --- Of our own ---

    // Set when the controller is made.
    ProgramParts m_parts;
    std::unique_ptr<QMainWindow> m_window;
    std::array<std::unique_ptr<RangePanel>, 2> m_range;
    std::unique_ptr<WindowPanels> m_panels;
    TableAdapter* m_mediaTable = nullptr;
    TableAdapter* m_typeTable = nullptr;
    TableAdapter* m_resultTable = nullptr;
    QList<QCheckBox*> m_groupBoxes;         // by FileKind
    std::unique_ptr<QSettings> m_settings;  // null where nothing is remembered
    QString m_previewFolder;
    QString m_wholeFolder;  // of the previews of true length
    PreviewFolderHold m_previewHold;
    QString m_obstacle;     // why the item on preview has no picture; empty where nothing stands in the way
    FileTypeIcons m_icons;  // prepared before a scan, read by it
    QList<QMetaObject::Connection> m_notifications;  // gone after a refused exit
    int m_clickedColumn = -1;                        // of the last click in a table
    bool m_ending = false;                           // the exit was confirmed

    // Shared between the threads of a scan.
    InterfaceQueue m_queue;
    std::unique_ptr<ThumbnailQueue> m_thumbnails;  // null without a thumbnailer
    std::array<PendingView, 2> m_pending;
    std::atomic<bool> m_resultRowsDirty{false};
    std::atomic<bool> m_driverRunning{false};
    std::atomic<bool> m_timerRunning{false};
    std::atomic<bool> m_besideRunning{false};

    // Set by every preview.
    QTimer m_previewDue;                        // runs while a selection was not looked at yet
    QString m_previewedName;                    // of the item that the preview file was copied from
    std::shared_ptr<WholePreview> m_whole;      // of what is on preview
    std::shared_ptr<WholePreview> m_nextWhole;  // of what is being copied
    std::atomic<int> m_filling{0};              // threads that fill one

    // Set by every scan.
    ScanInputs m_inputs;
    std::thread m_driver;
    std::thread m_timerThread;
    QTimer m_pump;
    QElapsedTimer m_clock;
    QDateTime m_scanBegun;
    ScanMeter m_meter;
    double m_progressSectors = 0;
    bool m_draining = false;
    bool m_searchEnded = false;  // and its results are in view
    bool m_readsAsErased = false;
    std::atomic<bool> m_mayBeErased{false};  // nobody has looked yet
    qint64 m_searchMilliseconds = 0;         // how long it took
    QList<ResultRow> m_leftRows;             // only when it fell back to the screen before

    // Of searches that are gone on with, and of copies.
    CopiedMedium m_copied;
    QString m_copyPath;  // of the copy that is kept
    CardStrip* m_cardStrip = nullptr;
    QLabel* m_cardWords = nullptr;
    QPushButton* m_keepCopyButton = nullptr;
    std::size_t m_stripItems = 0;    // that are marked in the strip
    qint64 m_lastLookAtCard = 0;     // milliseconds of the search
    bool m_goOnWhenStopped = false;  // the user wants a copy of what is searched
    std::shared_ptr<std::atomic<bool>> m_leaving = std::make_shared<std::atomic<bool>>(false);
    std::unique_ptr<SearchMemory> m_memory;
    KeptSearchBar* m_keptBar = nullptr;
    QWidget* m_searchOptions = nullptr;
    KeepingBox* m_keepingBox = nullptr;
    QPushButton* m_goOnButton = nullptr;
    QTimer m_cardBackLater;                 // runs while something holds up the look for a card put back
    std::optional<SearchRecord> m_goingOn;  // what the search that is about to begin goes on with
    bool m_onlyLook = false;                // and that it ends where that one did
    // Ascending places of items that are not listed yet.
    std::vector<std::uint64_t> m_savedBefore, m_tickedBefore, m_selectedBefore;
    QTimer m_marksChanged;

    // Set when the user chooses the destination.
    QString m_chosenFolder;
    std::optional<std::uint64_t> m_chosenFileSystem;

    // Set by the user after a scan has found something; empty with every list.
    TickedItems m_ticks;

    // Set at the end of a scan, emptied with the next one.
    SavingDesk::ToldFiles m_told;  // files that only the card's directory tells of

    // What is made of the broken ones among the found items, emptied with them.
    const std::shared_ptr<MendedItems> m_mended = std::make_shared<MendedItems>();
    QPushButton* m_mendButton = nullptr;
    MendingBar* m_mendingBar = nullptr;
    PieceStrip* m_pieceStrip = nullptr;
    QTimer m_mendingLook;                         // while they are mended
    std::size_t m_shownMends = 0;                 // that the browser shows
    std::shared_ptr<const Mend> m_previewedMend;  // of the item on preview, as it is shown

    // Begin anew with every scan; the first to go, since they ask the others.
    std::unique_ptr<BrowserLooks> m_looks;
    std::unique_ptr<SavingDesk> m_desk;
    std::unique_ptr<ViewerDesk> m_viewer;
    std::unique_ptr<CellPictures> m_pictures;
    std::unique_ptr<DraggedFiles> m_dragged;
    QPointer<QTimer> m_dragWords;  // runs while words on dragging are to be seen
    MendingRun m_mending;
};

}  // namespace vantor
