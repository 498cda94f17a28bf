// Saving from the results screens: destination, progress, summary, and what stays unsaved.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/window/SavingWindow.h"
#include "window/widgets/Theme.h"

namespace vantor {
namespace {

// Which of the program's pictures an alert bears.
QString pictureOf(QDialog* alert) {
    const auto* const box = qobject_cast<QMessageBox*>(alert);
    const QImage seen = box != nullptr ? box->iconPixmap().toImage() : QImage();
    for (const char* name : {"ok", "info", "question", "warning"}) {
        if (seen == ownIcon(QLatin1String(name)).pixmap(box->iconPixmap().size()).toImage()) {
            return QLatin1String(name);
        }
    }
    return {};
}

TEST_F(Saving, SaveAll_WritesEveryItemIntoAFolderOfItsType) {
    openPhotoResults();
    destinationIs(destination.path());
    QString picture;
    answers.then([&](QDialog* end) {
        picture = pictureOf(end);
        pressButton(end, QStringLiteral("OK"));
    });
    click(controller->saveAllButton);
    EXPECT_EQ(picture, QStringLiteral("ok"));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n3 files were saved."));
    EXPECT_EQ(answers.seen().back().buttons,
              (QStringList{QStringLiteral("Open Folder"), QStringLiteral("OK")}));
    EXPECT_EQ(savedFiles(),
              (QStringList{QStringLiteral("GIF/THD00001.GIF"), QStringLiteral("JPG/GND00001.JPG"),
                           QStringLiteral("JPG/GND00002.JPG")}));
    EXPECT_EQ(controller->savedLabel->text(), QStringLiteral("3 of 3 saved"));
    EXPECT_FALSE(controller->hasUnsavedItems());
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 1) << "everything is saved, so nothing is asked";
}

TEST_F(Saving, SaveSelected_WritesTheSelectionOnly) {
    openPhotoResults();
    destinationIs(destination.path());
    EXPECT_FALSE(controller->saveSelectedButton->isEnabled());
    controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(1, 0));
    EXPECT_TRUE(controller->saveSelectedButton->isEnabled());
    answers.press(QStringLiteral("Open Folder"));
    click(controller->saveSelectedButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n1 file was saved."));
    EXPECT_EQ(savedFiles(), QStringList{QStringLiteral("JPG/GND00002.JPG")});
    EXPECT_EQ(documentsOpened, QStringList{destination.path()});
    EXPECT_TRUE(controller->hasUnsavedItems());
    answers.press(QStringLiteral("Stay"));
    click(controller->backButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n2 of the 3 found items have not been saved."));
}

TEST_F(Saving, TheReportSaysHowTheSearchEnded) {
    openWithCard();
    card.badForEver = {60};
    toRange(kPhotoMode);
    scanToEnd();
    destinationIs(destination.path());
    saveAllAndAnswer();
    QFile html(destination.filePath(QStringLiteral("Recovery report.html")));
    ASSERT_TRUE(html.open(QIODevice::ReadOnly));
    EXPECT_TRUE(html.readAll().contains("but 1 sector could not be read"));
}

TEST_F(Saving, AMediumThatIsGone_IsReportedAndNothingCountsAsSaved) {
    openPhotoResults();
    destinationIs(destination.path());
    refuseOpen = true;
    QString picture;
    answers.then([&](QDialog* end) {
        picture = pictureOf(end);
        pressButton(end, QStringLiteral("OK"));
    });
    click(controller->saveAllButton);
    EXPECT_EQ(picture, QStringLiteral("warning"));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNothing was saved."));
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, WhatCannotBeWritten_IsCountedWithItsReason) {
    openPhotoResults();
    QFile blocked(destination.filePath(QStringLiteral("JPG")));
    ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));  // where the folder of the type should be
    destinationIs(destination.path());
    QString picture;
    answers.then([&](QDialog* end) {
        picture = pictureOf(end);
        pressButton(end, QStringLiteral("OK"));
    });
    click(controller->saveAllButton);
    EXPECT_EQ(picture, QStringLiteral("warning"));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n1 file was saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("2 items could not be saved:")))
        << answers.seen().back().informative.toStdString();
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, SavingTwice_WritesNothingTwice) {
    openPhotoResults();
    destinationIs(destination.path());
    saveAllAndAnswer();
    saveAllAndAnswer();
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNothing new was saved."));
    EXPECT_EQ(savedFiles().size(), 3);
    changeOptions([](QDialog* panel) { tick(panel, "keepDuplicatesBox"); });
    saveAllAndAnswer();
    EXPECT_EQ(savedFiles().size(), 6) << "nothing is overwritten";
}

TEST_F(Saving, TheReportLiesBesideTheFiles_UnlessNotWanted) {
    openPhotoResults();
    destinationIs(destination.path());
    saveAllAndAnswer();
    const QStringList reports{QStringLiteral("Recovery report.csv"), QStringLiteral("Recovery report.html")};
    EXPECT_EQ(QDir(destination.path()).entryList(QDir::Files), reports);
    QFile html(destination.filePath(reports.at(1)));
    ASSERT_TRUE(html.open(QIODevice::ReadOnly));
    const QByteArray page = html.readAll();
    EXPECT_TRUE(page.contains("CANON_DC (sdb1)"));
    EXPECT_TRUE(page.contains("JPG/GND00001.JPG"));
    EXPECT_TRUE(page.contains("completed")) << "the search";
    EXPECT_TRUE(answers.seen().back().informative.contains(
        QStringLiteral("“Recovery report.html” in the destination folder")));
    changeOptions([](QDialog* panel) { tick(panel, "reportBox"); });
    saveAllAndAnswer();
    EXPECT_EQ(QDir(destination.path()).entryList(QDir::Files), reports);
    EXPECT_FALSE(answers.seen().back().informative.contains(QStringLiteral("Recovery report")));
}

TEST_F(Saving, TheOptionsAreKeptAndCounted) {
    openPhotoResults();
    EXPECT_EQ(controller->savingOptionsButton->text(), QStringLiteral("O&ptions…"));
    changeOptions([](QDialog* panel) {
        auto* pixels = panel->findChild<QSpinBox*>(QStringLiteral("minPixelsField"));
        EXPECT_FALSE(pixels->isEnabled());
        EXPECT_EQ(panel->findChild<QSpinBox*>(QStringLiteral("minBytesField"))->text(),
                  QStringLiteral("10 kB"));
        chooseFolders(panel, SaveFolders::Date);
        tick(panel, "minPixelsBox");
        EXPECT_TRUE(pixels->isEnabled());
        pixels->setValue(500);
    });
    EXPECT_EQ(controller->savingOptionsButton->text(), QStringLiteral("O&ptions (2)…"));
    EXPECT_EQ(controller->savingOptionsButton_Sig->text(), QStringLiteral("O&ptions (2)…"));
    answers.then([](QDialog* panel) {
        EXPECT_EQ(panel->findChild<QComboBox*>(QStringLiteral("foldersBox"))->currentText(),
                  QStringLiteral("By type and date"));
        EXPECT_EQ(panel->findChild<QSpinBox*>(QStringLiteral("minPixelsField"))->value(), 500);
        chooseFolders(panel, SaveFolders::Card);
        tick(panel, "namesBox");
        pressButton(panel, QStringLiteral("Cancel"));
    });
    click(controller->savingOptionsButton);
    EXPECT_EQ(controller->savingOptionsButton->text(), QStringLiteral("O&ptions (2)…")) << "cancelled";
}

TEST_F(Saving, WhatIsLeftOutOnRequest_NeedsNoSaving) {
    openPhotoResults();
    destinationIs(destination.path());
    changeOptions([](QDialog* panel) {
        tick(panel, "minBytesBox");
        panel->findChild<QSpinBox*>(QStringLiteral("minBytesField"))->setValue(1000);
    });
    saveAllAndAnswer(QStringLiteral("OK"));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNothing was saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(
        QStringLiteral("Left out: 3 items, smaller than you asked for.")));
    EXPECT_TRUE(savedFiles().isEmpty());
    EXPECT_FALSE(controller->hasUnsavedItems());
}

TEST_F(Saving, ItemByItem_IsRemembered) {
    openPhotoResults();
    destinationIs(destination.path());
    for (int row = 0; row < 3; ++row) {
        EXPECT_TRUE(controller->hasUnsavedItems());
        controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(row, 0));
        answers.press(QStringLiteral("OK"));
        click(controller->saveSelectedButton);
        EXPECT_EQ(controller->savedLabel->text(), QStringLiteral("%1 of 3 saved").arg(row + 1));
    }
    EXPECT_FALSE(controller->hasUnsavedItems());
    EXPECT_EQ(savedFiles().size(), 3);
}

TEST_F(Saving, TheSheetSaysHowFarItIs_AndCancelEndsIt) {
    openPhotoResults();
    destinationIs(destination.path());
    Gate gate;
    // The first was followed to the card's end: in the midst of the second.
    card.beforeRead = gate.atRead(card.reads + 70);
    QString heading, file;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        QDialog* sheet = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            sheet = widget->objectName() == u"saveProgress" && widget->isVisible()
                        ? qobject_cast<QDialog*>(widget)
                        : sheet;
        }
        auto* cancel =
            sheet != nullptr ? sheet->findChild<QPushButton*>(QStringLiteral("cancelButton")) : nullptr;
        if (cancel == nullptr || !gate.someoneWaits() || !cancel->isEnabled()) {
            return;
        }
        const QString says = sheet->findChild<QLabel*>(QStringLiteral("saveHeading"))->text();
        if (says == heading || says == QStringLiteral("Saving 1 of 3")) {
            return;  // the sheet looks at the job now and then
        }
        heading = says;
        file = sheet->findChild<QLabel*>(QStringLiteral("saveFileLabel"))->text();
        QTest::mouseClick(cancel, Qt::LeftButton);
        EXPECT_EQ(sheet->findChild<QLabel*>(QStringLiteral("saveFactsLabel"))->text(),
                  QStringLiteral("Cancelling…"));
        EXPECT_TRUE(sheet->isVisible());
        EXPECT_FALSE(sheet->findChild<QPushButton*>(QStringLiteral("skipButton"))->isEnabled());
        gate.open();
    });
    look.start(5);
    QString picture;
    answers.then([&](QDialog* end) {
        picture = pictureOf(end);
        pressButton(end, QStringLiteral("OK"));
    });
    click(controller->saveAllButton);
    EXPECT_EQ(picture, QStringLiteral("info")) << "no tick for what was broken off";
    EXPECT_EQ(heading, QStringLiteral("Saving 2 of 3"));
    EXPECT_EQ(file, QStringLiteral("GND00002.JPG"));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n1 file was saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("because you cancelled")));
    EXPECT_EQ(savedFiles(), QStringList{QStringLiteral("JPG/GND00001.JPG")});
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, TheSheetThatIsClosed_StaysUntilItHasCancelled) {
    openPhotoResults();
    destinationIs(destination.path());
    Gate gate;
    card.beforeRead = gate.atRead(card.reads + 1);
    QWidget* sheet = nullptr;
    when(
        [&] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                sheet = widget->objectName() == u"saveProgress" && widget->isVisible() ? widget : sheet;
            }
            return sheet != nullptr && gate.someoneWaits();
        },
        [&] {
            EXPECT_FALSE(sheet->close());
            EXPECT_TRUE(sheet->isVisible());
            EXPECT_EQ(sheet->findChild<QLabel*>(QStringLiteral("saveFactsLabel"))->text(),
                      QStringLiteral("Cancelling…"));
            gate.open();
        });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    ASSERT_FALSE(answers.seen().empty());
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNothing was saved."));
    EXPECT_TRUE(savedFiles().isEmpty());
}

TEST_F(Saving, SaveAll_SavesWhatTheFilterShowsAndSaysSo) {
    openPhotoResults();
    destinationIs(destination.path());
    EXPECT_EQ(controller->saveAllButton->text(), QStringLiteral("Save &All…"));
    controller->sortBox->setCurrentText(QStringLiteral("By name"));
    EXPECT_EQ(controller->saveAllButton->text(), QStringLiteral("Save &All…")) << "nothing is left out";
    EXPECT_EQ(controller->photoCountLabel->text(), QStringLiteral("3 items"));
    controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(0, 0));
    answers.press(QStringLiteral("OK"));
    click(controller->saveSelectedButton);
    controller->showBox->setCurrentText(QStringLiteral("Not saved yet"));
    EXPECT_EQ(controller->saveAllButton->text(), QStringLiteral("Save &All Shown (2)…"));
    changeOptions([](QDialog* panel) { tick(panel, "keepDuplicatesBox"); });
    saveAllAndAnswer();
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n2 files were saved."));
    EXPECT_EQ(savedFiles().size(), 3) << "the one that is not shown is not saved again";
    EXPECT_TRUE(waitFor([this] { return !controller->saveAllButton->isEnabled(); })) << "nothing is shown";
    controller->showBox->setCurrentIndex(0);
    EXPECT_EQ(controller->saveAllButton->text(), QStringLiteral("Save &All…"));
    EXPECT_TRUE(controller->saveAllButton->isEnabled());
}

TEST_F(Saving, ATypeInTheTable_ShowsThatTypeAlone) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    destinationIs(destination.path());
    const int all = controller->imageBrowser_2->shownCount();
    EXPECT_FALSE(controller->allTypesButton->isEnabled());
    QTableView* table = controller->idSigTableView;
    int row = 0;
    while (row < table->model()->rowCount() &&
           table->model()->index(row, 0).data().toString() != QStringLiteral("PDF")) {
        ++row;
    }
    ASSERT_LT(row, table->model()->rowCount());
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(row, 0)).center());
    const int shown = controller->imageBrowser_2->shownCount();
    EXPECT_EQ(shown, table->model()->index(row, 1).data().toInt());
    EXPECT_LT(shown, all);
    for (int place = 0; place < shown; ++place) {
        EXPECT_TRUE(
            controller->imageBrowser_2->itemOfRow(place)->imageTitle().endsWith(QStringLiteral(".PDF")));
    }
    EXPECT_EQ(controller->saveAllButton_Sig->text(), QStringLiteral("Save &All Shown (%1)…").arg(shown));
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton_Sig);
    EXPECT_EQ(savedFiles(), QStringList{QStringLiteral("PDF/PDF00001.PDF")});
    ASSERT_TRUE(controller->allTypesButton->isEnabled());
    click(controller->allTypesButton);
    EXPECT_EQ(controller->imageBrowser_2->shownCount(), all);
    EXPECT_FALSE(controller->allTypesButton->isEnabled());
}

TEST_F(Saving, AFileThatTakesLong_IsExplainedAndCanBeSkipped) {
    openPhotoResults();
    destinationIs(destination.path());
    card.badForEver = {12};
    Gate gate;
    // The first was followed to the card's end: in the midst of the second.
    card.beforeRead = gate.atRead(card.reads + 70);
    QString trouble;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() != u"saveProgress" || !widget->isVisible() || !gate.someoneWaits() ||
                widget->findChild<QLabel*>(QStringLiteral("saveHeading"))->text() !=
                    QStringLiteral("Saving 2 of 3")) {
                continue;
            }
            auto* skip = widget->findChild<QPushButton*>(QStringLiteral("skipButton"));
            auto* says = widget->findChild<QLabel*>(QStringLiteral("saveTroubleLabel"));
            if (!skip->isEnabled() || !says->isVisible()) {
                continue;
            }
            trouble = says->text();
            QTest::mouseClick(skip, Qt::LeftButton);
            EXPECT_FALSE(skip->isEnabled());
            gate.open();
        }
    });
    look.start(5);
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_TRUE(trouble.contains(QStringLiteral("refuses sectors of this file: 1 so far")))
        << trouble.toStdString();
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n2 files were saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("GND00002.JPG: Skipped")));
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, KeysMeantForTheList_EndNothing_AndReturnPressesTheButtonThatHasTheKeyboard) {
    openPhotoResults();
    destinationIs(destination.path());
    Gate gate;
    card.beforeRead = gate.atRead(card.reads + 70);
    when(
        [&] {
            const QDialog* const sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            return sheet != nullptr && sheet->objectName() == u"saveProgress" && sheet->isActiveWindow() &&
                   gate.someoneWaits() &&
                   sheet->findChild<QLabel*>(QStringLiteral("saveHeading"))->text() ==
                       QStringLiteral("Saving 2 of 3");
        },
        [&] {
            QWidget* const sheet = QApplication::activeModalWidget();
            const auto* skip = sheet->findChild<QPushButton*>(QStringLiteral("skipButton"));
            const auto* cancel = sheet->findChild<QPushButton*>(QStringLiteral("cancelButton"));
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
                QTest::keyClick(sheet->windowHandle(), key);
                EXPECT_TRUE(skip->isEnabled() && cancel->isEnabled()) << key;
            }
            QTest::keyClick(sheet->windowHandle(), Qt::Key_Tab);
            EXPECT_TRUE(skip->hasFocus());
            QTest::keyClick(sheet->windowHandle(), Qt::Key_Return);
            EXPECT_FALSE(skip->isEnabled());
            QTest::keyClick(sheet->windowHandle(), Qt::Key_Return);
            EXPECT_TRUE(cancel->isEnabled()) << "the button beside the one that went";
            gate.open();
        });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n2 files were saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral(": Skipped")));
}

TEST_F(Saving, RawItemsAreSavedTheSameWay) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    destinationIs(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton_Sig);
    EXPECT_TRUE(savedFiles().contains(QStringLiteral("PDF/PDF00001.PDF")));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n3 files were saved."));
    // Both passes found the document.
    EXPECT_EQ(savedFiles().size(), 3);
    EXPECT_TRUE(answers.seen().back().informative.contains(
        QStringLiteral("Not written again: 1 item, the same contents are saved already.")));
    EXPECT_FALSE(controller->hasUnsavedItems());
}

}  // namespace
}  // namespace vantor