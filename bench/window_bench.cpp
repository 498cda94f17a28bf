// How long the window keeps the user waiting: vantor-window-bench [ITEMS].
//
// Prints, over an image of a card whose first sectors hold ITEMS (100,000) small pictures and whose rest is
// empty: the time from the press on Stop to the end panel, with nothing found and with all items found, and
// the longest time the event loop was away, with the most processor time it took meanwhile (which is what
// counts when others use the machine), as a user scrolls, types, selects, zooms, filters, sorts, picks and
// ticks, during a scan and after it; and the most memory that all of it took. The real controller, reader and
// decode helpers work; runs offscreen or in an X server.
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>

#include "catalogue/ResourcesFolder.h"
#include "decode/DecodePool.h"
#include "media/PlatformMedia.h"
#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/browser/DetailsHeader.h"
#include "window/browser/FoundPane.h"
#include "window/widgets/Theme.h"

namespace {

using namespace vantor;

constexpr qint64 kSlot = 8 * 512;  // of one picture
constexpr qint64 kEmptyTail = qint64{24} << 30;
constexpr int kDistinctPictures = 500;

QByteArray smallPicture(int number) {
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number * 7 % 360, 160, 220));
    QPainter(&image).drawText(4, 30, QString::number(number));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 60);
    return buffer.data();
}

void writeCard(const QString& path, int items) {
    QByteArrayList pictures;
    for (int i = 0; i < kDistinctPictures; ++i) {
        QByteArray picture = smallPicture(i);
        picture.resize(kSlot, '\0');
        pictures.append(picture);
    }
    QFile card(path);
    if (!card.open(QIODevice::WriteOnly)) {
        std::exit(1);
    }
    for (int i = 0; i < items; ++i) {
        card.write(pictures.at(i % kDistinctPictures));
    }
    card.resize(card.size() + kEmptyTail);
}

// Notes how long the event loop was away.
class Heartbeat {
  public:
    Heartbeat() {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
        m_timer.start(1);
        m_since.start();
    }
    void begin() {
        beat();
        m_longest = m_mostWork = 0;
    }
    // Milliseconds.
    std::pair<qint64, qint64> longest() {
        beat();
        return {m_longest / 1'000'000, m_mostWork / 1'000'000};
    }

  private:
    void beat() {
        timespec work{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &work);
        const qint64 worked = work.tv_sec * 1'000'000'000LL + work.tv_nsec;
        m_longest = std::max(m_longest, m_since.nsecsElapsed());
        m_mostWork = std::max(m_mostWork, worked - m_worked);
        m_worked = worked;
        m_since.restart();
    }
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0, m_mostWork = 0, m_worked = 0;  // nanoseconds
};

class Bench {
  public:
    explicit Bench(const QString& card) : m_pool(std::make_shared<DecodePool>()) {
        ProgramParts parts;
        parts.media = makePlatformMediaSource();
        parts.openMedium =
            makeMediumOpener(*parts.media, [this] { return m_controller && m_controller->stop_now == 1; });
        parts.openBeside = parts.openMedium;
        parts.thumbnailer = [pool = m_pool](const QByteArray& encoded, const QString& extension) {
            return pool->thumbnail(encoded, extension);
        };
        parts.resourcesFolder = resourcesFolder();
        parts.openDocument = [](const QString&) { return true; };
        parts.terminate = [] {};
        m_controller = std::make_unique<MyTableController>(std::move(parts));
        m_controller->awakeFromNib();
        m_controller->openImages({card});
        QObject::connect(&m_answers, &QTimer::timeout, [this] { answer(); });
        m_answers.setTimerType(Qt::PreciseTimer);
        m_answers.start(1);
    }

    void run(int mode, const char* name, int items) {
        Recovery_MODE = mode;
        stop(mode, name, 0, 0);
        if (items == 0) {
            return;
        }
        stop(mode, name, items, items);
        leaveResults();
        begin(mode);
        waitForItems(static_cast<std::size_t>(items));
        use(mode, name, "while scanning");
        std::printf("    (the scan %s)\n", m_controller->scanRunning() ? "was still running" : "had ended");
        press(m_controller->_stop_scan);
        waitUntil([this] { return ended(); });
        use(mode, name, "afterwards");
        leaveResults();
        toMedia();
    }

  private:
    void answer() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        if (m_pressed.isValid() && m_stopMs < 0) {
            m_stopMs = static_cast<double>(m_pressed.nsecsElapsed()) / 1e6;
        }
        for (auto* button : dialog->findChildren<QAbstractButton*>()) {
            if (button->text().endsWith(QStringLiteral("Without Saving")) ||
                button->text() == QStringLiteral("OK")) {
                button->click();
                return;
            }
        }
    }

    static void press(QAbstractButton* button) { button->click(); }
    template <class Condition>
    static void waitUntil(Condition condition) {
        QElapsedTimer limit;
        limit.start();
        while (!condition() && limit.elapsed() < 300'000) {
            QTest::qWait(1);
        }
    }
    bool ended() const { return !m_controller->scanRunning() && m_controller->backButton->isEnabled(); }

    // From the first screen or the one that a scan is started from.
    void begin(int mode) {
        MyTableController& c = *m_controller;
        if (c.screen_counter == 0) {
            QAbstractButton* const modes[] = {c._rec_mode_Photo, c._rec_mode_Video, c._rec_mode_RawFile};
            press(modes[mode]);
            c.idTableView->selectRow(c.idTableView->model()->rowCount() - 1);
            press(c.nextButton);
        }
        while (!c.scanRunning()) {
            press(c.nextButton);
        }
    }
    void waitForItems(std::size_t items) {
        waitUntil([&] { return m_controller->itemCount() >= items || !m_controller->scanRunning(); });
    }
    void leaveResults() { press(m_controller->backButton); }
    void toMedia() {
        while (m_controller->screen_counter > 0) {
            press(m_controller->backButton);
        }
    }

    void stop(int mode, const char* name, int items, int least) {
        constexpr int kRounds = 5;
        QList<double> times;
        for (int round = 0; round < (items == 0 ? kRounds : 2); ++round) {
            if (m_controller->backButton->isEnabled() && m_controller->screen_counter > 0) {
                leaveResults();
            }
            begin(mode);
            if (items == 0) {
                // Behind the pictures.
                MyTableController& c = *m_controller;
                waitUntil([&] { return c.for_index > c.start_sector + 4096; });
            }
            waitForItems(static_cast<std::size_t>(least));
            QTest::qWait(300);
            m_stopMs = -1;
            m_pressed.start();
            QTest::mouseClick(m_controller->_stop_scan, Qt::LeftButton);
            waitUntil([this] { return ended(); });
            m_pressed.invalidate();
            times.append(m_stopMs);
        }
        std::printf("%s, Stop with %zu found:", name, m_controller->itemCount());
        for (const double time : times) {
            std::printf(" %.1f", time);
        }
        std::printf(" ms\n");
        std::fflush(stdout);
    }

    template <class Action>
    void measure(const char* what, Action action) {
        QTest::qWait(50);
        m_heart.begin();
        QElapsedTimer whole;
        whole.start();
        action();
        QTest::qWait(400);
        const auto [longest, work] = m_heart.longest();
        std::printf("    %-34s %5lld ms (%lld of work)\n", what, static_cast<long long>(longest),
                    static_cast<long long>(work));
        std::fflush(stdout);
    }

    void scroll(ImageBrowserView* browser) {
        QScrollBar* bar = browser->verticalScrollBar();
        for (int step = 0; step <= 40; ++step) {
            bar->setValue(static_cast<int>(static_cast<qint64>(bar->maximum()) * step / 40));
            QTest::qWait(5);
        }
        for (int step = 0; step < 40; ++step) {
            bar->setValue(bar->value() - 60);
            QTest::qWait(5);
        }
    }

    static void chooseFromMenu(ImageBrowserView* browser, const QString& words) {
        emit browser->menuWanted(0, {});
        if (auto* const menu = browser->findChild<QMenu*>(QStringLiteral("itemMenu"))) {
            for (QAction* const action : menu->actions()) {
                if (action->text().startsWith(words)) {
                    action->trigger();
                }
            }
            menu->close();
        }
    }

    void usePane(FoundPane* pane) {
        auto* tree = pane->findChild<QTreeWidget*>();
        auto* search = pane->findChild<QLineEdit*>();
        for (int row = 1; row < tree->topLevelItemCount(); ++row) {
            QTreeWidgetItem* const group = tree->topLevelItem(row);
            if (group->isHidden() || !group->flags().testFlag(Qt::ItemIsSelectable)) {
                continue;
            }
            const QByteArray words = "pick " + group->text(0).toUtf8();
            measure(words.constData(), [&] { tree->setCurrentItem(group); });
        }
        measure("pick all items", [&] { tree->setCurrentItem(tree->topLevelItem(0)); });
        measure("search by name",
                [&] { QTest::keyClicks(search, QStringLiteral("009"), Qt::NoModifier, 1); });
        measure("search no more", [&] { search->clear(); });
    }

    void use(int mode, const char* name, const char* when) {
        MyTableController& c = *m_controller;
        const bool photo = mode == kPhotoMode;
        ImageBrowserView* browser = photo ? c.imageBrowser : c.imageBrowser_2;
        QComboBox* show = photo ? c.showBox : c.showBox_Sig;
        QComboBox* sort = photo ? c.sortBox : c.sortBox_Sig;
        std::printf("%s, %zu items, %s: longest stall\n", name, c.itemCount(), when);
        measure("nothing", [] { QTest::qWait(500); });
        measure("scroll", [&] { scroll(browser); });
        measure("type ahead", [&] {
            browser->setFocus();
            QTest::keyClicks(browser, photo ? QStringLiteral("gnd09") : QStringLiteral("jp09"));
        });
        measure("select all", [&] { QTest::keyClick(browser, Qt::Key_A, Qt::ControlModifier); });
        measure("sort by soundness, all selected", [&] {
            sort->setCurrentIndex(1);
            QTest::qWait(2500);
        });
        measure("one selected", [&] { browser->setCurrentIndex(browser->model()->index(0, 0)); });
        measure("sorted, nothing done", [&] { QTest::qWait(2500); });
        measure("sorted, scroll", [&] { scroll(browser); });
        measure("sorted, type ahead",
                [&] { QTest::keyClicks(browser, photo ? QStringLiteral("gnd05") : QStringLiteral("jp05")); });
        measure("sorted, select all", [&] { QTest::keyClick(browser, Qt::Key_A, Qt::ControlModifier); });
        measure("pages selected, sort by size", [&] {
            sort->setCurrentIndex(0);
            browser->setCurrentIndex(browser->model()->index(0, 0));
            for (int page = 0; page < 3; ++page) {
                QTest::keyClick(browser, Qt::Key_PageDown, Qt::ShiftModifier);
            }
            sort->setCurrentIndex(2);
            QTest::qWait(1500);
        });
        browser->setCurrentIndex(browser->model()->index(0, 0));
        for (int at = 1; at < show->count(); ++at) {
            const QByteArray words = "sorted, show: " + show->itemText(at).toUtf8();
            measure(words.constData(), [&] {
                show->setCurrentIndex(at);
                QTest::qWait(700);
            });
        }
        measure("sorted, all again", [&] { show->setCurrentIndex(0); });
        measure("as found again", [&] { sort->setCurrentIndex(0); });
        measure("sort by name",
                [&] { sort->setCurrentIndex(sort->findData(static_cast<int>(SortItems::Name))); });
        measure("sort by place",
                [&] { sort->setCurrentIndex(sort->findData(static_cast<int>(SortItems::Place))); });
        measure("turned round", [&] { emit browser->detailsHeader()->sortWanted(SortItems::Place); });
        measure("as found again", [&] { sort->setCurrentIndex(0); });
        measure("details", [&] { c.detailsButton->setChecked(true); });
        measure("details, scroll", [&] { scroll(browser); });
        measure("details, select all", [&] { QTest::keyClick(browser, Qt::Key_A, Qt::ControlModifier); });
        measure("cells again", [&] { c.detailsButton->setChecked(false); });
        browser->setCurrentIndex(browser->model()->index(0, 0));
        for (const char* const like : {"Select All of &Day", "Select All &Type"}) {
            measure(like, [&] { chooseFromMenu(browser, QLatin1String(like)); });
        }
        browser->setCurrentIndex(browser->model()->index(0, 0));
        usePane(photo ? c.foundPane : c.foundPane_Sig);
        measure("tick all", [&] { c.tickShownItems(); });
        measure("tick one of all ticked", [&] { c.tickItems({7}, false); });
        measure("invert the ticks", [&] { c.invertTicks(); });
        measure("invert them back", [&] { c.invertTicks(); });
        if (photo) {
            measure("zoom", [&] {
                for (int value = c._zoom_slider->minimum(); value <= c._zoom_slider->maximum();
                     value += std::max(1, c._zoom_slider->maximum() / 40)) {
                    c._zoom_slider->setValue(value);
                    QTest::qWait(5);
                }
            });
        }
        measure("resize the window", [&] {
            for (int width = 1000; width < 1200; width += 20) {
                c.window->resize(width, 760);
                QTest::qWait(5);
            }
        });
    }

    std::shared_ptr<DecodePool> m_pool;
    std::unique_ptr<MyTableController> m_controller;
    QTimer m_answers;
    QElapsedTimer m_pressed;
    double m_stopMs = -1;
    Heartbeat m_heart;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyTheme(application);
    const int items = argc > 1 ? std::atoi(argv[1]) : 100'000;
    QTemporaryDir folder;
    writeCard(folder.filePath(QStringLiteral("empty.img")), 0);
    writeCard(folder.filePath(QStringLiteral("full.img")), items);
    for (const auto& [mode, name] : {std::pair{kPhotoMode, "photo"}, std::pair{kRawFileMode, "raw file"}}) {
        Bench(folder.filePath(QStringLiteral("empty.img"))).run(mode, name, 0);
        Bench(folder.filePath(QStringLiteral("full.img"))).run(mode, name, items);
    }
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM")) {
                std::printf("most memory: %s\n", line.mid(6).trimmed().constData());
            }
        }
    }
    return 0;
}
