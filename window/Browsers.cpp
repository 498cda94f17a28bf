// Data source and delegate of both browsers.
#include <QApplication>

#include "results/SizeForPeople.h"
#include "saving/SaveSummary.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/preview/DraggedFiles.h"
#include "window/preview/PieceStrip.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {

namespace {

QString numberOf(qsizetype count) {
    return numberForPeople(static_cast<std::uint64_t>(count));
}
// How often a preview that has to wait looks whether it still has to.
constexpr int kDueMilliseconds = 20;

}  // namespace

ImageBrowserView* MyTableController::browserOf(ControlSet set) const {
    return set == ControlSet::Photo ? imageBrowser : imageBrowser_2;
}

void MyTableController::addImageWithData(const QByteArray& data, const QString& imageName,
                                         const QString& image_UID) {
    if (data.isEmpty()) {
        return;
    }
    if (onOwnThread() || !m_thumbnails) {
        ScanSession::addImageWithData(data, imageName, image_UID);
        return;
    }
    const auto kept = m_memory->thumbnails();
    const ThumbnailPlace where{handOver().firstSector, handOver().bytes};
    if (const QByteArray known = pictureIsKnown() ? kept->find(where) : QByteArray(); !known.isEmpty()) {
        m_thumbnails->submitMade(
            known, [this, imageName, image_UID, from = handOver()](const QByteArray& thumbnail) {
                addThumbnail(thumbnail, imageName, image_UID, from);
            });
        return;
    }
    // What the medium refused of it may be had another time.
    const auto keep = [where,
                       kept = handOver().carved.readFailed ? nullptr : kept](const QByteArray& thumbnail) {
        if (kept) {
            kept->add(where, thumbnail);
        }
    };
    // Bytes of its own, so that the scan's buffer stays the scan's and keeps its memory for the next item.
    const auto place = std::make_shared<std::size_t>(0);
    m_thumbnails->submit(
        QByteArray(data.constData(), data.size()),
        [this, imageName, image_UID, place, keep, from = handOver()](const QByteArray& thumbnail) {
            keep(thumbnail);
            addThumbnail(thumbnail, imageName, image_UID, from);
            *place = itemCount() - 1;
        },
        pathExtension(imageName),
        [this, image_UID, place, keep](const QByteArray& thumbnail) {
            keep(thumbnail);
            replaceThumbnail(*place, image_UID, thumbnail);
            QMetaObject::invokeMethod(
                this, [this] { imageBrowser->viewport()->update(); }, Qt::QueuedConnection);
        });
}

bool MyTableController::pictureIsKnown() const {
    const auto kept = m_memory->thumbnails();
    return kept && !handOver().carved.readFailed &&
           kept->contains({handOver().firstSector, handOver().bytes});
}

ItemFacts MyTableController::factsOfItem(qsizetype index) {
    return m_looks->factsOf(static_cast<std::size_t>(index));
}

LookedAtItems MyTableController::lookedAtItems() {
    LookedAtItems items;
    items.at = [this](std::size_t index) { return itemAt(index); };
    items.count = [this] { return itemCount(); };
    items.isSaved = [this](std::size_t index) { return m_desk->marks().isSaved(index); };
    items.isTicked = [this](std::size_t index) { return m_ticks.isTicked(index); };
    items.mediumBusy = [this] {
        return scanRunning() || m_desk->isRunning() || m_dragged->isRunning() || m_filling > 0 ||
               m_viewer->isBusy() || m_mending.isRunning();
    };
    items.searching = [this] { return scanRunning(); };
    items.mendOf = [this](const MyImageObject& item) { return m_mended->of(item); };
    items.card = [this] { return card(); };
    items.policy = [this] { return m_desk->choices().policy; };
    return items;
}

qsizetype MyTableController::numberOfItemsInImageBrowser(const ImageBrowserView*) {
    return static_cast<qsizetype>(itemCount());
}

std::shared_ptr<MyImageObject> MyTableController::imageBrowser_itemAtIndex(const ImageBrowserView*,
                                                                           qsizetype index) {
    return index < 0 ? nullptr : itemAt(static_cast<std::size_t>(index));
}

qsizetype MyTableController::imageBrowser_writeItemsAtIndexes(const ImageBrowserView*,
                                                              const QList<qsizetype>&, QMimeData*) {
    return 0;
}

void MyTableController::zoomSliderDidChange(QObject*) {
    imageBrowser->setZoomValue(static_cast<float>(_zoom_slider->value()) /
                               static_cast<float>(_zoom_slider->maximum()));
    imageBrowser->viewport()->update();
}

void MyTableController::imageBrowserSelectionDidChange(ImageBrowserView* view) {
    if (view != imageBrowser_2 || session) {
        return;
    }
    const QList<qsizetype> selected = view->selectionIndexes();
    if (selected.isEmpty()) {
        return;
    }
    const auto index = static_cast<std::uint32_t>(selected.constFirst());
    if (index == kNoPreview || index == Prev_Index) {
        return;
    }
    const std::shared_ptr<MyImageObject> item = imageBrowser_itemAtIndex(view, index);
    if (!item) {
        return;
    }
    Prev_Index = index;
    _QuickLook_View->clear();
    closemovie_Win();
    soundControls->setMovie(nullptr);
    previewFacts->clear();
    m_pieceStrip->setPieces({});
    CreateFile_QuickLook_View({item->valueForKey(QStringLiteral("path")),
                               item->valueForKey(QStringLiteral("File_Start_Sector")),
                               item->valueForKey(QStringLiteral("File_End_Sector"))});
}

void MyTableController::selectionMoved(ImageBrowserView* browser) {
    showItemCounts();
    if (browser == imageBrowser_2) {
        m_previewDue.start(0);
    }
}

// Not from within the click or the keys that move the selection, and not before they are over: the sheet
// would swallow their end.
void MyTableController::startDuePreview() {
    if (m_ending || !imageBrowser_2->isVisible() || m_viewer->isOpen()) {
        return;
    }
    if (session || QGuiApplication::mouseButtons() != Qt::NoButton ||
        QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) {
        m_previewDue.start(kDueMilliseconds);
        return;
    }
    imageBrowserSelectionDidChange(imageBrowser_2);
}

// Types without items can be left out of the table.
void MyTableController::filterResultRows() {
    const QList<ResultRow> rows = resultRows();
    for (int row = 0; row < rows.size(); ++row) {
        idSigTableView->setRowHidden(row, foundTypesOnly->isChecked() && countOf(rows.at(row)) == 0);
    }
    showEmptyResults();
}

// A table that has become longer has lost its selection.
void MyTableController::keepChosenType() {
    const QList<ResultRow> rows = resultRows();
    for (int row = 0; row < rows.size() && !idSigTableView->selectionModel()->hasSelection(); ++row) {
        if (!m_looks->shownType().isEmpty() &&
            rows.at(row).value(QStringLiteral("FileTypes")) == m_looks->shownType()) {
            idSigTableView->selectRow(row);
        }
    }
}

// The type that is selected in the table, or all.
void MyTableController::showChosenType() {
    const QModelIndexList chosen = idSigTableView->selectionModel()->selectedRows();
    const QList<ResultRow> rows = resultRows();
    const int row = chosen.isEmpty() ? -1 : chosen.constFirst().row();
    m_looks->showType(row >= 0 && row < rows.size() ? rows.at(row).value(QStringLiteral("FileTypes"))
                                                    : QString());
    allTypesButton->setEnabled(!m_looks->shownType().isEmpty());
}

void MyTableController::takeToldFiles(SavingDesk::ToldFiles files, std::uint64_t beyondRoom) {
    m_told = std::move(files);
    m_looks->showTold(m_told, beyondRoom);
    showItemCounts();
}

// What is remembered of the items of a list that is no more.
void MyTableController::forgetItems() {
    forgetMends();
    m_desk->forget();
    m_pictures->begin();
    m_dragged->begin();
    m_ticks.clear();
    m_told.clear();
}

// Counts in words, and the buttons that need something to work on.
void MyTableController::showItemCounts() {
    const qsizetype found = static_cast<qsizetype>(itemCount());
    const auto words = [&](const ImageBrowserView* browser) {
        const int shown = browser->shownCount();
        const qsizetype selected = browser->selectedCount();
        if (selected > 0) {
            return tr("%1 of %2 selected").arg(numberOf(selected), numberOf(shown));
        }
        const QString count = countOfItems(static_cast<std::uint64_t>(found));
        return m_looks->showsAll() ? count : tr("%1 of %2").arg(numberOf(shown), count);
    };
    const QString obstacle = obstacleFor({});
    photoCountLabel->setText(obstacle.isEmpty() ? words(imageBrowser)
                                                : tr("%1, without thumbnails").arg(words(imageBrowser)));
    photoCountLabel->setToolTip(obstacle);
    rawCountLabel->setText(words(imageBrowser_2));
    saveSelectedButton->setEnabled(imageBrowser->selectionModel()->hasSelection());
    saveSelectedButton_Sig->setEnabled(imageBrowser_2->selectionModel()->hasSelection());
    const qsizetype shown = m_looks->showsAll() ? found : browserOf(activeSet())->shownCount();
    for (QPushButton* button : {saveAllButton, saveAllButton_Sig}) {
        button->setEnabled(shown > 0 || (m_looks->showsAll() && !m_told.empty()));
        button->setText(m_looks->showsAll() ? tr("Save &All…")
                                            : tr("Save &All Shown (%1)…").arg(numberOf(shown)));
        button->setAccessibleName(m_looks->showsAll() ? tr("Save all found items")
                                                      : tr("Save all items that are shown"));
    }
    const auto savedCount = static_cast<qsizetype>(m_desk->marks().saved());
    const QString saved =
        savedCount == 0 ? QString() : tr("%1 of %2 saved").arg(numberOf(savedCount), numberOf(found));
    const int changed = changedChoices(m_desk->choices());
    for (QPushButton* button : {savingOptionsButton, savingOptionsButton_Sig}) {
        button->setText(changed == 0 ? tr("O&ptions…") : tr("O&ptions (%1)…").arg(changed));
    }
    savedLabel->setText(saved);
    savedLabel_Sig->setText(saved);
    showTicks();
    showSearchSum();
    showEmptyResults();
}

}  // namespace vantor
