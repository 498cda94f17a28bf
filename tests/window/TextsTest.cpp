// The texts and the state that the window starts with, letter for letter.
#include <QScrollBar>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

using Start = WindowTest;

TEST_F(Start, TheWindowIsInViewUnderItsTitle) {
    open();
    EXPECT_TRUE(controller->window->isVisible());
    EXPECT_EQ(controller->window->windowTitle(), QStringLiteral("Vantor - Memory Card Recovery"));
    EXPECT_EQ(controller->window->palette().color(QPalette::Window), QColor(241, 244, 250));
}

TEST_F(Start, CaptionsOfBothSetsHaveTheirTabs) {
    open();
    const QStringList captions = {QStringLiteral("Disk\t\t\t\t:"),     QStringLiteral("Volume Name\t:"),
                                  QStringLiteral("File System\t\t:"),  QStringLiteral("Capacity (size)\t:"),
                                  QStringLiteral("Start Sector\t\t:"), QStringLiteral("End Sector\t\t:")};
    const QList<QLabel*> photo = {controller->_disk,
                                  controller->_vol_name,
                                  controller->_file_system,
                                  controller->_size,
                                  controller->_start_sector_entire,
                                  controller->_end_sector_entire};
    const QList<QLabel*> sig = {controller->_disk_Sig,
                                controller->_vol_name_Sig,
                                controller->_file_system_Sig,
                                controller->_size_Sig,
                                controller->_start_sector_entire_Sig,
                                controller->_end_sector_entire_Sig};
    for (qsizetype i = 0; i < captions.size(); ++i) {
        EXPECT_EQ(photo.at(i)->text(), captions.at(i));
        EXPECT_EQ(sig.at(i)->text(), captions.at(i));
    }
}

// The tabs are there to line up the colons, so they do: all captions of a set end at the same place.
TEST_F(Start, TheColonsOfTheCaptionsLineUp) {
    open();
    const int width = controller->_disk->sizeHint().width();
    for (const QLabel* caption : {controller->_vol_name, controller->_file_system, controller->_size,
                                  controller->_start_sector_entire, controller->_end_sector_entire}) {
        EXPECT_EQ(caption->sizeHint().width(), width) << caption->text().toStdString();
    }
}

TEST_F(Start, HelpAndProgressTexts) {
    open();
    EXPECT_EQ(controller->_help_info->text(),
              QStringLiteral(
                  "\nSelect the storage media from List from which you want to recover Data. Press ‘Next’ "
                  "button to continue... "));
    EXPECT_EQ(controller->_sector_label->text(), QStringLiteral("Sectors 0 of 0"));
}

TEST_F(Start, InitialState) {
    Recovery_MODE = kVideoMode;
    open();
    EXPECT_EQ(Recovery_MODE, kPhotoMode);
    EXPECT_TRUE(controller->_Thro_Mode_Chk->isChecked());
    EXPECT_TRUE(controller->_rec_mode_Photo->isChecked());
    EXPECT_EQ(controller->Prev_Index, 0x7fffffffu);
    EXPECT_EQ(controller->stop_screen_already_show, 0);
    EXPECT_EQ(controller->stop_now, 0);
    EXPECT_EQ(controller->screen_counter, 0);
    EXPECT_EQ(controller->for_index, 0u);
    EXPECT_EQ(controller->Preview_Temp_File, QStringLiteral(""));
    EXPECT_EQ(controller->noprevfile, QStringLiteral(""));
    EXPECT_EQ(controller->Parent_Disk_Size, QStringLiteral(""));
    EXPECT_EQ(controller->Parent_Media_Name, QStringLiteral(""));
    EXPECT_EQ(controller->zero_thumbnail, QSizeF(0, 0));
    EXPECT_FALSE(controller->mPreviewThread.joinable());
    EXPECT_FALSE(controller->session);
    EXPECT_EQ(controller->_Progress_Horz->value(), 0);
    EXPECT_FALSE(controller->Null_Image_Data.isEmpty());
}

TEST_F(Start, ZoomsOfSliderAndBrowsersDiffer) {
    open();
    EXPECT_EQ(controller->_zoom_slider->value() * 2, controller->_zoom_slider->maximum());
    EXPECT_FLOAT_EQ(controller->imageBrowser->zoomValue(), 0.55F);
    EXPECT_FLOAT_EQ(controller->imageBrowser_2->zoomValue(), 0.05F);
}

TEST_F(Start, OnlyTheFirstScreenIsInView) {
    open();
    EXPECT_TRUE(controller->idTableView->isVisible());
    EXPECT_TRUE(controller->_rec_mode_RawFile->isVisible());
    for (const QWidget* hidden : std::initializer_list<const QWidget*>{
             controller->_entire_disk_rd, controller->_entire_disk_rd_Sig, controller->_Thro_Mode_Chk,
             controller->idCheckTableView, controller->imageBrowser, controller->imageBrowser_2,
             controller->_Progress_Horz, controller->_stop_scan, controller->_open_folder,
             controller->_open_folder_Sig, controller->_zoom_slider, controller->_Search_Type}) {
        EXPECT_FALSE(hidden->isVisible()) << hidden->objectName().toStdString();
    }
    EXPECT_TRUE(controller->nextButton->isEnabled());
    EXPECT_FALSE(controller->backButton->isEnabled());
}

TEST_F(Start, WithoutAPlaceholderPicture_NothingIsSaid) {
    QFile::remove(folder.filePath(QStringLiteral("NoPreview.png")));
    open();
    EXPECT_TRUE(controller->Null_Image_Data.isEmpty());
}

TEST_F(Start, ColourHelperTakesRedBlueGreen) {
    EXPECT_EQ(MyTableController::getColorFromRGB(241, 250, 244), QColor(241, 244, 250));
}

TEST_F(Start, InTooSmallAWindow_TheScreenScrollsAndTheButtonsStay) {
    openWithCard();
    toRange(kPhotoMode);
    const QSize small(720, 480);
    controller->window->resize(small);
    settle();
    EXPECT_EQ(controller->window->size(), small);
    EXPECT_TRUE(controller->bodyScroll->verticalScrollBar()->isVisible());
    for (const QPushButton* button :
         {controller->exitButton, controller->backButton, controller->nextButton, controller->helpButton}) {
        EXPECT_TRUE(controller->window->rect().contains(
            QRect(button->mapTo(controller->window, QPoint()), button->size())))
            << button->objectName().toStdString();
    }
    // The keyboard brings into view what it reaches.
    controller->_entire_disk_rd->setFocus();
    for (int tab = 0; tab < 10 && !controller->_Thro_Mode_Chk->hasFocus(); ++tab) {
        QTest::keyClick(controller->window->focusWidget(), Qt::Key_Tab);
    }
    ASSERT_TRUE(controller->_Thro_Mode_Chk->hasFocus());
    EXPECT_FALSE(controller->_Thro_Mode_Chk->visibleRegion().isEmpty());
}

TEST_F(Start, FitsASmallScreenAndALargeOne) {
    openWithCard();
    const auto nothingIsCutOff = [this] {
        for (const auto* label : controller->window->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty() && !label->wordWrap()) {
                // What is told beside a search may have come a moment ago.
                EXPECT_TRUE(waitFor([label] { return label->width() >= label->sizeHint().width(); }))
                    << label->objectName().toStdString();
                EXPECT_GE(label->height(), label->fontMetrics().height())
                    << label->objectName().toStdString();
            }
        }
        for (const auto* button : controller->window->findChildren<QPushButton*>()) {
            if (button->isVisible()) {
                EXPECT_GE(button->width(), button->minimumSizeHint().width())
                    << button->objectName().toStdString();
                EXPECT_LE(button->mapTo(controller->window, button->rect().bottomRight()).y(),
                          controller->window->height());
            }
        }
        EXPECT_FALSE(controller->bodyScroll->verticalScrollBar()->isVisible())
            << "screen " << controller->screen_counter << " of mode " << Recovery_MODE;
        EXPECT_FALSE(controller->bodyScroll->horizontalScrollBar()->isVisible());
    };
    for (const QSize size : {QSize(1024, 720), QSize(3840, 2160)}) {
        controller->window->resize(size);
        settle();
        EXPECT_EQ(controller->window->size(), size) << "the window does not get that small";
        nothingIsCutOff();
    }
    controller->window->resize(1024, 720);
    for (const int mode : {kPhotoMode, kRawFileMode}) {
        toRange(mode);
        choose(mode == kPhotoMode ? controller->_sector_range_rd : controller->_sector_range_rd_Sig);
        settle();
        EXPECT_EQ(controller->window->size(), QSize(1024, 720));
        nothingIsCutOff();
        click(controller->backButton);
    }
    toFileTypes(kRawFileMode);
    settle();
    EXPECT_EQ(controller->window->size(), QSize(1024, 720));
    nothingIsCutOff();
    scanToEnd();
    EXPECT_EQ(controller->window->size(), QSize(1024, 720));
    nothingIsCutOff();
}

}  // namespace
}  // namespace vantor
