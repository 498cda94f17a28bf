// What a second run knows of the first, and what it does not.
#include <sys/stat.h>

#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"
#include "window/saving/RememberedChoices.h"

namespace vantor {
namespace {

class Remembering : public WindowTest {
  protected:
    Remembering() { parts.settingsFile = folder.filePath(QStringLiteral("settings.conf")); }
    void exitProgram() {
        answers.press(QStringLiteral("Yes"));
        controller->Exit_App();
        ASSERT_TRUE(controller->shutDown(kPatience));
        close();
    }
    // The folder that a chooser of the destination begins with.
    QString beginsWith() {
        QString directory;
        answers.press(QStringLiteral("Continue"));
        answers.then([&directory](QDialog* chooser) {
            directory = qobject_cast<QFileDialog*>(chooser)->directory().absolutePath();
            chooser->reject();
        });
        controller->Browse_Path(nullptr);
        EXPECT_TRUE(waitFor([this] { return answers.allGiven(); }));
        settle();
        return directory;
    }
};

TEST_F(Remembering, TheWindowComesBackAsItWasLeft) {
    openWithCard();
    controller->window->resize(1010, 710);
    controller->show_hide_4_screen_RawFile(false);
    settle();
    controller->rawSplitter->setSizes({300, 300, 400});
    const QList<int> sizes = controller->rawSplitter->sizes();
    exitProgram();
    open();
    EXPECT_EQ(controller->window->size(), QSize(1010, 710));
    controller->show_hide_4_screen_RawFile(false);
    settle();
    EXPECT_EQ(controller->rawSplitter->sizes(), sizes);
}

TEST_F(Remembering, ADestinationIsWhereTheChooserBegins_NotWhatIsChosen) {
    openWithCard();
    toRange(kPhotoMode);
    const QString chosen = folder.filePath(QStringLiteral("saved"));
    ASSERT_TRUE(QDir().mkpath(chosen));
    answers.press(QStringLiteral("Continue"));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, chosen); });
    controller->Browse_Path(nullptr);
    ASSERT_TRUE(waitFor([this, &chosen] { return controller->_path->text() == chosen; }));
    exitProgram();
    source->order.clear();
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_EQ(controller->_path->text(), QString()) << "every run begins without a destination";
    EXPECT_EQ(beginsWith(), chosen);
}

TEST_F(Remembering, SettingsThatAreNoFileOrFarTooLarge_AreDoneWithout) {
    openWithCard();
    controller->window->resize(1010, 710);
    exitProgram();
    constexpr qint64 kFarTooLarge = qint64{64} << 20;
    ASSERT_TRUE(QFile::resize(parts.settingsFile, kFarTooLarge));
    open();
    EXPECT_NE(controller->window->size(), QSize(1010, 710));
    exitProgram();
    EXPECT_EQ(QFileInfo(parts.settingsFile).size(), kFarTooLarge) << "and left as they are";
    ASSERT_TRUE(QFile::remove(parts.settingsFile));
    ASSERT_EQ(::mkfifo(QFile::encodeName(parts.settingsFile).constData(), 0600), 0);
    open();  // which nobody writing to the pipe holds up
    EXPECT_TRUE(controller->window->isVisible());
    exitProgram();
}

TEST_F(Remembering, WhatASearchBeginsWith_IsNotRemembered) {
    openWithCard();
    controller->_zoom_slider->setValue(controller->_zoom_slider->maximum());
    click(controller->_rec_mode_Video);
    exitProgram();
    open();
    EXPECT_EQ(controller->_zoom_slider->value(), controller->_zoom_slider->maximum() / 2);
    EXPECT_EQ(Recovery_MODE, kPhotoMode);
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isChecked());
}

TEST_F(Remembering, ForgottenSettingsStayForgotten) {
    openWithCard();
    controller->window->resize(1010, 710);
    exitProgram();
    open();
    ASSERT_EQ(controller->window->size(), QSize(1010, 710));
    answers.then([](QDialog* help) {
        QTest::mouseClick(help->findChild<QPushButton*>(QStringLiteral("forgetButton")), Qt::LeftButton);
    });
    answers.press(QStringLiteral("OK"));
    when([this] { return answers.seen().size() >= 3 && answers.allGiven(); },
         [this] { controller->HelpWindow->reject(); });
    controller->Help_btn(nullptr);
    ASSERT_TRUE(answers.allGiven());
    EXPECT_EQ(QSettings(parts.settingsFile, QSettings::IniFormat).allKeys(), QStringList());
    exitProgram();
    EXPECT_EQ(QSettings(parts.settingsFile, QSettings::IniFormat).allKeys(), QStringList());
}

TEST_F(Remembering, TheHelpWindowTellsOfTheProgram) {
    openWithCard();
    answers.then([](QDialog* help) {
        QTest::mouseClick(help->findChild<QPushButton*>(QStringLiteral("aboutButton")), Qt::LeftButton);
    });
    answers.press(QStringLiteral("OK"));
    when([this] { return answers.seen().size() == 2 && answers.allGiven(); },
         [this] { controller->HelpWindow->reject(); });
    controller->Help_btn(nullptr);
    ASSERT_EQ(answers.seen().size(), 2u);
    EXPECT_TRUE(answers.seen()[1].text.contains(QCoreApplication::applicationVersion()));
    for (const char* const word : {"GNU General Public License", "version 3", "FFmpeg", qVersion()}) {
        EXPECT_TRUE(answers.seen()[1].informative.contains(QLatin1String(word))) << word;
    }
}

TEST(RememberedChoices, ComeBackAsTheyWere) {
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.conf")), QSettings::IniFormat);
    SavingChoices choices;
    choices.report = false;
    choices.policy = {true, SaveNames::Found, SaveFolders::Date, true, false, 12'345, 640, false, true, true};
    rememberChoices(settings, choices);
    EXPECT_EQ(recalledChoices(settings).policy, choices.policy);
    EXPECT_FALSE(recalledChoices(settings).report);
    rememberChoices(settings, {});
    EXPECT_EQ(settings.allKeys(), QStringList()) << "those of a first start follow the program";
    EXPECT_EQ(recalledChoices(settings).policy, SavePolicy());
}

TEST(RememberedChoices, JunkIsAsNothing) {
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.conf")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("saving/names"), 99);
    settings.setValue(QStringLiteral("saving/folders"), -1);
    settings.setValue(QStringLiteral("saving/minBytes"), QStringLiteral("-5"));
    settings.setValue(QStringLiteral("saving/minPixels"), QStringLiteral("99999999999"));
    EXPECT_EQ(recalledChoices(settings).policy, SavePolicy());
}

}  // namespace
}  // namespace vantor
