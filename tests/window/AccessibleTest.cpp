// What a screen reader is told of every control.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

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
                qobject_cast<QProgressBar*>(widget) || qobject_cast<QComboBox*>(widget);
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
            // Of several of which one is chosen, Tab leads to that one and the arrow keys to the others.
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool isByArrow =
                button != nullptr && button->isCheckable() && !button->isChecked() && button->autoExclusive();
            if (qobject_cast<QProgressBar*>(widget) == nullptr && !isByArrow) {
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

TEST_F(Accessible, TextsAreReadOutAsTheyStand) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    const auto name = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    for (auto* label : controller->window->findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) {
            QString read = label->text();
            if (label->buddy() != nullptr) {
                read.remove(u'&');  // marks the letter that leads to the label's control
            }
            EXPECT_EQ(name(label), read) << label->objectName().toStdString();
        }
    }
    EXPECT_EQ(name(controller->_QuickLook_View_Box), QStringLiteral("No file is selected to preview"));
    controller->imageBrowser_2->setCurrentIndex(controller->imageBrowser_2->model()->index(0, 0));
    settle();
    EXPECT_EQ(name(controller->_QuickLook_View),
              QStringLiteral("Preview of ") + controller->_QuickLook_View_Box->title());
}

TEST_F(Accessible, AnEmptyListSaysWhatToDo_AndAFullOneDoesNot) {
    open();
    const auto description = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
    };
    EXPECT_TRUE(description(controller->idTableView).startsWith(QStringLiteral("No storage media found")));
    EXPECT_TRUE(description(controller->imageBrowser).startsWith(QStringLiteral("No photos found yet")));
    source->add(QStringLiteral("sdb1"), QStringLiteral("CARD"), 64);
    click(controller->refreshButton);
    EXPECT_EQ(description(controller->idTableView), QString());
    controller->addImageWithData(QByteArray("junk"), QStringLiteral("A.JPG"), QStringLiteral("u"));
    EXPECT_EQ(description(controller->imageBrowser), QString());
}

TEST_F(Accessible, AnActionDoesWhatAClickDoes) {
    openWithCard();
    const auto toggle = [](QWidget* widget) {
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face->actionInterface(), nullptr);
        EXPECT_TRUE(
            face->actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
        face->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    };
    toggle(controller->_rec_mode_RawFile);
    EXPECT_EQ(Recovery_MODE, kRawFileMode);
    toFileTypes(kRawFileMode);
    QAccessibleInterface* all = QAccessible::queryAccessibleInterface(controller->_select_unselect_Chk);
    EXPECT_EQ(all->role(), QAccessible::CheckBox);
    EXPECT_TRUE(all->state().checked);
    toggle(controller->_select_unselect_Chk);
    EXPECT_FALSE(all->state().checked);
    EXPECT_FALSE(isTicked(controller->nsCheckedListDataObject.at(0)));
    auto* documents = controller->window->findChild<QCheckBox*>(QStringLiteral("typeGroupDocuments"));
    toggle(documents);
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("3 of 4 selected"));
}

TEST_F(Accessible, ABoxOfChoicesIsCalledByWhatIsChosen_AndSaysWhatIs) {
    openWithCard();
    controller->show_hide_1_screen(true);
    controller->show_hide_3_screen_Photo(false);
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(controller->sortBox);
    EXPECT_EQ(box->role(), QAccessible::ComboBox);
    EXPECT_EQ(box->text(QAccessible::Name), QStringLiteral("How the items are sorted"));
    EXPECT_EQ(box->text(QAccessible::Value), QStringLiteral("As found"));
    controller->sortBox->setCurrentIndex(1);
    EXPECT_EQ(box->text(QAccessible::Name), QStringLiteral("How the items are sorted"));
    EXPECT_EQ(box->text(QAccessible::Value), controller->sortBox->itemText(1));
    ASSERT_EQ(box->childCount(), 1);
    EXPECT_EQ(box->indexOfChild(box->child(0)), 0);
    EXPECT_EQ(box->child(0)->object(), controller->sortBox->view());
    EXPECT_FALSE(box->state().expanded);
    box->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(controller->sortBox->view()->isVisible());
    EXPECT_TRUE(box->state().expanded);
    box->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(controller->sortBox->view()->isVisible());
    // Without a name of its own the label beside it names it.
    controller->sortBox->setAccessibleName({});
    EXPECT_EQ(box->text(QAccessible::Name), QStringLiteral("Sort"));
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

// What a screen reader does on behalf of its user, by the faces of the controls alone.
class ByReader : public Accessible, public ::testing::WithParamInterface<int> {
  protected:
    static QAccessibleInterface* face(QObject* object) {
        return QAccessible::queryAccessibleInterface(object);
    }
    static void act(QWidget* widget, const QString& action) {
        ASSERT_TRUE(widget->isVisible()) << widget->objectName().toStdString();
        ASSERT_TRUE(face(widget)->actionInterface()->actionNames().contains(action))
            << widget->objectName().toStdString();
        face(widget)->actionInterface()->doAction(action);
    }
    // A button that is pressed so stays down for a moment before it clicks.
    static void press(QWidget* button) {
        const QSignalSpy clicked(qobject_cast<QAbstractButton*>(button), &QAbstractButton::clicked);
        ASSERT_NO_FATAL_FAILURE(act(button, QAccessibleActionInterface::pressAction()));
        ASSERT_TRUE(waitFor([&] { return !clicked.isEmpty(); }));
    }
    static void choose(QWidget* button) { act(button, QAccessibleActionInterface::toggleAction()); }
    static void selectRow(QWidget* list, int row) { face(list)->tableInterface()->selectRow(row); }
    // The next dialog's button of this name.
    void answer(const QString& name) {
        answers.then([name](QDialog* dialog) {
            for (auto* button : dialog->findChildren<QAbstractButton*>()) {
                if (button->isVisible() && face(button)->text(QAccessible::Name) == name) {
                    act(button, QAccessibleActionInterface::pressAction());
                    return;
                }
            }
            ADD_FAILURE() << "nothing is called " << name.toStdString();
            dialog->reject();
        });
    }
};

TEST_P(ByReader, FromTheMediumToASavedFile) {
    const bool photo = GetParam() == kPhotoMode;
    openWithCard();
    MyTableController& c = *controller;
    selectRow(c.idTableView, 0);
    QWidget* const modes[] = {c._rec_mode_Photo, c._rec_mode_Video, c._rec_mode_RawFile};
    choose(modes[GetParam()]);
    press(c.nextButton);
    ASSERT_EQ(c.screen_counter, 1);

    QTemporaryDir destination;
    answer(QStringLiteral("Continue"));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, destination.path()); });
    press(photo ? c._browse_path : c._browse_path_Sig);
    EXPECT_TRUE(waitFor(
        [&] { return face(photo ? c._path : c._path_Sig)->text(QAccessible::Value) == destination.path(); }));
    if (!photo) {
        press(c.nextButton);
        ASSERT_EQ(c.screen_counter, 2);
    }
    answer(QStringLiteral("OK"));
    press(c.nextButton);
    ASSERT_TRUE(scanEnds());

    ImageBrowserView* browser = photo ? c.imageBrowser : c.imageBrowser_2;
    ASSERT_GE(face(browser)->tableInterface()->rowCount(), 2);
    QAccessibleInterface* cell = face(browser)->tableInterface()->cellAt(1, 0);
    EXPECT_TRUE(cell->text(QAccessible::Name).startsWith(c.itemAt(1)->imageTitle()));
    selectRow(browser, 1);
    // While the item is copied to be shown, a sheet keeps every button from being pressed.
    ASSERT_TRUE(photo ||
                waitFor([&] { return !c.session && c._QuickLook_View_Box->title() == c.itemAt(1)->path(); }));
    answer(QStringLiteral("OK"));
    press(photo ? c.saveSelectedButton : c.saveSelectedButton_Sig);
    const QString name = c.itemAt(1)->imageTitle();
    EXPECT_TRUE(QFile::exists(destination.filePath(name.section(u'.', -1) + u'/' + name)));
    EXPECT_EQ(face(photo ? c.savedLabel : c.savedLabel_Sig)->text(QAccessible::Name),
              QStringLiteral("1 of %1 saved").arg(c.itemCount()));
}

INSTANTIATE_TEST_SUITE_P(Modes, ByReader, ::testing::Values(kPhotoMode, kVideoMode, kRawFileMode));

}  // namespace
}  // namespace vantor
