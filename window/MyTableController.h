// The one controller behind the window: it owns the run's state through ScanSession, shows it in the outlets,
// and turns what the user does into the next step.
//
// Its declarations stand under the name of the file that holds their bodies; what it keeps is in
// ControllerState.h.
#pragma once

#include <QFileDialog>
#include <memory>

#include "media/MediaList.h"
#include "media/SearchRange.h"
#include "scan/ScanSession.h"
#include "window/ControllerState.h"
#include "window/Outlets.h"
#include "window/browser/EmptyWords.h"
#include "window/browser/ImageBrowserModel.h"

namespace vantor {

struct ViewOrder;
struct PreviewFileRequest;

// Members with given names keep them letter for letter; a message `first:second:` is `first(a, second)`.
// Where an outlet already bears the first word, as `imageBrowser` does, the words of the message are joined
// instead.
//
// Threads: everything runs on the interface thread but what the base classes say otherwise and the ScanView
// members, which the scan driver calls too.
class MyTableController : public QObject,
                          public MediaList,
                          private ScanView,
                          public ScanSession,
                          public SectorText,
                          public Outlets,
                          public TableDataSource,
                          public ImageBrowserDataSource,
                          public ControllerState {
    Q_OBJECT

  public:
    // --- Creation and set-up (window/Lifecycle.cpp, window/SetUp.cpp, window/Wiring.cpp) ---

    // Constructor and destructor are `init` and `dealloc`; there is nothing for the class itself to set up.
    explicit MyTableController(ProgramParts parts);
    ~MyTableController() override;
    static void initialize() {}

    // Once the interface is loaded: fills it and shows the window.
    void awakeFromNib();
    // Red, blue and green of 255 each, in this order.
    static QColor getColorFromRGB(int red, int blue, int green);

    // --- Exit (window/Exit.cpp) ---

    // Asks, deletes the preview files and ends the program.
    void Exit_App();
    void Exit_Btn(QObject* sender);
    // Asks as the exit button does; the window itself is never closed by this.
    bool windowShouldClose(QObject* sender);
    // Ends the threads; false when one of them does not answer within the time, as with a device that hangs.
    bool shutDown(std::chrono::milliseconds patience);

    // --- Wizard actions (window/ScreenFlow.cpp) ---

    void Next_btn(QObject* sender);
    void Back_btn(QObject* sender);
    void Photo_Mode_Radio(QObject* sender);
    void Video_Mode_Radio(QObject* sender);
    void RawFile_Mode_Radio(QObject* sender);

    // --- Screens (window/ScreenGroups.cpp) ---

    // True hides the group, false shows it.
    void show_hide_1_screen(bool hide);
    void show_hide_2_screen(bool hide);
    void show_hide_3_screen_Photo(bool hide);
    void show_hide_3_screen_RawFile(bool hide);
    void show_hide_4_screen_RawFile(bool hide);

    // --- Items left behind (window/LeftItems.cpp) ---

    // The results of a scan whose later pass could not open the medium, which led back to the screen before.
    void showLeftItems();

    // --- Table data sources (window/TableDataSources.cpp) ---

    qsizetype numberOfRowsInTableView(const QTableView* table) override;
    QVariant tableView(const QTableView* table, const QString& objectValueForTableColumn,
                       qsizetype row) override;
    void tableView(const QTableView* table, const QVariant& setObjectValue, const QString& forTableColumn,
                   qsizetype row) override;

    // --- Panels and help (window/PanelActions.cpp) ---

    void Browse_Path(QObject* sender);
    void Browse_Path_Sig(QObject* sender);
    // The callback form of the folder chooser's end; 1 is its OK button.
    void openPanelDidEnd(QFileDialog* panel, int returnCode, void* contextInfo);
    void Help_btn(QObject* sender);

    // --- Media list (window/MediaScreen.cpp) ---

    void Reload_Drive_list_Function();
    void rebresh_drives(QObject* sender);
    void deleteSelectedRow(QObject* sender);
    void addRow(std::shared_ptr<MyDataObject> record);
    QString getMPSize(const QString& bytes) const;
    // Adds image files of media to the list and selects the last of them.
    void openImages(const QStringList& files);

    // --- Search range (window/RangeScreen.cpp) ---

    void Entire_Disk_Radio(QObject* sender);
    void Entire_Disk_Radio_Sig(QObject* sender);
    void Sector_Range_Radio(QObject* sender);
    void Sector_Range_Radio_Sig(QObject* sender);
    void DO_Start_slider(QObject* sender);
    void DO_Start_slider_Sig(QObject* sender);
    void DO_End_slider(QObject* sender);
    void DO_End_slider_Sig(QObject* sender);
    void controlTextDidChange(QLineEdit* field);

    // --- What is remembered (window/Remembering.cpp) ---

    // Until the program is started again: sizes of the window, the saving options, and the folders of images
    // and saved files. What every search begins with anew is not among it.
    void remember();
    void forgetRemembered();

    // --- File types (window/FileTypeScreen.cpp) ---

    void Select_Unselect_Check_btn(QObject* sender);
    void clickTable(QObject* sender);
    void Thro_Mode_Chk_SIG_Btn(QObject* sender);

    // --- Scan threads (window/ScanThreads.cpp) ---

    void startTimerThread();
    void stop_usb_disk(QObject* sender);
    bool scanRunning() const { return m_driverRunning || m_timerRunning; }
    // Interface thread: a little longer than it runs, until the window shows how it ended.
    bool scanShown() const { return m_pump.isActive(); }

    // --- Browsers (window/Browsers.cpp) ---

    // From a scan the bytes go to a queue where thumbnails are made side by side and listed in the order of
    // carving.
    void addImageWithData(const QByteArray& data, const QString& imageName,
                          const QString& image_UID) override;
    PhotoBytes photoBytesNeeded() const override {
        return m_parts.thumbnailer ? PhotoBytes::Picture : PhotoBytes::First;
    }
    bool pictureIsKnown() const override;
    qsizetype numberOfItemsInImageBrowser(const ImageBrowserView* view) override;
    std::shared_ptr<MyImageObject> imageBrowser_itemAtIndex(const ImageBrowserView* view,
                                                            qsizetype index) override;
    ItemFacts factsOfItem(qsizetype index) override;
    const CellPicture* pictureOfItem(qsizetype index) override;
    // Items cannot be dragged out: writes nothing and gives 0.
    qsizetype imageBrowser_writeItemsAtIndexes(const ImageBrowserView* view, const QList<qsizetype>& indexes,
                                               QMimeData* toPasteboard);
    void zoomSliderDidChange(QObject* sender);
    void imageBrowserSelectionDidChange(ImageBrowserView* view);

    // --- Preview (window/Preview.cpp) ---

    // Path, start and end sector of an item, in this order.
    void CreateFile_QuickLook_View(const QVariantList& item);
    void QuickLook_Preview_Thread(const QString& itemPath);
    void setQuickLook_View_File(const QString& file, const QString& file_Name);
    void setQuickLook_View(const QString& file);
    void Image_Preview(const QString& file, const QString& file_Name);

    // --- Movie (window/MoviePreview.cpp) ---

    bool isPlaying(const Movie* movie) const;
    void stopPlayingMovie(Movie* movie) const;
    void closemovie_Win();
    std::unique_ptr<Movie> getAMovieFile();

    // --- Viewer (window/Viewer.cpp) ---

    // Shows an item of the list over the whole window.
    void openInViewer(qsizetype index);
    const ViewerDesk& viewer() const { return *m_viewer; }

    // --- Saving (window/Saving.cpp, window/Ticks.cpp) ---

    void saveSelected();
    void saveAll();
    void saveTicked();
    // Items by their places in the list; what is beyond its end is passed over.
    void tickItems(const QList<qsizetype>& indexes, bool ticked);
    // Ticks all that is shown; when all of it is ticked already, unticks it.
    void tickShownItems();
    void invertTicks();
    const TickedItems& ticks() const { return m_ticks; }
    void askSavingOptions();
    // True while something found is neither saved nor left out as the user asked.
    bool hasUnsavedItems() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The session's own of this name is for a pass.
    using ControllerState::m_memory;

    // --- What a scan shows (window/ScanScreen.cpp) ---

    RangeControls rangeControls(ControlSet set) const override;
    bool thoroughBoxOn(ControlSet set) const override;
    QString destinationFolder() const override;
    bool modalSessionRunning() const override { return session; }
    void showModeLabel(const QString& text) override;
    void showSectorLabel(const QString& text) override;
    void showHelpInfo(const QString& text) override;
    void setProgressRange(std::uint64_t sectors) override;
    void startProgress() override;
    void setProgress(double sectors) override;
    void invalidateTimer() override;
    void setScanOptionsEnabled(bool enabled) override;
    void resetPhotoBrowser() override;
    void reloadBrowser(ControlSet set) override;
    void scrollBrowserTo(ControlSet set, qsizetype index) override;
    QIcon iconForFileType(const QString& extension) override;
    void clearPreviewTitle() override;
    void resultRowsChanged() override;
    void fileTypeRowsChanged() override;
    void showAlert(const QString& message) override;
    void returnFromScanScreen(ControlSet set) override;
    void hideScanProgress() override;
    void runEndPanel(ControlSet set) override;
    void showResultControls(ControlSet set) override;
    void enableAfterScan() override;
    void onInterfaceThread(const std::function<void()>& step) override;

    bool onOwnThread() const;
    void later(std::function<void()> step);
    ScanInputs readInputs() const;

    // --- Steps behind these ---

    // window/SetUp.cpp
    void loadInterface();
    void dressWindow();
    void dressRangeSets();
    void setUpTables();
    void setUpBrowsers();
    void setEmptyStates();
    // window/Wiring.cpp
    void wire();
    void wireButtons();
    void wireRangeSet(ControlSet set);
    void wireShortcuts();
    void pressDefault();
    // window/Exit.cpp
    void deletePreviews();
    void endWholePreviews();
    bool mayLeaveUnsaved(const QString& consequence, const QString& leave);
    // window/ScreenFlow.cpp
    ControlSet activeSet() const;
    RangePanel& activeRange();
    void setMode(int mode);
    void nextFromMedia();
    void nextFromRange();
    void nextFromFileTypes();
    void backToMedia();
    void backToRange();
    void backToFileTypes();
    void showMediaHelp();
    void showRangeHelp();
    void showFileTypeHelp();
    void showWhereWeAre();
    QWidget* homeOfScreen() const;
    void keyboardWentTo(const QWidget* from, QWidget* to);
    void bringIntoView(QWidget* widget);
    void emptyBrowsers();
    void emptyBrowserViews();
    void zoomRawBrowser(float zoom);
    // window/ScreenGroups.cpp
    void showPreviewPane(bool hide);
    void hideOpenFolderButtons();
    // window/LeftItems.cpp
    bool onScanScreen() const;
    void scanFellBack();
    void showLeftItemsBar();
    bool mayBeginScan();
    // window/PanelActions.cpp
    void browseForDestination();
    QString askDestination();
    QString chooseDestination();
    QString folderToBeginWith() const;
    bool acceptDestination(const QString& folder);
    bool mayBeDestination(const QString& folder);
    bool isStillThere(const QString& folder) const;
    bool destinationStillThere();
    void showDestination();
    void openDestination();
    QLineEdit* pathInView() const;
    QString devicePath() const;
    // window/MediaScreen.cpp
    void mediaChanged();
    void reloadMediaKeepingSelection();
    std::shared_ptr<MyDataObject> selectedMedium() const;  // null as well for a row without a record
    void selectMedium(const QString& identifier);
    QIcon iconOfMedium(qsizetype row) const;
    // window/RangeScreen.cpp
    RangePanel& rangeOf(ControlSet set);
    void showEntireDiskHelp();
    void showSectorRangeHelp();
    // window/Remembering.cpp
    void recall();
    QString rememberedFolder(const QString& key) const;
    void rememberFolder(const QString& key, const QString& folder);
    // window/FileTypeScreen.cpp
    void buildGroupBoxes();
    void filterFileTypes(const QString& text);
    // window/TypePresets.cpp
    void buildPresetMenu();
    void choosePreset(const std::function<bool(const FileTypeRow&)>& belongs);
    // window/FileTypeScreen.cpp
    void showEmptyTypes(const QString& filter);
    bool isTypeShown(qsizetype row) const;
    void tickShown(bool ticked, const std::function<bool(const FileTypeRow&)>& belongs);
    void showSelectAllState();
    void showTypeCounts();
    // window/SearchEndBar.cpp
    void showSearchEnd();
    void showSearchSum();
    // Opens the medium for a pass of a search; the first of them is looked at whether it was erased.
    std::unique_ptr<SectorReader> openForSearch(const QString& device);
    void showThatItWasErased();
    void tryBadSectorsAgain();
    // The badges of the list begin anew.
    void beginLooks();
    void tellWhoLooksElsewhere();
    PanelWords endPanelWords(const PanelWords& drawn) const;
    SearchWish searchWish() const;
    void showEmptyResults();
    // window/Keeping.cpp
    void setUpKeeping();
    void showKeeping();
    void keepThisSearch();
    void keepSearchEnd();
    void keepMarksSoon();
    void keepMarks();
    SearchRecord recordOfNow();
    void writeKeptSearch();
    void markAsBefore();
    SearchWishes wishesOfNow() const;
    QString pathOfMedium(const QString& identifier) const;
    // window/GoingOn.cpp
    void goOn();
    void goOnWithCardPutBack();
    void goOnWith(SearchRecord record);
    void goOnWithKept(bool onlyLook);
    enum class Likeness { Same, Another, CannotBeOpened };
    Likeness likenessOf(const QString& identifier, const SearchRecord& record);
    QStringList mediaLike(const SearchRecord& record) const;
    bool chooseMediumOf(const SearchRecord& record);
    // window/CardCopy.cpp
    bool chooseCopyPlace();
    bool acceptCopyPlace(const QString& path);
    bool refuseCopy(const QString& what, const QString& why);
    bool mayKeepCopy();
    // window/CardState.cpp
    void setUpCardStrip();
    void beginCardStrip();
    void showCard();
    void showCopy(const MediumCopy& copy);
    void keepCopyNow();
    bool goesOnByItself() const;
    // window/Mending.cpp
    void setUpMending();
    void offerMending();
    void mendBrokenItems();
    void stopMending();
    void forgetMends();
    void showMending();
    void showPieces();
    void previewMendedItem();
    QString mendingWords() const;
    QString mendingEndWords() const;
    // window/ScanThreads.cpp
    void startScan(void (ScanSession::*driver)());
    void pump();
    void drainQueue();
    bool waitForThreads();
    void scanThreadsEnded();
    void flushViews();
    void showScanFacts();
    void prepareIcons();
    void clearWaitingThumbnails();
    // window/Browsers.cpp
    ImageBrowserView* browserOf(ControlSet set) const;
    void filterResultRows();
    void showChosenType();
    void takeToldFiles(SavingDesk::ToldFiles files, std::uint64_t beyondRoom);
    void forgetItems();
    void keepChosenType();
    void showItemCounts();
    LookedAtItems lookedAtItems();
    void selectionMoved(ImageBrowserView* browser);
    void startDuePreview();
    // window/ItemPictures.cpp
    void setUpItemPictures();
    void wantItemPictures();
    void showDetails(bool shown);
    std::optional<ViewOrder> pictureOrderOf(std::size_t index) const;
    // window/ItemMenu.cpp
    void showItemMenu(ImageBrowserView* browser, qsizetype index, const QPoint& place);
    void selectLike(ImageBrowserView* browser, const std::function<bool(qsizetype)>& isLike) const;
    // window/Preview.cpp
    void runBeside(const std::function<void()>& work);
    std::unique_ptr<Movie> openBeside(const MovieLoader& loader, const QString& file);
    void showPicture(const QPixmap& picture, const QString& title);
    QString obstacleFor(const QString& file) const;
    void showPreviewFacts();
    std::shared_ptr<WholePreview> wholePreviewOf(PreviewFileRequest& copy);
    void takeWholePreview(std::shared_ptr<WholePreview> whole);
    void fillWholePreview();
    QString shownFileOf(const QString& file) const;
    void showThatTheMediumIsGone();
    void emptyPreviewPane();
    // window/Ticks.cpp
    void wireTicks();
    void showTicks();
    bool allShownAreTicked() const;
    // window/Viewer.cpp
    void setUpViewer();
    ViewOrder viewOrderOf(const MyImageObject& item) const;
    // window/DragOut.cpp
    void dragOut(ImageBrowserView* browser, const QList<qsizetype>& indexes);
    bool waitForDraggedFiles(QWidget* browser);
    void tellOfDragging(QWidget* over, const QString& words);
    void saveItemAs(qsizetype index);
    // window/Ejecting.cpp
    bool canEjectCard() const;
    void ejectCard();
    // window/Saving.cpp
    void saveItems(const QList<qsizetype>& indexes, const SavingDesk::ToldFiles& told = {});
    SavingParts savingParts();
    ReportHead reportHead() const;
};

}  // namespace vantor
