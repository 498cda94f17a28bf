// Items over the whole window: how they are opened, what is shown and told, and the way back.
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QToolButton>
#include <mutex>

#include "results/RecoveryMode.h"
#include "tests/window/PreviewWindow.h"
#include "tests/window/ScriptedMovie.h"
#include "window/preview/ItemViewer.h"
#include "window/preview/MovieView.h"
#include "window/preview/ViewerDesk.h"
#include "window/preview/ZoomPicture.h"

namespace vantor {
namespace {

constexpr QSize kPictureSize{4000, 3000};

class Viewer : public Preview {
  protected:
    Viewer() {
        // Any file with bytes in it is a picture of twelve million pixels.
        parts.picture = [this](const QString& path, QSize bound) {
            QFile file(path);
            const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            const std::lock_guard guard(lock);
            shown = bytes;
            if (bytes.isEmpty() || noPictures) {
                return QImage();
            }
            QImage picture(kPictureSize.scaled(bound.boundedTo(kPictureSize), Qt::KeepAspectRatio),
                           QImage::Format_RGB32);
            picture.fill(Qt::darkGreen);
            return picture;
        };
    }
    void openThree(int mode = kRawFileMode) {
        openResults({{"A.JPG", 4, 8}, {"B.JPG", 10, 12}, {"C.JPG", 20, 30}}, mode);
    }
    QWidget* browserPlace() const { return controller->imageBrowser_2->viewport(); }
    QPoint spot(int row) const {
        return controller->imageBrowser_2->visualRect(controller->imageBrowser_2->model()->index(row, 0))
            .center();
    }
    void doubleClick(int row) {
        select(row);
        secondClick(row);
    }
    void secondClick(int row) const {
        QTest::mouseDClick(browserPlace(), Qt::LeftButton, {}, spot(row));
        QTest::mouseRelease(browserPlace(), Qt::LeftButton, {}, spot(row));
    }
    bool isOpen() const { return controller->viewer().isOpen(); }
    ItemViewer& viewer() const { return *controller->viewer().viewer(); }
    QSize pictureSize() const { return viewer().picture()->picture().size(); }
    bool pictureCame() {
        return waitFor([this] { return pictureSize().width() > 1000; });
    }
    QString text(const char* name) const { return viewer().findChild<QLabel*>(QLatin1String(name))->text(); }
    QString fact(const QString& name) const {
        for (const ViewerFact& fact : viewer().facts()) {
            if (fact.name == name) {
                return fact.value;
            }
        }
        return QStringLiteral("-");
    }
    // A window system gives the window back the keyboard once the sheet is gone; this one does not.
    void takeKeyboard() {
        controller->window->activateWindow();
        ASSERT_TRUE(waitFor([this] { return controller->window->isActiveWindow(); }));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        takeKeyboard();
        QTest::keyClick(controller->window->focusWidget(), key, modifiers);
        settle();
    }

    std::mutex lock;
    QByteArray shown;
    std::atomic<bool> noPictures{false};
    MovieLog log;
};

TEST_F(Viewer, ADoubleClick_ShowsTheItemLarge_AndTellsOfIt) {
    openThree();
    doubleClick(1);
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(viewer().size(), controller->window->centralWidget()->size());
    ASSERT_TRUE(pictureCame());
    EXPECT_EQ(shown, QByteArray(reinterpret_cast<const char*>(card.bytes.at(10).data()), 1024));
    EXPECT_EQ(text("viewerTitle"), QStringLiteral("B.JPG"));
    EXPECT_EQ(text("viewerPlace"), QStringLiteral("2 of 3"));
    EXPECT_EQ(fact(QStringLiteral("On the card")), QStringLiteral("sectors 10 to 11"));
    EXPECT_EQ(fact(QStringLiteral("Saved")), QStringLiteral("not yet"));
    EXPECT_NE(fact(QStringLiteral("Size")), QStringLiteral("-"));
    EXPECT_TRUE(viewer().picture()->isFitted());
}

TEST_F(Viewer, ReturnAndSpaceOpen_EscapeLeadsBackToTheItem) {
    openThree();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        controller->imageBrowser_2->setFocus();
        controller->imageBrowser_2->chooseIndex(2);
        settle();
        press(key);
        ASSERT_TRUE(isOpen()) << key;
        EXPECT_EQ(controller->viewer().shown(), 2);
        press(Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
        EXPECT_TRUE(controller->imageBrowser_2->hasFocus());
        EXPECT_EQ(controller->imageBrowser_2->selectionIndexes(), QList<qsizetype>{2});
    }
    EXPECT_EQ(controller->screen_counter, 3) << "Return was not the window's";
}

TEST_F(Viewer, ArrowsGoOn_AndTheListFollows) {
    openThree();
    doubleClick(0);
    press(Qt::Key_Right);
    EXPECT_EQ(controller->viewer().shown(), 1);
    EXPECT_EQ(controller->imageBrowser_2->selectionIndexes(), QList<qsizetype>{1});
    press(Qt::Key_End);
    EXPECT_EQ(controller->viewer().shown(), 2);
    press(Qt::Key_Right);
    EXPECT_EQ(controller->viewer().shown(), 2) << "there is nothing behind it";
    press(Qt::Key_Left);
    EXPECT_EQ(controller->viewer().shown(), 1);
    press(Qt::Key_Home);
    EXPECT_EQ(controller->viewer().shown(), 0);
    EXPECT_EQ(title(), QStringLiteral("A.JPG")) << "nothing is copied beside the list meanwhile";
    press(Qt::Key_End);
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitFor([this] { return title() == u"C.JPG" && !controller->session; }));
}

TEST_F(Viewer, ArrowsFollowTheOrderThatIsShown) {
    openThree();
    controller->imageBrowser_2->setOrder(QList<int>{2, 0});
    controller->openInViewer(2);
    EXPECT_EQ(text("viewerPlace"), QStringLiteral("1 of 2"));
    press(Qt::Key_Right);
    EXPECT_EQ(controller->viewer().shown(), 0);
    press(Qt::Key_Right);
    EXPECT_EQ(controller->viewer().shown(), 0);
}

TEST_F(Viewer, ASecondClickDuringThePreviewCopy_OpensTheItem) {
    openThree();
    when([this] { return controller->session.load(); }, [this] { secondClick(1); });
    select(1);
    EXPECT_TRUE(waitFor([this] { return isOpen(); }));
    EXPECT_EQ(controller->viewer().shown(), 1);
}

TEST_F(Viewer, AtItsActualSize_APictureGetsItsOwnPixels) {
    openThree();
    doubleClick(0);
    ASSERT_TRUE(pictureCame());
    EXPECT_LT(pictureSize().width(), kPictureSize.width()) << "no more than the window takes";
    press(Qt::Key_1);
    EXPECT_TRUE(waitFor([this] { return pictureSize() == kPictureSize; }));
    EXPECT_EQ(viewer().picture()->fullSize(), kPictureSize);
    press(Qt::Key_1);
    EXPECT_DOUBLE_EQ(viewer().picture()->scale(), 1);
    press(Qt::Key_0);
    EXPECT_TRUE(viewer().picture()->isFitted());
}

TEST_F(Viewer, WhatHasNoPicture_SaysSo) {
    noPictures = true;
    openThree();
    doubleClick(0);
    EXPECT_TRUE(waitFor([this] { return text("viewerNote") == u"No picture of this file can be shown."; }));
    press(Qt::Key_Escape);
    refuseOpen = true;
    controller->openInViewer(1);
    EXPECT_TRUE(waitFor([this] { return text("viewerNote") == u"The storage medium cannot be read."; }));
}

TEST_F(Viewer, MoviesPlay_WithTheirVolume_AndEndWithTheViewer) {
    int played = 0;
    parts.largeMovie = [&](const QString&) {
        ++played;
        return std::make_unique<ScriptedMovie>(log);
    };
    openResults({{"A.MP4", 4, 8}, {"B.JPG", 10, 12}});
    doubleClick(0);
    ASSERT_TRUE(waitFor([this] { return viewer().movie()->movie() != nullptr; }));
    const auto* const movie = static_cast<const ScriptedMovie*>(viewer().movie()->movie());
    EXPECT_EQ(fact(QStringLiteral("Length")), QStringLiteral("1:05"));
    press(Qt::Key_Space);
    EXPECT_EQ(movie->playing, 1);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(movie->position, 5000);
    auto* const volume = viewer().findChild<QSlider*>(QStringLiteral("movieVolume"));
    ASSERT_TRUE(volume->isVisible());
    volume->setValue(30);
    EXPECT_DOUBLE_EQ(movie->loudness, 0.3);
    press(Qt::Key_Right);
    EXPECT_EQ(log.alive, 0) << "the next item is a picture";
    EXPECT_TRUE(pictureCame());
    press(Qt::Key_Left);
    ASSERT_TRUE(waitFor([this] { return viewer().movie()->movie() != nullptr; }));
    EXPECT_DOUBLE_EQ(static_cast<const ScriptedMovie*>(viewer().movie()->movie())->loudness, 0.3);
    press(Qt::Key_Escape);
    EXPECT_EQ(log.alive, 0);
    EXPECT_EQ(played, 2);
}

TEST_F(Viewer, FullScreenIsThePictureAlone_AndEscapeLeavesItFirst) {
    openThree();
    doubleClick(0);
    press(Qt::Key_F11);
    EXPECT_TRUE(controller->window->isFullScreen());
    EXPECT_FALSE(viewer().findChild<QLabel*>(QStringLiteral("viewerTitle"))->isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(controller->window->isFullScreen());
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(viewer().findChild<QLabel*>(QStringLiteral("viewerTitle"))->isVisible());
    press(Qt::Key_F11);
    answers.press(QStringLiteral("Go Back Without Saving"));
    controller->Back_btn(nullptr);
    EXPECT_FALSE(controller->window->isFullScreen());
    EXPECT_FALSE(isOpen());
}

TEST_F(Viewer, KeysStayInIt) {
    openThree();
    doubleClick(0);
    for (int presses = 0; presses < 20; ++presses) {
        QWidget* const at = controller->window->focusWidget();
        EXPECT_TRUE(at == &viewer() || viewer().isAncestorOf(at)) << presses;
        press(Qt::Key_Tab);
    }
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(controller->screen_counter, 3);
    EXPECT_TRUE(isOpen());
    controller->imageBrowser_2->setFocus();
    settle();
    EXPECT_TRUE(viewer().hasFocus()) << "who takes the keyboard below gives it back";
}

class ItemMenu : public Viewer {
  protected:
    QMenu* menuAt(int row) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, spot(row), browserPlace()->mapToGlobal(spot(row)));
        QApplication::sendEvent(browserPlace(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static QAction* find(const QMenu* menu, const QString& text) {
        for (QAction* const action : menu->actions()) {
            if (action->text().remove(u'&').startsWith(text)) {
                return action;
            }
        }
        return nullptr;
    }
};

TEST_F(ItemMenu, ShowsTheItemAndItsFacts) {
    openThree();
    QMenu* menu = menuAt(1);
    ASSERT_NE(menu, nullptr);
    find(menu, QStringLiteral("Show Large"))->trigger();
    EXPECT_EQ(controller->viewer().shown(), 1);
    auto* const facts = viewer().findChild<QWidget*>(QStringLiteral("viewerFactsPane"));
    press(Qt::Key_I);
    EXPECT_FALSE(facts->isVisible());
    menu->close();
    press(Qt::Key_Escape);
    menu = menuAt(2);
    ASSERT_NE(menu, nullptr);
    find(menu, QStringLiteral("Show Facts"))->trigger();
    EXPECT_EQ(controller->viewer().shown(), 2);
    EXPECT_TRUE(facts->isVisible());
    menu->close();
}

TEST_F(ItemMenu, SelectsWhatIsOfTheSameType_AmongWhatIsShown) {
    openResults({{"A.JPG", 4, 8}, {"B.PDF", 10, 12}, {"C.JPG", 20, 30}, {"D.JPG", 31, 32}});
    controller->imageBrowser_2->setOrder(QList<int>{0, 1, 2});
    QMenu* const menu = menuAt(2);
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(find(menu, QStringLiteral("Select All of the Day"))->isEnabled()) << "nobody knows it";
    find(menu, QStringLiteral("Select All Type JPG"))->trigger();
    menu->close();
    EXPECT_EQ(controller->imageBrowser_2->selectionIndexes(), (QList<qsizetype>{0, 2}));
}

TEST_F(ItemMenu, ComesByTheKeyboardToo_AndNotBesideTheItems) {
    openThree();
    controller->imageBrowser_2->setFocus();
    controller->imageBrowser_2->chooseIndex(2);
    settle();
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(browserPlace(), &byKey);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->defaultAction()->text().contains(QLatin1String("Large")));
    menu->close();
    settle();
    QContextMenuEvent beside(QContextMenuEvent::Mouse, browserPlace()->rect().bottomRight(), QPoint(1, 1));
    QApplication::sendEvent(browserPlace(), &beside);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Viewer, TheLastOfManySteps_IsWhatCounts) {
    openThree();
    doubleClick(0);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    ASSERT_TRUE(pictureCame());
    EXPECT_TRUE(waitFor([this] {
        const std::lock_guard guard(lock);
        return shown.size() == 10 * 512;
    }));
    EXPECT_EQ(fact(QStringLiteral("On the card")), QStringLiteral("sectors 20 to 29"));
}

TEST_F(Viewer, InsertAndDelete_TickForSaving) {
    openThree();
    doubleClick(1);
    ASSERT_TRUE(isOpen());
    auto* const tick = viewer().findChild<QToolButton*>(QStringLiteral("viewerTick"));
    ASSERT_NE(tick, nullptr);
    EXPECT_FALSE(tick->isChecked());
    press(Qt::Key_Insert);
    EXPECT_TRUE(controller->ticks().isTicked(1));
    EXPECT_TRUE(tick->isChecked());
    EXPECT_EQ(tick->text(), QStringLiteral("Ticked"));
    press(Qt::Key_Right);
    EXPECT_FALSE(tick->isChecked()) << "the next one is not";
    click(tick);
    EXPECT_TRUE(controller->ticks().isTicked(2));
    press(Qt::Key_Delete);
    EXPECT_FALSE(controller->ticks().isTicked(2));
    EXPECT_TRUE(controller->ticks().isTicked(1));
    EXPECT_FALSE(tick->isChecked());
}

}  // namespace
}  // namespace vantor
