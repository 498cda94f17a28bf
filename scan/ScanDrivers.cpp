// Which passes run, what a tick shows, and how a scan ends.
#include <QObject>

#include "catalogue/TextHelpers.h"
#include "scan/PlatformException.h"
#include "scan/ProgressText.h"
#include "scan/ScanSession.h"

namespace vantor {

void ScanSession::Photo_Rec_Thread() {
    stop_screen_already_show = 0;
    if (Photo_Recovey_Mode(kGeneralPass.toString()) && m_view.thoroughBoxOn(ControlSet::Photo) &&
        stop_screen_already_show == 0) {
        Photo_Recovey_Mode(kThoroughPass.toString());
    }
    if (stop_screen_already_show == 0) {
        Final_or_Stop_Screen();
    }
}

void ScanSession::Raw_File_Rec_Thread() {
    stop_screen_already_show = 0;
    if (!Raw_File_Recovey_Mode(kGeneralPass.toString())) {
        if (stop_screen_already_show == 0) {
            Final_or_Stop_Screen();
        }
        return;
    }
    REC_PROC_Array = CheckListHeader_Adv_Array;
    fillTypeCounters();
    for (qsizetype i = 0; i < Fol_Cnt_Array.size(); i += 3) {
        Show_NSLog_Message(Fol_Cnt_Array.at(i).toString());
    }
    // Thorough records that are chosen are searched for whether or not the box is on, unlike in photo mode.
    const bool thorough = m_view.thoroughBoxOn(ControlSet::Sig) || !REC_PROC_Array.isEmpty();
    if (thorough && stop_screen_already_show == 0) {
        Raw_File_Recovey_Mode(kThoroughPass.toString());
    }
    withoutPlatformException([this] {
        if (m_view.modalSessionRunning()) {
            stop_now = 1;
        } else if (stop_screen_already_show == 0) {
            Final_or_Stop_Screen();
        }
    });
}

void ScanSession::timerTickSetLabel() {
    const std::uint64_t index = for_index;
    if (index > end_sector) {
        return;
    }
    showProgressText();
    m_view.setProgress(static_cast<double>(index - start_sector));
}

QString ScanSession::endHelp() {
    return QObject::tr("\nTo select another disk for recovery, click on ‘Back’ Button.");
}

void ScanSession::Final_or_Stop_Screen() {
    m_view.onInterfaceThread([this] {
        const ControlSet set = Recovery_MODE == kPhotoMode ? ControlSet::Photo : ControlSet::Sig;
        stop_screen_already_show = 1;
        stop_now = 1;
        m_view.showHelpInfo(endHelp());
        pFile_Disk.reset();
        m_view.hideScanProgress();
        m_view.runEndPanel(set);
        stop_now = 0;
        m_view.showResultControls(set);
        m_view.enableAfterScan();
    });
}

}  // namespace vantor
