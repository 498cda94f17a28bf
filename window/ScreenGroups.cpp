// The groups of controls that a screen consists of; true hides a group.

#include "results/RecoveryMode.h"
#include "window/MyTableController.h"

namespace vantor {

void MyTableController::show_hide_1_screen(bool hide) {
    for (QWidget* widget :
         std::initializer_list<QWidget*>{idTableView, refreshBox, refreshLabel, refreshButton, modeBox,
                                         _rec_mode_Photo, _rec_mode_Video, _rec_mode_RawFile, mediaScreen}) {
        widget->setHidden(hide);
    }
}

void MyTableController::show_hide_2_screen(bool hide) {
    const bool photo = Recovery_MODE == kPhotoMode;
    activeRange().showChosen();
    const std::initializer_list<QWidget*> photoGroup = {
        diskFactsBox,        destinationBox,  _path_label,      _path,          _browse_path,
        criteriaBox,         _entire_disk_rd, _sector_range_rd, _Thro_Mode_Chk, thoroughLabel,
        thoroughExplanation, thoroughBox,     rangeScreen};
    const std::initializer_list<QWidget*> sigGroup = {
        diskFactsBox_Sig, destinationBox_Sig,  _path_label_Sig,      _path_Sig,      _browse_path_Sig,
        criteriaBox_Sig,  _entire_disk_rd_Sig, _sector_range_rd_Sig, rangeScreen_Sig};
    for (QWidget* widget : photo ? photoGroup : sigGroup) {
        widget->setHidden(hide);
    }
    if (!photo) {
        thoroughBox->hide();
    }
}

void MyTableController::show_hide_3_screen_Photo(bool hide) {
    for (QWidget* widget :
         std::initializer_list<QWidget*>{imageBrowser, _Progress_Horz, _sector_label, _Mode_label,
                                         scanFactsLabel, _stop_scan, scanStripRow, photoScreen}) {
        widget->setHidden(hide);
    }
    nextButton->setEnabled(hide);
    backButton->setEnabled(hide);
}

void MyTableController::show_hide_3_screen_RawFile(bool hide) {
    for (QWidget* widget : std::initializer_list<QWidget*>{idCheckTableView, _select_unselect_Chk,
                                                           _Thro_Mode_Chk_SIG, fileTypeScreen}) {
        widget->setHidden(hide);
    }
}

void MyTableController::show_hide_4_screen_RawFile(bool hide) {
    for (QWidget* widget : std::initializer_list<QWidget*>{
             _open_folder_Sig, _Progress_Horz, _sector_label, _Mode_label, scanFactsLabel, _stop_scan,
             scanStripRow, imageBrowser_2, _QuickLook_View_Box, rawScreen}) {
        widget->setHidden(hide);
    }
    showPreviewPane(hide);
    nextButton->setEnabled(hide);
    backButton->setEnabled(hide);
}

// The movie view belongs to the screen in video mode, the picture view in raw-file mode; either begins empty.
void MyTableController::showPreviewPane(bool hide) {
    const bool video = Recovery_MODE == kVideoMode;
    mMovieView->setHidden(hide || !video);
    _QuickLook_View->setHidden(hide || video);
    emptyPreviewPane();
}

void MyTableController::hideOpenFolderButtons() {
    _open_folder->hide();
    _open_folder_Sig->hide();
}

}  // namespace vantor
