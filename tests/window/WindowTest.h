// The whole window over media and a resources folder that a test writes down, and somebody who answers its
// dialogs.
#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>

#include "tests/support/ScriptedMedium.h"
#include "window/MyTableController.h"

namespace vantor {

// A source whose media a test lists.
class ScriptedSource : public MediaSource {
  public:
    QStringList mountedRemovableMedia() override {
        ++listings;
        return order;
    }
    MediaFacts diskInfo(const QString& path) override {
        if (duringQuery) {
            duringQuery();
        }
        return facts.value(path);
    }
    OpenedImage addImage(const QString& path) override {
        if (!path.endsWith(QLatin1String(".img"))) {
            return {{}, QStringLiteral("“%1” is no image.").arg(path)};
        }
        add(QStringLiteral("image1"), path.section(u'/', -1), 64);
        return {QStringLiteral("image1"), {}};
    }

    void add(const QString& identifier, const QString& name, quint64 sectors);

    QStringList order;
    QHash<QString, MediaFacts> facts;
    std::function<void()> duringQuery;
    int listings = 0;
};

// What a dialog showed when it came up.
struct SeenDialog {
    QString name;  // of the object; "" for alerts
    QString text, informative;
    QStringList buttons;
    QString defaultButton;
};

// Answers the modal dialogs of a test in the order in which they are expected. A dialog that nobody expects
// is closed and counted.
class DialogAnswers {
  public:
    using Answer = std::function<void(QDialog*)>;

    DialogAnswers();

    // The next dialog's button with this text is pressed.
    void press(const QString& button);
    void then(Answer answer) { m_answers.push_back(std::move(answer)); }

    const std::vector<SeenDialog>& seen() const { return m_seen; }
    int unexpected() const { return m_unexpected; }
    bool allGiven() const { return m_answers.empty(); }

  private:
    void look();

    QTimer m_poll;
    QList<QPointer<QDialog>> m_handled;  // those in view that were seen
    std::deque<Answer> m_answers;
    std::vector<SeenDialog> m_seen;
    int m_unexpected = 0;
};

void pressButton(QDialog* dialog, const QString& text);
// Types the folder into a folder chooser and accepts it.
void chooseFolder(QDialog* chooser, const QString& folder);

// Beyond which a test fails rather than waits: longer than anything takes on the busiest machine.
constexpr std::chrono::minutes kPatience{1};

class WindowTest : public ::testing::Test {
  protected:
    WindowTest();
    // Ends the window while what the tests of a fixture share is still there for its threads.
    void TearDown() override;

    // Makes the controller; media and catalogues have to be there.
    void open();
    void close() { controller.reset(); }

    // The program as a person finds it: one card of 64 sectors with pictures, documents and movies.
    void openWithCard();

    static void click(QWidget* widget);
    static void choose(QAbstractButton* card) { click(card); }
    static bool waitFor(const std::function<bool()>& condition,
                        std::chrono::milliseconds patience = kPatience);
    // Does this once the condition holds, also from within a modal loop that the test is held up in.
    void when(std::function<bool()> condition, std::function<void()> action);
    // Returns when events and layouts have had their turn: rounds of the loop, however long they take.
    static void settle();

    void selectMedium(int row = 0);
    // From the first screen: the medium, the mode, Next.
    void toRange(int mode);
    void toFileTypes(int mode);
    // Next, the scan, the end panel, until the window has done all that it does at the end of a scan.
    void scanToEnd();
    bool scanEnds(std::chrono::milliseconds patience = kPatience);

    void writeCatalogue(const char* name, const QByteArray& records);
    static QByteArray record(const char* extension, const char* header, const char* description,
                             const char* offset = "1", const char* size = "1048576");

    QTemporaryDir folder;  // resources
    std::shared_ptr<ScriptedSource> source = std::make_shared<ScriptedSource>();
    ScriptedMedium card{64};
    std::atomic<int> opened{0};  // times a medium was opened
    std::atomic<bool> refuseOpen{false};
    ProgramParts parts;
    QStringList documentsOpened;
    int terminations = 0;
    DialogAnswers answers;
    std::unique_ptr<MyTableController> controller;

  private:
    QObject m_watches;  // the timers of when()
};

}  // namespace vantor
