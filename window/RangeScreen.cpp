// The actions of the range screen; both sets of controls do the same.

#include "window/MyTableController.h"

namespace vantor {

void MyTableController::showEntireDiskHelp() {
    _help_info->setText(tr(
        "If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of "
        "selected disk. If you want to perform within a specific sector range or in specific partition, "
        "please "
        "select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk."));
}

void MyTableController::showSectorRangeHelp() {
    _help_info->setText(
        tr("‘Sector Range’ option provides facility to specify the range of start and end sector of storage "
           "media "
           "within which you want to perform searching for lost data. Please drag knob of Slider to enter "
           "sector "
           "range or you can also enter these values in Start Sector and End Sector fields manually."));
}

RangePanel& MyTableController::rangeOf(ControlSet set) {
    return *m_range[static_cast<std::size_t>(set)];
}

void MyTableController::Entire_Disk_Radio(QObject*) {
    showEntireDiskHelp();
    rangeOf(ControlSet::Photo).chooseEntireDisk();
}

void MyTableController::Entire_Disk_Radio_Sig(QObject*) {
    showEntireDiskHelp();
    rangeOf(ControlSet::Sig).chooseEntireDisk();
}

void MyTableController::Sector_Range_Radio(QObject*) {
    showSectorRangeHelp();
    rangeOf(ControlSet::Photo).chooseSectorRange();
}

void MyTableController::Sector_Range_Radio_Sig(QObject*) {
    showSectorRangeHelp();
    rangeOf(ControlSet::Sig).chooseSectorRange();
}

void MyTableController::DO_Start_slider(QObject*) {
    rangeOf(ControlSet::Photo).copySliderToText(rangeOf(ControlSet::Photo).outlets().start);
}

void MyTableController::DO_Start_slider_Sig(QObject*) {
    rangeOf(ControlSet::Sig).copySliderToText(rangeOf(ControlSet::Sig).outlets().start);
}

void MyTableController::DO_End_slider(QObject*) {
    rangeOf(ControlSet::Photo).copySliderToText(rangeOf(ControlSet::Photo).outlets().end);
}

void MyTableController::DO_End_slider_Sig(QObject*) {
    rangeOf(ControlSet::Sig).copySliderToText(rangeOf(ControlSet::Sig).outlets().end);
}

void MyTableController::controlTextDidChange(QLineEdit* field) {
    for (const auto& range : m_range) {
        if (range->textDidChange(field)) {
            return;
        }
    }
}

}  // namespace vantor
