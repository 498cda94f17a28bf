// The preview of a selected item: the copy, the picture, the icon, and what stays when the medium is gone.
#include <QFileInfo>
#include <QSlider>
#include <QToolButton>

#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/window/PreviewWindow.h"
#include "tests/window/ScriptedMovie.h"
#include "window/preview/MovieControls.h"

namespace vantor {
namespace {

TEST_F(Preview, ASelectedItem_IsCopiedWithoutItsEndSector) {
    openResults({{"A.PDF", 24, 27}});
    select(0);
    const QByteArray bytes = previewBytes("dprv.PDF");
    EXPECT_EQ(bytes.size(), 3 * 512);
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
    EXPECT_EQ(controller->Preview_Temp_File, folder.filePath(QStringLiteral("dprv.PDF")));
    EXPECT_EQ(controller->_QuickLook_View->pixmap().size(), QSize(200, 200)) << "no picture: the type's icon";
    EXPECT_FALSE(controller->session);
    EXPECT_FALSE(controller->ClearPreview_Window->isVisible());
    EXPECT_EQ(controller->Prev_Index, 0u);
}

TEST_F(Preview, TheItemOnPreviewIsNotCopiedAgain) {
    openResults({{"A.PDF", 24, 27}, {"B.PDF", 28, 29}});
    select(0);
    controller->imageBrowserSelectionDidChange(controller->imageBrowser_2);
    EXPECT_EQ(opened, 1);
    select(1);
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(title(), QStringLiteral("B.PDF"));
}

TEST_F(Preview, AnEmptySelection_AndThePhotoBrowser_StartNothing) {
    openResults({{"A.PDF", 24, 27}});
    controller->imageBrowserSelectionDidChange(controller->imageBrowser_2);
    controller->imageBrowserSelectionDidChange(controller->imageBrowser);
    EXPECT_EQ(opened, 0);
}

TEST_F(Preview, TheFirstOfSeveralSelectedItemsIsShown) {
    openResults({{"A.PDF", 24, 27}, {"B.PDF", 28, 29}, {"C.PDF", 30, 31}});
    select(1);
    QTest::keyClick(controller->imageBrowser_2, Qt::Key_A, Qt::ControlModifier);
    settle();
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
}

TEST_F(Preview, AnotherType_ReplacesTheFileOfTheFirst) {
    openResults({{"A.MOV", 24, 27}, {"B.jpg", 28, 29}});
    select(0);
    EXPECT_TRUE(QFileInfo::exists(folder.filePath(QStringLiteral("dprv.MOV"))));
    select(1);
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("dprv.MOV"))));
    EXPECT_EQ(previewBytes("dprv.jpg").size(), 512);
}

TEST_F(Preview, StartEqualToEnd_AndEndBelowStart_MakeAnEmptyFile) {
    openResults({{"A.PDF", 24, 24}, {"B.PDF", 30, 20}});
    select(0);
    EXPECT_EQ(previewBytes("dprv.PDF"), QByteArray());
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
    select(1);
    EXPECT_EQ(previewBytes("dprv.PDF"), QByteArray());
    EXPECT_EQ(title(), QStringLiteral("B.PDF"));
}

TEST_F(Preview, AnUnreadableSector_KeepsTheLength) {
    openResults({{"A.PDF", 24, 28}});
    card.badForEver = {25};
    select(0);
    EXPECT_EQ(previewBytes("dprv.PDF").size(), 4 * 512);
}

TEST_F(Preview, AMediumThatIsGone_LeavesThePreviousFileUnderTheNewName) {
    openResults({{"A.PDF", 24, 27}, {"B.ZIP", 28, 29}});
    select(0);
    refuseOpen = true;
    select(1);
    EXPECT_EQ(controller->Preview_Temp_File, folder.filePath(QStringLiteral("dprv.PDF")));
    EXPECT_EQ(previewBytes("dprv.PDF").size(), 3 * 512);
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("dprv.ZIP"))));
    EXPECT_EQ(title(), QStringLiteral("B.ZIP"));
    EXPECT_FALSE(controller->session);
    EXPECT_FALSE(controller->ClearPreview_Window->isVisible());
}

TEST_F(Preview, APreviewFileThatCannotBeMade_SaysNothing) {
    openResults({{"A.PDF", 24, 27}});
    QDir(folder.path()).mkdir(QStringLiteral("dprv.PDF"));
    select(0);
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
    EXPECT_FALSE(controller->session);
}

TEST_F(Preview, APicture_IsShownFramedAndNoLargerThanThePane) {
    parts.picture = [](const QString&, QSize largest) {
        QImage picture(largest, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    };
    openResults({{"A.PDF", 24, 27}});
    select(0);
    const QImage shown = controller->_QuickLook_View->pixmap().toImage();
    EXPECT_LE(shown.width(), 200);
    EXPECT_LE(shown.height(), 200);
    EXPECT_EQ(shown.pixelColor(100, 100), QColor(Qt::red));
    EXPECT_NE(shown.pixelColor(4, 100), QColor(Qt::red)) << "the frame of a document";
}

TEST_F(Preview, TheSheetHangsWhileSectorsAreCopied_AndTheWindowTakesNoInput) {
    Gate gate;
    openResults({{"A.PDF", 24, 27}, {"B.PDF", 28, 29}});
    card.beforeRead = gate.atEveryRead();
    bool sheetSeen = false, sessionSeen = false;
    int openedMeanwhile = 0;
    when([&] { return gate.someoneWaits(); },
         [&] {
             sheetSeen = controller->ClearPreview_Window->isVisible();
             sessionSeen = controller->session;
             select(1);
             controller->backButton->setEnabled(true);
             click(controller->backButton);
             openedMeanwhile = opened;
             gate.open();
         });
    select(0);
    EXPECT_TRUE(sheetSeen);
    EXPECT_TRUE(sessionSeen);
    EXPECT_EQ(openedMeanwhile, 1) << "one preview at a time";
    EXPECT_EQ(controller->screen_counter, 3);
    EXPECT_EQ(controller->itemCount(), 2u);
    EXPECT_EQ(title(), QStringLiteral("A.PDF"));
}

TEST_F(Preview, StopDuringTheCopy_PreviewsWhatIsThereAndEndsTheScan) {
    openResults({{"A.PDF", 24, 60}});
    controller->stop_now = 0;
    card.beforeRead = [this](std::uint64_t read) {
        if (read == 2) {
            controller->stop_now = 1;
        }
    };
    answers.press(QStringLiteral("OK"));
    select(0);
    EXPECT_EQ(previewBytes("dprv.PDF").size(), 3 * 512);
    EXPECT_EQ(controller->stop_screen_already_show, 1);
    EXPECT_EQ(controller->stop_now, 0);
}

TEST_F(Preview, AScanThatEndsWhileAPreviewIsCopied_ShowsItsEndAfterwards) {
    Gate scanGate, copyGate;
    ScriptedMedium copied{64};
    copied.beforeRead = copyGate.atEveryRead();
    card.beforeRead = scanGate.atRead(60);
    std::atomic<int> openings{0};
    parts.openMedium = [&](const QString&) {
        return std::make_unique<ScriptedReader>(++openings == 2 ? copied : card);
    };
    openWithCard();
    toFileTypes(kRawFileMode);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor(
        [&] { return scanGate.someoneWaits() && controller->imageBrowser_2->model()->rowCount() >= 1; }));
    when([&] { return copyGate.someoneWaits(); }, [&] { scanGate.open(); });
    // What a scan says last when it leaves its end to a preview.
    when([this] { return controller->stop_now == 1; }, [&] { copyGate.open(); });
    answers.press(QStringLiteral("OK"));
    select(0);
    EXPECT_TRUE(scanEnds());
    EXPECT_EQ(openings, 3);
    EXPECT_EQ(answers.seen().size(), 1u);
    EXPECT_TRUE(controller->backButton->isEnabled());
    EXPECT_EQ(controller->stop_now, 0);
}

TEST_F(Preview, AnItemSelectedBetweenStopAndTheEnd_LeavesTheEndToTheScan) {
    Gate scanGate;
    card.beforeRead = scanGate.atRead(60);
    openWithCard();
    toFileTypes(kRawFileMode);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor(
        [&] { return scanGate.someoneWaits() && controller->imageBrowser_2->model()->rowCount() >= 1; }));
    click(controller->_stop_scan);  // the scan is still in its read
    select(0);
    EXPECT_EQ(controller->stop_screen_already_show, 0);
    EXPECT_FALSE(controller->backButton->isEnabled());
    answers.press(QStringLiteral("OK"));
    scanGate.open();
    EXPECT_TRUE(scanEnds());
    EXPECT_EQ(answers.seen().size(), 1u) << "the end panel comes once";
    EXPECT_EQ(controller->lastOutcome(), PassOutcome::Stopped);
}

TEST_F(Preview, ExitDuringACopyThatHangs_IsPossible) {
    Gate gate;
    openResults({{"A.PDF", 24, 27}});
    card.beforeRead = gate.atEveryRead();
    answers.press(QStringLiteral("Exit Without Saving"));
    answers.press(QStringLiteral("Yes"));
    when([&] { return gate.someoneWaits(); },
         [&] {
             click(controller->exitButton);
             gate.open();
         });
    select(0);
    EXPECT_EQ(terminations, 1);
    EXPECT_TRUE(controller->shutDown(kPatience));
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("dprv.PDF"))));
}

TEST_F(Preview, WhereTheSystemKeepsPicturesBack_TheReasonIsTold) {
    bool pictures = false;
    parts.picture = [&](const QString&, QSize) {
        return pictures ? QImage(40, 40, QImage::Format_RGB32) : QImage();
    };
    parts.obstacle = [](const QString& file) {
        return file.isEmpty() ? QStringLiteral("no cage")
                              : QStringLiteral("no cage for ") + QFileInfo(file).fileName();
    };
    openResults({{"A.PDF", 24, 27}, {"B.PDF", 28, 29}});
    select(0);
    EXPECT_TRUE(controller->previewFacts->text().endsWith(QStringLiteral("\nno cage for dprv.PDF")));
    pictures = true;
    select(1);
    EXPECT_FALSE(controller->previewFacts->text().contains(QStringLiteral("cage"))) << "there is a picture";
    EXPECT_TRUE(controller->photoCountLabel->text().endsWith(QStringLiteral("without thumbnails")));
    EXPECT_EQ(controller->photoCountLabel->toolTip(), QStringLiteral("no cage"));
}

TEST_F(Preview, ASoundFile_TellsHowLongItIsAndCanBeHeard) {
    MovieLog log;
    parts.sound = [&log](const QString& file) {
        EXPECT_TRUE(file.endsWith(QLatin1String("dprv.MP3"))) << "nothing else is asked for its sound";
        auto sound = std::make_unique<ScriptedMovie>(log);
        sound->duration = 205'000;
        return sound;
    };
    openResults({{"A.MP3", 24, 27}, {"B.PDF", 28, 29}, {"C.MP3", 30, 31}});
    EXPECT_FALSE(controller->soundControls->isVisible());
    select(0);
    EXPECT_TRUE(controller->previewFacts->text().endsWith(QStringLiteral(", 3:25")));
    EXPECT_TRUE(controller->_QuickLook_View->isVisible()) << "beside its picture";
    EXPECT_FALSE(controller->mMovieView->isVisible());
    click(controller->soundControls->findChild<QToolButton*>(QStringLiteral("moviePlay")));
    EXPECT_NE(controller->soundControls->movie()->rate(), 0);
    select(1);
    EXPECT_EQ(log.alive, 0) << "nothing sounds behind another item";
    EXPECT_FALSE(controller->soundControls->isVisible());
    EXPECT_FALSE(controller->previewFacts->text().contains(u':'));
    select(2);
    EXPECT_EQ(log.alive, 1);
    controller->show_hide_4_screen_RawFile(true);
    EXPECT_EQ(log.alive, 0) << "nor behind another screen";
}

TEST_F(Preview, TheControlsOfSound_LieInViewUnderItsPicture) {
    MovieLog log;
    parts.sound = [&log](const QString&) { return std::make_unique<ScriptedMovie>(log); };
    openResults({{"A.MP3", 24, 27}});
    select(0);
    settle();
    const QWidget* const controls = controller->soundControls;
    const QWidget* const box = controller->_QuickLook_View_Box;
    EXPECT_TRUE(box->rect().contains(controls->geometry()));
    EXPECT_GT(controls->y(), controller->_QuickLook_View->geometry().bottom());
    EXPECT_LT(controls->geometry().bottom(), controller->previewFacts->y());
    EXPECT_GT(controls->findChild<QSlider*>()->width(), 40);
    if (const QString shots = qEnvironmentVariable("VANTOR_SHOTS"); !shots.isEmpty()) {
        controller->window->grab().save(shots + QStringLiteral("/Preview.Sound.png"));
    }
    close();
}

TEST_F(Preview, ASoundFileThatCannotBePlayed_HasNoControls) {
    parts.sound = [](const QString&) { return nullptr; };
    openResults({{"A.MP3", 24, 27}});
    select(0);
    EXPECT_FALSE(controller->soundControls->isVisible());
    EXPECT_EQ(controller->previewFacts->text(), QStringLiteral("1.5 kB"));
}

TEST_F(Preview, AnItemAtTheVeryBeginning_IsCopiedFromSectorZero) {
    card.put(0, "FIRST").put(1, "SECOND");
    openResults({{"A.PDF", 0, 2}});
    select(0);
    const QByteArray bytes = previewBytes("dprv.PDF");
    ASSERT_EQ(bytes.size(), 2 * 512);
    EXPECT_TRUE(bytes.startsWith("FIRST"));
    EXPECT_EQ(bytes.mid(512, 6), "SECOND");
}

TEST_F(Preview, AMissingDisplayName_DoesNothing) {
    openResults({});
    controller->_QuickLook_View_Box->setTitle(QStringLiteral("as it was"));
    controller->setQuickLook_View_File(QStringLiteral("/tmp/x.pdf"), QString());
    EXPECT_EQ(title(), QStringLiteral("as it was"));
    controller->Image_Preview(QString(), QStringLiteral("name"));
    EXPECT_EQ(title(), QStringLiteral("as it was"));
    controller->setQuickLook_View(QStringLiteral("/tmp/x.pdf"));
    EXPECT_EQ(title(), QStringLiteral("x.pdf"));
}

}  // namespace
}  // namespace vantor
