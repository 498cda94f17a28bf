// Found items that a scan left behind when it led back to the screen before: the way to them, and the
// question before another scan takes their place.
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/widgets/Alerts.h"

namespace vantor {

bool MyTableController::onScanScreen() const {
    return screen_counter == (activeSet() == ControlSet::Photo ? 2 : 3);
}

// The medium could not be opened; what an earlier pass found stays.
void MyTableController::scanFellBack() {
    if (itemCount() == 0) {
        return;
    }
    // The help of the screen, in place of how to stop the scan.
    activeSet() == ControlSet::Photo ? showRangeHelp() : showFileTypeHelp();
    showItemsButton->setFocus();
}

void MyTableController::showLeftItemsBar() {
    const auto found = static_cast<qsizetype>(itemCount());
    leftItemsBar->setVisible(found > 0 && screen_counter > 0 && !onScanScreen());
    leftItemsLabel->setText((found == 1
                                 ? tr("1 item was found before the medium could no longer be opened.")
                                 : tr("%1 items were found before the medium could no longer be opened.",
                                      nullptr, pluralOf(static_cast<std::uint64_t>(found)))
                                       .arg(numberForPeople(static_cast<std::uint64_t>(found)))) +
                            u' ' + tr("The list is kept until you search again or go back."));
}

void MyTableController::showLeftItems() {
    const ControlSet set = activeSet();
    if (set == ControlSet::Photo) {
        screen_counter = 2;
        show_hide_2_screen(true);
        show_hide_3_screen_Photo(false);
    } else {
        screen_counter = 3;
        show_hide_3_screen_RawFile(true);
        show_hide_4_screen_RawFile(false);
        {
            // A refused Next may have made the rows anew.
            const std::lock_guard lock(listLock());
            nsSIGFileInfoDataObject = m_leftRows;
        }
        resultRowsChanged();
    }
    Prev_Index = kNoPreview;
    browserOf(set)->clearSelection();
    showHelpInfo(endHelp());
    hideScanProgress();
    showResultControls(set);
    showDestination();
    enableAfterScan();
    showWhereWeAre();
}

// False: the user stays with what was found and is not saved.
bool MyTableController::mayBeginScan() {
    if (!waitForThreads()) {
        tellFailure(
            tr("The storage medium does not answer."),
            tr("The search before has not ended yet. Take the medium out and put it back in, then try "
               "again."),
            window);
        return false;
    }
    return (!hasUnsavedItems() || mayLeaveUnsaved(tr("A new search empties the list of found items."),
                                                  tr("Search Without Saving"))) &&
           mayKeepCopy();
}

}  // namespace vantor
