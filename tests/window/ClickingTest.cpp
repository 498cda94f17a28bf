// Somebody clicks through a thousand half-broken items as fast as the window lets them, while helpers are
// shot at random: whatever is selected is shown, and nothing plays on behind it.
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QFileInfo>
#include <atomic>
#include <random>
#include <semaphore>
#include <thread>

#include "catalogue/FileKind.h"
#include "results/RecoveryMode.h"
#include "results/ResultRow.h"
#include "tests/decode/Fixtures.h"
#include "tests/window/HeardDevice.h"
#include "tests/window/WindowTest.h"
#include "window/preview/FilePreviewer.h"
#include "window/preview/SoundMovie.h"

namespace vantor {
namespace {

// Clicked through in each mode; VANTOR_CLICKS says more where the time is there.
const int kItems = std::max(120, qEnvironmentVariableIntValue("VANTOR_CLICKS"));

// The helpers that this process started and that still run.
std::vector<pid_t> runningHelpers(const char* name) {
    std::vector<pid_t> pids;
    for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const QByteArray stat = test::bytesOfFile(QStringLiteral("/proc/%1/stat").arg(entry));
        // "7 (name) S parent ...", the name cut off at 15 letters.
        const qsizetype behindName = stat.lastIndexOf(')');
        const QByteArray called = "(" + QByteArray(name).left(15) + ")";
        if (stat.contains(called) && stat.mid(behindName + 4).split(' ').value(0).toInt() == getpid()) {
            pids.push_back(entry.toInt());
        }
    }
    return pids;
}

// Shoots a helper of this process with every few items, at a random moment and in both ways in which they
// die.
class Killer {
  public:
    Killer() : m_thread([this] { run(); }) {}
    ~Killer() {
        m_over = true;
        m_due.release();
        m_thread.join();
    }
    // Another item was begun with: however slow the machine is, most of them are left alone.
    // Shots that are not fired in time are left out, or they would hit every helper that starts.
    void countItem() {
        constexpr int kItemsAShot = 4;
        if (m_items++ % kItemsAShot == 0 && !m_loaded.exchange(true)) {
            m_due.release();
        }
    }
    int kills() const { return m_kills; }

  private:
    void run() {
        std::mt19937 random(5);
        for (m_due.acquire(); !m_over; m_due.acquire()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(random() % 50));  // into the midst of it
            const std::vector<pid_t> pids =
                runningHelpers(random() % 2 == 0 ? "vantor-decode" : "vantor-decode-movie");
            if (!pids.empty()) {
                shoot(pids[random() % pids.size()], random() % 3 == 0 ? SIGKILL : SIGABRT);
            }
            m_loaded = false;
        }
    }
    // By a descriptor, so that the number cannot have become somebody else's meanwhile.
    void shoot(pid_t pid, int signal) {
        const int target = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
        if (target < 0) {
            return;
        }
        const auto still = [pid](const char* name) {
            const std::vector<pid_t> pids = runningHelpers(name);
            return std::ranges::find(pids, pid) != pids.end();
        };
        if ((still("vantor-decode") || still("vantor-decode-movie")) &&
            syscall(SYS_pidfd_send_signal, target, signal, nullptr, 0) == 0) {
            ++m_kills;
        }
        close(target);
    }

    std::counting_semaphore<> m_due{0};
    int m_items = 0;
    std::atomic<bool> m_loaded{false};
    std::atomic<bool> m_over{false};
    std::atomic<int> m_kills{0};
    std::thread m_thread;
};

class Clicking : public WindowTest {
  protected:
    void SetUp() override {
        if (test::corpusFolder().isEmpty()) {
            GTEST_SKIP() << "no corpus";
        }
        if (!QFileInfo::exists(QStringLiteral(VANTOR_MOVIE_HELPER))) {
            GTEST_SKIP() << "built without the movie helper";
        }
        giveRealDecoders();
    }
    // As the program has them, but for the device and for deadlines that no busy machine misses.
    void giveRealDecoders() {
        DecodePoolOptions pictures;
        pictures.helper = QStringLiteral(VANTOR_DECODE_HELPER);
        pictures.helpers = 2;
        pictures.thumbnailDeadline = pictures.pictureDeadline = kPatience;
        pool = std::make_shared<DecodePool>(pictures);
        HelperMovieOptions playing;
        playing.sound = [this] { return std::make_unique<HeardDevice>(heard); };
        playing.reader.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
        playing.reader.openDeadline = playing.reader.frameDeadline = kPatience;
        parts.thumbnailer = [pool = pool](const QByteArray& encoded, const QString& extension) {
            return pool->thumbnail(encoded, extension);
        };
        parts.picture = makeFilePreviewer(pool, std::make_shared<const DesktopThumbnailers>(QStringList{}),
                                          playing.reader);
        parts.movie = [playing](const QString& file) { return openMovieOrSound(file, {320, 180}, playing); };
        parts.sound = [playing](const QString& file) { return SoundMovie::open(file, {}, playing); };
    }

    // Every other one is damaged, most of them small.
    struct Item {
        QString extension;
        QByteArray bytes;
    };
    std::vector<Item> brokenItems(const std::vector<const char*>& folders) {
        constexpr qint64 kLargest = 150 * 1024;
        QStringList seeds;
        for (const char* below : folders) {
            for (const QString& path : test::filesBelow(test::corpusFolder() + u'/' + QLatin1String(below))) {
                if (QFileInfo(path).size() > 0 && QFileInfo(path).size() <= kLargest) {
                    seeds.append(path);
                }
            }
        }
        EXPECT_GT(seeds.size(), 30);
        std::mt19937 random(2);
        std::vector<Item> items;
        for (int i = 0; i < kItems; ++i) {
            const QString& seed = seeds.at(i % seeds.size());
            const QByteArray whole = test::bytesOfFile(seed);
            items.push_back(
                {QFileInfo(seed).suffix(), random() % 4 == 0 ? whole : test::mutated(whole, random)});
        }
        return items;
    }

    // The results screen of the mode over a card that holds the items one behind the other.
    void openResults(int mode, const std::vector<Item>& items) {
        openWithCard();
        toRange(mode);
        controller->show_hide_2_screen(true);
        controller->show_hide_4_screen_RawFile(false);
        controller->screen_counter = 3;
        std::size_t sector = 0;
        for (const Item& item : items) {
            const std::size_t end = sector + (static_cast<std::size_t>(item.bytes.size()) + 511) / 512;
            card.bytes.resize(end);
            std::memcpy(card.bytes[sector].data(), item.bytes.constData(),
                        static_cast<std::size_t>(item.bytes.size()));
            const QString name = QStringLiteral("I%1.%2").arg(controller->itemCount()).arg(item.extension);
            controller->addImageWithData_2({}, name, name, sector, end);
            sector = end;
        }
        settle();
    }

    static void select(ImageBrowserView* browser, int row) {
        const QModelIndex index = browser->model()->index(row, 0);
        browser->scrollTo(index);
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, browser->visualRect(index).center());
        settle();
    }

    // One picture or one movie under the item's name, and no sound but the movie's.
    void expectShown(int row) {
        const MyTableController& window = *controller;
        const QString name = window.itemAt(static_cast<std::size_t>(row))->path();
        ASSERT_EQ(window._QuickLook_View_Box->title(), name);
        ASSERT_FALSE(window.session);
        const bool playable = window.mMovieView->movie() != nullptr;
        ASSERT_EQ(window.mMovieView->isVisible(), playable) << name.toStdString();
        ASSERT_NE(window._QuickLook_View->isVisible(), playable) << name.toStdString();
        ASSERT_TRUE(playable || !window._QuickLook_View->pixmap().isNull()) << name.toStdString();
        movies += playable;
        sounds += window.soundControls->movie() != nullptr;
        const bool isSound = kindOfExtension(pathExtension(name)) == FileKind::Sound;
        ASSERT_TRUE(isSound || !window.soundControls->movie()) << "behind " << name.toStdString();
        ASSERT_LE(heard.alive, 1) << "behind " << name.toStdString();
    }

    void clickThrough() {
        {
            Killer killer;
            for (int row = 0; row < kItems; ++row) {
                killer.countItem();
                select(controller->imageBrowser_2, row);
                ASSERT_NO_FATAL_FAILURE(expectShown(row));
                // Whatever can be played does when the next one is clicked.
                controller->mMovieView->togglePlaying();
                controller->soundControls->togglePlaying();
            }
            EXPECT_GT(killer.kills(), 10);
        }
        EXPECT_EQ(controller->itemCount(), static_cast<std::size_t>(kItems + 2));
    }

    // Items that are sound, clicked when nobody shoots any more: the last one is no movie.
    void expectLastItemsWhole(bool firstIsMovie) {
        select(controller->imageBrowser_2, kItems);
        expectShown(kItems);
        EXPECT_EQ(controller->mMovieView->movie() != nullptr, firstIsMovie);
        EXPECT_FALSE(firstIsMovie && controller->mMovieView->movie()->poster().isNull());
        controller->mMovieView->togglePlaying();
        select(controller->imageBrowser_2, kItems + 1);
        expectShown(kItems + 1);
        EXPECT_EQ(heard.alive, 0);
        EXPECT_FALSE(heard.playing);
        EXPECT_TRUE(runningHelpers("vantor-decode-movie").empty()) << "no movie plays on behind";
    }

    Item whole(const char* file) {
        const QString path = test::corpusFolder() + u'/' + QLatin1String(file);
        return {QFileInfo(path).suffix(), test::bytesOfFile(path)};
    }

    Heard heard;  // outlives the window's movies
    std::shared_ptr<DecodePool> pool;
    int movies = 0;
    int sounds = 0;
};

TEST_F(Clicking, BrokenPhotos_AllHaveAPictureOrThePlaceholder) {
    const std::vector<Item> items = brokenItems({"photos", "files/hostile"});
    openWithCard();
    controller->show_hide_1_screen(true);
    controller->show_hide_3_screen_Photo(false);
    // As a scan hands them over, which goes on while its results are looked at.
    std::thread scan([&] {
        for (const Item& item : items) {
            const QString name = QStringLiteral("I%1.%2").arg(&item - items.data()).arg(item.extension);
            controller->addImageWithData(item.bytes, name, name);
        }
    });
    int pictures = 0;
    int kills = 0;
    {
        Killer killer;
        for (int row = 0; row < kItems && !HasFailure(); ++row) {
            killer.countItem();
            EXPECT_TRUE(waitFor([&] { return controller->itemCount() > static_cast<std::size_t>(row); }));
            controller->imageBrowser->reloadData();
            select(controller->imageBrowser, row);
            EXPECT_EQ(controller->imageBrowser->selectionIndexes(), (QList<qsizetype>{row}));
            const QByteArray shown = controller->itemAt(static_cast<std::size_t>(row))->imageData();
            EXPECT_FALSE(QImage::fromData(shown).isNull()) << row;
            pictures += shown.startsWith("\xff\xd8\xff");
        }
        kills = killer.kills();
    }
    scan.join();
    EXPECT_EQ(opened, 0) << "photos are shown as they are";
    EXPECT_GT(pictures, kItems / 4);
    EXPECT_LT(pictures, kItems);
    EXPECT_GT(kills, 3);
}

TEST_F(Clicking, BrokenMovies_AreShownOneAtATime) {
    std::vector<Item> items = brokenItems({"videos", "files/hostile"});
    items.push_back(whole("videos/synth/vp9_opus.webm"));
    items.push_back(whole("photos/png/test-assets__formats__png__density_plot.png"));
    openResults(kVideoMode, items);
    clickThrough();
    EXPECT_GT(movies, kItems / 10);
    EXPECT_LT(movies, kItems);
    EXPECT_EQ(sounds, 0);
    expectLastItemsWhole(true);
}

TEST_F(Clicking, BrokenFiles_AreShownOneAtATime) {
    std::vector<Item> items = brokenItems({"files", "photos", "videos"});
    items.push_back(whole("files/ape/file-type__fixture__fixture-monkeysaudio.ape"));
    items.push_back(whole("photos/png/test-assets__formats__png__density_plot.png"));
    openResults(kRawFileMode, items);
    clickThrough();
    EXPECT_EQ(movies, 0);
    EXPECT_GT(sounds, kItems / 50);
    expectLastItemsWhole(false);
}

}  // namespace
}  // namespace vantor
