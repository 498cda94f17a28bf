// How the browsers follow a list that grows, and leave those alone who look back.
#include <QComboBox>
#include <QScrollBar>

#include "results/RecoveryMode.h"
#include "tests/window/BrowserWindow.h"

namespace vantor {
namespace {

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

TEST_F(Browser, AtItsEnd_ASearchIsSeenFromItsBeginning_UnlessTheUserLooksElsewhere) {
    open();
    showPhotoScreen();
    ImageBrowserView* const browser = controller->imageBrowser;
    QScrollBar* const bar = browser->verticalScrollBar();
    addPhotos(60);
    settle();
    ASSERT_TRUE(atEnd(browser));
    browser->endFollowing();
    EXPECT_EQ(bar->value(), 0);
    bar->setValue(bar->maximum() / 2);
    const int halfWay = bar->value();
    browser->endFollowing();
    EXPECT_EQ(bar->value(), halfWay);
    browser->scrollToBottom();
    browser->chooseIndex(59);
    browser->endFollowing();
    EXPECT_TRUE(atEnd(browser)) << "where the selected item is";
}

TEST_F(Browser, AnotherChoice_IsSeenFromItsBeginning_OrAtTheSelectedItem) {
    open();
    showPhotoScreen();
    ImageBrowserView* const browser = controller->imageBrowser;
    const auto show = [this](ShowItems what) {
        controller->showBox->setCurrentIndex(controller->showBox->findData(static_cast<int>(what)));
        settle();
    };
    addPhotos(60);
    settle();
    ASSERT_TRUE(atEnd(browser));
    show(ShowItems::NotSaved);
    ASSERT_EQ(browser->shownCount(), 60);
    EXPECT_EQ(browser->verticalScrollBar()->value(), 0);
    browser->chooseIndex(59);
    browser->scrollToTop();
    show(ShowItems::All);
    EXPECT_TRUE(browser->viewport()->rect().contains(browser->visualRect(browser->currentIndex())));
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
    SameItems many;
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

}  // namespace
}  // namespace vantor
