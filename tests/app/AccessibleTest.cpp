// What a screen reader is told of every control.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QLineEdit>
#include <QProgressBar>

#include "tests/app/WindowTest.h"

namespace vantor {
namespace {

class Accessible : public WindowTest {
  protected:
    static void expectNames(const QWidget* window) {
        int controls = 0;
        for (auto* widget : window->findChildren<QWidget*>()) {
            const bool isControl =
                qobject_cast<QAbstractButton*>(widget) || qobject_cast<QAbstractSlider*>(widget) ||
                qobject_cast<QLineEdit*>(widget) || qobject_cast<QAbstractItemView*>(widget) ||
                qobject_cast<QProgressBar*>(widget);
            const bool isInner = widget->objectName().startsWith(QLatin1String("qt_")) ||
                                 widget->inherits("QScrollBar") || widget->inherits("QHeaderView") ||
                                 widget->inherits("QTableCornerButton") ||
                                 widget->inherits("QLineEditIconButton");
            if (!isControl || isInner) {
                continue;
            }
            ++controls;
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(face, nullptr) << widget->objectName().toStdString();
            EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
            EXPECT_NE(face->role(), QAccessible::NoRole);
            if (qobject_cast<QProgressBar*>(widget) == nullptr) {
                EXPECT_NE(widget->focusPolicy() & Qt::TabFocus, 0)
                    << widget->objectName().toStdString() << " is not reached by keyboard";
            }
        }
        EXPECT_GT(controls, 0);
    }
};

TEST_F(Accessible, EveryControlOfTheWindowHasANameAndIsReachedByKeyboard) {
    openWithCard();
    expectNames(controller->window);
}

TEST_F(Accessible, EveryPanelToo) {
    open();
    for (const QDialog* panel : {controller->BrowseInfo_Window, controller->SaveFile_Info_Window,
                                 controller->SaveFile_Info_For_RAW_Window, controller->HelpWindow,
                                 controller->ClearPreview_Window, controller->LoadDisk_Window}) {
        expectNames(panel);
    }
}

TEST_F(Accessible, RolesAndStatesFollowTheControls) {
    openWithCard();
    QAccessibleInterface* photo = QAccessible::queryAccessibleInterface(controller->_rec_mode_Photo);
    EXPECT_EQ(photo->role(), QAccessible::RadioButton);
    EXPECT_TRUE(photo->state().checked);
    click(controller->_rec_mode_Video);
    EXPECT_FALSE(photo->state().checked);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(controller->backButton)->state().disabled);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(controller->_stop_scan)->role(), QAccessible::Button);
    EXPECT_FALSE(photo->text(QAccessible::Description).isEmpty());
}

}  // namespace
}  // namespace vantor
