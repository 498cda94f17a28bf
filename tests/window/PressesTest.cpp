// A press belongs to the screen on which it began: held keys, quick clicks, and where the keyboard is left.
#include <QApplication>
#include <QPushButton>

#include "results/RecoveryMode.h"
#include "tests/window/GatedWindow.h"

namespace vantor {
namespace {

class Presses : public GatedWindow, public ::testing::WithParamInterface<int> {
  protected:
    // As a keyboard repeats a key that is not let go, after the first press.
    static void hold(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        constexpr int kRepeats = 20;
        for (int i = 0; i < kRepeats; ++i) {
            QTest::simulateEvent(widget, true, key, modifiers, {}, true);
        }
    }
    QWidget* keyboardAt() const { return controller->window->focusWidget(); }
    // After a sheet or a panel, which took the activation with it.
    void hasKeyboardAgain() {
        settle();
        controller->window->activateWindow();
        ASSERT_TRUE(waitFor([this] { return controller->window->isActiveWindow(); }));
    }
    void pressReturn() { QTest::keyClick(keyboardAt(), Qt::Key_Return); }
    bool photo() const { return GetParam() == kPhotoMode; }
    QWidget* list() const {
        return photo() ? static_cast<QWidget*>(controller->imageBrowser) : controller->imageBrowser_2;
    }
    // The screen from which Next starts the search of the mode.
    void toLastScreen() {
        openWithCard();
        photo() ? toRange(GetParam()) : toFileTypes(GetParam());
        atStart = controller->screen_counter;
    }
    bool searching() {
        return waitFor([this] { return gate.someoneWaits(); });
    }

    int atStart = 0;
};

using FirstScreen = Presses;

TEST_F(FirstScreen, ReturnThatIsHeld_GoesOneStep) {
    openWithCard();
    selectMedium();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyPress(controller->idTableView, key);
        ASSERT_EQ(controller->screen_counter, 1);
        hold(keyboardAt(), key);
        EXPECT_EQ(controller->screen_counter, 1);
        click(controller->backButton);
        hasKeyboardAgain();
        selectMedium();
    }
}

// A display server repeats a key by letting it go and pressing it anew, which the toolkit may take for two
// presses.
TEST_F(FirstScreen, ReturnThatTheServerRepeats_IsHeldToo) {
    openWithCard();
    const auto send = [](QWidget* widget, QEvent::Type type, quint64 time) {
        QKeyEvent event(type, Qt::Key_Return, {});
        event.setTimestamp(time);
        QCoreApplication::sendEvent(widget, &event);
        return event.isAccepted();
    };
    answers.then([&](QDialog* alert) {
        send(alert, QEvent::KeyRelease, 1000);
        EXPECT_TRUE(send(alert, QEvent::ShortcutOverride, 1001)) << "no shortcut is looked for";
        send(alert, QEvent::KeyPress, 1001);
        EXPECT_TRUE(alert->isVisible());
        send(alert, QEvent::KeyRelease, 1030);
        EXPECT_FALSE(send(alert, QEvent::ShortcutOverride, 1100));
        send(alert, QEvent::KeyPress, 1100);
        EXPECT_FALSE(alert->isVisible());
    });
    click(controller->nextButton);  // without a medium
}

TEST_F(FirstScreen, AShortcutThatIsHeld_GoesOneStepToo) {
    openWithCard();
    selectMedium();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_N}) {
        QTest::keyPress(controller->idTableView, key, Qt::AltModifier);
        ASSERT_TRUE(waitFor([this] { return controller->screen_counter == 1; }));
        ASSERT_TRUE(waitFor([this] { return !controller->nextButton->isDown(); }));
        hold(keyboardAt(), key, Qt::AltModifier);
        // A button that a mnemonic presses clicks a moment later.
        EXPECT_FALSE(controller->nextButton->isDown());
        EXPECT_EQ(controller->screen_counter, 1);
        click(controller->backButton);
        hasKeyboardAgain();
        selectMedium();
    }
}

// As when Alt is let go first: what is left is an arrow key on a choice.
TEST_F(FirstScreen, AnArrowThatIsHeldFromTheScreenBefore_ChoosesNothing) {
    openWithCard();
    selectMedium();
    QTest::keyPress(controller->idTableView, Qt::Key_Right, Qt::AltModifier);
    ASSERT_TRUE(waitFor([this] { return controller->screen_counter == 1; }));
    hasKeyboardAgain();
    ASSERT_EQ(keyboardAt(), controller->_entire_disk_rd);
    hold(keyboardAt(), Qt::Key_Right);
    EXPECT_TRUE(controller->_entire_disk_rd->isChecked());
    QTest::keyClick(keyboardAt(), Qt::Key_Right);
    EXPECT_TRUE(controller->_sector_range_rd->isChecked()) << "pressed anew";
    hold(keyboardAt(), Qt::Key_Left);
    EXPECT_TRUE(controller->_entire_disk_rd->isChecked()) << "and held there";
}

// The toolkit leads back to the card that had the keyboard last, which need not be the chosen one.
TEST_F(FirstScreen, TabLeadsToTheChosenMode) {
    openWithCard();
    toRange(kRawFileMode);
    click(controller->backButton);
    hasKeyboardAgain();
    ASSERT_TRUE(controller->_rec_mode_Photo->isChecked());
    controller->idTableView->setFocus();
    QTest::keyClick(keyboardAt(), Qt::Key_Tab);
    EXPECT_EQ(keyboardAt(), controller->_rec_mode_Photo);
    QTest::keyClick(keyboardAt(), Qt::Key_Right);
    EXPECT_EQ(keyboardAt(), controller->_rec_mode_Video);
    EXPECT_EQ(Recovery_MODE, kVideoMode);
    // And from behind, before any of the cards had the keyboard.
    controller->Photo_Mode_Radio(nullptr);
    controller->refreshButton->setFocus();
    QTest::keyClick(keyboardAt(), Qt::Key_Backtab);
    EXPECT_EQ(keyboardAt(), controller->_rec_mode_Photo);
}

TEST_F(FirstScreen, QuickClicksOnNext_GoOneStep) {
    openWithCard();
    selectMedium();
    QPushButton* const next = controller->nextButton;
    const auto send = [next](QEvent::Type type, quint64 time) {
        const QPointF spot = next->rect().center();
        QMouseEvent event(type, spot, next->mapToGlobal(spot), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        event.setTimestamp(time);
        QCoreApplication::sendEvent(next, &event);
    };
    quint64 time = 1'000'000;
    send(QEvent::MouseButtonPress, time);
    send(QEvent::MouseButtonRelease, time += 40);
    ASSERT_EQ(controller->screen_counter, 1);
    send(QEvent::MouseButtonDblClick, time += 80);
    send(QEvent::MouseButtonRelease, time += 40);
    EXPECT_EQ(controller->screen_counter, 1) << "a double click";
    send(QEvent::MouseButtonPress, time += 80);
    send(QEvent::MouseButtonRelease, time += 40);
    EXPECT_EQ(controller->screen_counter, 1) << "and a third one";
    // Who has looked at the new screen clicks on it.
    choose(controller->_sector_range_rd);
    controller->_Start_slider_val->clear();
    answers.press(QStringLiteral("OK"));
    send(QEvent::MouseButtonPress, time += 5000);
    send(QEvent::MouseButtonRelease, time += 40);
    EXPECT_EQ(answers.seen().size(), 1u) << "the range is refused, so Next was heard";
}

TEST_F(FirstScreen, AButtonPressedBeforeTheScreenChanged_DoesNothingOnTheNext) {
    openWithCard();
    toRange(kPhotoMode);
    QTest::mousePress(controller->nextButton, Qt::LeftButton);
    ASSERT_TRUE(controller->nextButton->isDown());
    controller->Back_btn(nullptr);
    ASSERT_EQ(controller->screen_counter, 0);
    QTest::mouseRelease(controller->nextButton, Qt::LeftButton);
    EXPECT_FALSE(controller->nextButton->isDown());
    EXPECT_TRUE(answers.seen().empty()) << "Next was heard, and no medium is chosen";
}

TEST_F(FirstScreen, ADoubleClickThatClosesAPanel_IsNoClickOnWhatIsBeneath) {
    openWithCard();
    QPoint spot;
    answers.then([&](QDialog* alert) {
        auto* ok = alert->findChild<QPushButton*>();
        spot = ok->mapToGlobal(ok->rect().center());
        QTest::mouseClick(ok, Qt::LeftButton);
    });
    click(controller->nextButton);  // without a medium
    const QPoint below = controller->helpButton->rect().center();
    QMouseEvent second(QEvent::MouseButtonDblClick, below, spot, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(controller->helpButton, &second);
    EXPECT_FALSE(controller->helpButton->isDown());
}

TEST_P(Presses, ReturnTwice_StartsTheSearchAndDoesNotStopIt) {
    toLastScreen();
    card.beforeRead = gate.atRead(3);
    pressReturn();
    ASSERT_TRUE(searching());
    EXPECT_EQ(controller->screen_counter, atStart + 1);
    hold(keyboardAt(), Qt::Key_Return);
    pressReturn();
    pressReturn();
    EXPECT_EQ(controller->stop_now, 0);
    EXPECT_EQ(keyboardAt(), list());
    answers.press(QStringLiteral("OK"));
    gate.open();
    EXPECT_TRUE(scanEnds());
    EXPECT_EQ(controller->lastOutcome(), PassOutcome::Completed);
}

TEST_P(Presses, StopIsNeverGivenTheKeyboardByItself) {
    toLastScreen();
    int times = 0;
    QObject::connect(
        qApp, &QApplication::focusChanged, controller->_stop_scan,
        [&times, stop = controller->_stop_scan](QWidget*, QWidget* now) { times += now == stop; });
    controller->nextButton->setFocus();
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(searching());
    EXPECT_EQ(times, 0);
    // Whatever had the keyboard is no longer there.
    QPushButton* const save = photo() ? controller->saveAllButton : controller->saveAllButton_Sig;
    for (QPushButton* button : {save, controller->exitButton, controller->helpButton}) {
        button->setEnabled(true);
        button->setFocus();
        ASSERT_EQ(keyboardAt(), button);
        button->setEnabled(false);
        EXPECT_EQ(keyboardAt(), list());
        button->setEnabled(true);
    }
    EXPECT_FALSE(controller->_stop_scan->isDefault());
    // Who goes there by hand stops the search, with Return too.
    controller->_stop_scan->setFocus();
    answers.press(QStringLiteral("OK"));
    pressReturn();
    EXPECT_EQ(controller->stop_now, 1);
    gate.open();
    EXPECT_TRUE(scanEnds());
}

TEST_P(Presses, ReturnThatIsHeld_DoesNotCloseTheEndPanel) {
    toLastScreen();
    answers.then([this](QDialog* panel) {
        hold(panel, Qt::Key_Return);
        EXPECT_TRUE(panel->isVisible());
        QTest::keyClick(panel, Qt::Key_Return);
        EXPECT_FALSE(panel->isVisible());
    });
    click(controller->nextButton);
    EXPECT_TRUE(scanEnds());
}

TEST_P(Presses, AfterAMediumThatCannotBeOpened_ReturnDoesNotLeaveTheProgram) {
    toLastScreen();
    refuseOpen = true;
    answers.then([](QDialog* alert) { QTest::keyClick(alert, Qt::Key_Return); });
    pressReturn();
    ASSERT_TRUE(scanEnds());
    ASSERT_EQ(answers.seen().back().text, QStringLiteral("\nError in storage media reading."));
    EXPECT_EQ(controller->screen_counter, atStart);
    EXPECT_EQ(keyboardAt(),
              photo() ? static_cast<QWidget*>(controller->_entire_disk_rd) : controller->idCheckTableView);
    // Return tries once more.
    hasKeyboardAgain();
    answers.press(QStringLiteral("OK"));
    pressReturn();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nError in storage media reading."));
    EXPECT_EQ(terminations, 0);
}

TEST_P(Presses, Back_LeavesTheKeyboardOnTheScreen) {
    toLastScreen();
    scanToEnd();
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(keyboardAt(),
              photo() ? static_cast<QWidget*>(controller->_entire_disk_rd) : controller->idCheckTableView);
    if (!photo()) {
        click(controller->backButton);
        EXPECT_EQ(keyboardAt(), controller->_entire_disk_rd_Sig);
    }
    click(controller->backButton);
    EXPECT_EQ(keyboardAt(), controller->idTableView);
}

INSTANTIATE_TEST_SUITE_P(Modes, Presses, ::testing::Values(kPhotoMode, kVideoMode, kRawFileMode));

}  // namespace
}  // namespace vantor
