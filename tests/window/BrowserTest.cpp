// Both browsers: what they show, how they follow, zoom and select.
#include <QElapsedTimer>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"
#include "window/widgets/Theme.h"

namespace vantor {
namespace {

// As many items as asked for, all the same one.
class Source : public ImageBrowserDataSource {
  public:
    qsizetype numberOfItemsInImageBrowser(const ImageBrowserView*) override { return count; }
    std::shared_ptr<MyImageObject> imageBrowser_itemAtIndex(const ImageBrowserView*, qsizetype) override {
        return item;
    }
    qsizetype count = 0;
    std::shared_ptr<MyImageObject> item =
        MyImageObject::initWithImage_data({}, QStringLiteral("a"), QStringLiteral("u"));
};

class Browser : public WindowTest {
  protected:
    void addPhotos(int count) {
        for (int i = 0; i < count; ++i) {
            ++m_added;
            controller->addImageWithData(QByteArray("junk"), QStringLiteral("GND%1.JPG").arg(m_added),
                                         QStringLiteral("UID%1").arg(m_added));
        }
    }
    void addRaw(const QString& name) { controller->addImageWithData_2({}, name, name, 1, 2); }
    // The last item is in view.
    static bool atEnd(const ImageBrowserView* browser) {
        return browser->verticalScrollBar()->value() == browser->verticalScrollBar()->maximum();
    }
    // Shows the photo screen with room for few items.
    void showPhotoScreen() {
        controller->show_hide_1_screen(true);
        controller->show_hide_3_screen_Photo(false);
        controller->window->resize(1024, 720);
        settle();
    }

    int m_added = 0;
};

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

TEST_F(Browser, EverySixthPhotoScrollsToTheEnd) {
    open();
    showPhotoScreen();
    controller->imageBrowser->setZoomValue(1);  // few in a line
    addPhotos(60);
    settle();
    const QScrollBar* const bar = controller->imageBrowser->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    ASSERT_TRUE(atEnd(controller->imageBrowser));
    const int before = bar->value();
    addPhotos(5);
    settle();
    EXPECT_EQ(bar->value(), before) << "not in between";
    ASSERT_GT(bar->maximum(), before);
    addPhotos(1);
    settle();
    EXPECT_TRUE(atEnd(controller->imageBrowser));
}

TEST_F(Browser, WhoLooksBack_IsLeftThereUntilHeIsAtTheEndAgain) {
    open();
    showPhotoScreen();
    ImageBrowserView* const browser = controller->imageBrowser;
    QScrollBar* const bar = browser->verticalScrollBar();
    addPhotos(60);
    settle();
    ASSERT_TRUE(atEnd(browser));
    browser->setFocus();
    QTest::keyClick(browser, Qt::Key_Home);
    settle();
    EXPECT_EQ(bar->value(), 0);
    EXPECT_EQ(browser->currentIndex().row(), 0);
    addPhotos(60);
    settle();
    EXPECT_EQ(bar->value(), 0) << "the first items are still in view";
    QTest::keyClick(browser, Qt::Key_End);
    settle();
    EXPECT_TRUE(atEnd(browser));
    EXPECT_EQ(browser->currentIndex().row(), 119);
    addPhotos(60);
    settle();
    EXPECT_TRUE(atEnd(browser)) << "and follows again";
    bar->setValue(bar->maximum() / 2);
    const int halfWay = bar->value();
    addPhotos(60);
    settle();
    EXPECT_EQ(bar->value(), halfWay);
}

// The list followed the search while the current item stayed where the keyboard had begun.
TEST_F(Browser, HomeAndEnd_ShowFirstAndLastWhicheverItemIsTheCurrentOne) {
    open();
    showPhotoScreen();
    ImageBrowserView* const browser = controller->imageBrowser;
    addPhotos(2);
    browser->setFocus();
    ASSERT_EQ(browser->currentIndex().row(), 0);
    addPhotos(58);
    settle();
    ASSERT_TRUE(atEnd(browser));
    QTest::keyClick(browser, Qt::Key_Home);
    EXPECT_EQ(browser->verticalScrollBar()->value(), 0);
    QTest::keyClick(browser, Qt::Key_End);
    browser->verticalScrollBar()->setValue(0);
    QTest::keyClick(browser, Qt::Key_End);
    EXPECT_TRUE(atEnd(browser));
    browser->selectionModel()->clear();
    QTest::keyClick(browser, Qt::Key_End);
    EXPECT_EQ(browser->currentIndex().row(), 59) << "also when there was no current item";
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

// Beside the results of a search it is told how it ended.
TEST_F(Browser, WhoSeesTheLastItems_SeesThemInLessRoomToo) {
    open();
    showPhotoScreen();
    addPhotos(60);
    settle();
    ImageBrowserView* const browser = controller->imageBrowser;
    browser->scrollToBottom();
    const int height = browser->viewport()->height();
    controller->searchEndBar->show();
    settle();
    ASSERT_LT(browser->viewport()->height(), height);
    EXPECT_TRUE(atEnd(browser));
    browser->verticalScrollBar()->setValue(10);
    controller->searchEndBar->hide();
    settle();
    controller->searchEndBar->show();
    settle();
    EXPECT_EQ(browser->verticalScrollBar()->value(), 10) << "who looks elsewhere";
}

// A fast search adds many at a time, and says where to scroll before the last of them.
TEST_F(Browser, WhoIsAtTheEnd_FollowsWholeBatches) {
    open();
    showPhotoScreen();
    ImageBrowserView* const browser = controller->imageBrowser;
    Source many;
    browser->setDataSource(&many);
    const auto inView = [browser](int row) {
        return browser->viewport()->rect().contains(browser->visualRect(browser->model()->index(row, 0)));
    };
    many.count = 100;
    browser->reloadData();
    browser->followIndex(60);
    EXPECT_TRUE(inView(60));
    ASSERT_FALSE(atEnd(browser));
    many.count = 200;
    browser->reloadData();
    browser->followIndex(150);
    EXPECT_TRUE(inView(150));
    browser->setDataSource(controller.get());
}

TEST_F(Browser, ANewListIsFollowedAgain) {
    open();
    showPhotoScreen();
    ImageBrowserView* const browser = controller->imageBrowser;
    addPhotos(60);
    settle();
    browser->verticalScrollBar()->setValue(0);
    controller->clearItems();
    browser->reloadData();
    settle();
    addPhotos(60);
    settle();
    ASSERT_GT(browser->verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(atEnd(browser));
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

TEST_F(Browser, EveryFourthRawItemScrollsToTheEnd) {
    open();
    Recovery_MODE = kRawFileMode;
    controller->show_hide_1_screen(true);
    controller->show_hide_4_screen_RawFile(false);
    controller->window->resize(1024, 720);
    settle();
    controller->imageBrowser_2->setZoomValue(1);  // few in a line
    for (int i = 0; i < 200; ++i) {
        addRaw(QStringLiteral("F%1.PDF").arg(i));
    }
    settle();
    const QScrollBar* const bar = controller->imageBrowser_2->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    ASSERT_TRUE(atEnd(controller->imageBrowser_2));
    const int before = bar->value();
    for (int i = 0; i < 3; ++i) {
        addRaw(QStringLiteral("G%1.PDF").arg(i));
    }
    settle();
    EXPECT_EQ(bar->value(), before);
    ASSERT_GT(bar->maximum(), before);
    addRaw(QStringLiteral("LAST.PDF"));
    settle();
    EXPECT_TRUE(atEnd(controller->imageBrowser_2));
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
    Source items;
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
    Source many;
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
