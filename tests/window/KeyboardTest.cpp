// What the keyboard alone can do on every screen: Tab leads to each control, and each underlined letter to
// one of them only, in every language.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QSet>
#include <QTranslator>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

const QString kLanguages = QStringLiteral(VANTOR_BINARY_DIR "/share/vantor-recovery/languages");
constexpr int kMostSteps = 200;

std::vector<std::string> languages() {
    std::vector<std::string> codes{"en"};
    for (const QString& file : QDir(kLanguages).entryList({QStringLiteral("vantor_*.qm")})) {
        codes.push_back(file.mid(7).chopped(3).toStdString());
    }
    return codes;
}

QString wordsOf(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return button->text();
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget);
        label != nullptr && label->buddy() != nullptr) {
        return label->text();
    }
    const auto* box = qobject_cast<const QGroupBox*>(widget);
    return box != nullptr ? box->title() : QString();
}

void expectOwnLetters(const QStringList& texts, const char* where) {
    QMap<QString, QString> letters;
    for (const QString& text : texts) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (!letter.isEmpty()) {
            EXPECT_FALSE(letters.contains(letter))
                << where << ": " << letters.value(letter).toStdString() << " and " << text.toStdString();
            letters.insert(letter, text);
        }
    }
    EXPECT_FALSE(letters.isEmpty()) << where;
}

// Also of those that are shown at other times: a button that is not there today is there when a card fails.
void expectOwnLetters(const QWidget* window, const char* where) {
    QStringList texts;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->window() == window && widget->parentWidget()->isVisible()) {
            texts.append(wordsOf(widget));
        }
    }
    expectOwnLetters(texts, where);
}

class Letters : public WindowTest, public ::testing::WithParamInterface<std::string> {
  protected:
    Letters() {
        const QString code = QString::fromStdString(GetParam());
        if (code != QLatin1String("en")) {
            EXPECT_TRUE(m_texts.load(QStringLiteral("vantor_") + code, kLanguages));
            QCoreApplication::installTranslator(&m_texts);
        }
    }
    ~Letters() override { QCoreApplication::removeTranslator(&m_texts); }

  private:
    QTranslator m_texts;
};

TEST_P(Letters, LeadToOneControlOfAScreen) {
    openWithCard();
    expectOwnLetters(controller->window, "media");
    toRange(kPhotoMode);
    expectOwnLetters(controller->window, "range of photos");
    scanToEnd();
    controller->searchEndBar->show();
    expectOwnLetters(controller->window, "photos");
    answers.then([](QDialog* dialog) {
        expectOwnLetters(dialog, "options for saving");
        dialog->reject();
    });
    click(controller->savingOptionsButton);
}

TEST_P(Letters, LeadToOneControlOfTheScreensOfFiles) {
    openWithCard();
    toRange(kRawFileMode);
    expectOwnLetters(controller->window, "range of files");
    click(controller->nextButton);
    expectOwnLetters(controller->window, "file types");
    scanToEnd();
    controller->searchEndBar->show();
    expectOwnLetters(controller->window, "files");
}

TEST_P(Letters, LeadToOneLineOfAMenu) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    controller->imageBrowser->chooseIndex(0);
    settle();
    emit controller->imageBrowser->menuWanted(0, QPoint(10, 10));
    auto* menu = controller->window->findChild<QMenu*>(QStringLiteral("itemMenu"));
    ASSERT_NE(menu, nullptr);
    QStringList texts;
    for (const QAction* action : menu->actions()) {
        texts.append(action->text());
    }
    expectOwnLetters(texts, "menu of an item");
    menu->close();
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, Letters, ::testing::ValuesIn(languages()),
                         [](const auto& language) { return language.param; });

class ByTab : public WindowTest {
  protected:
    // Every control of the screen in view has the keyboard once on a round.
    void expectRound(const char* where) {
        QWidget* const window = controller->window;
        window->activateWindow();
        ASSERT_TRUE(waitFor([&] { return window->focusWidget() != nullptr; }));
        QSet<QWidget*> met;
        for (int step = 0; step < kMostSteps; ++step) {
            met.insert(window->focusWidget());
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        }
        int controls = 0;
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            const bool isControl =
                qobject_cast<QAbstractButton*>(widget) || qobject_cast<QAbstractSlider*>(widget) ||
                qobject_cast<QLineEdit*>(widget) || qobject_cast<QAbstractItemView*>(widget) ||
                qobject_cast<QComboBox*>(widget);
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool isByArrow =
                button != nullptr && button->isCheckable() && !button->isChecked() && button->autoExclusive();
            if (!isControl || isByArrow || !widget->isVisible() || !widget->isEnabled() ||
                widget->window() != window || widget->objectName().startsWith(QLatin1String("qt_")) ||
                widget->inherits("QScrollBar") || widget->inherits("QHeaderView") ||
                widget->inherits("QTableCornerButton") || widget->inherits("QLineEditIconButton")) {
                continue;
            }
            ++controls;
            EXPECT_TRUE(met.contains(widget)) << where << ": " << widget->objectName().toStdString();
        }
        EXPECT_GT(controls, 4) << where;
    }
};

TEST_F(ByTab, EveryControlOfEveryScreenIsReached) {
    openWithCard();
    expectRound("media");
    toRange(kPhotoMode);
    expectRound("range of photos");
    click(controller->_sector_range_rd);
    expectRound("range of sectors");
    scanToEnd();
    controller->tickItems({0}, true);
    settle();
    expectRound("photos");
}

TEST_F(ByTab, EveryControlOfTheScreensOfFilesToo) {
    openWithCard();
    toFileTypes(kRawFileMode);
    expectRound("file types");
    scanToEnd();
    controller->tickItems({0}, true);
    settle();
    expectRound("files");
}

TEST_F(ByTab, EveryControlOfTheViewerToo) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    controller->openInViewer(0);
    settle();
    const auto* viewer = controller->window->findChild<QWidget*>(QStringLiteral("itemViewer"));
    ASSERT_NE(viewer, nullptr);
    QSet<QWidget*> met;
    for (int step = 0; step < kMostSteps && controller->window->focusWidget() != nullptr; ++step) {
        met.insert(controller->window->focusWidget());
        QTest::keyClick(controller->window->focusWidget(), Qt::Key_Tab);
    }
    int buttons = 0;
    for (auto* button : viewer->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled()) {
            ++buttons;
            EXPECT_TRUE(met.contains(button)) << button->objectName().toStdString();
        }
    }
    EXPECT_GT(buttons, 4);
    for (QWidget* widget : met) {
        EXPECT_TRUE(viewer->isAncestorOf(widget) || widget == viewer) << widget->objectName().toStdString();
    }
}

}  // namespace
}  // namespace vantor
