// Going on with a search that was stopped, that lost its card, or that is remembered.
#include <QCheckBox>
#include <QFileInfo>
#include <algorithm>
#include <chrono>

#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/keeping/KeepingBox.h"
#include "window/keeping/KeptSearchBar.h"
#include "window/widgets/Alerts.h"
#include "window/widgets/AskingTurn.h"
#include "window/widgets/Sheet.h"

namespace vantor {

namespace {

// A card that answers at once is known before anybody could read what is said meanwhile.
constexpr std::chrono::milliseconds kUnnoticed{400};

// Where reading failed up to the end, what was refused there is what is left to be searched.
void askAgainForTheRest(SearchRecord& record, const SearchEnd& end) {
    if (end.outcome == PassOutcome::ReadError) {
        std::erase_if(record.refused, [&end](const SectorRun& run) { return run.first >= end.sector; });
        if (!record.refused.empty()) {
            SectorRun& last = record.refused.back();
            last.end = std::min(last.end, end.sector);
        }
    }
}

}  // namespace

// Begins anew, with what is known: names, numbers and order are those of a search that nobody stopped.
void MyTableController::goOn() {
    if (scanShown() || session || !m_memory->keeper()) {
        return;
    }
    SearchRecord record = recordOfNow();
    askAgainForTheRest(record, searchEnd());
    // The list is emptied only when there is something to go on with.
    const Likeness likeness = likenessOf(_disk_identifier->text(), record);
    if (m_ending) {
        return;
    }
    if (likeness != Likeness::Same) {
        tellFailure(tr("The search cannot go on."),
                    likeness == Likeness::Another
                        ? tr("This is not the medium that was searched. Put the right one in "
                             "and try again.")
                        : tr("The medium cannot be opened. Put it back in and try again."),
                    window);
        return;
    }
    goOnWith(std::move(record));
}

// The card is back that was taken out in the middle of a search: it goes on by itself, and nothing is said of
// any other card. What the user has before him is finished first, such as the alert that the card is gone.
void MyTableController::goOnWithCardPutBack() {
    if (m_ending || !onScanScreen() || !m_memory->keeper()) {
        return;
    }
    if (scanShown() || session || m_desk->isRunning() || AskingTurn::isTaken()) {
        m_cardBackLater.start();
        return;
    }
    if (!searchEnd().mediumGone || !searchEnd().canGoOn()) {
        return;
    }
    SearchRecord record = recordOfNow();
    if (likenessOf(_disk_identifier->text(), record) == Likeness::Same && !m_ending) {
        goOnWith(std::move(record));
    }
}

void MyTableController::goOnWith(SearchRecord record) {
    m_goingOn = std::move(record);
    m_onlyLook = false;
    if (Recovery_MODE == kPhotoMode) {
        backToRange();
        nextFromRange();
    } else {
        backToFileTypes();
        nextFromFileTypes();
    }
    m_goingOn.reset();
    showWhereWeAre();
}

void MyTableController::goOnWithKept(bool onlyLook) {
    if (m_memory->last() == nullptr) {
        showKeeping();
        return;
    }
    const SearchRecord kept = *m_memory->last();
    if (!chooseMediumOf(kept)) {
        return;
    }
    const SearchWishes& wishes = kept.wishes;
    m_keepingBox->rememberBox->setChecked(true);
    m_goingOn = kept;
    m_onlyLook = onlyLook && !kept.notes.ended && !isReadToItsEnd(kept);
    setMode(wishes.mode);
    nextFromMedia();
    if (!wishes.entire) {
        RangePanel& panel = activeRange();
        panel.chooseSectorRange();
        panel.field(RangeField::Start)->setText(wishes.start);
        panel.field(RangeField::End)->setText(wishes.end);
    }
    if (wishes.mode == kPhotoMode) {
        _Thro_Mode_Chk->setChecked(wishes.thorough);
    }
    const QString& copy = kept.notes.copy;
    const QString medium = pathOfMedium(_disk_identifier->text());
    const bool copyWanted = !copy.isEmpty() && m_parts.openSource &&
                            QFileInfo(copy).canonicalFilePath() != QFileInfo(medium).canonicalFilePath();
    if (copyWanted && !acceptCopyPlace(copy)) {
        m_goingOn.reset();  // without its copy only if the user wants that
        showWhereWeAre();
        return;
    }
    nextFromRange();
    if (wishes.mode != kPhotoMode && screen_counter == 2) {
        _Thro_Mode_Chk_SIG->setChecked(wishes.thorough);
        for (FileTypeRow& row : nsCheckedListDataObject) {
            row[QStringLiteral("State")] =
                wishes.types.isEmpty() || wishes.types.contains(row[QStringLiteral("Extension")].toString());
        }
        fileTypeRowsChanged();
        nextFromFileTypes();
    }
    m_goingOn.reset();
    showWhereWeAre();
}

// Whether the medium behind the row is the one of the search. Reads some of its sectors.
MyTableController::Likeness MyTableController::likenessOf(const QString& identifier,
                                                          const SearchRecord& record) {
    const auto found = std::make_shared<Likeness>(Likeness::CannotBeOpened);
    session = true;
    {
        const SheetSession sheet(LoadDisk_Window, controlPanel, exitButton, kUnnoticed);
        runBeside([found, open = m_parts.openMedium, identifier, samples = record.samples] {
            const auto medium = open ? open(QStringLiteral("/dev/r") + identifier) : nullptr;
            if (medium) {
                *found = holdsSamples(*medium, samples) ? Likeness::Same : Likeness::Another;
            }
        });
    }
    session = false;
    return m_ending ? Likeness::CannotBeOpened : *found;
}

// The identifiers of the listed media of its size, where it was first.
QStringList MyTableController::mediaLike(const SearchRecord& record) const {
    QStringList candidates;
    for (const auto& medium : nsMutaryOfDataObject) {
        if (medium && medium->nsStrSectors.toULongLong() == record.sectors) {
            const QString& identifier = medium->nsStrDiskIdentifier;
            candidates.insert(pathOfMedium(identifier) == record.medium ? 0 : candidates.size(), identifier);
        }
    }
    return candidates;
}

// Selects the medium in the list; false after saying why it cannot be had.
bool MyTableController::chooseMediumOf(const SearchRecord& record) {
    const QString what =
        QStringLiteral("“%1”, %2").arg(record.notes.name, sizeForPeople(record.sectors * kSectorBytes));
    if (QFileInfo(record.medium).isFile()) {
        openImages({record.medium});
    }
    QStringList candidates = mediaLike(record);
    if (candidates.isEmpty() && QFileInfo(record.notes.copy).isFile()) {
        openImages({record.notes.copy});
        candidates = mediaLike(record);
    }
    QString trouble = tr("The medium of this search is not there.");
    QString advice = tr("It was %1. Put it in, or open its image, and try again.").arg(what);
    for (const QString& identifier : candidates) {
        const Likeness likeness = likenessOf(identifier, record);
        if (m_ending) {
            return false;
        }
        if (likeness == Likeness::Same) {
            selectMedium(identifier);
            return true;
        }
        if (likeness == Likeness::Another) {
            trouble = tr("This is not the medium that was searched.");
            advice = tr("It holds something else than %1 did. Put the right one in and try again.").arg(what);
        } else {
            trouble = tr("The medium of this search cannot be opened.");
            advice = m_parts.whyNotOpened ? m_parts.whyNotOpened() : QString();
        }
    }
    tellFailure(trouble, advice, window);
    return false;
}

}  // namespace vantor
