// What the user of a scan sees or answers; the window and the command line each have their own.
#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>

#include "media/SearchRange.h"

namespace vantor {

// The twin sets of controls: one for photo mode, the `_Sig` one for the video and raw-file modes.
enum class ControlSet { Photo, Sig };

// The calls come from the scan driver's thread in the order in which the user is to see their effect, but for
// those that say otherwise. An implementation with widgets carries them to its own thread.
class ScanView {
  public:
    ScanView() = default;
    ScanView(const ScanView&) = delete;
    ScanView& operator=(const ScanView&) = delete;
    virtual ~ScanView() = default;

    // Questions, asked at the start of a pass and between passes.
    virtual RangeControls rangeControls(ControlSet set) const = 0;
    virtual bool thoroughBoxOn(ControlSet set) const = 0;
    virtual QString destinationFolder() const = 0;  // text of `_path`
    virtual bool modalSessionRunning() const = 0;   // a preview or media query is in its modal session

    // Progress of a pass.
    virtual void showModeLabel(const QString& text) = 0;
    virtual void showSectorLabel(const QString& text) = 0;
    virtual void showHelpInfo(const QString& text) = 0;
    virtual void setProgressRange(std::uint64_t sectors) = 0;  // from 0
    virtual void startProgress() = 0;                          // determinate, at 0
    virtual void setProgress(double sectors) = 0;
    virtual void invalidateTimer() = 0;  // the progress timer thread is to end

    // `_Thro_Mode_Chk` and `_browse_path`.
    virtual void setScanOptionsEnabled(bool enabled) = 0;

    // The browsers.
    virtual void resetPhotoBrowser() = 0;  // zoom slider 0.5, browser zoom 0.55, redraw, reload
    virtual void reloadBrowser(ControlSet set) = 0;
    virtual void scrollBrowserTo(ControlSet set, qsizetype index) = 0;
    virtual QIcon iconForFileType(const QString& extension) = 0;  // 16 x 16

    // The preview pane is emptied while a raw scan runs: title "No file is selected to preview".
    virtual void clearPreviewTitle() = 0;

    // The rows of the raw results changed (added, counted or removed).
    virtual void resultRowsChanged() = 0;
    // The rows of the file-type list changed.
    virtual void fileTypeRowsChanged() = 0;

    // A modal alert with the one button "OK"; returns when it was answered.
    virtual void showAlert(const QString& message) = 0;

    // After a medium that could not be opened: from the scan screen back to the screen before it, open-folder
    // button hidden.
    virtual void returnFromScanScreen(ControlSet set) = 0;

    // The pieces of the end of a scan.
    virtual void hideScanProgress() = 0;           // captions, bar and stop button
    virtual void runEndPanel(ControlSet set) = 0;  // modal
    virtual void showResultControls(ControlSet set) = 0;
    virtual void enableAfterScan() = 0;  // Back, `_browse_path`, `_Thro_Mode_Chk`

    // Runs a step where the user interface lives and waits for it; at once where there is none.
    virtual void onInterfaceThread(const std::function<void()>& step) { step(); }
};

}  // namespace vantor
