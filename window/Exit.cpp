// The one way out, its question, and the end of the threads.
#include <QCoreApplication>
#include <algorithm>

#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/ProgramTitle.h"
#include "window/preview/CellPictures.h"
#include "window/preview/DraggedFiles.h"
#include "window/preview/PreviewFile.h"
#include "window/preview/ViewerDesk.h"
#include "window/preview/WholePreview.h"
#include "window/widgets/Alerts.h"
#include "window/widgets/AskingTurn.h"

namespace vantor {

namespace {

// How long a preview copy may take to see that it is to end before its file is deleted.
constexpr std::chrono::milliseconds kCopyPatience{200};

}  // namespace

void MyTableController::Exit_App() {
    const AskingTurn turn;
    const auto mayLoseItems = [this] {
        return mayLeaveUnsaved(tr("When the program ends, the list of found items is gone."),
                               tr("Exit Without Saving"));
    };
    const bool asked = hasUnsavedItems();
    if (asked && !mayLoseItems()) {
        return;
    }
    const QString question = tr("\nDo you really want to exit from '%1'?").arg(kProgramTitle);
    if (!Show_YES_NO_MessageBox(question)) {
        // After a refused exit no more notifications arrive.
        for (const QMetaObject::Connection& subscription : std::as_const(m_notifications)) {
            disconnect(subscription);
        }
        m_notifications.clear();
        return;
    }
    // A search that went on may have found the first of them while the question stood.
    if (!asked && hasUnsavedItems() && !mayLoseItems()) {
        return;
    }
    m_ending = true;
    m_viewer->leave();
    remember();
    m_mending.stop();
    endWholePreviews();
    if (m_besideRunning) {
        stop_now = 1;
        const auto until = std::chrono::steady_clock::now() + kCopyPatience;
        while (m_besideRunning && std::chrono::steady_clock::now() < until) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    deletePreviews();
    m_parts.terminate();
}

void MyTableController::Exit_Btn(QObject*) {
    Exit_App();
}

bool MyTableController::windowShouldClose(QObject*) {
    Exit_App();
    return false;
}

void MyTableController::deletePreviews() {
    if (fileManager->isDeletableFileAtPath(Preview_Temp_File)) {
        fileManager->removeItemAtPath(Preview_Temp_File);
    }
    deletePreviewFiles(m_previewFolder);
}

void MyTableController::endWholePreviews() {
    for (const auto& whole : {m_whole, m_nextWhole}) {
        if (whole) {
            whole->cancel();
        }
    }
    m_viewer->requestEnd();
    m_pictures->requestEnd();
    m_dragged->requestEnd();
}

bool MyTableController::mayLeaveUnsaved(const QString& consequence, const QString& leave) {
    const std::size_t found = itemCount();
    const std::size_t unsaved = found - std::min(found, m_desk->marks().settled());
    const QString how = unsaved < found ? tr("%1 of the %2 found items have not been saved.")
                                              .arg(numberForPeople(unsaved), numberForPeople(found))
                        : found == 1
                            ? tr("The item that was found has not been saved.")
                            : tr("None of the %1 found items has been saved.", nullptr, pluralOf(found))
                                  .arg(numberForPeople(found));
    return runAlert({QStringLiteral("\n") + how, consequence, {leave, tr("Stay")}, 1}) == 0;
}

bool MyTableController::shutDown(std::chrono::milliseconds patience) {
    if (m_marksChanged.isActive()) {
        keepMarks();
    }
    m_ending = true;
    *m_leaving = true;
    m_queue.close();
    m_pump.stop();
    if (m_thumbnails) {
        m_thumbnails->cancel();
    }
    const auto until = std::chrono::steady_clock::now() + patience;
    m_looks->shutDown();
    m_mending.stop();
    endWholePreviews();
    while (m_filling > 0 || scanRunning() || m_besideRunning || m_desk->isRunning() || !m_looks->hasEnded() ||
           !m_viewer->hasEnded() || !m_pictures->hasEnded() || !m_dragged->hasEnded() ||
           m_mending.isRunning()) {
        // The scan clears the word when it honours it, so it is said until everyone has heard.
        stop_now = 1;
        if (mSetLabelTimer) {
            mSetLabelTimer->invalidate();
        }
        if (std::chrono::steady_clock::now() > until) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    for (std::thread* thread : {&m_driver, &m_timerThread, &mPreviewThread}) {
        if (thread->joinable()) {
            thread->join();
        }
    }
    m_desk->join();
    m_copied.set({}, nullptr);
    return true;
}

}  // namespace vantor
