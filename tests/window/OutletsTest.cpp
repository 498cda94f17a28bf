// Every given outlet exists under its name in the loaded windows, with the right kind of control.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableView>

#include "tests/window/WindowTest.h"
#include "window/browser/ImageBrowserView.h"
#include "window/preview/MovieView.h"

namespace vantor {
namespace {

struct OutletKind {
    const char* kind;
    const QMetaObject* type;
    const char* names;  // separated by blanks
};

// The photo set; the twins carry "_Sig".
const OutletKind kRangeSet[] = {
    {"radio button", &QRadioButton::staticMetaObject, "_entire_disk_rd _sector_range_rd"},
    {"label", &QLabel::staticMetaObject,
     "_disk _vol_name _file_system _size _start_sector_entire _end_sector_entire _disk_val _vol_name_val "
     "_file_system_val _size_val _start_sector_entire_val _end_sector_entire_val _Sector_Range_Info "
     "_Start_Sec_Min "
     "_Start_Sec_Min_val _Start_Sec_Max _Start_Sec_Max_val _Start_Sec_curr _End_Sec_Min _End_Sec_Min_val "
     "_End_Sec_Max "
     "_End_Sec_Max_val _End_Sec_curr _path_label"},
    {"group box", &QGroupBox::staticMetaObject, "_Start_Sec_Box _End_Sec_Box"},
    {"text field", &QLineEdit::staticMetaObject, "_Start_slider_val _End_slider_val _path"},
    {"slider", &QSlider::staticMetaObject, "_Start_Slider _End_Slider"},
    {"button", &QPushButton::staticMetaObject, "_browse_path _open_folder"},
};

const OutletKind kShared[] = {
    {"label", &QLabel::staticMetaObject,
     "_disk_identifier _sectors_val _help_info _Search_Type _Mode_label _sector_label _QuickLook_View"},
    {"radio button", &QRadioButton::staticMetaObject, "_rec_mode_Photo _rec_mode_Video _rec_mode_RawFile"},
    {"check box", &QCheckBox::staticMetaObject, "_Thro_Mode_Chk _Thro_Mode_Chk_SIG _select_unselect_Chk"},
    {"table", &QTableView::staticMetaObject, "idTableView idCheckTableView idSigTableView"},
    {"image browser", &ImageBrowserView::staticMetaObject, "imageBrowser imageBrowser_2"},
    {"slider", &QSlider::staticMetaObject, "_zoom_slider"},
    {"progress bar", &QProgressBar::staticMetaObject, "_Progress_Horz"},
    {"button", &QPushButton::staticMetaObject, "_stop_scan"},
    {"box", &QGroupBox::staticMetaObject, "_QuickLook_View_Box"},
    {"movie view", &MovieView::staticMetaObject, "mMovieView"},
    {"wizard window", &QWidget::staticMetaObject, "controlPanel"},
};

class Outlets : public WindowTest {
  protected:
    void expectAll(const OutletKind& kind, const QString& suffix) {
        for (const QString& name : QString::fromLatin1(kind.names).split(u' ')) {
            const auto* found = controller->window->findChild<QWidget*>(name + suffix);
            ASSERT_NE(found, nullptr) << (name + suffix).toStdString() << " is missing";
            EXPECT_NE(kind.type->cast(found), nullptr)
                << (name + suffix).toStdString() << " is no " << kind.kind;
        }
    }
};

TEST_F(Outlets, TheMainWindowHasAllOfThem) {
    open();
    EXPECT_EQ(controller->window->objectName(), QStringLiteral("window"));
    for (const OutletKind& kind : kShared) {
        expectAll(kind, QString());
    }
    for (const OutletKind& kind : kRangeSet) {
        expectAll(kind, QString());
        expectAll(kind, QStringLiteral("_Sig"));
    }
}

TEST_F(Outlets, EveryPanelHasItsWindow) {
    open();
    for (const QDialog* panel : {controller->BrowseInfo_Window, controller->SaveFile_Info_Window,
                                 controller->SaveFile_Info_For_RAW_Window, controller->ClearPreview_Window,
                                 controller->LoadDisk_Window, controller->HelpWindow}) {
        ASSERT_NE(panel, nullptr);
        EXPECT_EQ(panel->objectName(), QStringLiteral("window"));
        EXPECT_FALSE(panel->isVisible());
        EXPECT_EQ(panel->palette().color(QPalette::Window), QColor(241, 244, 250));
    }
    EXPECT_NE(controller->HelpWindow->findChild<QPushButton*>(QStringLiteral("_Help_File_Label")), nullptr);
}

TEST_F(Outlets, ColumnsBearTheirIdentifiers) {
    open();
    const auto identifiers = [](const QTableView* table) {
        QStringList found;
        const auto* adapter = qobject_cast<const TableAdapter*>(table->model());
        for (int column = 0; adapter != nullptr && column < adapter->columnCount(); ++column) {
            found << adapter->identifier(column);
        }
        return found;
    };
    EXPECT_EQ(
        identifiers(controller->idTableView),
        (QStringList{QStringLiteral("Collumn1"), QStringLiteral("Collumn2"), QStringLiteral("Collumn3"),
                     QStringLiteral("Collumn4"), QStringLiteral("Collumn5"), QStringLiteral("Collumn6")}));
    EXPECT_EQ(identifiers(controller->idCheckTableView),
              (QStringList{QStringLiteral("State"), QStringLiteral("Extension"),
                           QStringLiteral("Description"), QStringLiteral("Thoro")}));
    EXPECT_EQ(identifiers(controller->idSigTableView),
              (QStringList{QStringLiteral("FileTypes"), QStringLiteral("NoOfFile")}));
}

TEST_F(Outlets, TheMembersAreTheWidgetsOfTheirNames) {
    open();
    EXPECT_EQ(controller->_Start_Slider->objectName(), QStringLiteral("_Start_Slider"));
    EXPECT_EQ(controller->_Start_Slider_Sig->objectName(), QStringLiteral("_Start_Slider_Sig"));
    EXPECT_EQ(controller->controlPanel->window(), controller->window);
}

}  // namespace
}  // namespace vantor
