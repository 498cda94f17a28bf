// Both browsers: what they show, how they follow, zoom and select.
#include <QElapsedTimer>
#include <QMimeData>
#include <QSignalSpy>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "tests/window/BrowserWindow.h"
#include "window/widgets/Theme.h"

namespace vantor {
namespace {

TEST_F(Browser, EmptyDataAddsNothing) {
    open();
    controller->addImageWithData({}, QStringLiteral("a.jpg"), QStringLiteral("u"));
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_EQ(controller->addedItemCount(), 0u);
}

TEST_F(Browser, WhatCannotBeDecoded_ShowsThePlaceholder) {
    open();
    addPhotos(1);
    QFile placeholder(folder.filePath(QStringLiteral("NoPreview.png")));
    ASSERT_TRUE(placeholder.open(QIODevice::ReadOnly));
    EXPECT_EQ(controller->itemAt(0)->imageData(), placeholder.readAll());
}

TEST_F(Browser, WithoutThePlaceholder_WhatCannotBeDecodedIsAnEmptyCell) {
    QFile::remove(folder.filePath(QStringLiteral("NoPreview.png")));
    open();
    addPhotos(1);
    ASSERT_EQ(controller->itemCount(), 1u);
    EXPECT_TRUE(controller->itemAt(0)->imageData().isEmpty());
    controller->imageBrowser->grab();
}

TEST_F(Browser, APathOfBlanksAddsNothing_AndFilesAreShownFromTheirPath) {
    open();
    const auto add = [this](const QString& path) {
        controller->addImageWithPath(path, QStringLiteral("a"), QStringLiteral("u"));
    };
    add(QStringLiteral(" \t\n"));
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_EQ(controller->addedItemCount(), 0u);
    const QString placeholder = folder.filePath(QStringLiteral("NoPreview.png"));
    add(QStringLiteral(" /nowhere/at/all.jpg\n"));
    ASSERT_EQ(controller->itemCount(), 1u);
    EXPECT_EQ(controller->itemAt(0)->path(), placeholder);
    EXPECT_FALSE(controller->itemAt(0)->imageData().isEmpty());
    Recovery_MODE = kVideoMode;
    add(QStringLiteral("/nowhere/at/all.mov"));
    ASSERT_EQ(controller->itemCount(), 2u);
    EXPECT_EQ(controller->itemAt(1)->path(), QStringLiteral("/nowhere/at/all.mov"));
    EXPECT_EQ(controller->addedItemCount(), 2u);
}

TEST_F(Browser, TheFirstKeyChoosesTheItemAtHand) {
    open();
    showPhotoScreen();
    addPhotos(60);
    settle();
    ImageBrowserView* const browser = controller->imageBrowser;
    const auto chosenBy = [browser](Qt::Key key) {
        QTest::keyClick(browser, key);
        return browser->selectionIndexes();
    };
    browser->verticalScrollBar()->setValue(0);
    browser->setFocus();
    ASSERT_EQ(browser->currentIndex().row(), 0);
    EXPECT_EQ(chosenBy(Qt::Key_Right), QList<qsizetype>{0}) << "it is not passed over";
    EXPECT_EQ(chosenBy(Qt::Key_Right), QList<qsizetype>{1});
    for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Home}) {
        const QList<qsizetype> wanted{key == Qt::Key_Home ? 0 : 59};
        EXPECT_EQ(chosenBy(static_cast<Qt::Key>(key)), wanted);
        browser->clearSelection();
        EXPECT_EQ(chosenBy(static_cast<Qt::Key>(key)), wanted) << "where it was the current one";
    }
    // Who has followed a search to its end goes on from what is seen.
    browser->clearSelection();
    browser->scrollToBottom();
    const int scrolled = browser->verticalScrollBar()->value();
    ASSERT_GT(scrolled, 0);
    const QList<qsizetype> seen = chosenBy(Qt::Key_Down);
    ASSERT_EQ(seen.size(), 1);
    EXPECT_TRUE(browser->viewport()->rect().contains(
        browser->visualRect(browser->model()->index(static_cast<int>(seen.constFirst()), 0))));
    EXPECT_EQ(browser->verticalScrollBar()->value(), scrolled);
}

TEST_F(Browser, TypesThatOnlyTheCatalogueKnows_HaveTheIconOfTheirKind) {
    source->add(QStringLiteral("sdb1"), QStringLiteral("EMPTY"), 64);
    writeCatalogue("ZelVideo.dll", record("Q9Z", "51395A21", "Something"));
    writeCatalogue("ZelRaw.dll", record("Q8Z", "51385A21", "Tracker music"));
    open();
    const auto lastIcon = [this] {
        return controller->itemAt(static_cast<qsizetype>(controller->itemCount()) - 1)->image();
    };
    const auto looks = [](const QIcon& icon) { return icon.pixmap(48).toImage(); };
    toFileTypes(kVideoMode);
    scanToEnd();
    addRaw(QStringLiteral("Q9Z00001.Q9Z"));
    EXPECT_EQ(looks(lastIcon()), looks(ownIcon(QStringLiteral("type-video"))));
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    click(controller->backButton);
    click(controller->backButton);
    toFileTypes(kRawFileMode);
    scanToEnd();
    addRaw(QStringLiteral("Q8Z00001.Q8Z"));
    EXPECT_EQ(looks(lastIcon()), looks(ownIcon(QStringLiteral("type-sound"))));
}

TEST_F(Browser, RawItemsAreCountedInTheirTypesRow) {
    open();
    Recovery_MODE = kRawFileMode;
    controller->createSignatureListTableRecord(QStringLiteral("JPG"), 0, {}, {}, QStringLiteral("JPG"));
    addRaw(QStringLiteral(" \t "));
    EXPECT_EQ(controller->itemCount(), 0u) << "a name of blanks adds nothing";
    addRaw(QStringLiteral("A.JPG"));
    addRaw(QStringLiteral("B.JPG "));
    addRaw(QStringLiteral("c.jpg"));
    EXPECT_EQ(controller->itemCount(), 3u);
    const ResultRow row = controller->resultRows().at(0);
    EXPECT_EQ(row[QStringLiteral("NoOfFile")], QStringLiteral("2"));
    EXPECT_EQ(row[QStringLiteral("FileName")], QStringLiteral("B.JPG"));
    controller->addImageWithPath_2(QStringLiteral("/tmp/x.JPG"), QStringLiteral("x"), QStringLiteral("u"));
    EXPECT_EQ(controller->itemAt(3)->File_Start_Sector(), 0u);
    EXPECT_EQ(controller->itemAt(3)->File_End_Sector(), 0u);
}

TEST_F(Browser, TheModeOfTheMomentDecidesWhatIsDrawn) {
    open();
    addPhotos(1);
    EXPECT_EQ(controller->itemAt(0)->imageRepresentationType(), RepresentationType::EncodedData);
    Recovery_MODE = kVideoMode;
    EXPECT_EQ(controller->itemAt(0)->imageRepresentationType(), RepresentationType::Picture);
    controller->imageBrowser->grab();  // an item without a picture is an empty cell
}

TEST_F(Browser, ItemsCannotBeDraggedOut) {
    open();
    addPhotos(2);
    QMimeData pasteboard;
    EXPECT_EQ(controller->imageBrowser_writeItemsAtIndexes(controller->imageBrowser, {0, 1}, &pasteboard), 0);
    EXPECT_TRUE(pasteboard.formats().isEmpty());
    EXPECT_FALSE(controller->imageBrowser->dragEnabled());
    EXPECT_EQ(controller->imageBrowser->model()->flags(controller->imageBrowser->model()->index(0, 0)) &
                  Qt::ItemIsDragEnabled,
              Qt::NoItemFlags);
}

TEST_F(Browser, TheSliderZoomsThePhotosAndNothingElse) {
    open();
    showPhotoScreen();
    controller->_zoom_slider->show();
    const QSize before = controller->imageBrowser->gridSize();
    controller->_zoom_slider->setFocus();
    QTest::keyClick(controller->_zoom_slider, Qt::Key_End);
    EXPECT_FLOAT_EQ(controller->imageBrowser->zoomValue(), 1.0F);
    EXPECT_GT(controller->imageBrowser->gridSize().height(), before.height());
    EXPECT_FLOAT_EQ(controller->imageBrowser_2->zoomValue(), 0.05F);
}

TEST_F(Browser, SeveralItemsAreSelectedByKeyboard_AndTypingFindsOne) {
    open();
    showPhotoScreen();
    addPhotos(30);
    settle();
    ImageBrowserView* browser = controller->imageBrowser;
    browser->setFocus();
    browser->setCurrentIndex(browser->model()->index(0, 0));
    QTest::keyClick(browser, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(browser->selectionIndexes(), (QList<qsizetype>{0, 1}));
    EXPECT_EQ(controller->photoCountLabel->text(), QStringLiteral("2 of 30 selected"));
    EXPECT_TRUE(controller->saveSelectedButton->isEnabled());
    QTest::keyClick(browser, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(browser->selectionIndexes().size(), 30);
    QTest::keyClicks(browser, QStringLiteral("gnd17"));
    EXPECT_EQ(browser->currentIndex().row(), 16);
}

TEST_F(Browser, WhereTheKeyboardStandsIsSeen) {
    open();
    showPhotoScreen();
    addPhotos(3);
    settle();
    controller->_stop_scan->setFocus();
    ImageBrowserView* browser = controller->imageBrowser;
    const QRect cell = browser->visualRect(browser->model()->index(0, 0));
    const QImage before = browser->viewport()->grab(cell).toImage();
    browser->setFocus();
    EXPECT_TRUE(browser->selectionIndexes().isEmpty());
    EXPECT_NE(browser->viewport()->grab(cell).toImage(), before);
}

TEST_F(Browser, HowManyAreSelectedCanBeReadInANarrowWindow) {
    open();
    showPhotoScreen();
    controller->zoomLabel->show();
    controller->_zoom_slider->show();
    controller->window->resize(655, 490);  // 1024 x 768 at 144 dots an inch
    addPhotos(67);
    settle();
    controller->imageBrowser->selectAll();
    settle();
    EXPECT_EQ(controller->photoCountLabel->text(), QStringLiteral("67 of 67 selected"));
    EXPECT_GE(controller->photoCountLabel->width(), controller->photoCountLabel->sizeHint().width());
    EXPECT_FALSE(controller->bodyScroll->horizontalScrollBar()->isVisible());
}

TEST_F(Browser, TheSelectionSurvivesNewItems) {
    open();
    showPhotoScreen();
    addPhotos(10);
    controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(3, 0));
    addPhotos(10);
    EXPECT_EQ(controller->imageBrowser->selectionIndexes(), (QList<qsizetype>{3}));
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 20);
}

TEST_F(Browser, AListThatBeganAnew_IsTakenAnew) {
    open();
    addPhotos(5);
    controller->clearItems();
    addPhotos(6);
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 6);
    EXPECT_EQ(controller->imageBrowser->model()->index(0, 0).data(), QStringLiteral("GND6.JPG"));
}

TEST_F(Browser, ALongerListOfOtherItems_IsTakenAnewToo) {
    open();
    SameItems items;
    controller->imageBrowser->setDataSource(&items);
    items.count = 5;
    controller->imageBrowser->reloadData();
    QSignalSpy anew(controller->imageBrowser->model(), &QAbstractItemModel::modelReset);
    items.count = 6;
    controller->imageBrowser->reloadData();
    EXPECT_EQ(anew.size(), 0) << "a list that grew";
    items.item = MyImageObject::initWithImage_data({}, QStringLiteral("b"), QStringLiteral("v"));
    items.count = 7;
    controller->imageBrowser->reloadData();
    EXPECT_EQ(anew.size(), 1);
    controller->imageBrowser->setDataSource(controller.get());
}

TEST_F(Browser, AHundredThousandItemsInBatches_AreAllThere) {
    open();
    showPhotoScreen();
    SameItems many;
    controller->imageBrowser->setDataSource(&many);
    while (many.count < 100'000) {
        many.count += 500;
        controller->imageBrowser->reloadData();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 100'000);
    controller->imageBrowser->scrollIndexToVisible(99'999);
    QCoreApplication::processEvents();
    EXPECT_TRUE(atEnd(controller->imageBrowser));
    controller->imageBrowser->setDataSource(controller.get());
}

}  // namespace
}  // namespace vantor