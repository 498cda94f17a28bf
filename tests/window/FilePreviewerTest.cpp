// One picture of any file: by the helpers, the desktop's thumbnail programs, or as a page of text.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <random>
#include <semaphore>
#include <thread>

#include "tests/support/CorpusFolder.h"
#include "window/preview/FilePreviewer.h"
#include "window/preview/TextPicture.h"

namespace vantor {
namespace {

constexpr QSize kLargest{200, 200};
// Beyond which a test fails rather than waits: longer than anything takes on the busiest machine.
constexpr std::chrono::minutes kPatience{1};

QString corpusFile(const char* name) {
    return test::corpusFolder() + u'/' + QLatin1String(name);
}

class FilePreviewer : public testing::Test {
  protected:
    FilePreviewer() {
        DecodePoolOptions options;
        options.helper = QStringLiteral(VANTOR_DECODE_HELPER);
        options.helpers = 1;
        options.pictureDeadline = options.startDeadline = kPatience;
        m_pool = std::make_shared<DecodePool>(options);
        QDir(m_folder.path()).mkdir(QStringLiteral("thumbnailers"));
    }
    QImage preview(const QString& file) {
        MovieReaderOptions movies;
        movies.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
        movies.startDeadline = movies.openDeadline = movies.frameDeadline = kPatience;
        return makeFilePreviewer(m_pool,
                                 std::make_shared<const DesktopThumbnailers>(QStringList{thumbnailers()}),
                                 movies)(file, kLargest);
    }
    QString written(const QString& name, const QByteArray& bytes) {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    // A thumbnail program for PDF documents that runs the shell with these words; $1 is the file, $2 where
    // the picture goes, $3 its size.
    void installThumbnailer(const QByteArray& words) {
        const QString script = written(QStringLiteral("thumbnailers/run.sh"), "#!/bin/sh\n" + words + "\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        written(QStringLiteral("thumbnailers/pdf.thumbnailer"),
                "[Thumbnailer Entry]\nTryExec=" + script.toUtf8() + "\nExec=" + script.toUtf8() +
                    " %i %o %s\nMimeType=application/pdf;image/png;\n");
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

TEST_F(FilePreviewer, ADocument_IsShownByTheDesktopsProgram) {
    const QString made = written(QStringLiteral("made.png"), png({300, 400}));
    installThumbnailer("test \"$3\" = 200 && grep -q PDF \"$1\" && cp " + made.toUtf8() + " \"$2\"");
    const QImage shown = preview(written(QStringLiteral("dprv.PDF"), "%PDF-1.4"));
    EXPECT_EQ(shown.size(), QSize(150, 200)) << "no larger than what was asked for";
    EXPECT_TRUE(preview(written(QStringLiteral("dprv.DOC"), "\xd0\xcf\x11\xe0")).isNull());
}

TEST_F(FilePreviewer, AProgramThatFailsOrMakesJunk_GivesNoPicture) {
    const QString file = written(QStringLiteral("dprv.PDF"), "%PDF-1.4");
    installThumbnailer("exit 1");
    EXPECT_TRUE(preview(file).isNull());
    installThumbnailer("echo junk > \"$2\"");
    EXPECT_TRUE(preview(file).isNull());
    installThumbnailer("mkfifo \"$2\"");
    EXPECT_TRUE(preview(file).isNull());
    installThumbnailer("kill -SEGV $$");
    EXPECT_TRUE(preview(file).isNull());
}

TEST_F(FilePreviewer, AProgramThatHangs_IsEndedWithAllItStarted) {
    // Whoever holds the pipe is still there.
    const QByteArray pipe = m_folder.filePath(QStringLiteral("pipe")).toUtf8();
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const int held = open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(held, 0);
    installThumbnailer("exec 3> " + pipe + "; echo >&3; sleep 1000 & sleep 1000");
    const DesktopThumbnailers desktop(QStringList{thumbnailers()});
    const QString file = written(QStringLiteral("dprv.PDF"), "%PDF-1.4");
    char word = 0;
    // A deadline that a busy machine lets pass before the program has begun is no use.
    for (std::chrono::milliseconds deadline{300}; word == 0 && deadline < kPatience; deadline *= 2) {
        EXPECT_TRUE(desktop.thumbnail(file, 200, deadline).isEmpty());
        EXPECT_GE(read(held, &word, 1), -1);
    }
    ASSERT_EQ(word, '\n');
    pollfd gone{held, POLLIN, 0};
    EXPECT_EQ(poll(&gone, 1, static_cast<int>(std::chrono::milliseconds(kPatience).count())), 1);
    EXPECT_EQ(read(held, &word, 1), 0) << "nobody holds it";
    close(held);
}

TEST_F(FilePreviewer, PicturesThatOurHelpersRefuse_GoNowhereElse) {
    const QString made = written(QStringLiteral("made.png"), png({30, 40}));
    installThumbnailer("cp " + made.toUtf8() + " \"$2\"");
    EXPECT_TRUE(DesktopThumbnailers(QStringList{thumbnailers()}).knows(QStringLiteral("image/png")));
    EXPECT_TRUE(preview(written(QStringLiteral("dprv.PNG"), "no picture")).isNull());
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
    EXPECT_EQ(preview(corpusFile("files/ape/file-type__fixture__fixture-monkeysaudio.ape")).size(), kLargest)
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
    EXPECT_TRUE(textLines({}, 5, 99).isEmpty());
    EXPECT_TRUE(textLines(QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), 5, 99).isEmpty());
}

}  // namespace
}  // namespace vantor
