// Loading of the interface and the set-up once it is loaded.
#include <QHeaderView>
#include <algorithm>
#include <utility>

#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/ProgramTitle.h"
#include "window/panels/CardPicture.h"
#include "window/widgets/AccessibleControls.h"
#include "window/widgets/EndsLayout.h"
#include "window/widgets/MessageLayout.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kIdleProgressSteps = 1000;

template <class Column>
void orderColumns(ListTable* table, const QList<Column>& visualOrder) {
    for (int place = 0; place < visualOrder.size(); ++place) {
        table->horizontalHeader()->moveSection(table->horizontalHeader()->visualIndex(visualOrder.at(place)),
                                               place);
    }
}

// The other columns are as wide as what they hold, in every size of type.
void giveSpareWidthTo(ListTable* table, int column) {
    QHeaderView* header = table->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(column, QHeaderView::Stretch);
}

constexpr int kLeftPane = 214;

// From now on the row of a screen takes a second line where the window is narrow.
void letFold(QVBoxLayout* screen, QHBoxLayout*& row) {
    const int place = screen->indexOf(row);
    screen->insertLayout(place, new EndsLayout(row));
    screen->removeItem(row);
    delete std::exchange(row, nullptr);
}

QString groupedDigits(const QVariant& value) {
    bool isNumber = false;
    const qulonglong number = value.toString().toULongLong(&isNumber);
    return isNumber ? numberForPeople(number) : value.toString();
}

}  // namespace

void MyTableController::loadInterface() {
    describeControls();
    m_window = std::make_unique<QMainWindow>();
    window = m_window.get();
    loadInto(window);
    dressIcons(window);
    // The keyboard goes from what the screen holds to the buttons below it, and then to what stands above.
    QWidget::setTabOrder(nextButton, helpButton);
    dressWindow();
    dressRangeSets();
    setUpTables();
    setUpBrowsers();
    setUpKeeping();
    setUpMending();
    MessageLayout::replace(std::exchange(searchEndLayout, nullptr));
    setUpCardStrip();
    setEmptyStates();
    buildGroupBoxes();

    m_panels = std::make_unique<WindowPanels>(window, m_parts.resourcesFolder, m_parts.openDocument);
    BrowseInfo_Window = m_panels->browseInfo.window;
    SaveFile_Info_Window = m_panels->saveFileInfo.window;
    SaveFile_Info_For_RAW_Window = m_panels->saveFileInfoForRaw.window;
    ClearPreview_Window = m_panels->clearPreview.window;
    LoadDisk_Window = m_panels->loadDrive.window;
    HelpWindow = m_panels->help.window;
}

void MyTableController::dressWindow() {
    window->setWindowIcon(ownIcon(QStringLiteral("vantor-recovery")));
    // So that the buttons beside it keep their place from screen to screen: in most languages and windows the
    // longest help text takes no more.
    constexpr int kHelpLines = 3;
    _help_info->setMinimumHeight(kHelpLines * _help_info->fontMetrics().lineSpacing());
    rawSplitter->setStretchFactor(0, 0);
    rawSplitter->setStretchFactor(1, 1);
    rawSplitter->setStretchFactor(2, 0);
    rawTypesHeading->ensurePolished();
    allTypesButton->ensurePolished();
    rawSplitter->setSizes({std::max(kLeftPane, rawTypesHeadLayout->sizeHint().width()), 560, 270});
    rawLeftSplitter->setStretchFactor(0, 1);
    rawLeftSplitter->setStretchFactor(1, 0);
    rawLeftSplitter->setSizes({300, 200});
    photoSplitter->setStretchFactor(0, 0);
    photoSplitter->setStretchFactor(1, 1);
    photoSplitter->setSizes({kLeftPane, 800});
    letFold(photoLayout, photoHeadLayout);
    letFold(photoLayout, photoSaveLayout);
    letFold(rawTypesLayout, rawTypesHeadLayout);
    letFold(rawItemsLayout, rawHeadLayout);
    letFold(rawItemsLayout, rawOrderLayout);
    letFold(rawLayout, rawSaveLayout);
    MessageLayout::replace(std::exchange(leftItemsLayout, nullptr));
}

void MyTableController::dressRangeSets() {
    RangeOutlets photo;
    photo.entireDisk = _entire_disk_rd;
    photo.sectorRange = _sector_range_rd;
    photo.captions = {_disk, _vol_name, _file_system, _size, _start_sector_entire, _end_sector_entire};
    photo.values = {_disk_val,
                    _vol_name_val,
                    _file_system_val,
                    _size_val,
                    _start_sector_entire_val,
                    _end_sector_entire_val};
    photo.rangeControls = {_Sector_Range_Info, _Start_Sec_Box,     _Start_Sec_Min,  _Start_Sec_Min_val,
                           _Start_Sec_Max,     _Start_Sec_Max_val, _Start_Sec_curr, _Start_slider_val,
                           _Start_Slider,      _End_Sec_Box,       _End_Sec_Min,    _End_Sec_Min_val,
                           _End_Sec_Max,       _End_Sec_Max_val,   _End_Sec_curr,   _End_slider_val,
                           _End_Slider};
    photo.start = {_Start_slider_val, _Start_Slider, _Start_Sec_Min_val, _Start_Sec_Max_val};
    photo.end = {_End_slider_val, _End_Slider, _End_Sec_Min_val, _End_Sec_Max_val};
    photo.reachHint = sliderReachHint;
    photo.path = _path;
    photo.diskIdentifier = _disk_identifier;
    photo.sectors = _sectors_val;
    m_range[static_cast<std::size_t>(ControlSet::Photo)] = std::make_unique<RangePanel>(photo);

    RangeOutlets sig = photo;
    sig.entireDisk = _entire_disk_rd_Sig;
    sig.sectorRange = _sector_range_rd_Sig;
    sig.captions = {_disk_Sig,
                    _vol_name_Sig,
                    _file_system_Sig,
                    _size_Sig,
                    _start_sector_entire_Sig,
                    _end_sector_entire_Sig};
    sig.values = {_disk_val_Sig,
                  _vol_name_val_Sig,
                  _file_system_val_Sig,
                  _size_val_Sig,
                  _start_sector_entire_val_Sig,
                  _end_sector_entire_val_Sig};
    sig.rangeControls = {_Sector_Range_Info_Sig, _Start_Sec_Box_Sig,    _Start_Sec_Min_Sig,
                         _Start_Sec_Min_val_Sig, _Start_Sec_Max_Sig,    _Start_Sec_Max_val_Sig,
                         _Start_Sec_curr_Sig,    _Start_slider_val_Sig, _Start_Slider_Sig,
                         _End_Sec_Box_Sig,       _End_Sec_Min_Sig,      _End_Sec_Min_val_Sig,
                         _End_Sec_Max_Sig,       _End_Sec_Max_val_Sig,  _End_Sec_curr_Sig,
                         _End_slider_val_Sig,    _End_Slider_Sig};
    sig.start = {_Start_slider_val_Sig, _Start_Slider_Sig, _Start_Sec_Min_val_Sig, _Start_Sec_Max_val_Sig};
    sig.end = {_End_slider_val_Sig, _End_Slider_Sig, _End_Sec_Min_val_Sig, _End_Sec_Max_val_Sig};
    sig.reachHint = sliderReachHint_Sig;
    sig.path = _path_Sig;
    m_range[static_cast<std::size_t>(ControlSet::Sig)] = std::make_unique<RangePanel>(sig);
    diskFactsBox->layout()->addWidget(new CardPicture(photo, partsOnThisMachine, diskFactsBox));
    diskFactsBox_Sig->layout()->addWidget(new CardPicture(sig, partsOnThisMachine, diskFactsBox_Sig));
}

void MyTableController::setUpTables() {
    TableColumn disk{QStringLiteral("Collumn1"), tr("Disk")};
    TableColumn name{QStringLiteral("Collumn2"), tr("Name")};
    name.picture = [this](qsizetype row) { return QVariant::fromValue(iconOfMedium(row)); };
    TableColumn sectors{QStringLiteral("Collumn6"), tr("Sectors"), false, true, groupedDigits};
    TableColumn size{QStringLiteral("Collumn4"), tr("Size"), false, true};
    m_mediaTable = new TableAdapter(*this, idTableView,
                                    {disk,
                                     name,
                                     {QStringLiteral("Collumn3"), tr("File system")},
                                     size,
                                     {QStringLiteral("Collumn5"), tr("Whole disk")},
                                     sectors});
    orderColumns<int>(idTableView, {1, 3, 2, 0, 4, 5});

    TableColumn thorough{QStringLiteral("Thoro"), tr("Search")};
    thorough.wording = [](const QVariant& value) {
        return value.toString().isEmpty() ? QString() : tr("Thorough");
    };
    m_typeTable = new TableAdapter(*this, idCheckTableView,
                                   {{QStringLiteral("State"), QString(), true},
                                    {QStringLiteral("Extension"), tr("Type")},
                                    {QStringLiteral("Description"), tr("Description")},
                                    thorough});
    TableColumn count{QStringLiteral("NoOfFile"), tr("Found"), false, true, groupedDigits};
    m_resultTable =
        new TableAdapter(*this, idSigTableView, {{QStringLiteral("FileTypes"), tr("Type")}, count});

    giveSpareWidthTo(idTableView, 1);
    giveSpareWidthTo(idCheckTableView, 2);
    giveSpareWidthTo(idSigTableView, 0);
}

void MyTableController::setUpBrowsers() {
    for (ImageBrowserView* browser : {imageBrowser, imageBrowser_2}) {
        browser->setDataSource(this);
    }
    m_looks = std::make_unique<BrowserLooks>(
        std::array{BrowserScreen{imageBrowser, showBox, sortBox, foundPane},
                   BrowserScreen{imageBrowser_2, showBox_Sig, sortBox_Sig, foundPane_Sig}},
        lookedAtItems());
    connect(m_looks.get(), &BrowserLooks::changed, this, &MyTableController::showItemCounts);
    connect(m_looks.get(), &BrowserLooks::looked, this, [this] {
        if (!session && !m_obstacle.isEmpty() && Prev_Index != kNoPreview) {
            showPreviewFacts();
        }
    });
    m_desk = std::make_unique<SavingDesk>(savingParts());
    connect(m_desk.get(), &SavingDesk::marksChanged, this, &MyTableController::showItemCounts);
    setUpViewer();
    setUpItemPictures();
}

void MyTableController::setEmptyStates() {
    idTableView->setEmptyState(
        ownIcon(QStringLiteral("drive")), tr("No storage media found"),
        tr("Insert the memory card or connect its reader and press Refresh, or open an image "
           "file of a medium. You can also drop an image file here."));
    showEmptyTypes({});
    showEmptyResults();
}

void MyTableController::awakeFromNib() {
    setCommonBackground(window);
    window->installEventFilter(this);
    thoroughBox->installEventFilter(this);
    window->setWindowTitle(kProgramTitle);
    show_hide_2_screen(true);
    rangeScreen_Sig->hide();
    show_hide_3_screen_Photo(true);
    show_hide_3_screen_RawFile(true);
    show_hide_4_screen_RawFile(true);
    hideOpenFolderButtons();
    zoomLabel->hide();
    _zoom_slider->hide();
    backButton->setEnabled(false);
    show_hide_1_screen(false);
    controlPanel->raise();
    window->show();
    window->raise();
    window->activateWindow();

    _Thro_Mode_Chk->setChecked(true);
    setMode(kPhotoMode);
    showMediaHelp();
    _sector_label->setText(tr("Sectors 0 of 0"));
    for (const auto& range : m_range) {
        range->setCaptions();
        range->clear();
        range->showChosen();
    }
    idTableView->setFocus();
    Reload_Drive_list_Function();

    emptyBrowsers();
    loadCatalogues(m_parts.resourcesFolder);
    loadPlaceholder(m_parts.resourcesFolder);
    for (ImageBrowserView* const browser : {imageBrowser, imageBrowser_2}) {
        browser->setPlaceholder(Null_Image_Data);
    }
    _Progress_Horz->setRange(0, kIdleProgressSteps);
    _Progress_Horz->setValue(0);
    sortFileTypeRows(nsCheckedListDataObject);
    m_parts.media->changed = [this] { mediaChanged(); };
}

}  // namespace vantor
