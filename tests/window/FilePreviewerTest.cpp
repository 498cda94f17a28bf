// One picture of any file: by the helpers, the desktop's thumbnail programs, or as a page of text.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/shm.h>
#include <unistd.h>

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <random>
#include <semaphore>
#include <thread>

#include "tests/support/CorpusFolder.h"
#include "window/preview/FilePreviewer.h"
#include "window/preview/PreviewObstacle.h"
#include "window/preview/TextPicture.h"

namespace vantor {
namespace {

constexpr QSize kPreviewSize{200, 200};
// Beyond which a test fails rather than waits: longer than anything takes on the busiest machine.
constexpr std::chrono::minutes kHelperPatience{1};

QString corpusFile(const char* name) {
    return test::corpusFolder() + u'/' + QLatin1String(name);
}

class FilePreviewer : public testing::Test {
  protected:
    FilePreviewer() {
        DecodePoolOptions options;
        options.helper = QStringLiteral(VANTOR_DECODE_HELPER);
        options.helpers = 1;
        options.pictureDeadline = options.startDeadline = kHelperPatience;
        m_pool = std::make_shared<DecodePool>(options);
        QDir(m_folder.path()).mkdir(QStringLiteral("thumbnailers"));
    }
    QImage preview(const QString& file) {
        MovieReaderOptions movies;
        movies.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
        movies.startDeadline = movies.openDeadline = movies.frameDeadline = kHelperPatience;
        return makeFilePreviewer(m_pool,
                                 std::make_shared<const DesktopThumbnailers>(QStringList{thumbnailers()}),
                                 movies)(file, kPreviewSize);
    }
    QString written(const QString& name, const QByteArray& bytes) {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    // A thumbnail program for PDF documents that runs the system's shell with these words, which may hold no
    // double quote; $1 is the file, $2 where the picture goes, $3 its size.
    void installThumbnailer(const QByteArray& words) {
        written(QStringLiteral("thumbnailers/pdf.thumbnailer"),
                "[Thumbnailer Entry]\nTryExec=sh\nExec=sh -c \"" + words.simplified() +
                    "\" sh %i %o %s\nMimeType=application/pdf;image/png;\n");
    }
    // Programs run in no other way, so there is nothing to see of them where that is not to be had.
    static bool canShutIn() {
        return QProcess::execute(QStringLiteral("bwrap"),
                                 {QStringLiteral("--unshare-all"), QStringLiteral("--unshare-user"),
                                  QStringLiteral("--disable-userns"), QStringLiteral("--ro-bind"),
                                  QStringLiteral("/"), QStringLiteral("/"), QStringLiteral("true")}) == 0;
    }
    // A document with a picture in it, for programs that can do no more than copy.
    QString documentHolding(const QByteArray& picture) {
        return written(QStringLiteral("dprv.PDF"), "%PDF" + picture);
    }
    QString thumbnailers() const { return m_folder.filePath(QStringLiteral("thumbnailers")); }
    QByteArray png(QSize size) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::green);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes;
    }

    QTemporaryDir m_folder;
    std::shared_ptr<DecodePool> m_pool;
};

TEST_F(FilePreviewer, APicture_IsDecodedByTheHelper) {
    EXPECT_EQ(preview(written(QStringLiteral("dprv.PNG"), png({400, 100}))).size(), QSize(200, 50));
}

#define SKIP_WITHOUT_CAGE()                                                                      \
    if (!canShutIn()) {                                                                          \
        GTEST_SKIP() << "bubblewrap is not installed or may not make namespaces on this system"; \
    }

TEST_F(FilePreviewer, ADocument_IsShownByTheDesktopsProgram) {
    SKIP_WITHOUT_CAGE();
    installThumbnailer("test $3 = 200 && grep -q PDF $1 && tail -c +5 $1 > $2");
    const QImage shown = preview(documentHolding(png({300, 400})));
    EXPECT_EQ(shown.size(), QSize(150, 200)) << "no larger than what was asked for";
    EXPECT_TRUE(preview(written(QStringLiteral("dprv.DOC"), "\xd0\xcf\x11\xe0")).isNull());
}

TEST_F(FilePreviewer, AProgramThatFailsOrMakesJunk_GivesNoPicture) {
    SKIP_WITHOUT_CAGE();
    const QString file = documentHolding(png({30, 40}));
    for (const char* words : {"exit 1", "echo junk > $2", "mkfifo $2", "kill -SEGV $$",
                              "tail -c +5 $1 > /out/other; ln -s other $2"}) {
        installThumbnailer(words);
        EXPECT_TRUE(preview(file).isNull()) << words;
    }
    installThumbnailer("tail -c +5 $1 > $2");
    EXPECT_FALSE(preview(file).isNull()) << "but for that it would be shown";
}

// Somebody has taken the program over by the document, and looks around.
TEST_F(FilePreviewer, AProgram_SeesTheSystemAndTheOneFile) {
    SKIP_WITHOUT_CAGE();
    qputenv("VANTOR_SECRET", "told");
    const int shared = shmget(IPC_PRIVATE, 1, 0600);
    ASSERT_GE(shared, 0);
    const QByteArray home = written(QStringLiteral("private"), "of the home folder").toUtf8();
    const QByteArray own = QByteArray::number(getpid());
    const QString file = documentHolding(png({30, 40}));
    const std::vector<std::pair<QByteArray, const char*>> looks{
        {"test -e " + home, "a file of the user's"},
        {"test x$VANTOR_SECRET != x", "a word of the environment"},
        {"test x$LC_ALL != x", "any word of the environment"},
        {"grep -q VANTOR /proc/1/environ", "the environment of what shut it in"},
        {"test -e /proc/" + own, "our process"},
        {"kill -0 " + own, "a way to our process"},
        {"test $(wc -l < /proc/net/dev) -gt 3", "a network"},
        {"test -e /run", "the sockets of the session"},
        {"test -e /home", "home folders"},
        {"test -e /etc/passwd", "the users"},
        {"test $(wc -l < /proc/sysvipc/shm) -gt 1", "shared memory"},
        {"touch /usr/here", "a way to write into the system"},
        {"echo more >> $1", "a way to write into the file"},
        {"unshare -U true", "namespaces to open"},
        {"grep -q 'CapEff:.*[1-9a-f]' /proc/self/status", "capabilities"},
        {"test $(ls /in | wc -l) -ne 1", "other files"},
    };
    for (const auto& [look, what] : looks) {
        installThumbnailer(look + " && exit 1; tail -c +5 $1 > $2");
        EXPECT_FALSE(preview(file).isNull()) << what;
    }
    shmctl(shared, IPC_RMID, nullptr);
    qunsetenv("VANTOR_SECRET");
}

TEST_F(FilePreviewer, WithoutACage_NoProgramRuns) {
    installThumbnailer("tail -c +5 $1 > $2");
    const QString file = documentHolding(png({30, 40}));
    for (const char* bubblewrap : {"", "/nonexistent/bwrap", "/bin/false"}) {
        const auto desktop = std::make_shared<const DesktopThumbnailers>(QStringList{thumbnailers()},
                                                                         QLatin1String(bubblewrap));
        EXPECT_TRUE(desktop->thumbnail(file, 200).isEmpty());
        EXPECT_TRUE(desktop->lacksCageFor(file));
        EXPECT_FALSE(desktop->lacksCageFor(written(QStringLiteral("dprv.DOC"), "x")))
            << "nobody would show it";
        const PreviewObstacle obstacle = makePreviewObstacle(m_pool, desktop);
        EXPECT_TRUE(obstacle(file).contains(QStringLiteral("bubblewrap")));
        EXPECT_TRUE(obstacle({}).isEmpty()) << "pictures are shown all the same";
    }
}

TEST_F(FilePreviewer, WithoutAHelper_TheReasonIsTold) {
    DecodePoolOptions options;
    options.helper = QStringLiteral("/nonexistent/helper");
    const auto pool = std::make_shared<DecodePool>(options);
    EXPECT_TRUE(pool->picture(png({40, 40}), kPreviewSize).image.isNull());
    const auto desktop = std::make_shared<const DesktopThumbnailers>(QStringList{});
    EXPECT_TRUE(makePreviewObstacle(pool, desktop)({}).contains(QStringLiteral("does not start")));
}

// Processes anywhere in the system that were started with this word.
int processesCalled(const QByteArray& word) {
    int count = 0;
    for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(entry));
        count += file.open(QIODevice::ReadOnly) && file.readAll().split('\0').contains(word);
    }
    return count;
}

TEST_F(FilePreviewer, AProgramThatHangs_IsEndedWithAllItStarted) {
    SKIP_WITHOUT_CAGE();
    // A number of seconds that nobody else sleeps.
    const QByteArray word =
        "1000." + QByteArray::number(getpid()) + QByteArray::number(std::random_device{}());
    installThumbnailer("sleep " + word + " & sleep " + word);
    const DesktopThumbnailers desktop(QStringList{thumbnailers()});
    const QString file = documentHolding(png({30, 40}));
    std::atomic<bool> seen{false};
    std::atomic<bool> over{false};
    std::thread watch([&] {
        while (!seen && !over) {
            seen = processesCalled(word) == 2;
        }
    });
    // A deadline that a busy machine lets pass before the program has begun is no use.
    for (std::chrono::milliseconds deadline{300}; !seen && deadline < kHelperPatience; deadline *= 2) {
        EXPECT_TRUE(desktop.thumbnail(file, 200, deadline).isEmpty());
    }
    over = true;
    watch.join();
    EXPECT_TRUE(seen) << "they ran";
    QElapsedTimer waiting;
    waiting.start();
    while (processesCalled(word) > 0 &&
           !waiting.hasExpired(std::chrono::milliseconds(kHelperPatience).count())) {
        std::this_thread::yield();
    }
    EXPECT_EQ(processesCalled(word), 0);
}

TEST_F(FilePreviewer, PicturesThatOurHelpersRefuse_GoNowhereElse) {
    installThumbnailer("tail -c +5 $1 > $2");
    EXPECT_TRUE(DesktopThumbnailers(QStringList{thumbnailers()}).knows(QStringLiteral("image/png")));
    EXPECT_TRUE(preview(written(QStringLiteral("dprv.PNG"), "%PDF" + png({30, 40}))).isNull());
}

TEST_F(FilePreviewer, AProgramThatIsNotInstalled_IsNotKnown) {
    written(QStringLiteral("thumbnailers/x.thumbnailer"),
            "[Thumbnailer Entry]\nTryExec=/nonexistent/x\nExec=/nonexistent/x %i "
            "%o\nMimeType=application/pdf;\n");
    EXPECT_FALSE(DesktopThumbnailers(QStringList{thumbnailers()}).knows(QStringLiteral("application/pdf")));
}

TEST_F(FilePreviewer, Text_IsShownAsAPage) {
    const QImage page = preview(written(QStringLiteral("dprv.TXT"), "Dear reader,\nthis is a letter.\n"));
    ASSERT_EQ(page.size(), QSize(150, 200));
    int dark = 0;
    for (int x = 0; x < page.width(); ++x) {
        for (int y = 0; y < 40; ++y) {
            dark += qGray(page.pixel(x, y)) < 128;
        }
    }
    EXPECT_GT(dark, 20);
    EXPECT_TRUE(preview(written(QStringLiteral("dprv.TXT"), QByteArray(4096, '\x03'))).isNull());
    EXPECT_TRUE(preview(written(QStringLiteral("dprv.ZIP"), "PK plain words all the same")).isNull());
}

TEST_F(FilePreviewer, MoviesAndSound_ShowTheirPicture) {
    if (!QFile::exists(corpusFile("videos/synth/vp9_opus.webm"))) {
        GTEST_SKIP() << "no corpus";
    }
    EXPECT_EQ(preview(corpusFile("videos/synth/vp9_opus.webm")).size(), QSize(200, 112));
    EXPECT_EQ(preview(corpusFile("files/ape/file-type__fixture__fixture-monkeysaudio.ape")).size(),
              kPreviewSize)
        << "the cover";
    EXPECT_TRUE(
        preview(corpusFile("files/aac/media__libraries__test_data__src__test__assets__media__aac__sine.aac"))
            .isNull());
}

// Somebody clicks through found items while a helper dies under every third picture or so.
TEST_F(FilePreviewer, HelpersKilledAtRandom_PreviewsGoOn) {
    const QString file = written(QStringLiteral("dprv.PNG"), png({3000, 2000}));
    ASSERT_FALSE(preview(file).isNull());
    std::counting_semaphore<> due(0);
    std::atomic<bool> over{false};
    std::atomic<int> kills{0};
    std::thread killer([&] {
        std::mt19937 random(3);
        for (due.acquire(); !over; due.acquire()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(random() % 60));  // into the midst of it
            const std::vector<pid_t> pids = m_pool->helperPids();
            if (!pids.empty() && kill(pids.front(), random() % 2 == 0 ? SIGKILL : SIGABRT) == 0) {
                ++kills;
            }
        }
    });
    constexpr int kPreviews = 60;
    int shown = 0;
    for (int i = 0; i < kPreviews; ++i) {
        due.release(i % 3 == 0 ? 1 : 0);
        shown += !preview(file).isNull();
    }
    over = true;
    due.release();
    killer.join();
    EXPECT_GT(kills, 0);
    EXPECT_GE(shown, kPreviews - kills) << "no blow costs more than one picture";
    preview(file);  // the last blow may have hit the helper that takes this one
    EXPECT_FALSE(preview(file).isNull()) << "the next one is shown again";
}

TEST(TextPicture, Lines_AreCutAndHoldNoStrangeLetters) {
    EXPECT_EQ(textLines("one\r\ntwo\tx\nthree", 2, 6), (QStringList{"one", "two   "}));
    EXPECT_EQ(textLines("gr\xc3\xbc\xc3\x9f \xe6\xbc\xa2 \xf0\x9f\x98\x80 a\xcc\x81", 5, 99).value(0),
              QString::fromUtf8("grüß · ·· a·"));
    EXPECT_EQ(textLines("caf\xe9 noir", 5, 99).value(0), QString::fromUtf8("café noir"));
    EXPECT_EQ(textLines("end" + QByteArray(509, '\0'), 5, 99), QStringList{"end"});
    EXPECT_EQ(textLines(QByteArray("\xff\xfeh\0i\0", 6), 5, 99), QStringList{"hi"});
    EXPECT_EQ(textLines(QByteArray("end\0", 4), 5, 99), QStringList{"end"});
    EXPECT_TRUE(textLines({}, 5, 99).isEmpty());
    EXPECT_TRUE(textLines("ten \x01 words", 5, 99).isEmpty()) << "more than one strange letter in fifty";
    EXPECT_EQ(textLines(QByteArray(49, 'x') + '\x01', 5, 99).size(), 1);
    EXPECT_TRUE(textLines(QByteArray(48, 'x') + '\x01', 5, 99).isEmpty());
    EXPECT_EQ(textLines("soft\xc2\xadhyphen", 5, 99).value(0), QString::fromUtf8("soft·hyphen"));
    EXPECT_TRUE(textLines(QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), 5, 99).isEmpty());
}

}  // namespace
}  // namespace vantor
