// The way out: question, preview files, and what a refusal costs.
#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

const QString kQuestion =
    QStringLiteral("\nDo you really want to exit from 'Vantor - Memory Card Recovery'?");

class Exit : public WindowTest {
  protected:
    void touch(const char* name) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    bool exists(const char* name) const {
        return QFileInfo::exists(folder.filePath(QString::fromLatin1(name)));
    }
};

TEST_F(Exit, TheQuestionHasItsTextAndButtons) {
    open();
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    ASSERT_EQ(answers.seen().size(), 1u);
    EXPECT_EQ(answers.seen()[0].text, kQuestion);
    EXPECT_EQ(answers.seen()[0].informative, QString());
    EXPECT_EQ(answers.seen()[0].buttons, (QStringList{QStringLiteral("Yes"), QStringLiteral("No")}));
    EXPECT_EQ(answers.seen()[0].defaultButton, QStringLiteral("Yes"));
    EXPECT_EQ(terminations, 0);
    EXPECT_TRUE(controller->window->isVisible());
}

TEST_F(Exit, EscapeIsNo) {
    open();
    answers.then([](QDialog* question) { QTest::keyClick(question, Qt::Key_Escape); });
    click(controller->exitButton);
    EXPECT_EQ(terminations, 0);
}

TEST_F(Exit, ReturnIsYes) {
    open();
    answers.then([](QDialog* question) { QTest::keyClick(question, Qt::Key_Return); });
    click(controller->exitButton);
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, ClosingTheWindowAsksTheSame) {
    open();
    answers.press(QStringLiteral("No"));
    EXPECT_FALSE(controller->window->close());
    EXPECT_EQ(answers.seen().at(0).text, kQuestion);
    EXPECT_TRUE(controller->window->isVisible());
    answers.press(QStringLiteral("Yes"));
    controller->window->close();
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, Yes_DeletesEveryPreviewFileAndNothingElse) {
    open();
    for (const char* name :
         {"dprv", "dprv.jpg", "dprv.MOV", "dprv2.jpg", "xdprv.jpg", "dprv.tar.gz", "Help.pdf"}) {
        touch(name);
    }
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    for (const char* gone : {"dprv", "dprv.jpg", "dprv.MOV"}) {
        EXPECT_FALSE(exists(gone)) << gone;
    }
    for (const char* kept : {"dprv2.jpg", "xdprv.jpg", "dprv.tar.gz", "Help.pdf", "NoPreview.png"}) {
        EXPECT_TRUE(exists(kept)) << kept;
    }
}

TEST_F(Exit, No_DeletesNothing) {
    open();
    touch("dprv.jpg");
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    EXPECT_TRUE(exists("dprv.jpg"));
}

TEST_F(Exit, AResourcesFolderThatIsGone_IsNoError) {
    open();
    QDir(folder.path()).removeRecursively();
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, AfterARefusal_TextChangesAreNoLongerHeard) {
    openWithCard();
    toRange(kPhotoMode);
    choose(controller->_sector_range_rd);
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_1);
    ASSERT_EQ(controller->_Start_Slider->value(), 1);
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    controller->_Start_slider_val->clear();
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_9);
    EXPECT_EQ(controller->_Start_Slider->value(), 1);
}

TEST_F(Exit, WithUnsavedItems_AsksAboutThemFirst) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    answers.press(QStringLiteral("Stay"));
    click(controller->exitButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNone of the 3 found items has been saved."));
    EXPECT_EQ(terminations, 0);
    answers.press(QStringLiteral("Exit Without Saving"));
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    EXPECT_EQ(answers.seen().back().text, kQuestion);
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, DuringAScanToo_AsksAboutUnsavedItemsFirst) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && controller->itemCount() == 1; }));
    answers.press(QStringLiteral("Stay"));
    click(controller->exitButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThe item that was found has not been saved."));
    EXPECT_EQ(terminations, 0);
    answers.press(QStringLiteral("OK"));
    gate.open();
    EXPECT_TRUE(scanEnds());
}

// Nothing was found when the question came up, and a photo while it stood.
TEST_F(Exit, ItemsFoundWhileTheQuestionStands_AreAskedForAtTheAnswer) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atRead(3);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits(); }));
    ASSERT_EQ(controller->itemCount(), 0u);
    answers.then([&](QDialog* question) {
        gate.open();
        EXPECT_TRUE(waitFor([this] { return controller->itemCount() > 0; }));
        pressButton(question, QStringLiteral("Yes"));
    });
    answers.press(QStringLiteral("Stay"));
    answers.press(QStringLiteral("OK"));
    click(controller->exitButton);
    ASSERT_GE(answers.seen().size(), 2u);
    EXPECT_EQ(answers.seen()[0].text, kQuestion);
    EXPECT_TRUE(answers.seen()[1].text.endsWith(QStringLiteral(" been saved.")));
    EXPECT_EQ(terminations, 0);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->itemCount(), 3u);
}

// Counts how often the window looks at what its threads have for it.
class WatchesLooks : public QObject {
  public:
    explicit WatchesLooks(QObject* window) : m_window(window) { qApp->installEventFilter(this); }
    int count = 0;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += watched == m_window && event->type() == QEvent::MetaCall;
        return false;
    }

  private:
    QObject* m_window;
};

class EndPanel : public Exit, public ::testing::WithParamInterface<bool> {};

TEST_P(EndPanel, WaitsUntilWhatStandsOverTheWindowIsClosed) {
    const bool help = GetParam();
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    click(controller->_Thro_Mode_Chk);
    card.beforeRead = gate.atRead(60);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && controller->itemCount() == 1; }));
    QPointer<QDialog> standing;
    answers.then([&](QDialog* over) {
        standing = over;
        gate.open();
        EXPECT_TRUE(waitFor([this] { return controller->for_index == controller->end_sector; }));
        const WatchesLooks looks(controller.get());
        EXPECT_TRUE(waitFor([&] { return looks.count > 5; }));
        EXPECT_EQ(QApplication::activeModalWidget(), over);
        EXPECT_TRUE(controller->scanRunning()) << "it waits to show its end";
        pressButton(over, help ? QStringLiteral("Continue") : QStringLiteral("Stay"));
    });
    answers.then([&](QDialog* panel) {
        EXPECT_EQ(panel, controller->SaveFile_Info_Window);
        EXPECT_TRUE(standing == nullptr || !standing->isVisible());
        pressButton(panel, QStringLiteral("OK"));
    });
    click(help ? controller->helpButton : controller->exitButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_TRUE(controller->backButton->isEnabled());
}

INSTANTIATE_TEST_SUITE_P(HelpAndQuestion, EndPanel, ::testing::Bool());

TEST_F(Exit, AfterStay_TheScanGoesOnAndNotificationsArrive) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    choose(controller->_sector_range_rd);
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_1);
    ASSERT_EQ(controller->_Start_Slider->value(), 1);
    choose(controller->_entire_disk_rd);
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && controller->itemCount() == 1; }));
    answers.press(QStringLiteral("Stay"));
    click(controller->exitButton);
    ASSERT_EQ(answers.seen().size(), 1u) << "the exit question is not asked";
    answers.press(QStringLiteral("OK"));
    gate.open();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->itemCount(), 3u) << "both passes";
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 3);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    choose(controller->_sector_range_rd);
    controller->_Start_slider_val->clear();
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_9);
    EXPECT_EQ(controller->_Start_Slider->value(), 9) << "text changes are still heard";
}

}  // namespace
}  // namespace vantor
