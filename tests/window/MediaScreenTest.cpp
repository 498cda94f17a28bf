// The list of storage media on the first screen.
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <utility>

#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

using MediaScreen = WindowTest;

TEST_F(MediaScreen, CellsComeFromTheRecordByColumnIdentifier) {
    openWithCard();
    const auto cell = [this](const char* column, qsizetype row = 0) {
        return controller->tableView(controller->idTableView, QString::fromLatin1(column), row);
    };
    EXPECT_EQ(cell("Collumn1"), QStringLiteral("sdb1"));
    EXPECT_EQ(cell("Collumn2"), QStringLiteral("CANON_DC"));
    EXPECT_EQ(cell("Collumn3"), QStringLiteral("MS-DOS (FAT32)"));
    EXPECT_EQ(cell("Collumn4"), QStringLiteral("32.00  KB "));
    EXPECT_EQ(cell("Collumn5"), QStringLiteral("sdb"));
    EXPECT_EQ(cell("Collumn6"), QStringLiteral("64"));
    EXPECT_FALSE(cell("Collumn7").isValid());
    EXPECT_FALSE(cell("Column1").isValid());
    EXPECT_FALSE(cell("Collumn1", 1).isValid());
    EXPECT_FALSE(cell("Collumn1", -1).isValid());
}

TEST_F(MediaScreen, AnUnknownTableHasNoRowsAndNoCells) {
    openWithCard();
    QTableView other;
    EXPECT_EQ(controller->numberOfRowsInTableView(&other), 0);
    EXPECT_FALSE(controller->tableView(&other, QStringLiteral("Collumn1"), 0).isValid());
    controller->tableView(&other, QVariant(true), QStringLiteral("State"), 0);
}

TEST_F(MediaScreen, RefreshTwice_GivesTheSameList) {
    openWithCard();
    click(controller->refreshButton);
    click(controller->refreshButton);
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 1);
}

TEST_F(MediaScreen, Refresh_DropsTheSelection) {
    openWithCard();
    selectMedium();
    ASSERT_TRUE(controller->idTableView->selectionModel()->hasSelection());
    click(controller->refreshButton);
    EXPECT_FALSE(controller->idTableView->selectionModel()->hasSelection());
}

TEST_F(MediaScreen, TheSheetIsInViewWhileTheMediaAreAsked) {
    openWithCard();
    bool sheetSeen = false;
    source->duringQuery = [&] {
        sheetSeen = controller->LoadDisk_Window->isVisible() && controller->session;
    };
    click(controller->refreshButton);
    EXPECT_TRUE(sheetSeen);
    EXPECT_FALSE(controller->LoadDisk_Window->isVisible());
    EXPECT_FALSE(controller->session);
}

TEST_F(MediaScreen, WhileTheSheetHangs_NoShortcutWorksButThatOfExit) {
    if (QGuiApplication::platformName() == u"offscreen") {
        GTEST_SKIP() << "every window that comes up is the active one here; window_in_xserver runs this";
    }
    openWithCard();
    selectMedium();
    source->duringQuery = [this, pressed = false]() mutable {
        if (std::exchange(pressed, true)) {
            return;
        }
        for (const Qt::Key key : {Qt::Key_F5, Qt::Key_F1, Qt::Key_Return}) {
            QTest::keyClick(controller->window, key);
        }
        QTest::keyClick(controller->window, Qt::Key_Right, Qt::AltModifier);
        answers.press(QStringLiteral("No"));
        QTest::keyClick(controller->window, Qt::Key_Q, Qt::ControlModifier);
    };
    const int listings = source->listings;
    click(controller->refreshButton);
    EXPECT_EQ(source->listings, listings + 1);
    EXPECT_EQ(controller->screen_counter, 0);
    ASSERT_EQ(answers.seen().size(), 1u);
    EXPECT_TRUE(answers.seen()[0].text.startsWith(QStringLiteral("\nDo you really want to exit")));
}

TEST_F(MediaScreen, ACardPutInAppears_AndTheSelectionStays) {
    openWithCard();
    selectMedium();
    source->add(QStringLiteral("sdc1"), QStringLiteral("SECOND"), 32);
    source->order.move(1, 0);
    source->changed();
    ASSERT_EQ(controller->idTableView->model()->rowCount(), 2);
    EXPECT_EQ(controller->idTableView->selectionModel()->selectedRows().constFirst().row(), 1);
}

TEST_F(MediaScreen, ACardPulledOut_LeavesTheListAndNoSelection) {
    openWithCard();
    selectMedium();
    source->order.clear();
    source->changed();
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 0);
    EXPECT_FALSE(controller->idTableView->selectionModel()->hasSelection());
}

TEST_F(MediaScreen, MediaChangesOnOtherScreens_AreNotShownThere) {
    openWithCard();
    toRange(0);
    const int listings = source->listings;
    source->changed();
    EXPECT_EQ(source->listings, listings);
}

TEST_F(MediaScreen, AnOpenedImage_IsListedAndSelected) {
    openWithCard();
    controller->openImages({QStringLiteral("/tmp/card.img")});
    ASSERT_EQ(controller->idTableView->model()->rowCount(), 2);
    EXPECT_EQ(controller->idTableView->selectionModel()->selectedRows().constFirst().row(), 1);
}

TEST_F(MediaScreen, AFileThatIsNoImage_IsRefusedWithTheReason) {
    openWithCard();
    answers.press(QStringLiteral("OK"));
    controller->openImages({QStringLiteral("/tmp/letter.txt")});
    EXPECT_EQ(answers.seen().at(0).text, QStringLiteral("\nThe image could not be opened."));
    EXPECT_EQ(answers.seen().at(0).informative, QStringLiteral("“/tmp/letter.txt” is no image."));
    EXPECT_EQ(answers.seen().at(0).text, QStringLiteral("\nThe image could not be opened."));
    answers.press(QStringLiteral("OK"));
    controller->openImages({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
    EXPECT_EQ(answers.seen().at(1).text, QStringLiteral("\n2 images could not be opened."));
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 1);
}

TEST_F(MediaScreen, AnImageDroppedOnTheWindow_IsOpened) {
    openWithCard();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/card.img"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(controller->window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(controller->window, &drop);
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 2);
}

TEST_F(MediaScreen, RowsCanBeAddedAndDeleted) {
    openWithCard();
    controller->addRow(
        MyDataObject::initWithString1(QStringLiteral("sdz"), {}, {}, {}, {}, QStringLiteral("1")));
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 2);
    controller->deleteSelectedRow(nullptr);
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 2);
    selectMedium(1);
    controller->deleteSelectedRow(nullptr);
    EXPECT_EQ(controller->idTableView->model()->rowCount(), 1);
}

TEST_F(MediaScreen, OneModeIsOnAtATime) {
    openWithCard();
    for (auto* chosen :
         {controller->_rec_mode_RawFile, controller->_rec_mode_Video, controller->_rec_mode_Photo}) {
        click(chosen);
        for (auto* mode :
             {controller->_rec_mode_RawFile, controller->_rec_mode_Video, controller->_rec_mode_Photo}) {
            EXPECT_EQ(mode->isChecked(), mode == chosen);
        }
    }
}

}  // namespace
}  // namespace vantor
