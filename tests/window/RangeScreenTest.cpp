// The search range: sliders, fields and the checks behind Next, for both sets of controls.
#include <QAccessible>
#include <QLineEdit>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

// The two sets behave alike, so every test runs with both.
class RangeScreen : public WindowTest, public ::testing::WithParamInterface<int> {
  protected:
    void openRange(quint64 sectors) {
        source->add(QStringLiteral("sdb1"), QStringLiteral("CARD"), sectors);
        writeCatalogue("ZelExt2.dll", record("JPG", "FFD8FF", "JPEG picture"));
        writeCatalogue("ZelRaw.dll", record("PDF", "25504446", "PDF document"));
        open();
        toRange(GetParam());
    }
    bool photo() const { return GetParam() == kPhotoMode; }
    QRadioButton* entire() { return photo() ? controller->_entire_disk_rd : controller->_entire_disk_rd_Sig; }
    QRadioButton* range() {
        return photo() ? controller->_sector_range_rd : controller->_sector_range_rd_Sig;
    }
    QLineEdit* startField() {
        return photo() ? controller->_Start_slider_val : controller->_Start_slider_val_Sig;
    }
    QLineEdit* endField() { return photo() ? controller->_End_slider_val : controller->_End_slider_val_Sig; }
    SectorSlider* startSlider() {
        return photo() ? controller->_Start_Slider : controller->_Start_Slider_Sig;
    }
    SectorSlider* endSlider() { return photo() ? controller->_End_Slider : controller->_End_Slider_Sig; }
    QLabel* hint() { return photo() ? controller->sliderReachHint : controller->sliderReachHint_Sig; }
    QLineEdit* path() { return photo() ? controller->_path : controller->_path_Sig; }
    QLabel* label(const char* name) {
        return controller->window->findChild<QLabel*>(QLatin1String(name) +
                                                      QLatin1String(photo() ? "" : "_Sig"));
    }
    QLabel* startMin() { return label("_Start_Sec_Min_val"); }
    QLabel* startMax() { return label("_Start_Sec_Max_val"); }
    QLabel* endMin() { return label("_End_Sec_Min_val"); }
    QLabel* endMax() { return label("_End_Sec_Max_val"); }
    QList<QLabel*> captions() {
        return {label("_disk"),
                label("_vol_name"),
                label("_file_system"),
                label("_size"),
                label("_start_sector_entire"),
                label("_end_sector_entire")};
    }
    QList<QLabel*> facts() {
        return {label("_disk_val"),
                label("_vol_name_val"),
                label("_file_system_val"),
                label("_size_val"),
                label("_start_sector_entire_val"),
                label("_end_sector_entire_val")};
    }
    QLabel* volume() { return photo() ? controller->_vol_name_val : controller->_vol_name_val_Sig; }

    static void type(QLineEdit* field, const QString& text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }

    // Types a range, presses Next, and expects the refusal and the focus after it.
    void expectRefusal(const QString& start, const QString& end, const QString& message,
                       const QString& informative, QLineEdit* focused) {
        type(startField(), start);
        type(endField(), end);
        controller->nextButton->setFocus();
        const std::size_t before = answers.seen().size();
        answers.press(QStringLiteral("OK"));
        click(controller->nextButton);
        ASSERT_EQ(answers.seen().size(), before + 1) << "nothing was refused";
        EXPECT_EQ(answers.seen().back().text, message);
        EXPECT_EQ(answers.seen().back().informative, informative);
        EXPECT_EQ(answers.seen().back().buttons, QStringList{QStringLiteral("OK")});
        EXPECT_EQ(answers.seen().back().defaultButton, QStringLiteral("OK"));
        EXPECT_EQ(controller->window->focusWidget(), focused);
        EXPECT_EQ(controller->screen_counter, 1);
        EXPECT_TRUE(startField()->isVisible());
    }
};

INSTANTIATE_TEST_SUITE_P(Sets, RangeScreen, ::testing::Values(kPhotoMode, kRawFileMode));

const QString kBadStart = QStringLiteral("\nPlease enter valid Start Sector value.");
const QString kBadEnd = QStringLiteral("\nPlease enter valid End Sector value.");
const QString kExceeded = QStringLiteral("\nMaximum sector range exceeded");
const QString kStartHint = QStringLiteral("Please enter valid Start Sector value.");
const QString kEndHint = QStringLiteral("Please enter valid End Sector value.");

TEST_P(RangeScreen, EntireDiskShowsTheFactsAndHidesTheRange) {
    openRange(1000);
    EXPECT_TRUE(entire()->isChecked());
    EXPECT_FALSE(range()->isChecked());
    EXPECT_TRUE(volume()->isVisible());
    EXPECT_FALSE(startField()->isVisible());
    choose(range());
    EXPECT_FALSE(volume()->isVisible());
    EXPECT_TRUE(startField()->isVisible());
    EXPECT_TRUE(endSlider()->isVisible());
    EXPECT_EQ(controller->_help_info->text(),
              QStringLiteral(
                  "‘Sector Range’ option provides facility to specify the range of start and end sector of "
                  "storage media within which you want to perform searching for lost data. Please drag knob "
                  "of Slider to enter sector range or you can also enter these values in Start Sector and "
                  "End Sector fields manually."));
    choose(entire());
    EXPECT_TRUE(volume()->isVisible());
    EXPECT_FALSE(startField()->isVisible());
    EXPECT_TRUE(
        controller->_help_info->text().startsWith(QStringLiteral("If ‘Entire Disk’ option is selected")));
}

TEST_P(RangeScreen, ChoosingTheRangeResetsIt) {
    openRange(1000);
    choose(range());
    EXPECT_EQ(startField()->text(), QStringLiteral("0"));
    EXPECT_EQ(endField()->text(), QStringLiteral("1000"));
    EXPECT_EQ(startSlider()->maximum(), 1000);
    EXPECT_EQ(endSlider()->value(), 1000);
    type(startField(), QStringLiteral("17"));
    choose(entire());
    choose(range());
    EXPECT_EQ(startField()->text(), QStringLiteral("0"));
    EXPECT_EQ(startSlider()->value(), 0);
}

TEST_P(RangeScreen, AMovedSliderWritesTheFieldBesideItAndNoOther) {
    openRange(1000);
    choose(range());
    startSlider()->setFocus();
    QTest::keyClick(startSlider(), Qt::Key_PageUp);
    EXPECT_EQ(startField()->text(), QString::number(startSlider()->value()));
    EXPECT_NE(startField()->text(), QStringLiteral("0"));
    EXPECT_EQ(endField()->text(), QStringLiteral("1000"));
    QTest::keyClick(endSlider(), Qt::Key_Home);
    EXPECT_EQ(endField()->text(), QStringLiteral("0"));
}

TEST_P(RangeScreen, TypedTextMovesTheSliderAndStaysAsTyped) {
    openRange(1000);
    choose(range());
    type(startField(), QStringLiteral("0040"));
    EXPECT_EQ(startSlider()->value(), 40);
    EXPECT_EQ(startField()->text(), QStringLiteral("0040"));
    type(startField(), QStringLiteral("1001"));
    EXPECT_EQ(startSlider()->value(), 100) << "the slider follows as far as the typing is within the medium";
    EXPECT_EQ(startField()->text(), QStringLiteral("1001"));
    startField()->setText(QStringLiteral("50"));
    controller->controlTextDidChange(startField());
    startField()->setText(QStringLiteral("abc"));
    controller->controlTextDidChange(startField());
    EXPECT_EQ(startSlider()->value(), 50) << "text that is no number does not move the slider";
}

TEST_P(RangeScreen, AnEndBeyondTheMedium_LeavesTheSliderWhereItWas) {
    openRange(1000);
    choose(range());
    type(endField(), QStringLiteral("700"));
    ASSERT_EQ(endSlider()->value(), 700);
    type(endField(), QStringLiteral("1000"));
    EXPECT_EQ(endSlider()->value(), 1000) << "one past the last sector is allowed";
    for (const char* beyond : {"1001", "99999999999999999999"}) {
        type(endField(), QStringLiteral("700"));
        endField()->setText(QString::fromLatin1(beyond));
        EXPECT_EQ(endSlider()->value(), 700) << beyond;
        EXPECT_EQ(endField()->text(), QString::fromLatin1(beyond));
    }
    EXPECT_EQ(startSlider()->value(), 0);
}

// A screen reader sets values without a key or a mouse.
TEST_P(RangeScreen, WhatAssistiveTechnologySets_IsFollowedLikeWhatIsTyped) {
    openRange(1000);
    choose(range());
    const auto face = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    face(startSlider())->valueInterface()->setCurrentValue(40);
    EXPECT_EQ(startField()->text(), QStringLiteral("40"));
    EXPECT_EQ(endField()->text(), QStringLiteral("1000"));
    face(endSlider())->valueInterface()->setCurrentValue(900);
    EXPECT_EQ(endField()->text(), QStringLiteral("900"));
    face(startField())->setText(QAccessible::Value, QStringLiteral("0050"));
    EXPECT_EQ(startSlider()->value(), 50);
    EXPECT_EQ(startField()->text(), QStringLiteral("0050")) << "the slider that follows writes nothing";
    face(endField())->setText(QAccessible::Value, QStringLiteral("800"));
    EXPECT_EQ(endSlider()->value(), 800);
    EXPECT_EQ(startSlider()->value(), 50);
}

TEST_P(RangeScreen, WhereTheSlidersDoNotReach_TheScreenSaysSo) {
    openRange(2'147'483'648);
    EXPECT_FALSE(hint()->isVisible()) << "there are no sliders while the entire disk is chosen";
    choose(range());
    EXPECT_TRUE(hint()->isVisible());
    EXPECT_TRUE(hint()->text().contains(QStringLiteral("type the sector"))) << hint()->text().toStdString();
    settle();
    EXPECT_GE(hint()->height(), hint()->heightForWidth(hint()->width()));
    choose(entire());
    EXPECT_FALSE(hint()->isVisible());
}

TEST_P(RangeScreen, WhereTheSlidersReachAll_NothingIsSaid) {
    openRange(2'147'483'647);
    choose(range());
    EXPECT_FALSE(hint()->isVisible());
}

TEST_P(RangeScreen, TheTextsBesideTheSlidersAreThoseOfTheMedium) {
    openRange(1000);
    const auto expectTexts = [this] {
        EXPECT_EQ(startMin()->text(), QStringLiteral("0"));
        EXPECT_EQ(startMax()->text(), QStringLiteral("1000"));
        EXPECT_EQ(endMin()->text(), QStringLiteral("0"));
        EXPECT_EQ(endMax()->text(), QStringLiteral("1000"));
        EXPECT_EQ(startField()->text(), QStringLiteral("0"));
        EXPECT_EQ(endField()->text(), QStringLiteral("1000"));
        EXPECT_EQ(startSlider()->minimum(), 0);
        EXPECT_EQ(startSlider()->maximum(), 1000);
        EXPECT_EQ(startSlider()->value(), 0);
        EXPECT_EQ(endSlider()->minimum(), 0);
        EXPECT_EQ(endSlider()->maximum(), 1000);
        EXPECT_EQ(endSlider()->value(), 1000);
    };
    expectTexts();
    for (QLabel* label : {startMin(), startMax(), endMin(), endMax()}) {
        label->setText(QStringLiteral("odd"));
    }
    choose(range());
    expectTexts();
    type(startField(), QStringLiteral("5"));
    type(endField(), QStringLiteral("6"));
    for (QLabel* label : {startMin(), startMax(), endMin(), endMax()}) {
        label->setText(QStringLiteral("odd"));
    }
    click(controller->backButton);
    toRange(GetParam());
    expectTexts();
}

TEST_P(RangeScreen, CaptionsAndFactsAreThereForTheEntireDiskOnly_TheOthersForTheRange) {
    openRange(1000);
    const auto expectFacts = [this](bool shown) {
        for (const QLabel* label : captions() + facts()) {
            EXPECT_EQ(label->isVisible(), shown) << label->objectName().toStdString();
        }
        for (const QWidget* control :
             std::initializer_list<const QWidget*>{startField(), endField(), startSlider(), endSlider(),
                                                   startMin(), startMax(), endMin(), endMax()}) {
            EXPECT_EQ(control->isVisible(), !shown) << control->objectName().toStdString();
        }
    };
    expectFacts(true);
    choose(range());
    expectFacts(false);
    choose(entire());
    expectFacts(true);
}

TEST_P(RangeScreen, AMediumThatIsChosen_EmptiesTheDestination) {
    openRange(1000);
    path()->setText(QStringLiteral("/some/where"));
    click(controller->backButton);
    EXPECT_EQ(path()->text(), QStringLiteral("/some/where"));
    toRange(GetParam());
    EXPECT_EQ(path()->text(), QString());
}

// No click makes the radio buttons both on or both off; nothing is made of it when they are.
TEST_P(RangeScreen, BothRadiosAlike_ChooseNothing) {
    openRange(64);
    for (QRadioButton* radio : {entire(), range()}) {
        radio->setAutoExclusive(false);
    }
    for (const bool on : {true, false}) {
        entire()->setChecked(on);
        range()->setChecked(on);
        startField()->setText(QStringLiteral("no number"));
        if (photo()) {
            answers.press(QStringLiteral("OK"));  // to the alert that nothing was read
            scanToEnd();
            EXPECT_EQ(controller->end_sector, 0u) << "neither the disk nor a range is searched";
        } else {
            click(controller->nextButton);
        }
        ASSERT_EQ(controller->screen_counter, 2) << "there is no range to refuse";
        controller->_help_info->setText(QStringLiteral("as it was"));
        click(controller->backButton);
        ASSERT_EQ(controller->screen_counter, 1);
        EXPECT_EQ(controller->_help_info->text(), QStringLiteral("as it was"));
    }
}

TEST_P(RangeScreen, OtherFieldsMoveNoSlider) {
    openRange(1000);
    choose(range());
    QLineEdit other(QStringLiteral("5"));
    controller->controlTextDidChange(&other);
    EXPECT_EQ(startSlider()->value(), 0);
    EXPECT_EQ(endSlider()->value(), 1000);
}

TEST_P(RangeScreen, BeyondTheToolkitsNumbers_TypedValuesWorkAndTheCopyIsBounded) {
    openRange(5'000'000'000);
    choose(range());
    EXPECT_EQ(endField()->text(), QStringLiteral("5000000000"));
    EXPECT_EQ(endSlider()->doubleValue(), 5e9);
    type(startField(), QStringLiteral("4000000000"));
    EXPECT_NEAR(startSlider()->doubleValue(), 4e9, 4);
    QTest::keyClick(startSlider(), Qt::Key_End);
    EXPECT_EQ(startField()->text(), QStringLiteral("2147483647"));
    EXPECT_TRUE(hint()->isVisible());
    EXPECT_TRUE(hint()->text().contains(QStringLiteral(" 2,147,483,647.")));
}

TEST_P(RangeScreen, TheNineRefusals) {
    openRange(1000);
    choose(range());
    expectRefusal(QString(), QStringLiteral("10"), kBadStart, QString(), startField());
    expectRefusal(QStringLiteral("-5"), QStringLiteral("10"), kBadStart, QString(), startField());
    expectRefusal(QStringLiteral("12a"), QStringLiteral("100"), kBadStart, QString(), startField());
    expectRefusal(QStringLiteral("00012"), QStringLiteral("100"), kExceeded, kStartHint, startField());
    expectRefusal(QStringLiteral("1001"), QStringLiteral("1000"), kExceeded, kStartHint, startField());
    expectRefusal(QStringLiteral("1"), QString(), kBadEnd, QString(), endField());
    expectRefusal(QStringLiteral("1"), QStringLiteral("2x"), kBadEnd, QString(), endField());
    expectRefusal(QStringLiteral("1"), QStringLiteral("00100"), kExceeded, kEndHint, endField());
    expectRefusal(QStringLiteral("1"), QStringLiteral("1001"), kExceeded, kEndHint, endField());
    expectRefusal(QStringLiteral("7"), QStringLiteral("7"),
                  QStringLiteral("\nEnd Sector should be greater than Start Sector."), QString(), endField());
}

TEST_P(RangeScreen, AClickOnTheWordsTicksThoroughSearch) {
    openRange(1000);
    if (!photo()) {
        EXPECT_FALSE(controller->thoroughLabel->isVisible());
        return;
    }
    click(controller->thoroughLabel);
    EXPECT_FALSE(controller->_Thro_Mode_Chk->isChecked());
    click(controller->thoroughExplanation);
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isChecked());
    click(controller->_Thro_Mode_Chk);
    EXPECT_FALSE(controller->_Thro_Mode_Chk->isChecked());
}

TEST_P(RangeScreen, TheLastSectorAloneMayBeSearched) {
    openRange(64);
    choose(range());
    type(startField(), QStringLiteral("63"));
    if (!photo()) {
        click(controller->nextButton);
        EXPECT_EQ(controller->screen_counter, 2);
        return;
    }
    click(controller->_Thro_Mode_Chk);
    scanToEnd();
    EXPECT_EQ(controller->start_sector, 63u);
    EXPECT_EQ(controller->end_sector, 64u);
}

TEST_P(RangeScreen, ForwardAgain_RefillsFromTheMedium) {
    openRange(1000);
    choose(range());
    type(startField(), QStringLiteral("5"));
    click(controller->backButton);
    toRange(GetParam());
    EXPECT_TRUE(entire()->isChecked());
    EXPECT_EQ(startField()->text(), QStringLiteral("0"));
}

}  // namespace
}  // namespace vantor
