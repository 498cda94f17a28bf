// What a scan shows and asks: every call is carried to the interface thread, in order.
#include <QScrollBar>
#include <QThread>

#include "catalogue/FileKind.h"
#include "window/MyTableController.h"
#include "window/widgets/Alerts.h"

namespace vantor {

namespace {

// The bar counts in these steps; sectors may exceed what the toolkit counts.
constexpr int kBarSteps = 10000;

}  // namespace

bool MyTableController::onOwnThread() const {
    return QThread::currentThread() == thread();
}

void MyTableController::later(std::function<void()> step) {
    if (onOwnThread()) {
        step();
    } else {
        m_queue.post(std::move(step));
    }
}

void MyTableController::onInterfaceThread(const std::function<void()>& step) {
    if (onOwnThread()) {
        step();
    } else {
        // What the user is to see or answer comes after the last thumbnail.
        if (m_thumbnails) {
            m_thumbnails->flush();
        }
        m_queue.runAndWait([this, &step] {
            flushViews();
            step();
        });
    }
}

ScanInputs MyTableController::readInputs() const {
    ScanInputs inputs;
    for (std::size_t set = 0; set < m_range.size(); ++set) {
        inputs.range[set] = m_range[set]->controls();
    }
    inputs.thorough = {_Thro_Mode_Chk->isChecked(), _Thro_Mode_Chk_SIG->isChecked()};
    inputs.destination = _path->text();
    return inputs;
}

RangeControls MyTableController::rangeControls(ControlSet set) const {
    const auto at = static_cast<std::size_t>(set);
    return onOwnThread() ? m_range[at]->controls() : m_inputs.range[at];
}

bool MyTableController::thoroughBoxOn(ControlSet set) const {
    const auto at = static_cast<std::size_t>(set);
    return onOwnThread() ? readInputs().thorough[at] : m_inputs.thorough[at];
}

QString MyTableController::destinationFolder() const {
    return onOwnThread() ? _path->text() : m_inputs.destination;
}

void MyTableController::showModeLabel(const QString& text) {
    later([this, text] { _Mode_label->setText(text); });
}

void MyTableController::showSectorLabel(const QString& text) {
    later([this, text] { _sector_label->setText(text); });
}

void MyTableController::showHelpInfo(const QString& text) {
    later([this, text] { _help_info->setText(text); });
}

void MyTableController::setProgressRange(std::uint64_t sectors) {
    later([this, sectors] {
        m_progressSectors = static_cast<double>(sectors);
        m_meter.begin(sectors);
    });
}

void MyTableController::startProgress() {
    later([this] {
        _Progress_Horz->setRange(0, kBarSteps);
        _Progress_Horz->setValue(0);
    });
}

void MyTableController::setProgress(double sectors) {
    later([this, sectors] {
        const double share = m_progressSectors > 0 ? sectors / m_progressSectors : 0;
        const int step = static_cast<int>(share * kBarSteps);
        if (m_parts.showTaskProgress && step != _Progress_Horz->value()) {
            m_parts.showTaskProgress(share);
        }
        _Progress_Horz->setValue(step);
    });
}

void MyTableController::invalidateTimer() {
    if (mSetLabelTimer) {
        mSetLabelTimer->invalidate();
    }
}

void MyTableController::setScanOptionsEnabled(bool enabled) {
    later([this, enabled] {
        _Thro_Mode_Chk->setEnabled(enabled);
        _browse_path->setEnabled(enabled);
    });
}

void MyTableController::resetPhotoBrowser() {
    later([this] {
        emptyBrowserViews();
        flushViews();
    });
}

void MyTableController::reloadBrowser(ControlSet set) {
    m_pending[static_cast<std::size_t>(set)].reload = true;
    if (onOwnThread()) {
        flushViews();
    }
}

void MyTableController::scrollBrowserTo(ControlSet set, qsizetype index) {
    m_pending[static_cast<std::size_t>(set)].scrollTo = index;
    if (onOwnThread()) {
        flushViews();
    }
}

QIcon MyTableController::iconForFileType(const QString& extension) {
    if (onOwnThread() && !scanRunning()) {
        m_icons.prepare(extension, kindOfExtension(extension));
    }
    return m_icons.icon(extension);
}

void MyTableController::clearPreviewTitle() {
    later([this] {
        emptyPreviewPane();
        Prev_Index = kNoPreview;
        _QuickLook_View_Box->setTitle(tr("No file is selected to preview"));
    });
}

void MyTableController::resultRowsChanged() {
    m_resultRowsDirty = true;
    if (onOwnThread()) {
        flushViews();
    }
}

void MyTableController::fileTypeRowsChanged() {
    later([this] {
        m_typeTable->refreshData();
        if (!typeSearchField->text().isEmpty()) {
            filterFileTypes(typeSearchField->text());
        }
    });
}

void MyTableController::showAlert(const QString& message) {
    onInterfaceThread([this, message] {
        showWhereWeAre();
        Alert failure{message};
        failure.picture = QStringLiteral("warning");
        runAlert(failure, window);
    });
}

void MyTableController::returnFromScanScreen(ControlSet set) {
    later([this, set] {
        // With the way to them, which is open as soon as the user has read the alert.
        m_leftRows = resultRows();
        if (set == ControlSet::Photo) {
            show_hide_3_screen_Photo(true);
            show_hide_2_screen(false);
        } else {
            show_hide_4_screen_RawFile(true);
            show_hide_3_screen_RawFile(false);
        }
        _open_folder->hide();
        showSearchEnd();  // the alert says only that it failed
        homeOfScreen()->setFocus();
    });
}

void MyTableController::hideScanProgress() {
    for (QWidget* widget :
         std::initializer_list<QWidget*>{clearingLabel, _Mode_label, _Progress_Horz, _sector_label,
                                         _stop_scan, scanFactsLabel, scanStripRow}) {
        widget->hide();
    }
    if (pFile_op) {
        pFile_op->flush();
        pFile_op.reset();
    }
    // Without the time that the user takes to read that it has ended.
    if (scanRunning()) {
        m_searchMilliseconds = m_clock.elapsed();
    }
    m_searchEnded = true;
    searchEndBar->hide();  // what it said was of a search that runs
    showEmptyResults();
}

void MyTableController::runEndPanel(ControlSet set) {
    keepSearchEnd();
    if (goesOnByItself()) {
        return;
    }
    tellWhoLooksElsewhere();
    if (set == ControlSet::Photo) {
        m_panels->saveFileInfo.setWords(endPanelWords(m_panels->photoEnd));
        runModalForWindow(SaveFile_Info_Window);
    } else {
        m_panels->saveFileInfoForRaw.setWords(endPanelWords(m_panels->rawEnd));
        runModalForWindow(SaveFile_Info_For_RAW_Window);
    }
}

void MyTableController::showResultControls(ControlSet set) {
    const bool photo = set == ControlSet::Photo;
    zoomLabel->setVisible(photo);
    _zoom_slider->setVisible(photo);
    (photo ? _open_folder : _open_folder_Sig)->show();
    // The few that were found are not looked for among hundreds that were not.
    if (!photo && itemCount() > 0 && idSigTableView->verticalScrollBar()->maximum() > 0) {
        foundTypesOnly->setChecked(true);
    }
    browserOf(set)->setFocus();
    showSearchEnd();
    showItemCounts();
}

void MyTableController::enableAfterScan() {
    backButton->setEnabled(true);
    setScanOptionsEnabled(true);
}

}  // namespace vantor
