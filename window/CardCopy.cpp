// The copy of a card that is kept while it is searched.
#include <QCheckBox>
#include <QFileInfo>

#include "media/MediumCopy.h"
#include "results/SizeForPeople.h"
#include "saving/CopyPlace.h"
#include "window/MyTableController.h"
#include "window/keeping/KeepingBox.h"
#include "window/widgets/Alerts.h"

namespace vantor {

bool MyTableController::refuseCopy(const QString& what, const QString& why) {
    tellFailure(what, why, window);
    return false;
}

// Asks for the file of the copy; false when the user chose none that will do.
bool MyTableController::chooseCopyPlace() {
    QFileDialog chooser(window, tr("Choose where the copy of the card is kept"));
    chooser.setObjectName(QStringLiteral("copyChooser"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setFileMode(QFileDialog::AnyFile);
    chooser.setDefaultSuffix(QStringLiteral("img"));
    chooser.setNameFilters({tr("Images of media (*.img)"), tr("All files (*)")});
    // A copy that was begun is gone on with, and nothing else is ever written over.
    chooser.setOption(QFileDialog::DontConfirmOverwrite);
    chooser.selectFile(m_keepingBox->copyPath().isEmpty() ? QStringLiteral("card.img")
                                                          : m_keepingBox->copyPath());
    return chooser.exec() == QDialog::Accepted && !chooser.selectedFiles().isEmpty() &&
           acceptCopyPlace(chooser.selectedFiles().constFirst());
}

bool MyTableController::acceptCopyPlace(const QString& path) {
    const QString cannot = tr("The copy cannot be kept there.");
    const QString folder = QFileInfo(path).absolutePath();
    const std::uint64_t sectors = _sectors_val->text().toULongLong();
    if (m_parts.isOnMedium && m_parts.isOnMedium(folder, devicePath())) {
        return refuseCopy(cannot,
                          tr("The folder lies on the medium that is to be searched; writing there would "
                             "overwrite what is still to be found. Choose a place on another disk."));
    }
    if (const auto refusal = refuseCopyPlace(path, pathOfMedium(_disk_identifier->text()))) {
        return refuseCopy(cannot, *refusal);
    }
    const std::uint64_t needed = bytesForCopy(path, sectors);
    const auto free = m_parts.freeBytes ? m_parts.freeBytes(folder) : std::nullopt;
    const QString room = free ? sizeForPeople(*free) : QString();
    if (free && *free < needed) {
        return refuseCopy(
            tr("There is not enough room for a copy."),
            tr("It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search "
               "without a copy.")
                .arg(sizeForPeople(needed), room, folder));
    }
    QStringList words{free ? tr("%1: up to %2 needed, %3 free").arg(path, sizeForPeople(needed), room)
                           : tr("%1: up to %2 needed").arg(path, sizeForPeople(needed))};
    m_keepingBox->setCopyPlace(path, (words << warnOfCopyPlace(path, sectors)).join(QStringLiteral(". ")));
    return true;
}

// Before every search: begins the copy that is wanted, or goes on with it; false when there can be none.
bool MyTableController::mayKeepCopy() {
    const QString device = devicePath();
    const QString path = m_parts.openSource ? m_keepingBox->wantedCopy() : QString();
    auto copy = m_copied.of(device);
    if (path.isEmpty() || path != m_copyPath) {
        copy.reset();
    }
    if (!path.isEmpty() && !copy) {
        m_copied.set({}, nullptr);
        QString why;
        auto file = CopyFile::open(path, _sectors_val->text().toULongLong(), &why);
        if (!file) {
            return refuseCopy(tr("The copy cannot be kept there."), why);
        }
        // What the search that goes on found to be bad is not asked for again.
        copy = MediumCopy::make(
            std::move(file),
            [open = m_parts.openSource, device](StopRequest stop) { return open(device, std::move(stop)); },
            m_goingOn ? m_goingOn->refused : std::vector<SectorRun>());
    }
    m_copyPath = path;
    m_copied.set(device, copy);
    if (copy) {
        const SectorRange range = rangeFromControls(activeRange().controls());
        copy->copy(copyGoals({range.start, range.end}, _sectors_val->text().toULongLong()));
    }
    return true;
}

}  // namespace vantor
