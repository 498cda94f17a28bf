// Saving from both results screens: what is asked before the desk does it.
#include <numeric>

#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/widgets/Alerts.h"

namespace vantor {

SavingParts MyTableController::savingParts() {
    SavingParts parts;
    parts.window = window;
    parts.itemAt = [this](std::size_t index) { return itemAt(index); };
    parts.bytesToWrite = [this](std::size_t index) -> std::optional<std::uint64_t> {
        const auto soundness = m_looks->factsOf(index).soundness;
        return soundness ? std::optional(soundness->bytes) : std::nullopt;
    };
    parts.medium = [this] {
        return [open = m_parts.openMedium, device = devicePath()] { return open ? open(device) : nullptr; };
    };
    parts.card = [this] { return card(); };
    parts.mended = [this] { return m_mended; };
    parts.liesOnMedium = [this]() -> Destination::LiesOnMedium {
        if (!m_parts.isOnMedium) {
            return {};
        }
        return [asked = m_parts.isOnMedium, device = devicePath()](const QString& folder) {
            return asked(folder, device);
        };
    };
    parts.freeBytes = m_parts.freeBytes;
    parts.placeholder = [this] { return Null_Image_Data; };
    parts.reportHead = [this] { return reportHead(); };
    parts.examined = [this](std::size_t index, const Soundness& found) { m_looks->note(index, found); };
    parts.openFolder = [this] { openDestination(); };
    parts.canEject = [this] { return canEjectCard(); };
    parts.eject = [this] { ejectCard(); };
    parts.chooseFolder = [this] { return chooseDestination(); };
    parts.ending = [this] { return m_ending; };
    return parts;
}

bool MyTableController::hasUnsavedItems() const {
    return itemCount() > m_desk->marks().settled();
}

void MyTableController::saveSelected() {
    saveItems(browserOf(activeSet())->selectionIndexes());
}

// All that the browser shows, and only where that is all there is, as the button says, also what the card
// alone tells of.
void MyTableController::saveAll() {
    if (!m_looks->showsAll()) {
        saveItems(browserOf(activeSet())->shownIndexes());
        return;
    }
    QList<qsizetype> all(static_cast<qsizetype>(itemCount()));
    std::iota(all.begin(), all.end(), 0);
    saveItems(all, m_told);
}

void MyTableController::askSavingOptions() {
    if (m_panels->savingOptions.ask(m_desk->choices())) {
        showItemCounts();
    }
}

void MyTableController::saveItems(const QList<qsizetype>& indexes, const SavingDesk::ToldFiles& told) {
    if ((indexes.isEmpty() && told.empty()) || session) {
        return;
    }
    if (m_desk->isRunning()) {
        tellFailure(
            tr("The storage medium does not answer."),
            tr("It still holds up the saving that you cancelled. Take the medium out and put it back in, "
               "then try again."),
            window);
        return;
    }
    if (pathInView()->text().isEmpty() ? askDestination().isEmpty() : !destinationStillThere()) {
        return;
    }
    stopMending();
    m_desk->save(indexes, pathInView()->text(), told);
    m_looks->tryAgain();
    m_pictures->tryAgain();
    showDestination();
}

ReportHead MyTableController::reportHead() const {
    ReportHead head;
    const QString name = (Recovery_MODE == kPhotoMode ? _vol_name_val : _vol_name_val_Sig)->text();
    head.medium = QStringLiteral("%1 (%2)").arg(name, _disk_identifier->text());
    head.sectors = _sectors_val->text().toULongLong();
    head.mode = wordsForMode(Recovery_MODE);
    head.begun = m_scanBegun;
    head.searchEnd = scanRunning() ? tr("It goes on.") : searchEndHeadline(searchEnd());
    return head;
}

}  // namespace vantor
