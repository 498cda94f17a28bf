// The wizard: what Next, Back and the mode radios do on each screen.
#include <QObject>
#include <QScrollBar>
#include <QSignalBlocker>

#include "catalogue/FileTypeList.h"
#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/keeping/KeepingBox.h"
#include "window/preview/ViewerDesk.h"
#include "window/widgets/Alerts.h"

namespace vantor {

namespace {

constexpr float kPhotoZoom = 0.55F;
constexpr float kRawZoom = 0.05F;

QString searchType(int mode) {
    switch (mode) {
        case kVideoMode:
            return QObject::tr("Search Type : Recover Video");
        case kRawFileMode:
            return QObject::tr("Search Type : Recover Raw File");
        default:
            return QObject::tr("Search Type : Recover Photo");
    }
}

}  // namespace

ControlSet MyTableController::activeSet() const {
    return Recovery_MODE == kPhotoMode ? ControlSet::Photo : ControlSet::Sig;
}

RangePanel& MyTableController::activeRange() {
    return rangeOf(activeSet());
}

void MyTableController::Photo_Mode_Radio(QObject*) {
    setMode(kPhotoMode);
}

void MyTableController::Video_Mode_Radio(QObject*) {
    setMode(kVideoMode);
}

void MyTableController::RawFile_Mode_Radio(QObject*) {
    setMode(kRawFileMode);
}

void MyTableController::setMode(int mode) {
    Recovery_MODE = mode;
    _rec_mode_Photo->setChecked(mode == kPhotoMode);
    _rec_mode_Video->setChecked(mode == kVideoMode);
    _rec_mode_RawFile->setChecked(mode == kRawFileMode);
    showWhereWeAre();
}

void MyTableController::Next_btn(QObject*) {
    searchEndBar->setVisible(searchEndBar->isVisible() && onScanScreen());
    switch (screen_counter) {
        case 0:
            nextFromMedia();
            break;
        case 1:
            nextFromRange();
            break;
        case 2:
            if (Recovery_MODE != kPhotoMode) {
                nextFromFileTypes();
            }
            break;
        default:
            break;
    }
    showWhereWeAre();
}

void MyTableController::nextFromMedia() {
    const std::shared_ptr<MyDataObject> medium = selectedMedium();
    if (!medium) {
        runAlert({tr("\nPlease select a storage media from list.")}, window);
        return;
    }
    screen_counter = 1;
    activeRange().fill(*medium);
    showEntireDiskHelp();
    if (Recovery_MODE == kPhotoMode) {
        _Thro_Mode_Chk->setChecked(true);
    }
    _Search_Type->setText(searchType(Recovery_MODE));
    _Search_Type->show();
    backButton->setEnabled(true);
    show_hide_1_screen(true);
    show_hide_2_screen(false);
    homeOfScreen()->setFocus();
}

void MyTableController::nextFromRange() {
    RangePanel& range = activeRange();
    if (const auto refusal = range.refusal()) {
        runAlert({refusal->message, refusal->informative}, window);
        range.field(refusal->field)->setFocus();
        range.field(refusal->field)->selectAll();
        return;
    }
    if (Recovery_MODE == kPhotoMode && !mayBeginScan()) {
        return;
    }
    screen_counter = 2;
    _Thro_Mode_Chk_SIG->setChecked(true);
    _select_unselect_Chk->setCheckState(Qt::Checked);
    show_hide_2_screen(true);
    stop_now = 0;
    if (Recovery_MODE == kPhotoMode) {
        show_hide_3_screen_Photo(false);
        homeOfScreen()->setFocus();
        startScan(&ScanSession::Photo_Rec_Thread);
        return;
    }
    buildFileTypeList();
    showFileTypeHelp();
    show_hide_3_screen_RawFile(false);
    typeSearchField->clear();
    buildGroupBoxes();
    homeOfScreen()->setFocus();
}

void MyTableController::nextFromFileTypes() {
    // Asked before the catalogues are cut, so that who stays finds all types as they were.
    if (Check_For_One_Extension_Selection() && !mayBeginScan()) {
        return;
    }
    cutCataloguesToTickedTypes();
    if (!Check_For_One_Extension_Selection()) {
        runAlert({noTypeChosenWords()}, window);
        idCheckTableView->setFocus();
        return;
    }
    screen_counter = 3;
    show_hide_3_screen_RawFile(true);
    show_hide_4_screen_RawFile(false);
    homeOfScreen()->setFocus();
    startScan(&ScanSession::Raw_File_Rec_Thread);
}

void MyTableController::Back_btn(QObject*) {
    if (hasUnsavedItems() && !mayLeaveUnsaved(tr("When you go back, the list of found items is emptied."),
                                              tr("Go Back Without Saving"))) {
        return;
    }
    searchEndBar->hide();
    switch (screen_counter) {
        case 1:
            backToMedia();
            break;
        case 2:
            backToRange();
            break;
        case 3:
            backToFileTypes();
            break;
        default:
            break;
    }
    showWhereWeAre();
}

void MyTableController::backToMedia() {
    screen_counter = 0;
    _Search_Type->hide();
    showMediaHelp();
    _sectors_val->setText(noFact());
    _disk_identifier->setText(noFact());
    for (const auto& range : m_range) {
        range->clear();
    }
    backButton->setEnabled(false);
    // Hidden first: two screens in view at a time would make a small window grow.
    show_hide_2_screen(true);
    show_hide_1_screen(false);
    if (itemCount() > 0) {
        emptyBrowsers();  // they are of the medium that is left
    }
    m_copied.set({}, nullptr);
    m_keepingBox->setCopyPlace({}, {});
    setMode(kPhotoMode);
    Reload_Drive_list_Function();
    homeOfScreen()->setFocus();
}

void MyTableController::backToRange() {
    screen_counter = 1;
    showRangeHelp();
    emptyBrowsers();
    zoomLabel->hide();
    _zoom_slider->hide();
    if (Recovery_MODE == kPhotoMode) {
        show_hide_3_screen_Photo(true);
    } else {
        show_hide_3_screen_RawFile(true);
    }
    show_hide_2_screen(false);
    hideOpenFolderButtons();
    stop_now = 0;
    homeOfScreen()->setFocus();
}

void MyTableController::backToFileTypes() {
    screen_counter = 2;
    clearItems();
    zoomRawBrowser(kRawZoom);
    imageBrowser_2->reloadData();
    hideOpenFolderButtons();
    showFileTypeHelp();
    show_hide_4_screen_RawFile(true);
    show_hide_3_screen_RawFile(false);
    stop_now = 0;
    forgetItems();
    m_looks->end();
    homeOfScreen()->setFocus();
}

// The browser and the slider that says how large its cells are.
void MyTableController::zoomRawBrowser(float zoom) {
    imageBrowser_2->setZoomValue(zoom);
    const QSignalBlocker quiet(zoomSlider_Sig);
    zoomSlider_Sig->setValue(qRound(zoom * static_cast<float>(zoomSlider_Sig->maximum())));
}

void MyTableController::showMediaHelp() {
    _help_info->setText(
        tr("\nSelect the storage media from List from which you want to recover Data. Press ‘Next’ button to "
           "continue... "));
}

void MyTableController::showRangeHelp() {
    const RangePanel& range = activeRange();
    if (range.entireDiskOn()) {
        showEntireDiskHelp();
    } else if (range.sectorRangeOn()) {
        showSectorRangeHelp();
    }
}

void MyTableController::showFileTypeHelp() {
    _help_info->setText(
        tr("\nPlease select the required extension type for recovery process. Press ‘Next’ button to "
           "continue... "));
}

// The items go, and the browsers stand as at the start.
void MyTableController::emptyBrowsers() {
    clearItems();
    forgetItems();
    m_looks->end();
    emptyBrowserViews();
    showItemCounts();
}

void MyTableController::emptyBrowserViews() {
    m_viewer->leave();
    _zoom_slider->setValue(_zoom_slider->maximum() / 2);
    imageBrowser->setZoomValue(kPhotoZoom);
    zoomRawBrowser(kRawZoom);
    imageBrowser->reloadData();
    imageBrowser_2->reloadData();
}

// The step trail and the line that names search and medium.
void MyTableController::showWhereWeAre() {
    const bool photo = Recovery_MODE == kPhotoMode;
    QStringList steps = {tr("Medium"), tr("Range"), tr("File types"), tr("Recover")};
    if (photo) {
        steps.removeAt(2);
    }
    stepTrail->setSteps(steps, screen_counter);
    contextBar->setVisible(screen_counter > 0);
    showLeftItemsBar();
    if (!onScanScreen()) {
        m_viewer->leave();
    }
    showKeeping();
    bodyScroll->verticalScrollBar()->setValue(0);
    // Once the new screen is laid out.
    QTimer::singleShot(0, this, [this] {
        if (window->focusWidget() != nullptr && body->isAncestorOf(window->focusWidget())) {
            bringIntoView(window->focusWidget());
        }
    });
}

// Where the keyboard begins on the screen: never with a button that ends something.
QWidget* MyTableController::homeOfScreen() const {
    const bool photo = Recovery_MODE == kPhotoMode;
    switch (screen_counter) {
        case 0:
            return idTableView;
        case 1: {
            const RangeOutlets& range = m_range[static_cast<std::size_t>(activeSet())]->outlets();
            return range.sectorRange->isChecked() ? range.sectorRange : range.entireDisk;
        }
        case 2:
            return photo ? static_cast<QWidget*>(imageBrowser) : idCheckTableView;
        default:
            return imageBrowser_2;
    }
}

// In a window too small for the screen, what has the keyboard is in view. When what had it is no longer
// there, the toolkit hands it to whatever comes next: a Return that was on its way would press it.
void MyTableController::keyboardWentTo(const QWidget* from, QWidget* to) {
    if (m_ending || to == nullptr || to->window() != window) {
        return;
    }
    const bool leftBehind =
        from != nullptr && from->window() == window && !(from->isEnabled() && from->isVisible());
    if (leftBehind && homeOfScreen()->isVisible()) {
        homeOfScreen()->setFocus();
    } else if (body->isAncestorOf(to)) {
        bringIntoView(to);
    }
}

// Lists have scroll bars of their own and stay where they are.
void MyTableController::bringIntoView(QWidget* widget) {
    if (qobject_cast<QAbstractItemView*>(widget) == nullptr) {
        bodyScroll->ensureWidgetVisible(widget);
    }
}

}  // namespace vantor
