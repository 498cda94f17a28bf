// The first screen's list of storage media.

#include "media/SizeText.h"
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/widgets/Alerts.h"
#include "window/widgets/Sheet.h"
#include "window/widgets/Theme.h"

namespace vantor {

void MyTableController::Reload_Drive_list_Function() {
    session = true;
    {
        const SheetSession sheet(LoadDisk_Window, controlPanel, exitButton);
        rebuild();
        m_mediaTable->reloadData();
    }
    session = false;
    controlPanel->raise();
    window->activateWindow();
}

void MyTableController::rebresh_drives(QObject*) {
    Reload_Drive_list_Function();
}

void MyTableController::deleteSelectedRow(QObject*) {
    const QModelIndexList selected = idTableView->selectionModel()->selectedRows();
    if (!selected.isEmpty()) {
        MediaList::deleteSelectedRow(selected.constFirst().row());
        m_mediaTable->reloadData();
    }
}

void MyTableController::addRow(std::shared_ptr<MyDataObject> record) {
    MediaList::addRow(std::move(record));
    m_mediaTable->reloadData();
}

QString MyTableController::getMPSize(const QString& bytes) const {
    return vantor::getMPSize(bytes);
}

// Something was put in or pulled out: the list follows while it is in view.
void MyTableController::mediaChanged() {
    m_looks->tryAgain();
    m_pictures->tryAgain();
    if (screen_counter == 0 && !session) {
        reloadMediaKeepingSelection();
    }
    goOnWithCardPutBack();
}

void MyTableController::reloadMediaKeepingSelection() {
    const std::shared_ptr<MyDataObject> selected = selectedMedium();
    const QString identifier = selected ? selected->nsStrDiskIdentifier : QString();
    rebuild();
    m_mediaTable->reloadData();
    selectMedium(identifier);
}

std::shared_ptr<MyDataObject> MyTableController::selectedMedium() const {
    const QModelIndexList rows = idTableView->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : nsMutaryOfDataObject.at(rows.constFirst().row());
}

void MyTableController::selectMedium(const QString& identifier) {
    for (qsizetype row = 0; row < nsMutaryOfDataObject.size() && !identifier.isEmpty(); ++row) {
        const std::shared_ptr<MyDataObject>& medium = nsMutaryOfDataObject.at(row);
        if (medium && medium->nsStrDiskIdentifier == identifier) {
            idTableView->selectRow(static_cast<int>(row));
            return;
        }
    }
}

void MyTableController::openImages(const QStringList& files) {
    if (files.isEmpty()) {
        return;
    }
    QString lastOpened;
    QStringList refusals;
    for (const QString& file : files) {
        const OpenedImage opened = m_parts.media->addImage(file);
        if (opened.identifier.isEmpty()) {
            refusals.append(opened.refusal);
        } else {
            lastOpened = opened.identifier;
        }
    }
    reloadMediaKeepingSelection();
    selectMedium(lastOpened);
    if (!refusals.isEmpty()) {
        const QString what = refusals.size() == 1
                                 ? tr("The image could not be opened.")
                                 : tr("%1 images could not be opened.", nullptr,
                                      pluralOf(static_cast<std::uint64_t>(refusals.size())))
                                       .arg(numberForPeople(static_cast<std::uint64_t>(refusals.size())));
        tellFailure(what, refusals.join(u'\n'), window);
    }
}

QIcon MyTableController::iconOfMedium(qsizetype row) const {
    if (row < 0 || row >= nsMutaryOfDataObject.size() || !nsMutaryOfDataObject.at(row)) {
        return {};
    }
    switch (kindOfMedium(nsMutaryOfDataObject.at(row)->nsStrDiskIdentifier)) {
        case MediumKind::Card:
            return ownIcon(QStringLiteral("card"));
        case MediumKind::UsbStick:
            return ownIcon(QStringLiteral("usb"));
        case MediumKind::OpticalDisc:
            return ownIcon(QStringLiteral("disc"));
        case MediumKind::ImageFile:
            return ownIcon(QStringLiteral("image-file"));
        case MediumKind::Disk:
            break;
    }
    return ownIcon(QStringLiteral("drive"));
}

}  // namespace vantor
