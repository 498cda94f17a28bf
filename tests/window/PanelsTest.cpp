// The information panels, the folder chooser, the help window, and the two forms of alert.
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"
#include "window/widgets/Alerts.h"

namespace vantor {
namespace {

class Panels : public WindowTest {
  protected:
    // The chooser is a sheet of the window and no modal loop of its own.
    QFileDialog* chooser() const {
        for (auto* dialog : controller->window->findChildren<QFileDialog*>()) {
            if (dialog->isVisible()) {
                return dialog;
            }
        }
        return nullptr;
    }
};

TEST_F(Panels, ThePathsOfBothSetsFollowEitherChooser) {
    openWithCard();
    QTemporaryDir first, second;
    toRange(kPhotoMode);
    answers.press(QStringLiteral("Continue"));
    answers.then([&](QDialog* dialog) {
        EXPECT_EQ(qobject_cast<QFileDialog*>(dialog)->fileMode(), QFileDialog::Directory);
        EXPECT_TRUE(qobject_cast<QFileDialog*>(dialog)->testOption(QFileDialog::ShowDirsOnly));
        chooseFolder(dialog, first.path());
    });
    click(controller->_browse_path);
    ASSERT_TRUE(waitFor([this] { return answers.allGiven() && chooser() == nullptr; }));
    EXPECT_EQ(controller->_path->text(), first.path());
    EXPECT_EQ(controller->_path_Sig->text(), first.path());
    click(controller->backButton);
    toRange(kVideoMode);
    EXPECT_EQ(controller->_path_Sig->text(), QString()) << "the set that is filled forgets its folder";
    answers.press(QStringLiteral("Continue"));
    answers.then([&](QDialog* dialog) { chooseFolder(dialog, second.path()); });
    click(controller->_browse_path_Sig);
    ASSERT_TRUE(waitFor([this] { return answers.allGiven() && chooser() == nullptr; }));
    EXPECT_EQ(controller->_path->text(), second.path());
    EXPECT_EQ(controller->_path_Sig->text(), second.path());
}

TEST_F(Panels, ACancelledChooser_KeepsThePaths) {
    openWithCard();
    toRange(kPhotoMode);
    controller->_path->setText(QStringLiteral("/as/it/was"));
    answers.press(QStringLiteral("Continue"));
    answers.then([](QDialog* dialog) { dialog->reject(); });
    click(controller->_browse_path);
    ASSERT_TRUE(waitFor([this] { return answers.allGiven() && chooser() == nullptr; }));
    EXPECT_EQ(controller->_path->text(), QStringLiteral("/as/it/was"));
}

TEST_F(Panels, EscapeInTheInformationPanel_ShowsNoChooser) {
    openWithCard();
    toRange(kPhotoMode);
    answers.then([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    click(controller->_browse_path);
    EXPECT_EQ(chooser(), nullptr);
}

TEST_F(Panels, AFolderOnTheMedium_IsRefusedWithTheReason) {
    QTemporaryDir onCard;
    parts.isOnMedium = [&](const QString& chosen, const QString&) { return chosen == onCard.path(); };
    openWithCard();
    toRange(kPhotoMode);
    answers.press(QStringLiteral("Continue"));
    answers.then([&](QDialog* dialog) { chooseFolder(dialog, onCard.path()); });
    answers.press(QStringLiteral("OK"));
    click(controller->_browse_path);
    ASSERT_TRUE(waitFor([this] { return answers.allGiven(); }));
    EXPECT_EQ(controller->_path->text(), QString());
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThis folder cannot be the destination."));
}

TEST_F(Panels, TheCallbackForm_TakesTheFolderOnOkOnly) {
    openWithCard();
    QTemporaryDir folderOne;
    QFileDialog panel;
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::DontUseNativeDialog);
    panel.selectFile(folderOne.path());
    controller->openPanelDidEnd(&panel, 0, nullptr);
    EXPECT_EQ(controller->_path->text(), QString());
    controller->openPanelDidEnd(&panel, 1, nullptr);
    EXPECT_EQ(controller->_path->text(), folderOne.path());
    EXPECT_EQ(controller->_path_Sig->text(), folderOne.path());
}

TEST_F(Panels, TheEndPanelFollowsTheMode) {
    openWithCard();
    for (const int mode : {kPhotoMode, kVideoMode, kRawFileMode}) {
        if (mode == kPhotoMode) {
            toRange(mode);
        } else {
            toFileTypes(mode);
        }
        bool expected = false;
        answers.then([&](QDialog* dialog) {
            expected = dialog == (mode == kPhotoMode ? controller->SaveFile_Info_Window
                                                     : controller->SaveFile_Info_For_RAW_Window);
            pressButton(dialog, QStringLiteral("OK"));
        });
        click(controller->nextButton);
        ASSERT_TRUE(scanEnds());
        EXPECT_TRUE(expected);
        answers.press(QStringLiteral("Go Back Without Saving"));
        while (controller->screen_counter > 0) {
            click(controller->backButton);
        }
    }
}

TEST_F(Panels, Help_OpensItsDocument) {
    QFile document(folder.filePath(QStringLiteral("Help.pdf")));
    ASSERT_TRUE(document.open(QIODevice::WriteOnly));
    open();
    answers.then([this](QDialog* help) {
        auto* link = help->findChild<QPushButton*>(QStringLiteral("_Help_File_Label"));
        EXPECT_TRUE(link->font().underline());
        EXPECT_TRUE(link->font().bold());
        EXPECT_EQ(link->cursor().shape(), Qt::OpenHandCursor);
        QTest::mouseClick(link, Qt::LeftButton);
        EXPECT_TRUE(help->isVisible());
        pressButton(help, QStringLiteral("Continue"));
    });
    click(controller->helpButton);
    EXPECT_EQ(documentsOpened, QStringList{folder.filePath(QStringLiteral("Help.pdf"))});
    EXPECT_FALSE(controller->HelpWindow->isVisible());
}

TEST_F(Panels, ADocumentThatNothingCanOpen_IsTold) {
    QFile document(folder.filePath(QStringLiteral("Help.pdf")));
    ASSERT_TRUE(document.open(QIODevice::WriteOnly));
    parts.openDocument = [](const QString&) { return false; };
    open();
    answers.then([this](QDialog* help) {
        answers.press(QStringLiteral("OK"));
        QTest::mouseClick(help->findChild<QPushButton*>(QStringLiteral("_Help_File_Label")), Qt::LeftButton);
        EXPECT_TRUE(help->isVisible());
        pressButton(help, QStringLiteral("Continue"));
    });
    click(controller->helpButton);
    ASSERT_EQ(answers.seen().size(), 2u);
    EXPECT_EQ(answers.seen()[1].text, QStringLiteral("\nThe help document could not be opened."));
    EXPECT_TRUE(answers.seen()[1].informative.endsWith(document.fileName()));
}

TEST_F(Panels, AFolderThatNothingCanOpen_IsTold) {
    QTemporaryDir saved;
    bool canOpen = true;
    parts.openDocument = [&](const QString& path) {
        documentsOpened.append(path);
        return canOpen;
    };
    openWithCard();
    toRange(kPhotoMode);
    controller->_path->setText(saved.path());
    scanToEnd();
    click(controller->_open_folder);
    EXPECT_EQ(documentsOpened, QStringList{saved.path()});
    canOpen = false;
    answers.press(QStringLiteral("OK"));
    click(controller->_open_folder);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThe folder could not be opened."));
    EXPECT_TRUE(answers.seen().back().informative.startsWith("This desktop has no program"));
    ASSERT_TRUE(saved.remove());
    answers.press(QStringLiteral("OK"));
    click(controller->_open_folder);
    EXPECT_TRUE(answers.seen().back().informative.startsWith("It is not there any more."));
    EXPECT_EQ(documentsOpened.size(), 2);
}

TEST_F(Panels, WithoutTheDocument_OneAlertAndTheHelpWindowStays) {
    open();
    answers.then([this](QDialog* help) {
        answers.press(QStringLiteral("OK"));
        QTest::mouseClick(help->findChild<QPushButton*>(QStringLiteral("_Help_File_Label")), Qt::LeftButton);
        EXPECT_TRUE(help->isVisible());
        pressButton(help, QStringLiteral("Continue"));
    });
    click(controller->helpButton);
    ASSERT_EQ(answers.seen().size(), 2u);
    EXPECT_EQ(answers.seen()[1].text, QStringLiteral("\nHelp file does not exist!"));
    EXPECT_EQ(answers.seen()[1].informative, QString());
    EXPECT_EQ(answers.seen()[1].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_EQ(answers.seen()[1].defaultButton, QStringLiteral("OK"));
    EXPECT_TRUE(documentsOpened.isEmpty());
}

TEST_F(Panels, MessageBox_PutsALineBreakInFront) {
    answers.press(QStringLiteral("OK"));
    Show_MessageBox(QStringLiteral("Hello"));
    EXPECT_EQ(answers.seen().at(0).text, QStringLiteral("\nHello"));
    EXPECT_EQ(answers.seen().at(0).buttons, QStringList{QStringLiteral("OK")});
    EXPECT_EQ(answers.seen().at(0).defaultButton, QStringLiteral("OK"));
}

TEST_F(Panels, AnAlertIsWideEnoughToBeRead) {
    answers.then([](QDialog* box) {
        EXPECT_GE(box->width(), 50 * box->fontMetrics().averageCharWidth());
        pressButton(box, QStringLiteral("OK"));
    });
    runAlert(
        {QStringLiteral("\nDone."), QStringLiteral("There is a good deal to be said about how it went.")});
    answers.then([](QDialog* box) {
        const auto* words = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        EXPECT_GE(words->width(), words->sizeHint().width());
        pressButton(box, QStringLiteral("No"));
    });
    Show_YES_NO_MessageBox(
        QStringLiteral("\nDo you really want to exit from 'Vantor - Memory Card Recovery'?"));
}

TEST_F(Panels, YesNo_IsTrueForYesAlone) {
    answers.press(QStringLiteral("Yes"));
    EXPECT_TRUE(Show_YES_NO_MessageBox(QStringLiteral("Really?")));
    EXPECT_EQ(answers.seen().at(0).text, QStringLiteral("Really?"));
    EXPECT_EQ(answers.seen().at(0).defaultButton, QStringLiteral("Yes"));
    answers.press(QStringLiteral("No"));
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Really?")));
    answers.then([](QDialog* question) { question->reject(); });
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Really?")));
}

}  // namespace
}  // namespace vantor
