// Every connection from a control to its action, in one place.
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QShortcut>
#include <QUrl>

#include "window/MyTableController.h"
#include "window/widgets/PressGuard.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

const QString kLastImages = QStringLiteral("folders/images");

QStringList localFiles(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

}  // namespace

void MyTableController::wire() {
    new PressGuard([this] { return screen_counter.load(); }, window);
    wireButtons();
    wireTicks();
    wireRangeSet(ControlSet::Photo);
    wireRangeSet(ControlSet::Sig);
    wireShortcuts();

    const auto tableClicked = [this](ListTable* table) {
        connect(table, &QTableView::clicked, this, [this, table](const QModelIndex& index) {
            m_clickedColumn = index.column();
            clickTable(table);
        });
    };
    tableClicked(idCheckTableView);
    tableClicked(idSigTableView);
    connect(idCheckTableView, &ListTable::tickedByKeyboard, this, [this] {
        m_clickedColumn = 0;
        clickTable(idCheckTableView);
    });
    connect(idTableView, &QTableView::doubleClicked, this, [this] { nextButton->click(); });
    connect(typeSearchField, &QLineEdit::textChanged, this, &MyTableController::filterFileTypes);
    connect(foundTypesOnly, &QCheckBox::toggled, this, &MyTableController::filterResultRows);
    connect(idSigTableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MyTableController::showChosenType);
    connect(allTypesButton, &QPushButton::clicked, idSigTableView, &QTableView::clearSelection);
    connect(_zoom_slider, &QSlider::valueChanged, this, [this] { zoomSliderDidChange(_zoom_slider); });
    connect(zoomSlider_Sig, &QSlider::valueChanged, this, [this](int value) {
        imageBrowser_2->setZoomValue(static_cast<float>(value) /
                                     static_cast<float>(zoomSlider_Sig->maximum()));
        imageBrowser_2->viewport()->update();
    });
    for (QToolButton* button : {detailsButton, detailsButton_Sig}) {
        connect(button, &QToolButton::toggled, this, &MyTableController::showDetails);
    }
    for (ImageBrowserView* browser : {imageBrowser, imageBrowser_2}) {
        connect(browser, &ImageBrowserView::selectionDidChange, this, [this, browser] {
            selectionMoved(browser);
            keepMarksSoon();
        });
        connect(browser, &ImageBrowserView::openWanted, this, &MyTableController::openInViewer);
        connect(browser, &ImageBrowserView::dragWanted, this,
                [this, browser](const QList<qsizetype>& indexes) { dragOut(browser, indexes); });
        connect(
            browser, &ImageBrowserView::menuWanted, this,
            [this, browser](qsizetype index, const QPoint& place) { showItemMenu(browser, index, place); });
    }
    // What is selected already may be wanted again, where the pane was emptied meanwhile.
    connect(imageBrowser_2, &QAbstractItemView::clicked, this, [this] { m_previewDue.start(0); });
    m_previewDue.setSingleShot(true);
    connect(&m_previewDue, &QTimer::timeout, this, &MyTableController::startDuePreview);
    connect(qApp, &QApplication::focusChanged, this, &MyTableController::keyboardWentTo);
    constexpr int kPumpMilliseconds = 50;  // views follow a scan at most 20 times a second
    m_pump.setInterval(kPumpMilliseconds);
    connect(&m_pump, &QTimer::timeout, this, &MyTableController::pump);
}

void MyTableController::wireButtons() {
    using Action = void (MyTableController::*)(QObject*);
    const std::pair<QAbstractButton*, Action> actions[] = {
        {nextButton, &MyTableController::Next_btn},
        {backButton, &MyTableController::Back_btn},
        {exitButton, &MyTableController::Exit_Btn},
        {helpButton, &MyTableController::Help_btn},
        {refreshButton, &MyTableController::rebresh_drives},
        {_rec_mode_Photo, &MyTableController::Photo_Mode_Radio},
        {_rec_mode_Video, &MyTableController::Video_Mode_Radio},
        {_rec_mode_RawFile, &MyTableController::RawFile_Mode_Radio},
        {_entire_disk_rd, &MyTableController::Entire_Disk_Radio},
        {_entire_disk_rd_Sig, &MyTableController::Entire_Disk_Radio_Sig},
        {_sector_range_rd, &MyTableController::Sector_Range_Radio},
        {_sector_range_rd_Sig, &MyTableController::Sector_Range_Radio_Sig},
        {_browse_path, &MyTableController::Browse_Path},
        {_browse_path_Sig, &MyTableController::Browse_Path_Sig},
        {_select_unselect_Chk, &MyTableController::Select_Unselect_Check_btn},
        {_Thro_Mode_Chk_SIG, &MyTableController::Thro_Mode_Chk_SIG_Btn},
        {_stop_scan, &MyTableController::stop_usb_disk},
    };
    for (const auto& [button, action] : actions) {
        connect(button, &QAbstractButton::clicked, this,
                [this, sender = button, act = action] { (this->*act)(sender); });
    }
    connect(openImageButton, &QPushButton::clicked, this, [this] {
        const QStringList files = QFileDialog::getOpenFileNames(
            window, tr("Open an image file of a medium"), rememberedFolder(kLastImages),
            tr("Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)"));
        if (!files.isEmpty()) {
            rememberFolder(kLastImages, QFileInfo(files.constFirst()).absolutePath());
        }
        openImages(files);
    });
    connect(m_panels->help.forgetButton, &QPushButton::clicked, this, &MyTableController::forgetRemembered);
    connect(_stop_scan, &QPushButton::clicked, this, &MyTableController::clearWaitingThumbnails);
    connect(tryBadSectorsButton, &QPushButton::clicked, this, &MyTableController::tryBadSectorsAgain);
    connect(showItemsButton, &QPushButton::clicked, this, &MyTableController::showLeftItems);
    for (QPushButton* button : {_open_folder, _open_folder_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::openDestination);
    }
    for (QPushButton* button : {changeFolderButton, changeFolderButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::chooseDestination);
    }
    for (QPushButton* button : {saveSelectedButton, saveSelectedButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::saveSelected);
    }
    for (QPushButton* button : {savingOptionsButton, savingOptionsButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::askSavingOptions);
    }
    for (QPushButton* button : {saveAllButton, saveAllButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::saveAll);
    }
}

void MyTableController::wireRangeSet(ControlSet set) {
    const RangeOutlets& outlets = rangeOf(set).outlets();
    const bool photo = set == ControlSet::Photo;
    connect(outlets.start.slider, &SectorSlider::movedByUser, this,
            [this, photo, slider = outlets.start.slider] {
                photo ? DO_Start_slider(slider) : DO_Start_slider_Sig(slider);
            });
    connect(outlets.end.slider, &SectorSlider::movedByUser, this, [this, photo, slider = outlets.end.slider] {
        photo ? DO_End_slider(slider) : DO_End_slider_Sig(slider);
    });
    for (QLineEdit* field : {outlets.start.value, outlets.end.value}) {
        m_notifications.append(
            connect(field, &QLineEdit::textChanged, this, [this, field] { controlTextDidChange(field); }));
    }
}

void MyTableController::wireShortcuts() {
    const auto shortcut = [](const QKeySequence& keys, QWidget* owner) {
        auto* made = new QShortcut(keys, owner);
        made->setAutoRepeat(false);
        return made;
    };
    const auto press = [&](const QKeySequence& keys, QAbstractButton* button) {
        // The shortcut of a button that is out of view or disabled is so too.
        connect(shortcut(keys, button), &QShortcut::activated, button, &QAbstractButton::click);
    };
    press(Qt::CTRL | Qt::Key_Q, exitButton);
    press(Qt::ALT | Qt::Key_Left, backButton);
    press(Qt::ALT | Qt::Key_Right, nextButton);
    press(Qt::Key_F1, helpButton);
    press(Qt::Key_F5, refreshButton);
    press(Qt::CTRL | Qt::Key_O, openImageButton);
    press(Qt::CTRL | Qt::Key_D, detailsButton);
    press(Qt::CTRL | Qt::Key_D, detailsButton_Sig);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(shortcut(key, window), &QShortcut::activated, this, &MyTableController::pressDefault);
    }
    connect(new QShortcut(Qt::Key_Escape, typeSearchField, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, typeSearchField, &QLineEdit::clear);
    const auto save = [&](const QKeySequence& keys, QPushButton* photo, QPushButton* raw) {
        connect(shortcut(keys, window), &QShortcut::activated, this, [photo, raw] {
            QPushButton* button = photo->isVisible() ? photo : raw;
            if (button->isVisible()) {
                button->click();
            }
        });
    };
    save(Qt::CTRL | Qt::Key_S, saveSelectedButton, saveSelectedButton_Sig);
    save(Qt::CTRL | Qt::SHIFT | Qt::Key_S, saveAllButton, saveAllButton_Sig);
}

// Return presses the button that has the keyboard, else Next; from a search field it leads to what was
// searched for.
void MyTableController::pressDefault() {
    if (window->focusWidget() == typeSearchField) {
        idCheckTableView->takeKeyboard();
        return;
    }
    if (foundPane->isSearching() || foundPane_Sig->isSearching()) {
        browserOf(activeSet())->setFocus();
        return;
    }
    auto* focused = qobject_cast<QPushButton*>(window->focusWidget());
    (focused != nullptr && focused->isVisible() ? focused : nextButton)->click();
}

bool MyTableController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == thoroughBox && event->type() == QEvent::MouseButtonRelease) {
        // The words beside the box are part of it.
        const auto* const release = static_cast<QMouseEvent*>(event);
        if (release->button() == Qt::LeftButton &&
            thoroughBox->rect().contains(release->position().toPoint())) {
            _Thro_Mode_Chk->click();
        }
        return true;
    }
    if (watched != window) {
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
        case QEvent::Close:
            windowShouldClose(window);
            event->ignore();
            return true;
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto* drag = static_cast<QDragMoveEvent*>(event);
            if (screen_counter == 0 && !localFiles(drag->mimeData()).isEmpty()) {
                drag->acceptProposedAction();
            }
            return true;
        }
        case QEvent::Drop: {
            auto* drop = static_cast<QDropEvent*>(event);
            if (screen_counter == 0) {
                openImages(localFiles(drop->mimeData()));
                drop->acceptProposedAction();
            }
            return true;
        }
        default:
            return QObject::eventFilter(watched, event);
    }
}

}  // namespace vantor
