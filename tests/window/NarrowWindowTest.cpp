// Every screen in a window as small as large letters leave it: nothing is cut, nothing has to be scrolled
// sideways.
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

#include "results/RecoveryMode.h"
#include "tests/window/GatedWindow.h"
#include "window/browser/ImageCell.h"
#include "window/saving/SavingOptions.h"
#include "window/widgets/ComboWidth.h"
#include "window/widgets/EndsLayout.h"
#include "window/widgets/HintLabel.h"
#include "window/widgets/MessageLayout.h"
#include "window/widgets/NumberLabel.h"

namespace vantor {
namespace {

constexpr QSize kNarrow(655, 490);  // 1024 x 768 at 144 dots an inch

class NarrowWindow : public GatedWindow, public testing::WithParamInterface<int> {
  protected:
    void expectThatItFits(const char* screen) const {
        settle();
        for (const char* name :
             {"allTypesButton", "showBox", "sortBox", "showBox_Sig", "sortBox_Sig", "_zoom_slider",
              "zoomSlider_Sig", "tryBadSectorsButton", "completeBrokenButton"}) {
            const auto* const control = part<QWidget>(name);
            ASSERT_NE(control, nullptr) << name;
            if (control->isVisible()) {
                const QWidget* const pane = control->parentWidget();
                EXPECT_LE(control->geometry().right(), pane->rect().right())
                    << screen << ": " << name << " is cut";
                EXPECT_GE(control->width(), std::max(control->minimumWidth(), 90)) << screen << ": " << name;
            }
        }
        EXPECT_FALSE(controller->bodyScroll->horizontalScrollBar()->isVisible()) << screen;
        const QLabel* const hint = controller->_help_info;
        EXPECT_GE(hint->height(), hint->heightForWidth(hint->width())) << screen << ": the hint is cut";
    }
};

int topOf(const QWidget* widget) {
    return widget->mapTo(widget->window(), QPoint(0, 0)).y();
}

int bottomOf(const QWidget* widget) {
    return topOf(widget) + widget->height();
}

INSTANTIATE_TEST_SUITE_P(Modes, NarrowWindow, testing::Values(kPhotoMode, kVideoMode, kRawFileMode));

TEST_P(NarrowWindow, HoldsEveryScreen) {
    openWithCard();
    controller->window->resize(kNarrow);
    expectThatItFits("medium");
    toRange(GetParam());
    expectThatItFits("range");
    if (GetParam() != kPhotoMode) {
        click(controller->nextButton);
        expectThatItFits("types");
    }
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([this] { return gate.someoneWaits(); }));
    ASSERT_TRUE(waitFor([this] { return !controller->scanFactsLabel->text().isEmpty(); }));
    expectThatItFits("the running search");
    EXPECT_EQ(controller->_stop_scan->visibleRegion(), QRegion(controller->_stop_scan->rect()));
    EXPECT_EQ(bottomOf(part<QWidget>("bodyScroll")), topOf(part<QWidget>("scanStripRow")));
    answers.press(QStringLiteral("OK"));
    gate.open();
    ASSERT_TRUE(scanEnds());
    expectThatItFits("results");
    EXPECT_EQ(bottomOf(part<QWidget>("bodyScroll")), topOf(part<QWidget>("footerBar")))
        << "no empty line between";
}

TEST_P(NarrowWindow, TheRoomThatIsLeftOnTheRangeScreen_IsBelowItsOptions) {
    openWithCard();
    toRange(GetParam());
    controller->window->resize(1280, 1000);
    settle();
    const QWidget* const range =
        GetParam() == kPhotoMode ? controller->rangeScreen : controller->rangeScreen_Sig;
    const auto* const options = controller->window->findChild<QWidget*>(QStringLiteral("searchOptions"));
    if (options->isVisible()) {
        EXPECT_LE(options->geometry().top() - range->geometry().bottom(), 24);
        EXPECT_LE(options->height(), options->sizeHint().height());
    }
}

TEST(EndsLayout, BeginsAnotherLineRatherThanCuttingAButton) {
    QWidget window;
    auto* const outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    QHBoxLayout row;
    row.setSpacing(8);
    QList<QPushButton*> buttons;
    for (const char* text : {"Open Folder", "Change Folder", "Save Selected", "Save All"}) {
        buttons << new QPushButton(QString::fromLatin1(text), &window);
        row.addWidget(buttons.constLast());
        if (buttons.size() == 2) {
            row.addStretch();
        }
    }
    auto* const layout = new EndsLayout(&row);
    outer->addLayout(layout);
    const int wanted = layout->sizeHint().width();
    const auto showAt = [&](int width) {
        window.resize(width, layout->heightForWidth(width));
        window.show();
        outer->activate();
        for (const QPushButton* const button : buttons) {
            EXPECT_EQ(button->width(), button->sizeHint().width()) << width;
            EXPECT_LT(button->geometry().right(), window.width()) << width;
            EXPECT_GE(button->x(), 0) << width;
        }
        EXPECT_EQ(buttons.constLast()->geometry().right() + 1, window.width());
        EXPECT_EQ(buttons.constFirst()->x(), 0);
    };
    showAt(wanted + 50);
    EXPECT_EQ(buttons[0]->y(), buttons[3]->y());
    EXPECT_EQ(layout->heightForWidth(wanted), buttons[0]->height());
    showAt(wanted - 1);
    EXPECT_EQ(buttons[0]->y(), buttons[1]->y());
    EXPECT_EQ(buttons[2]->y(), buttons[0]->y() + buttons[0]->height() + 8);
    EXPECT_EQ(buttons[2]->y(), buttons[3]->y());
    const int left = buttons[1]->geometry().right() + 1;
    const int right = buttons[3]->geometry().right() + 1 - buttons[2]->x();
    showAt(std::max(left, right));
    EXPECT_EQ(layout->heightForWidth(std::max(left, right)), 2 * buttons[0]->height() + 8);
    EXPECT_GT(layout->heightForWidth(std::max(left, right) - 1), 2 * buttons[0]->height() + 8)
        << "one of the parts does not fit any more";
    showAt(layout->minimumSize().width());
    EXPECT_EQ(buttons[3]->y(), 3 * (buttons[0]->height() + 8));
    buttons[1]->hide();
    EXPECT_EQ(layout->heightForWidth(wanted), buttons[0]->height());
}

TEST(EndsLayout, WhatStandsTogetherStaysSo_AndGivesWayBeforeALineIsBegun) {
    QWidget window;
    auto* const outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    QHBoxLayout row;
    row.setSpacing(8);
    auto* const heading = new QLabel(QStringLiteral("Found items"), &window);
    row.addWidget(heading);
    row.addStretch();
    QList<QComboBox*> boxes;
    for (int i = 0; i < 2; ++i) {
        auto* const together = new QHBoxLayout;
        together->addWidget(new QLabel(QStringLiteral("Show"), &window));
        boxes << new QComboBox(&window);
        boxes.constLast()->addItems({QStringLiteral("All"), QStringLiteral("Everything of the kind")});
        boxes.constLast()->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        keepWordsWhole(boxes.constLast());
        together->addWidget(boxes.constLast());
        row.addLayout(together);
    }
    auto* const layout = new EndsLayout(&row);
    outer->addLayout(layout);
    const int wanted = layout->sizeHint().width();
    const int spare = boxes[0]->sizeHint().width() - boxes[0]->minimumWidth();
    ASSERT_GT(spare, 20);
    const auto showAt = [&](int width) {
        window.resize(width, layout->heightForWidth(width));
        window.show();
        outer->activate();
        EXPECT_EQ(boxes[1]->geometry().right() + 1, width);
        EXPECT_GE(boxes[0]->x(), 0);
        EXPECT_GE(boxes[0]->width(), boxes[0]->minimumWidth());
    };
    showAt(wanted);
    EXPECT_EQ(boxes[0]->width(), boxes[0]->sizeHint().width());
    showAt(wanted - spare);
    EXPECT_EQ(boxes[0]->y(), boxes[1]->y());
    EXPECT_NEAR(boxes[0]->geometry().center().y(), heading->geometry().center().y(), 1);
    EXPECT_EQ(boxes[0]->width(), boxes[1]->width()) << "both gave the same";
    EXPECT_NEAR(boxes[0]->width(), boxes[0]->sizeHint().width() - spare / 2, 1);
    showAt(wanted - 2 * spare);
    EXPECT_EQ(boxes[0]->width(), boxes[0]->minimumWidth());
    EXPECT_NEAR(boxes[0]->geometry().center().y(), heading->geometry().center().y(), 1);
    showAt(wanted - 2 * spare - 1);
    EXPECT_GT(boxes[0]->y(), heading->geometry().bottom());
    EXPECT_EQ(boxes[0]->y(), boxes[1]->y());
    boxes[0]->setCurrentIndex(1);
    keepWordsWhole(boxes[0]);
    EXPECT_EQ(boxes[0]->minimumWidth(), boxes[0]->sizeHint().width());
}

TEST(MessageLayout, PutsItsButtonsBelowRatherThanSqueezingTheSentence) {
    QFrame bar;
    auto* const row = new QHBoxLayout(&bar);
    row->setContentsMargins(16, 8, 16, 8);
    row->setSpacing(12);
    auto* const icon = new QLabel(&bar);
    icon->setMinimumSize(24, 24);
    auto* const sentence = new QLabel(&bar);
    sentence->setWordWrap(true);
    auto* const first = new QPushButton(QStringLiteral("Try Bad Sectors Again"), &bar);
    auto* const second = new QPushButton(QStringLiteral("Complete Broken Files"), &bar);
    for (QWidget* const part : std::initializer_list<QWidget*>{icon, sentence, first, second}) {
        row->addWidget(part);
    }
    MessageLayout::replace(row);
    const auto showAt = [&](int width) {
        bar.resize(width, bar.layout()->heightForWidth(width));
        bar.show();
        bar.layout()->activate();
        EXPECT_GE(sentence->height(), sentence->heightForWidth(sentence->width())) << width;
        EXPECT_GT(sentence->x(), icon->geometry().right()) << width;
        for (const QPushButton* const button : {first, second}) {
            EXPECT_EQ(button->width(), button->sizeHint().width()) << width;
            EXPECT_LE(button->geometry().right() + 1, width - 16) << width;
        }
        EXPECT_EQ(std::max(first->geometry().right(), second->geometry().right()) + 1, width - 16) << width;
    };
    sentence->setText(QStringLiteral("Done."));
    const int buttons = first->sizeHint().width() + 12 + second->sizeHint().width();
    const int room =
        16 + 24 + 12 + sentence->fontMetrics().horizontalAdvance(sentence->text()) + 1 + 12 + buttons + 16;
    showAt(room);
    EXPECT_LT(sentence->geometry().right(), first->x());
    EXPECT_EQ(first->y(), second->y());
    showAt(room - 1);
    EXPECT_GT(first->y(), sentence->geometry().bottom());
    EXPECT_EQ(first->y(), second->y());
    EXPECT_EQ(sentence->geometry().right() + 1, room - 1 - 16) << "it has the whole width";
    showAt(16 + buttons - 1 + 16);
    EXPECT_EQ(second->y(), first->geometry().bottom() + 1 + 12);
    sentence->setText(QStringLiteral("The search was stopped at 34 % (sector 47 of 64). ").repeated(4));
    showAt(room);
    EXPECT_GT(first->y(), sentence->geometry().bottom()) << "a long sentence is not set in a narrow column";
    first->hide();
    second->hide();
    EXPECT_EQ(bar.layout()->heightForWidth(room),
              std::max(24, sentence->heightForWidth(room - 16 - 24 - 12 - 16)) + 16);
}

TEST(SavingOptionsSheet, ItsLinesLieAtEqualDistances) {
    SavingOptions sheet(nullptr);
    sheet.window->show();
    QCoreApplication::processEvents();
    QList<int> middles;
    for (const char* name : {"foldersBox", "namesBox", "minPixelsBox", "minBytesBox", "skipUnsoundBox",
                             "partsBox", "keepDuplicatesBox", "reportBox"}) {
        const auto* const line = sheet.window->findChild<QWidget*>(QString::fromLatin1(name));
        ASSERT_NE(line, nullptr) << name;
        middles << line->geometry().center().y();
    }
    for (qsizetype at = 2; at < middles.size(); ++at) {
        EXPECT_NEAR(middles[at] - middles[at - 1], middles[1] - middles[0], 1) << at;
    }
}

TEST(LargeLetters, TheNameOfAnItemFitsIntoItsCell) {
    for (const int points : {8, 10, 14, 20, 28}) {
        QFont font;
        font.setPointSize(points);
        EXPECT_GE(ImageCell::cellSize(40, font, 2).width(),
                  QFontMetrics(font).horizontalAdvance(QStringLiteral("GND00000.JPEG")))
            << points;
    }
}

TEST(LargeLetters, ThePanelsAreAsWideAsTheirLines) {
    SavingOptions sheet(nullptr);
    QFont font = sheet.window->font();
    font.setPointSize(28);
    for (QCheckBox* const line : sheet.window->findChildren<QCheckBox*>()) {
        line->setFont(font);
    }
    DialogAnswers answers;
    int seen = 0;
    answers.then([&](QDialog* dialog) {
        for (const QCheckBox* const line : dialog->findChildren<QCheckBox*>()) {
            EXPECT_GE(line->width(), line->sizeHint().width()) << line->text().toStdString();
            ++seen;
        }
        dialog->reject();
    });
    SavingChoices choices;
    EXPECT_FALSE(sheet.ask(choices));
    EXPECT_EQ(seen, 7);
}

TEST(NumberLabel, ShowsTheDigitsInGroups_AndKeepsThemPlain) {
    NumberLabel label;
    label.setText(QStringLiteral("1258291200"));
    EXPECT_EQ(label.text(), "1258291200");
    EXPECT_EQ(label.shownText(), "1,258,291,200");
    QLabel grouped(label.shownText());
    EXPECT_GE(label.sizeHint().width(), grouped.sizeHint().width());
    label.resize(label.sizeHint());
    grouped.resize(label.size());
    EXPECT_EQ(label.grab().toImage(), grouped.grab().toImage());
    label.setText(QStringLiteral("<None>"));
    EXPECT_EQ(label.shownText(), "<None>");
    label.setText(QString());
    EXPECT_EQ(label.shownText(), "");
}

}  // namespace
}  // namespace vantor
