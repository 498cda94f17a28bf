// Clicks, swipes and keys at every speed: what is seen selected is what is previewed and saved.
#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QStyle>
#include <QWindow>

#include "tests/support/Gate.h"
#include "tests/window/PreviewWindow.h"
#include "window/preview/PreviewFile.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {
namespace {

// The mouse goes through the window system, so that everybody hears which buttons are down.
class Selecting : public Preview {
  protected:
    void openFour() {
        openResults({{"A.PDF", 24, 27}, {"B.PDF", 28, 29}, {"C.PDF", 30, 31}, {"D.PDF", 32, 33}});
    }
    QPoint placeOf(int row) const {
        const ImageBrowserView* const browser = controller->imageBrowser_2;
        const QPoint place = browser->visualRect(browser->model()->index(row, 0)).center();
        return browser->viewport()->mapTo(controller->window, place);
    }
    QWindow* handle() const { return controller->window->windowHandle(); }
    void press(int row) { QTest::mousePress(handle(), Qt::LeftButton, {}, placeOf(row)); }
    void moveTo(int row) { QTest::mouseMove(handle(), placeOf(row)); }
    void release(int row) { QTest::mouseRelease(handle(), Qt::LeftButton, {}, placeOf(row)); }
    QList<qsizetype> selected() const { return controller->imageBrowser_2->selectionIndexes(); }
};

using Rows = QList<qsizetype>;

TEST_F(Selecting, AClick_StartsNothingBeforeItIsOver) {
    openFour();
    press(0);
    settle();
    EXPECT_EQ(selected(), Rows{0});
    EXPECT_EQ(opened, 0);
    release(0);
    ASSERT_TRUE(waitFor([this] { return opened == 1 && !controller->session; }));
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
}

TEST_F(Selecting, WhileTheMediumIsAskedFor_TheSelectionWaits) {
    openFour();
    controller->session = true;
    press(1);
    release(1);
    settle();
    controller->imageBrowserSelectionDidChange(controller->imageBrowser_2);
    EXPECT_EQ(opened, 0);
    EXPECT_NE(title(), QStringLiteral("B.PDF"));
    controller->session = false;
    ASSERT_TRUE(waitFor([this] { return opened == 1 && !controller->session; }));
    EXPECT_EQ(title(), QStringLiteral("B.PDF"));
}

TEST_F(Selecting, AQuickSwipe_SelectsWhatItTouchedAndNoMore) {
    openFour();
    Gate gate;
    card.beforeRead = gate.atEveryRead();
    press(0);
    moveTo(1);
    moveTo(2);
    release(2);
    when([&] { return gate.someoneWaits(); },
         [&] {
             // On with the mouse while the preview is copied, without a button.
             moveTo(3);
             gate.open();
         });
    ASSERT_TRUE(waitFor([this] { return opened == 1 && !controller->session; }));
    moveTo(3);
    settle();
    EXPECT_EQ(selected(), (Rows{0, 1, 2}));
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
    EXPECT_EQ(opened, 1);
}

TEST_F(Selecting, APressDuringACopy_IsNoneAlsoWhenItIsLetGoLater) {
    openFour();
    Gate gate;
    card.beforeRead = gate.atEveryRead();
    when([&] { return gate.someoneWaits(); },
         [&] {
             press(1);
             moveTo(2);
             gate.open();
         });
    press(0);
    release(0);
    ASSERT_TRUE(waitFor([this] { return opened == 1 && !controller->session; }));
    moveTo(3);
    settle();
    release(3);
    settle();
    EXPECT_EQ(selected(), Rows{0}) << "no band was drawn";
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
    EXPECT_EQ(opened, 1);
    press(1);
    release(1);
    ASSERT_TRUE(waitFor([this] { return opened == 2 && !controller->session; })) << "the next click counts";
    EXPECT_EQ(selected(), Rows{1});
    EXPECT_EQ(title(), QStringLiteral("B.PDF"));
}

TEST_F(Selecting, KeysDuringACopy_AreKept_AndTheirLastItemIsShown) {
    openFour();
    Gate gate;
    card.beforeRead = gate.atEveryRead();
    when([&] { return gate.someoneWaits(); },
         [&] {
             QTest::keyClick(handle(), Qt::Key_Right);
             QTest::keyClick(handle(), Qt::Key_Right);
             gate.open();
         });
    select(0);
    ASSERT_TRUE(waitFor([this] { return opened == 2 && !controller->session; }));
    EXPECT_EQ(selected(), Rows{2});
    EXPECT_EQ(title(), QStringLiteral("C.PDF"));
    EXPECT_EQ(controller->Prev_Index, 2U);
}

TEST_F(Selecting, ReturnBehindAnArrow_OpensTheItemThatTheArrowLedTo_AndInsertTicksIt) {
    openFour();
    Gate gate;
    card.beforeRead = gate.atEveryRead();
    when([&] { return gate.someoneWaits(); },
         [&] {
             for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Insert, Qt::Key_Return, Qt::Key_Right}) {
                 QTest::keyClick(handle(), key);
             }
             gate.open();
         });
    select(0);
    ASSERT_TRUE(waitFor([this] { return controller->viewer().isOpen(); }));
    settle();
    EXPECT_EQ(selected(), Rows{1}) << "keys behind Return are not for the list";
    EXPECT_EQ(controller->ticks().all(), Rows{1});
    EXPECT_EQ(controller->viewer().shown(), 1);
}

TEST_F(Selecting, OnlyKeysOfTheListAreKept) {
    openFour();
    Gate gate;
    card.beforeRead = gate.atEveryRead();
    when([&] { return gate.someoneWaits(); },
         [&] {
             QTest::keyClick(handle(), Qt::Key_A, Qt::ControlModifier);
             QTest::keyClick(handle(), Qt::Key_S, Qt::ControlModifier);
             QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
             QCoreApplication::sendEvent(controller->imageBrowser_2, &repeat);
             gate.open();
         });
    select(0);
    settle();
    EXPECT_EQ(selected(), Rows{0});
    EXPECT_EQ(opened, 1);
}

TEST_F(Selecting, ASelectionThatMovesDuringACopy_IsShownAfterIt) {
    openFour();
    Gate gate;
    card.beforeRead = gate.atEveryRead();
    int openedMeanwhile = 0;
    std::uint32_t previewed = 9;
    when([&] { return gate.someoneWaits(); },
         [&] {
             // As a screen reader does it.
             controller->imageBrowser_2->setCurrentIndex(controller->imageBrowser_2->model()->index(3, 0));
             controller->imageBrowserSelectionDidChange(controller->imageBrowser_2);
             openedMeanwhile = opened;
             previewed = controller->Prev_Index;
             controller->saveSelected();
             gate.open();
         });
    select(0);
    EXPECT_EQ(openedMeanwhile, 1) << "one preview at a time";
    EXPECT_EQ(previewed, 0U);
    ASSERT_TRUE(waitFor([this] { return opened == 2 && !controller->session; }));
    EXPECT_EQ(title(), QStringLiteral("D.PDF"));
    EXPECT_EQ(selected(), Rows{3});
}

TEST_F(Selecting, AFilterThatHidesTheFirstSelectedItem_StartsNoPreview) {
    openFour();
    select(0);
    controller->imageBrowser_2->selectionModel()->select(controller->imageBrowser_2->model()->index(2, 0),
                                                         QItemSelectionModel::Select);
    settle();
    ASSERT_EQ(opened, 1);
    controller->imageBrowser_2->setOrder(QList<int>{1, 2, 3});
    settle();
    EXPECT_EQ(selected(), Rows{2});
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
    controller->imageBrowser_2->setOrder(std::nullopt);
    settle();
    EXPECT_EQ(opened, 1);
}

TEST_F(Selecting, SaveSelected_SavesWhatIsSeenSelected_HoweverQuickly) {
    QTemporaryDir destination;
    openFour();
    controller->_path_Sig->setText(destination.path());
    press(0);
    moveTo(1);
    release(1);
    ASSERT_EQ(selected(), (Rows{0, 1}));
    answers.press(QStringLiteral("OK"));
    // Before the preview of the swipe has begun.
    controller->saveSelectedButton_Sig->click();
    ASSERT_FALSE(answers.seen().empty());
    settle();
    EXPECT_TRUE(waitFor([this] { return !controller->session; }));
    EXPECT_EQ(selected(), (Rows{0, 1}));
    EXPECT_EQ(controller->savedLabel_Sig->text(), QStringLiteral("2 of 4 saved"));
}

// --- What the preview's screen owes ---

TEST_F(Selecting, TheSheetHangs_UntilThePreviewIsShown) {
    Gate gate;
    parts.picture = [pass = gate.passage()](const QString&, QSize) {
        pass();
        return QImage();
    };
    openFour();
    bool sheet = false, session = false;
    when([&] { return gate.someoneWaits(); },
         [&] {
             sheet = controller->ClearPreview_Window->isVisible();
             session = controller->session;
             gate.open();
         });
    select(0);
    EXPECT_TRUE(sheet);
    EXPECT_TRUE(session);
    EXPECT_FALSE(controller->ClearPreview_Window->isVisible());
}

TEST_F(Selecting, APictureDoesNotOutliveItsScreen) {
    openFour();
    for (const bool hide : {true, false}) {
        controller->Prev_Index = MyTableController::kNoPreview;
        controller->imageBrowserSelectionDidChange(controller->imageBrowser_2);
        select(hide ? 0 : 1);
        ASSERT_FALSE(controller->_QuickLook_View->pixmap().isNull());
        controller->show_hide_4_screen_RawFile(hide);
        EXPECT_TRUE(controller->_QuickLook_View->pixmap().isNull()) << hide;
        EXPECT_EQ(controller->_QuickLook_View->text(), QStringLiteral("Select an item to preview it."));
        EXPECT_EQ(controller->previewFacts->text(), QString());
        controller->show_hide_4_screen_RawFile(false);
    }
}

TEST_F(Selecting, AnIconThatEndsAtASmallerSize_FillsThePaneAllTheSame) {
    QTemporaryDir themes;
    ASSERT_TRUE(QDir(themes.path()).mkpath(QStringLiteral("small/48x48/mimetypes")));
    QFile index(themes.filePath(QStringLiteral("small/index.theme")));
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write(
        "[Icon Theme]\nName=small\nDirectories=48x48/mimetypes\n\n[48x48/mimetypes]\nSize=48\nType=Fixed\n");
    index.close();
    QImage picture(48, 48, QImage::Format_RGB32);
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(themes.filePath(QStringLiteral("small/48x48/mimetypes/application-pdf.png"))));
    const QString nameBefore = QIcon::themeName();
    const QStringList pathsBefore = QIcon::themeSearchPaths();
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("small"));
    openFour();
    select(0);
    const QPixmap shown = controller->_QuickLook_View->pixmap();
    EXPECT_EQ(shown.size(), QSize(200, 200));
    EXPECT_EQ(shown.toImage().pixelColor(100, 100), QColor(Qt::green)) << "the theme's icon";
    close();
    QIcon::setThemeName(nameBefore);
    QIcon::setThemeSearchPaths(pathsBefore);
}

TEST(PreviewFilePath, ANameThatOnlyBeginsWithAPoint_HasNoExtension) {
    const QString folder = QStringLiteral("/f");
    EXPECT_EQ(previewFilePath(folder, QStringLiteral(".jpg")), QStringLiteral("/f/dprv"));
    EXPECT_EQ(previewFilePath(folder, QStringLiteral("/a.b/.jpg")), QStringLiteral("/f/dprv"));
    EXPECT_EQ(previewFilePath(folder, QStringLiteral("a.b/name")), QStringLiteral("/f/dprv"));
    EXPECT_EQ(previewFilePath(folder, QStringLiteral("x.jpg")), QStringLiteral("/f/dprv.jpg"));
}

}  // namespace
}  // namespace vantor
