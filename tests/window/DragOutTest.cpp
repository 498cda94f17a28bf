// Items leave the window: dragged as whole files, saved under a name of their own, and the card after them.
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>
#include <QWindow>

#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/support/SmallFiles.h"
#include "tests/window/WindowTest.h"
#include "window/browser/ImageCell.h"

namespace vantor {
namespace {

constexpr int kWavBytes = 5000;

class DragOut : public WindowTest {
  protected:
    // A card with two sounds that are whole.
    void openResults() {
        parts.openBeside = [this](const QString&) -> std::unique_ptr<SectorReader> {
            return std::make_unique<ScriptedReader>(cardBeside);
        };
        parts.privateFolder = privateFolder.filePath(QStringLiteral("cache"));
        parts.drag = [this](std::unique_ptr<QMimeData> files) { dragged.push_back(std::move(files)); };
        source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
        writeCatalogue("ZelRaw.dll", record("WAV", "52494646", "Sound"));
        for (const std::size_t sector : {4U, 30U}) {
            const QByteArray file = wavFile(kWavBytes, static_cast<int>(sector));
            std::memcpy(card.bytes.at(sector).data(), file.data(), static_cast<std::size_t>(file.size()));
        }
        open();
        toFileTypes(kRawFileMode);
        cardBeside = card;
        scanToEnd();
        ASSERT_EQ(controller->itemCount(), 2U);
        browser = controller->imageBrowser_2;
    }
    QPoint pictureOf(int row) const {
        const QRect cell = browser->visualRect(browser->model()->index(row, 0));
        return ImageCell::picturePlace(cell, browser->iconSize().width()).center();
    }
    // With the real button, which the program asks about.
    void press(const QPoint& place, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mousePress(handle(), Qt::LeftButton, modifiers, inWindow(place));
    }
    void release(const QPoint& place, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mouseRelease(handle(), Qt::LeftButton, modifiers, inWindow(place));
    }
    void pull(const QPoint& from) const {
        press(from);
        QTest::mouseMove(handle(), inWindow(from + QPoint(4, 0)));
        QTest::mouseMove(handle(), inWindow(from + QPoint(60, 30)));
    }
    QWindow* handle() const { return controller->window->windowHandle(); }
    QPoint inWindow(const QPoint& place) const {
        return browser->viewport()->mapTo(static_cast<QWidget*>(controller->window), place);
    }

    QTemporaryDir privateFolder;
    ScriptedMedium cardBeside{64};
    Gate gate;
    std::vector<std::unique_ptr<QMimeData>> dragged;
    ImageBrowserView* browser = nullptr;
};

TEST_F(DragOut, ASelectedItemPulledAway_IsAWholeFileInAPrivateFolder) {
    openResults();
    browser->selectIndexes({1});
    pull(pictureOf(1));
    ASSERT_EQ(dragged.size(), 1U);
    release(pictureOf(1));
    const QList<QUrl> urls = dragged[0]->urls();
    ASSERT_EQ(urls.size(), 1);
    QFile file(urls[0].toLocalFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), wavFile(kWavBytes, 30));
    EXPECT_TRUE(file.fileName().endsWith(QStringLiteral(".WAV")));
    const QDir cache(parts.privateFolder.isEmpty() ? privateFolder.filePath(QStringLiteral("cache"))
                                                   : parts.privateFolder);
    const QFileInfoList folders = cache.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_FALSE(folders.isEmpty());
    for (const QFileInfo& each : folders) {
        EXPECT_EQ(
            each.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther),
            QFile::Permissions());
    }
    EXPECT_EQ(controller->imageBrowser_2->selectionIndexes(), QList<qsizetype>{1});
    close();
    EXPECT_FALSE(QFile::exists(urls[0].toLocalFile())) << "nothing is left behind";
}

TEST_F(DragOut, AllThatIsSelected_IsDragged_AndAClickSelectsOne) {
    openResults();
    browser->selectIndexes({0, 1});
    press(pictureOf(1));
    EXPECT_EQ(browser->selectedCount(), 2) << "as long as it may become a drag";
    release(pictureOf(1));
    EXPECT_EQ(browser->selectionIndexes(), QList<qsizetype>{1});
    browser->selectIndexes({0, 1});
    pull(pictureOf(0));
    release(pictureOf(0));
    ASSERT_EQ(dragged.size(), 1U);
    EXPECT_EQ(dragged[0]->urls().size(), 2);
    EXPECT_EQ(browser->selectedCount(), 2);
}

TEST_F(DragOut, FromWhatIsNotSelected_ABandIsDrawn) {
    openResults();
    browser->selectIndexes({1});
    const QRect cell = browser->visualRect(browser->model()->index(0, 0));
    pull(cell.bottomRight() - QPoint(3, 3));
    release(cell.bottomRight());
    EXPECT_TRUE(dragged.empty());
    EXPECT_TRUE(browser->selectionIndexes().contains(0));
}

TEST_F(DragOut, WhoLetsGoEarly_FindsTheFilesReadyTheNextTime) {
    openResults();
    browser->selectIndexes({0});
    cardBeside.beforeRead = gate.atEveryRead();
    when([this] { return gate.someoneWaits() && QGuiApplication::mouseButtons() != Qt::NoButton; },
         [this] { release(pictureOf(0)); });
    pull(pictureOf(0));
    EXPECT_TRUE(dragged.empty());
    gate.open();
    EXPECT_TRUE(waitFor([this] {
        pull(pictureOf(0));
        release(pictureOf(0));
        return !dragged.empty();
    }));
}

TEST_F(DragOut, WhatTheMediumDoesNotGive_IsNotDragged) {
    openResults();
    browser->selectIndexes({0});
    for (std::uint64_t sector = 0; sector < 64; ++sector) {
        cardBeside.badForEver.insert(sector);
    }
    pull(pictureOf(0));
    release(pictureOf(0));
    EXPECT_TRUE(dragged.empty());
}

TEST_F(DragOut, OfSeveralTheUnreadableOneIsMissing_AndThatIsTold) {
    openResults();
    browser->selectIndexes({0, 1});
    for (std::uint64_t sector = 30; sector < 64; ++sector) {
        cardBeside.badForEver.insert(sector);
    }
    pull(pictureOf(0));
    release(pictureOf(0));
    ASSERT_EQ(dragged.size(), 1U);
    EXPECT_EQ(dragged[0]->urls().size(), 1);
    const QString words =
        QStringLiteral("1 of the 2 files could not be dragged.\nNone of its sectors could be read");
    // The preview of what is selected comes and goes meanwhile.
    EXPECT_TRUE(waitFor([&] { return browser->findChild<QTimer*>(QStringLiteral("dragWords")) == nullptr; }));
    EXPECT_EQ(QToolTip::text(), words) << "also when the button is let go";
}

TEST_F(DragOut, WhereTheFilesCannotBeMadeReady_ThePlaceIsBlamedAndNotTheMedium) {
    QFile inTheWay(privateFolder.filePath(QStringLiteral("cache")));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    openResults();
    browser->selectIndexes({0});
    pull(pictureOf(0));
    release(pictureOf(0));
    EXPECT_TRUE(dragged.empty());
    EXPECT_TRUE(waitFor([&] { return QToolTip::text().contains(inTheWay.fileName()); }));
}

TEST_F(DragOut, SaveAs_GivesOneItemTheNameThatIsWanted_AndNeverReplacesAFile) {
    openResults();
    const QTemporaryDir destination;
    const QString wanted = destination.filePath(QStringLiteral("Grandma.wav"));
    const auto saveAs = [&] {
        emit browser->menuWanted(0, {});
        auto* const menu = browser->findChild<QMenu*>(QStringLiteral("itemMenu"));
        ASSERT_NE(menu, nullptr);
        answers.then([&](QDialog* dialog) {
            auto* const chooser = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(chooser, nullptr);
            chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(wanted);
            QMetaObject::invokeMethod(chooser, "accept");
        });
        for (QAction* const action : menu->actions()) {
            if (action->text() == QStringLiteral("Save &As…")) {
                action->trigger();
            }
        }
        menu->close();
        settle();
    };
    saveAs();
    saveAs();
    const QStringList files =
        QDir(destination.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    EXPECT_EQ(files, (QStringList{QStringLiteral("Grandma (2).wav"), QStringLiteral("Grandma.wav")}));
    QFile file(wanted);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), wavFile(kWavBytes, 4));
    EXPECT_TRUE(controller->factsOfItem(0).saved);
    EXPECT_FALSE(controller->factsOfItem(1).saved);
}

TEST_F(DragOut, WhileTheMediumIsAskedFor_NothingLeavesTheWindow) {
    openResults();
    browser->selectIndexes({0});
    settle();
    const auto menuNow = [this] { return browser->findChild<QMenu*>(QStringLiteral("itemMenu")); };
    emit browser->menuWanted(0, {});
    const QPointer<QMenu> menu = menuNow();
    ASSERT_NE(menu, nullptr);
    const std::size_t dialogs = answers.seen().size();
    controller->session = true;
    for (QAction* const action : menu->actions()) {
        if (action->text() == QStringLiteral("Save &As…")) {
            action->trigger();
        }
    }
    menu->close();
    ASSERT_TRUE(waitFor([&] { return menu.isNull(); }));
    emit browser->menuWanted(0, {});
    EXPECT_EQ(menuNow(), nullptr);
    pull(pictureOf(0));
    release(pictureOf(0));
    EXPECT_TRUE(dragged.empty());
    controller->saveAll();
    settle();
    EXPECT_EQ(answers.seen().size(), dialogs) << "nobody was asked where to";
    controller->session = false;
    pull(pictureOf(0));
    release(pictureOf(0));
    EXPECT_EQ(dragged.size(), 1U);
}

TEST_F(DragOut, OnceAllIsSaved_TheCardCanBeEjected) {
    QStringList ejected;
    QString refusal;
    parts.canEject = [](const QString& device) { return device.endsWith(QStringLiteral("sdb1")); };
    parts.eject = [&](const QString& device) {
        ejected << device;
        return refusal;
    };
    openResults();
    const QTemporaryDir destination;
    controller->_path_Sig->setText(destination.path());
    answers.press(QStringLiteral("Eject Card"));
    answers.press(QStringLiteral("OK"));
    controller->saveAll();
    EXPECT_EQ(ejected, QStringList{QStringLiteral("/dev/rsdb1")});
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThe card can be taken out."));
    refusal = QStringLiteral("target is busy");
    answers.press(QStringLiteral("Eject Card"));
    answers.press(QStringLiteral("OK"));
    controller->saveAll();
    EXPECT_EQ(answers.seen().back().informative, refusal);
    EXPECT_EQ(answers.unexpected(), 0);
}

}  // namespace
}  // namespace vantor
