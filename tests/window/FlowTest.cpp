// The wizard from the first screen to the end and back, in every mode, with every refusal.
#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

const QString kMediaHelp = QStringLiteral(
    "\nSelect the storage media from List from which you want to recover Data. Press ‘Next’ button to "
    "continue... ");
const QString kEntireHelp = QStringLiteral(
    "If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of "
    "selected disk. If "
    "you want to perform within a specific sector range or in specific partition, please select other "
    "searching "
    "criteria. Else press ‘Next’ button to start searching data in Entire disk.");
const QString kTypeHelp = QStringLiteral(
    "\nPlease select the required extension type for recovery process. Press ‘Next’ button to continue... ");
const QString kEndHelp = QStringLiteral("\nTo select another disk for recovery, click on ‘Back’ Button.");

using Flow = WindowTest;

TEST_F(Flow, Next_WithoutAMedium_IsRefusedAndStays) {
    openWithCard();
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    ASSERT_EQ(answers.seen().size(), 1u);
    EXPECT_EQ(answers.seen()[0].text, QStringLiteral("\nPlease select a storage media from list."));
    EXPECT_EQ(answers.seen()[0].informative, QString());
    EXPECT_EQ(answers.seen()[0].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_EQ(answers.seen()[0].defaultButton, QStringLiteral("OK"));
    EXPECT_EQ(controller->screen_counter, 0);
    EXPECT_TRUE(controller->idTableView->isVisible());
}

TEST_F(Flow, Next_WithAnEmptyList_IsRefusedToo) {
    open();
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    EXPECT_EQ(answers.seen().at(0).text, QStringLiteral("\nPlease select a storage media from list."));
    EXPECT_EQ(controller->screen_counter, 0);
}

TEST_F(Flow, Next_OnTheFirstScreen_FillsTheRangeScreenOfTheMode) {
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_EQ(controller->screen_counter, 1);
    EXPECT_EQ(controller->_help_info->text(), kEntireHelp);
    EXPECT_EQ(controller->_Search_Type->text(), QStringLiteral("Search Type : Recover Photo"));
    EXPECT_TRUE(controller->_Search_Type->isVisible());
    EXPECT_EQ(controller->_disk_identifier->text(), QStringLiteral("sdb1"));
    EXPECT_EQ(controller->_sectors_val->text(), QStringLiteral("64"));
    EXPECT_EQ(controller->_vol_name_val->text(), QStringLiteral("CANON_DC"));
    EXPECT_EQ(controller->_file_system_val->text(), QStringLiteral("MS-DOS (FAT32)"));
    EXPECT_EQ(controller->_size_val->text(), QStringLiteral("32.00  KB "));
    EXPECT_EQ(controller->_start_sector_entire_val->text(), QStringLiteral("0"));
    EXPECT_EQ(controller->_end_sector_entire_val->text(), QStringLiteral("64"));
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isVisible());
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isChecked());
    EXPECT_TRUE(controller->backButton->isEnabled());
    EXPECT_FALSE(controller->idTableView->isVisible());
    EXPECT_FALSE(controller->_path_Sig->isVisible());
}

TEST_F(Flow, Next_InVideoAndRawFileMode_NamesTheSearchAndUsesTheOtherSet) {
    openWithCard();
    toRange(kVideoMode);
    EXPECT_EQ(controller->_Search_Type->text(), QStringLiteral("Search Type : Recover Video"));
    EXPECT_EQ(controller->_disk_val_Sig->text(), QStringLiteral("sdb1"));
    EXPECT_EQ(controller->_disk_val->text(), QStringLiteral("<None>"));
    EXPECT_FALSE(controller->_Thro_Mode_Chk->isVisible());
    EXPECT_TRUE(controller->_path_Sig->isVisible());
    EXPECT_FALSE(controller->_path->isVisible());
    click(controller->backButton);
    toRange(kRawFileMode);
    EXPECT_EQ(controller->_Search_Type->text(), QStringLiteral("Search Type : Recover Raw File"));
}

TEST_F(Flow, Back_FromTheRangeScreen_ForgetsTheMediumAndTheMode) {
    openWithCard();
    toRange(kVideoMode);
    const int listings = source->listings;
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 0);
    EXPECT_EQ(Recovery_MODE, kPhotoMode);
    EXPECT_TRUE(controller->_rec_mode_Photo->isChecked());
    EXPECT_FALSE(controller->_rec_mode_Video->isChecked());
    EXPECT_FALSE(controller->_Search_Type->isVisible());
    EXPECT_EQ(controller->_help_info->text(), kMediaHelp);
    for (const QLabel* value : std::initializer_list<const QLabel*>{
             controller->_sectors_val, controller->_disk_identifier, controller->_disk_val,
             controller->_vol_name_val, controller->_file_system_val, controller->_size_val,
             controller->_start_sector_entire_val, controller->_end_sector_entire_val,
             controller->_disk_val_Sig, controller->_vol_name_val_Sig, controller->_file_system_val_Sig,
             controller->_size_val_Sig, controller->_start_sector_entire_val_Sig,
             controller->_end_sector_entire_val_Sig}) {
        EXPECT_EQ(value->text(), QStringLiteral("<None>")) << value->objectName().toStdString();
    }
    EXPECT_FALSE(controller->backButton->isEnabled());
    EXPECT_FALSE(controller->_path_Sig->isVisible());
    EXPECT_EQ(source->listings, listings + 1);
}

TEST_F(Flow, Photo_FromStartToEndAndBack) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_EQ(answers.seen().back().name, QStringLiteral("window"));
    EXPECT_EQ(controller->_help_info->text(), kEndHelp);
    ASSERT_EQ(controller->itemCount(), 3u);
    EXPECT_EQ(controller->itemAt(0)->imageTitle(), QStringLiteral("GND00001.JPG"));
    EXPECT_EQ(controller->itemAt(2)->imageTitle(), QStringLiteral("THD00001.GIF"));
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 3);
    for (const QWidget* hidden :
         std::initializer_list<const QWidget*>{controller->_Progress_Horz, controller->_sector_label,
                                               controller->_Mode_label, controller->_stop_scan}) {
        EXPECT_FALSE(hidden->isVisible()) << hidden->objectName().toStdString();
    }
    EXPECT_TRUE(controller->_zoom_slider->isVisible());
    EXPECT_TRUE(controller->zoomLabel->isVisible());
    EXPECT_TRUE(controller->_open_folder->isVisible());
    EXPECT_FALSE(controller->nextButton->isEnabled());
    EXPECT_TRUE(controller->_browse_path->isEnabled());
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isEnabled());

    controller->Next_btn(nullptr);  // the button is disabled; the action does nothing either
    EXPECT_EQ(controller->screen_counter, 2);

    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 1);
    EXPECT_EQ(controller->_help_info->text(), kEntireHelp);
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 0);
    EXPECT_FALSE(controller->_zoom_slider->isVisible());
    EXPECT_FALSE(controller->zoomLabel->isVisible());
    EXPECT_FALSE(controller->_open_folder->isVisible());
    EXPECT_TRUE(controller->nextButton->isEnabled());
    EXPECT_TRUE(controller->_path->isVisible());
    EXPECT_FALSE(controller->imageBrowser->isVisible());
}

class RawFlow : public WindowTest, public ::testing::WithParamInterface<int> {};

TEST_P(RawFlow, FromStartToEndAndBackToTheFirstScreen) {
    const bool video = GetParam() == kVideoMode;
    openWithCard();
    toFileTypes(GetParam());
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_EQ(controller->_help_info->text(), kTypeHelp);
    EXPECT_TRUE(controller->idCheckTableView->isVisible());
    scanToEnd();
    EXPECT_EQ(controller->screen_counter, 3);
    EXPECT_EQ(controller->_help_info->text(), kEndHelp);
    EXPECT_TRUE(controller->_open_folder_Sig->isVisible());
    EXPECT_FALSE(controller->_zoom_slider->isVisible());
    EXPECT_FALSE(controller->zoomLabel->isVisible());
    // General and thorough pass.
    EXPECT_EQ(controller->itemCount(), video ? 3u : 4u);
    EXPECT_EQ(controller->imageBrowser_2->model()->rowCount(), video ? 3 : 4);
    EXPECT_EQ(controller->resultRows().size(), video ? 3 : 4);
    EXPECT_EQ(controller->mMovieView->isVisible(), video);
    EXPECT_EQ(controller->_QuickLook_View->isVisible(), !video);
    controller->Next_btn(nullptr);
    EXPECT_EQ(controller->screen_counter, 3);

    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_EQ(controller->_help_info->text(), kTypeHelp);
    EXPECT_TRUE(controller->idCheckTableView->isVisible());
    EXPECT_FALSE(controller->imageBrowser_2->isVisible());
    EXPECT_FALSE(controller->_open_folder_Sig->isVisible());
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_TRUE(controller->nextButton->isEnabled());
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 1);
    EXPECT_EQ(controller->_help_info->text(), kEntireHelp);
    EXPECT_TRUE(controller->_path_Sig->isVisible());
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 0);
    EXPECT_FALSE(controller->_path_Sig->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Modes, RawFlow, ::testing::Values(kVideoMode, kRawFileMode));

TEST_F(Flow, Back_FromTheResults_KeepsTheTicks) {
    openWithCard();
    toFileTypes(kRawFileMode);
    controller->tableView(controller->idCheckTableView, QVariant(false), QStringLiteral("State"), 1);
    const auto before = controller->nsCheckedListDataObject;
    scanToEnd();
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->nsCheckedListDataObject, before);
}

TEST_F(Flow, AnotherScanOfTheChosenTypes_CountsItsItemsFromTheStart) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    const std::uint64_t found = controller->itemCount();
    ASSERT_GT(found, 0u);
    EXPECT_EQ(controller->addedItemCount(), found);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    scanToEnd();
    EXPECT_EQ(controller->itemCount(), found);
    EXPECT_EQ(controller->addedItemCount(), found);
}

TEST_F(Flow, Back_FromTheFileTypes_KeepsTheRangeButNotTheTicks) {
    openWithCard();
    toRange(kRawFileMode);
    choose(controller->_sector_range_rd_Sig);
    controller->_Start_slider_val_Sig->setText(QStringLiteral("3"));
    click(controller->nextButton);
    controller->tableView(controller->idCheckTableView, QVariant(false), QStringLiteral("State"), 0);
    click(controller->backButton);
    EXPECT_EQ(controller->_Start_slider_val_Sig->text(), QStringLiteral("3"));
    EXPECT_TRUE(controller->_help_info->text().startsWith(QStringLiteral("‘Sector Range’ option")));
    click(controller->nextButton);
    EXPECT_TRUE(isTicked(controller->nsCheckedListDataObject.at(0)));
}

TEST_F(Flow, Back_WithUnsavedItems_AsksFirstAndStaysWhenTold) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    answers.press(QStringLiteral("Stay"));
    click(controller->backButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNone of the 3 found items has been saved."));
    EXPECT_EQ(answers.seen().back().defaultButton, QStringLiteral("Stay"));
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_EQ(controller->itemCount(), 3u);
}

TEST_F(Flow, Back_WhenNothingWasFound_AsksNothing) {
    source->add(QStringLiteral("sdb1"), QStringLiteral("EMPTY"), 64);
    writeCatalogue("ZelExt2.dll", record("JPG", "FFD8FF", "JPEG picture"));
    open();
    toRange(kPhotoMode);
    click(controller->_Thro_Mode_Chk);
    scanToEnd();
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 1);
}

TEST_F(Flow, Back_FromTheResults_PutsZoomsBackAsAtTheStart) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    controller->_zoom_slider->setValue(controller->_zoom_slider->maximum());
    controller->imageBrowser_2->setZoomValue(0.9F);
    ASSERT_FLOAT_EQ(controller->imageBrowser->zoomValue(), 1.0F);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->_zoom_slider->value() * 2, controller->_zoom_slider->maximum());
    EXPECT_FLOAT_EQ(controller->imageBrowser->zoomValue(), 0.55F) << "the slider's place does not decide";
    EXPECT_FLOAT_EQ(controller->imageBrowser_2->zoomValue(), 0.05F);
}

TEST_F(Flow, Back_FromTheFileTypes_PutsZoomsBackToo) {
    openWithCard();
    toFileTypes(kRawFileMode);
    controller->_zoom_slider->setValue(controller->_zoom_slider->maximum());
    controller->imageBrowser_2->setZoomValue(0.9F);
    click(controller->backButton);
    EXPECT_EQ(controller->_zoom_slider->value() * 2, controller->_zoom_slider->maximum());
    EXPECT_FLOAT_EQ(controller->imageBrowser->zoomValue(), 0.55F);
    EXPECT_FLOAT_EQ(controller->imageBrowser_2->zoomValue(), 0.05F);
}

TEST_F(Flow, Next_OnTheFirstScreen_SwitchesThoroughSearchOn) {
    openWithCard();
    toRange(kPhotoMode);
    click(controller->_Thro_Mode_Chk);
    ASSERT_FALSE(controller->_Thro_Mode_Chk->isChecked());
    click(controller->backButton);
    toRange(kPhotoMode);
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isChecked());
}

TEST_F(Flow, Next_OnTheRangeScreen_SwitchesTheBoxesOfTheFileTypesOn) {
    openWithCard();
    toFileTypes(kRawFileMode);
    click(controller->_Thro_Mode_Chk_SIG);
    click(controller->_select_unselect_Chk);
    ASSERT_FALSE(controller->_Thro_Mode_Chk_SIG->isChecked());
    ASSERT_FALSE(controller->_select_unselect_Chk->isChecked());
    click(controller->backButton);
    click(controller->nextButton);
    EXPECT_TRUE(controller->_Thro_Mode_Chk_SIG->isChecked());
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
    // In photo mode too, where the boxes are not in view.
    click(controller->_Thro_Mode_Chk_SIG);
    click(controller->_select_unselect_Chk);
    click(controller->backButton);
    click(controller->backButton);
    toRange(kPhotoMode);
    scanToEnd();
    EXPECT_TRUE(controller->_Thro_Mode_Chk_SIG->isChecked());
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
}

TEST_F(Flow, TheWizardIsDrivenByKeyboardAlone) {
    openWithCard();
    controller->idTableView->setFocus();
    QTest::keyClick(controller->idTableView, Qt::Key_Down);
    ASSERT_TRUE(controller->idTableView->selectionModel()->hasSelection());
    ASSERT_EQ(QApplication::activeWindow(), controller->window);
    ASSERT_EQ(controller->window->focusWidget(), controller->idTableView);
    QTest::keyClick(controller->idTableView, Qt::Key_Return);
    ASSERT_EQ(controller->screen_counter, 1);
    QTest::keyClick(controller->window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(controller->screen_counter, 0);
}

TEST_F(Flow, DoubleClickOnAMedium_IsNext) {
    openWithCard();
    QTableView* table = controller->idTableView;
    const QPoint place = table->visualRect(table->model()->index(0, 1)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(controller->screen_counter, 1);
}

TEST_F(Flow, TheStepTrailSaysWhereOneIs) {
    openWithCard();
    EXPECT_EQ(controller->stepTrail->steps().size(), 3);
    toFileTypes(kRawFileMode);
    EXPECT_EQ(controller->stepTrail->steps().size(), 4);
    EXPECT_EQ(controller->stepTrail->current(), 2);
    EXPECT_EQ(controller->stepTrail->accessibleDescription(), QStringLiteral("Step 3 of 4: File types"));
}

}  // namespace
}  // namespace vantor
