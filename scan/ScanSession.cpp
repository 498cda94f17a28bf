// Construction, and the steps that both scans share at the beginning and end of a pass.
#include "scan/ScanSession.h"

#include <QObject>
#include <algorithm>
#include <utility>

#include "catalogue/SignatureRecord.h"
#include "scan/PassReading.h"
#include "scan/ProgressText.h"

namespace vantor {

ScanSession::ScanSession(ScanView& view) : m_view(view) {}

ScanSession::~ScanSession() = default;

MediumOpener ScanSession::knowingRefusals(MediumOpener opener) const {
    if (!opener) {
        return {};
    }
    return [opener = std::move(opener), refusals = m_refusals](const QString& devicePath) {
        auto medium = opener(devicePath);
        if (medium) {
            medium->shareRefusals(refusals);
        }
        return medium;
    };
}

// What both scans begin with, from the mode text to the help; false when the medium cannot be opened.
bool ScanSession::beginPass(ControlSet set, const QString& passName) {
    m_view.showModeLabel(
        passName == kGeneralPass
            ? QObject::tr("( Currently performing Search based on: Vantor General Recovery Procedure )")
            : QObject::tr("( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )"));
    pFile_Disk.reset();
    prepareRange(set);
    m_readFailures = {};
    const bool thorough = passName == kThoroughPass;
    if (passName == kGeneralPass) {
        // What was refused to those who looked at the medium before its first search counts for it.
        if (std::exchange(m_hasSearched, true)) {
            m_refusals->forget();
        }
        if (m_keeper) {
            m_keeper->tellRefusals(*m_refusals);
        }
        m_memory.reset();
    }
    // A thorough pass over no signatures meets none of them again.
    const std::uint64_t unreadableBefore = thorough ? m_end.unreadable : 0;
    m_end = {};
    m_end.thorough = thorough;
    m_end.unreadable = unreadableBefore;
    pFile_Disk = openMedium();
    if (!pFile_Disk) {
        openFailed(set);
        return false;
    }
    if (!thorough) {
        forgetCard();
        learnOfCard(false);
    }
    m_view.setScanOptionsEnabled(false);
    if (set == ControlSet::Sig) {
        m_view.clearPreviewTitle();
    }
    m_view.startProgress();
    m_view.showHelpInfo(QObject::tr(
        "\nTo stop recovery, click on ‘Stop’ Button or please wait for the process to be completed."));
    return true;
}

// One that reads: without records a pass ends at once.
bool ScanSession::anotherPassFollows(ControlSet set, const QString& passName) const {
    if (passName != kGeneralPass) {
        return false;
    }
    return set == ControlSet::Photo ? m_view.thoroughBoxOn(set) && !Adv_Ext_Array.isEmpty()
                                    : !CheckListHeader_Adv_Array.isEmpty();
}

// What the general pass reads is screened for the thorough one too, which then need not read it again.
PassReading ScanSession::beginReading(ControlSet set, const QString& passName,
                                      const std::shared_ptr<const HeaderMatcher>& matcher) {
    PassReading reading;
    if (passName == kGeneralPass) {
        reading.stopBefore = m_stopBefore.value_or(reading.stopBefore);
    }
    if (m_keeper && passName == kGeneralPass) {
        reading.keeper = m_keeper.get();
        reading.recalls = m_keeper->goesOn();
    }
    if (reading.recalls) {
        pFile_Disk->setRecall(m_keeper->recall());
    }
    if (anotherPassFollows(set, passName)) {
        m_memory =
            std::make_shared<PassMemory>(set == ControlSet::Photo ? Adv_Ext_Array : CheckListHeader_Adv_Array,
                                         pFile_Disk->mediumSectors());
        pFile_Disk->setScreen(screenFor(m_memory->screenBeside(matcher, REC_PROC_Array)));
        reading.forLater = m_memory.get();
        return reading;
    }
    pFile_Disk->setScreen(screenFor(matcher));
    const auto memory = std::exchange(m_memory, nullptr);
    if (!memory || !memory->isFor(REC_PROC_Array, pFile_Disk->mediumSectors())) {
        return reading;
    }
    pFile_Disk->setRecall(memory);
    reading.recalls = true;
    return reading;
}

// To the first sector of the pass, with the records that it searches for.
void ScanSession::prepareRecords(const QString& passName, const QStringList& general,
                                 const QStringList& thorough) {
    if (start_sector != 0) {
        pFile_Disk->seek(start_sector);
    }
    showProgressText();
    REC_PROC_Array.clear();
    if (passName == kGeneralPass) {
        REC_PROC_Array = general;
    } else if (passName == kThoroughPass) {
        REC_PROC_Array = thorough;
    }
    fillTypeCounters();
    for_index = start_sector.load();
}

// Range, progress bar, counter and text.
void ScanSession::prepareRange(ControlSet set) {
    start_sector = 0;
    end_sector = 0;
    const SectorRange range = rangeFromControls(m_view.rangeControls(set));
    for_index = range.start;  // first, so that no tick in between sees less than nothing done
    start_sector = range.start;
    end_sector = range.end;
    total_sector = range.end - range.start;
    m_view.setProgressRange(total_sector);
    showProgressText();
}

std::unique_ptr<SectorReader> ScanSession::openMedium() const {
    const ControlSet set = Recovery_MODE == kPhotoMode ? ControlSet::Photo : ControlSet::Sig;
    const QString devicePath = QStringLiteral("/dev/r") + m_view.rangeControls(set).diskIdentifier;
    return m_openMedium ? m_openMedium(devicePath) : nullptr;
}

void ScanSession::showProgressText() {
    m_view.showSectorLabel(progressText(for_index, start_sector, end_sector, total_sector));
}

// One triple a distinct type, in the order of first appearance.
void ScanSession::fillTypeCounters() {
    Fol_Cnt_Array.clear();
    for (qsizetype n = 0; n < recordCount(REC_PROC_Array); ++n) {
        const QString& extension = recordField(REC_PROC_Array, n, Ext_Name);
        bool counted = false;
        for (qsizetype i = 0; i < Fol_Cnt_Array.size() && !counted; i += 3) {
            counted = Fol_Cnt_Array.at(i).toString() == extension;
        }
        if (!counted) {
            Fol_Cnt_Array << extension << qlonglong{-1} << extension;
        }
    }
}

// The medium cannot be opened: back to the screen before the scan, with every control as it was there.
void ScanSession::openFailed(ControlSet set) {
    passEnds(PassOutcome::OpenError);
    --screen_counter;
    m_view.invalidateTimer();
    m_view.returnFromScanScreen(set);
    m_view.setScanOptionsEnabled(true);
    stop_now = 0;
    if (set == ControlSet::Sig) {
        m_addedItems = 0;
    }
    stop_screen_already_show = 1;
    m_view.showAlert(QObject::tr("\nError in storage media reading."));
}

// Before the medium is closed, which knows how it fared.
void ScanSession::passEnds(PassOutcome outcome, std::optional<std::uint64_t> openItemAt) {
    if (m_keeper && outcome != PassOutcome::OpenError) {
        m_keeper->write(*m_refusals);
    }
    m_end.outcome = outcome;
    m_end.start = start_sector;
    m_end.end = end_sector;
    m_end.unreadable = std::max(m_end.unreadable, m_readFailures.sectors);
    m_end.mediumGone = pFile_Disk && pFile_Disk->isGone();
    m_end.nothingToSearch = REC_PROC_Array.isEmpty() || start_sector >= end_sector;
    m_end.sector = outcome == PassOutcome::ReadError ? m_readFailures.from : for_index.load();
    m_end.goOnAt = std::min(m_end.sector, openItemAt.value_or(m_end.sector));
    if (pFile_Disk) {
        // After a failed read the stream is behind the counter.
        m_end.goOnAt = std::min(m_end.goOnAt, pFile_Disk->position());
    }
    if (outcome != PassOutcome::OpenError && !m_end.mediumGone) {
        learnOfCard(outcome == PassOutcome::Stopped);
    }
}

bool ScanSession::endOfRange(bool lastReadSucceeded, std::optional<std::uint64_t> openItemAt) {
    passEnds(lastReadSucceeded ? PassOutcome::Completed : PassOutcome::ReadError, openItemAt);
    pFile_Disk.reset();
    if (lastReadSucceeded) {
        return true;
    }
    m_view.showAlert(QObject::tr("\nError in storage media reading."));
    return false;
}

}  // namespace vantor
