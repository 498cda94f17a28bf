// Start, ticks, stop and end of the two threads of a scan.
#include <QDir>

#include "catalogue/FileKind.h"
#include "catalogue/SignatureRecord.h"
#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/widgets/AskingTurn.h"

namespace vantor {

namespace {

constexpr std::chrono::milliseconds kLastScanPatience{5000};

}  // namespace

void MyTableController::startScan(void (ScanSession::*driver)()) {
    prepareIcons();
    m_searchEnded = false;
    m_goOnWhenStopped = false;
    searchEndBar->hide();
    m_inputs = readInputs();
    m_readsAsErased = false;
    m_searchMilliseconds = 0;
    // A copy is read in its own order, and who goes on has looked before.
    m_mayBeErased = m_parts.askCard && !m_goingOn && !m_copied.of(devicePath()) &&
                    m_inputs.range[static_cast<std::size_t>(activeSet())].entireDisk == 1;
    keepThisSearch();
    showEmptyResults();
    if (m_thumbnails) {
        m_thumbnails->cancel();
        m_thumbnails->resume();
    }
    forgetItems();
    idSigTableView->clearSelection();
    showChosenType();
    showDestination();
    beginLooks();
    setSpillFolder([asked = m_parts.isOnMedium, device = devicePath()] {
        const QString folder = QDir::tempPath();
        return asked && asked(folder, device) ? QString() : folder;
    });
    resetAddedItemCount();
    m_clock.start();
    beginCardStrip();
    m_scanBegun = QDateTime::currentDateTime();
    mSetLabelTimer = std::make_shared<ScanTimer>();
    m_driverRunning = true;
    m_timerRunning = true;
    m_driver = std::thread([this, driver] {
        (this->*driver)();
        mSetLabelTimer->invalidate();
        std::uint64_t beyondRoom = 0;
        auto told = toldFiles(&beyondRoom);
        later([this, told = std::move(told), beyondRoom] { takeToldFiles(told, beyondRoom); });
        m_driverRunning = false;
    });
    m_timerThread = std::thread([this] {
        startTimerThread();
        m_timerRunning = false;
    });
    m_pump.start();
}

void MyTableController::beginLooks() {
    m_looks->begin(m_parts.openBeside
                       ? [open = m_parts.openBeside, device = devicePath()] { return open(device); }
                       : SoundnessBoard::Open(),
                   [this] { return !refusals().isEmpty(); });
    m_pictures->begin();
}

void MyTableController::startTimerThread() {
    mSetLabelTimer->run([this] { timerTickSetLabel(); });
    // The last values are shown, whatever the ticks missed.
    m_queue.runAndWait([this] { timerTickSetLabel(); });
}

void MyTableController::stop_usb_disk(QObject*) {
    stop_now = 1;
}

// Beside the word for the scan: nobody waits for thumbnails that are still being made.
void MyTableController::clearWaitingThumbnails() {
    if (!scanRunning()) {
        return;
    }
    clearingLabel->show();
    if (m_thumbnails) {
        m_thumbnails->hurry();
    }
}

// A batch: what the scan has for the views, then its steps one by one.
void MyTableController::pump() {
    flushViews();
    markAsBefore();
    showScanFacts();
    // Steps may ask the user something; the timer goes on meanwhile, the steps after them wait.
    QMetaObject::invokeMethod(this, &MyTableController::drainQueue, Qt::QueuedConnection);
}

void MyTableController::drainQueue() {
    if (m_draining) {
        return;
    }
    m_draining = true;
    // What the search shows or asks waits until whatever the user has before him is closed.
    while (!session && !m_ending && !(AskingTurn::isTaken() && m_queue.nextIsAwaited()) && m_queue.runOne()) {
    }
    m_draining = false;
    if (!session && !m_ending && !AskingTurn::isTaken() && !scanRunning() && m_queue.isEmpty() &&
        m_pump.isActive()) {
        scanThreadsEnded();
    }
}

// False when the last scan has not ended after some seconds.
bool MyTableController::waitForThreads() {
    const auto until = std::chrono::steady_clock::now() + kLastScanPatience;
    while (scanRunning()) {
        if (std::chrono::steady_clock::now() > until) {
            return false;
        }
        if (!m_queue.runOne()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    if (m_driver.joinable()) {
        m_driver.join();
    }
    if (m_timerThread.joinable()) {
        m_timerThread.join();
    }
    return true;
}

void MyTableController::scanThreadsEnded() {
    m_pump.stop();
    if (m_parts.showTaskProgress) {
        m_parts.showTaskProgress(std::nullopt);
    }
    waitForThreads();
    flushViews();
    markAsBefore();
    keepSearchEnd();
    showItemCounts();
    showWhereWeAre();
    if (!onScanScreen()) {
        scanFellBack();
        return;
    }
    if (goesOnByItself()) {
        goOn();
        return;
    }
    browserOf(activeSet())->endFollowing();
    if (stop_screen_already_show == 0) {
        // The driver leaves the end screen to a preview that was being copied; should that have ended first,
        // it is due now.
        Final_or_Stop_Screen();
    }
}

void MyTableController::flushViews() {
    for (const ControlSet set : {ControlSet::Photo, ControlSet::Sig}) {
        PendingView& pending = m_pending[static_cast<std::size_t>(set)];
        if (pending.reload.exchange(false)) {
            browserOf(set)->reloadData();
            showItemCounts();
        }
        const qint64 index = pending.scrollTo.exchange(-1);
        if (index >= 0) {
            browserOf(set)->followIndex(index);
        }
    }
    if (m_resultRowsDirty.exchange(false)) {
        m_resultTable->refreshData();
        keepChosenType();
        if (foundTypesOnly->isChecked()) {
            filterResultRows();
        }
    }
}

void MyTableController::showScanFacts() {
    const std::uint64_t index = for_index;
    const std::uint64_t start = start_sector;
    m_meter.update(m_clock.elapsed(), index >= start ? index - start : 0);
    scanFactsLabel->setText(m_meter.text(itemCount()));
    if (m_readsAsErased && itemCount() > 0) {
        m_readsAsErased = false;
        searchEndBar->hide();
    }
    showCard();
}

// Looked up here, where icons may be made; the scan only copies them.
void MyTableController::prepareIcons() {
    for (const QStringList* records : {&CheckListHeader_Array, &CheckListHeader_Adv_Array}) {
        for (qsizetype n = 0; n < recordCount(*records); ++n) {
            const QString extension =
                pathExtension(QStringLiteral("x.") + recordField(*records, n, Ext_Name));
            const FileKind kind = kindOfType(extension, recordField(*records, n, Ext_Descp));
            const bool isMovie = kind == FileKind::Other && Recovery_MODE == kVideoMode;
            m_icons.prepare(extension, isMovie ? FileKind::Video : kind);
        }
    }
}

}  // namespace vantor
