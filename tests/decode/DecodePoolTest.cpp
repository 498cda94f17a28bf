// The pool: thumbnails, pictures, and what happens when helpers are missing, killed or late.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <atomic>
#include <thread>

#include "decode/DecodePool.h"
#include "tests/decode/Fixtures.h"
#include "tests/decode/WatchedThread.h"

namespace vantor {
namespace {

using namespace test;
using std::chrono::milliseconds;

QImage decoded(const QByteArray& thumbnail) {
    return QImage::fromData(thumbnail, "JPEG");
}

TEST(DecodePool, Thumbnail_LandscapeAndPortrait_LongerSideIsOneHundred) {
    DecodePool pool(poolOptions());
    EXPECT_EQ(decoded(pool.thumbnail(encoded(twoColours({4000, 3000}), "jpeg"))).size(), QSize(100, 75));
    EXPECT_EQ(decoded(pool.thumbnail(encoded(twoColours({300, 1200}), "png"))).size(), QSize(25, 100));
}

TEST(DecodePool, Thumbnail_SmallPicture_IsNotEnlarged) {
    DecodePool pool(poolOptions(1));
    EXPECT_EQ(decoded(pool.thumbnail(encoded(twoColours({40, 30}), "png"))).size(), QSize(40, 30));
}

TEST(DecodePool, Thumbnail_ExtremeSides_KeepAtLeastOnePixel) {
    DecodePool pool(poolOptions(1));
    EXPECT_EQ(decoded(pool.thumbnail(encoded(twoColours({20000, 2}), "png"))).size(), QSize(100, 1));
}

TEST(DecodePool, Thumbnail_IsAJpeg) {
    DecodePool pool(poolOptions(1));
    EXPECT_TRUE(pool.thumbnail(encoded(twoColours({200, 100}), "bmp")).startsWith("\xff\xd8\xff"));
}

TEST(DecodePool, Thumbnail_TurnedPictures_AreUpright) {
    DecodePool pool(poolOptions());
    // Stored lying, to be shown turned right by 90 degrees: what is left becomes the top.
    const QByteArray turned = jpegHeldBy(twoColours({400, 200}), 6);
    const QImage upright = decoded(pool.thumbnail(turned));
    ASSERT_EQ(upright.size(), QSize(50, 100));
    EXPECT_TRUE(isNear(upright.pixel(25, 20), Qt::red));
    EXPECT_TRUE(isNear(upright.pixel(25, 80), Qt::blue));

    const QByteArray half = jpegHeldBy(twoColours({400, 200}), 3);
    const QImage standing = decoded(pool.thumbnail(half));
    ASSERT_EQ(standing.size(), QSize(100, 50));
    EXPECT_TRUE(isNear(standing.pixel(20, 25), Qt::blue));
    EXPECT_TRUE(isNear(standing.pixel(80, 25), Qt::red));
}

TEST(DecodePool, Picture_Turned_FitsAnOblongBoundUpright) {
    DecodePool pool(poolOptions(1));
    const DecodedPicture shown = pool.picture(jpegHeldBy(twoColours({400, 200}), 6), {300, 50});
    EXPECT_EQ(shown.image.size(), QSize(25, 50));
    EXPECT_EQ(shown.fullSize, QSize(200, 400));
    EXPECT_EQ(pool.picture(jpegHeldBy(twoColours({400, 200}), 6), {50, 300}).image.size(), QSize(50, 100));
}

TEST(DecodePool, Thumbnail_TransparentPicture_GetsAWhiteGround) {
    QImage clear(80, 80, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    QPainter(&clear).fillRect(0, 0, 40, 80, Qt::blue);
    DecodePool pool(poolOptions(1));
    const QImage thumbnail = decoded(pool.thumbnail(encoded(clear, "png")));
    ASSERT_EQ(thumbnail.size(), QSize(80, 80));
    EXPECT_TRUE(isNear(thumbnail.pixel(20, 40), Qt::blue));
    EXPECT_TRUE(isNear(thumbnail.pixel(60, 40), Qt::white));
}

TEST(DecodePool, Thumbnail_NoPicture_IsEmptyAndTheHelperLives) {
    DecodePool pool(poolOptions(1));
    EXPECT_TRUE(pool.thumbnail({}).isEmpty());
    EXPECT_TRUE(pool.thumbnail("no picture at all").isEmpty());
    EXPECT_TRUE(pool.thumbnail(QByteArray(100'000, '\0')).isEmpty());
    EXPECT_FALSE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
    EXPECT_EQ(pool.counts().started, 1U);
    EXPECT_EQ(pool.counts().refused, 2U);
    EXPECT_EQ(pool.counts().pictures, 1U);
}

TEST(DecodePool, Picture_OfBytesAndOfAFile_FitsTheBoundAndKnowsItsFullSize) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("dprv.PNG"));
    const QByteArray bytes = encoded(twoColours({1000, 500}), "png");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    DecodePool pool(poolOptions(1));
    for (const DecodedPicture& picture : {pool.picture(bytes, {200, 200}), pool.picture(path, {200, 200})}) {
        EXPECT_EQ(picture.image.size(), QSize(200, 100));
        EXPECT_EQ(picture.fullSize, QSize(1000, 500));
        EXPECT_FALSE(picture.partial);
        EXPECT_TRUE(isNear(picture.image.pixel(50, 50), Qt::red));
    }
    EXPECT_TRUE(pool.picture(folder.filePath(QStringLiteral("none.png")), {200, 200}).image.isNull());
    EXPECT_TRUE(pool.picture(folder.path(), {200, 200}).image.isNull());
    EXPECT_TRUE(pool.picture(bytes, {}).image.isNull());
}

TEST(DecodePool, Picture_AfterALargeOne_SmallOnesStillCome) {
    DecodePool pool(poolOptions(1));
    const QByteArray large = encoded(twoColours({6000, 4000}), "bmp");
    ASSERT_GT(large.size(), 64 << 20);
    EXPECT_EQ(pool.picture(large, {4000, 4000}).image.size(), QSize(4000, 2666));
    EXPECT_EQ(pool.picture(encoded(twoColours({30, 20}), "png"), {200, 200}).image.size(), QSize(30, 20));
    EXPECT_EQ(pool.counts().badAnswers, 0U);
}

TEST(DecodePool, MissingHelper_GivesNoPictureAtOnceAndNeverBlocks) {
    DecodePoolOptions options = poolOptions();
    options.helper = QStringLiteral("/nonexistent/vantor-decode");
    DecodePool pool(options);
    const QByteArray picture = encoded(twoColours({64, 64}), "png");
    EXPECT_TRUE(pool.thumbnail(picture).isEmpty());
    EXPECT_TRUE(pool.picture(picture, {200, 200}).image.isNull());
    EXPECT_EQ(pool.counts().started, 0U);
    EXPECT_GE(pool.counts().failedStarts, 1U);
}

TEST(DecodePool, HelperThatIsAnotherProgram_GivesNoPicture) {
    DecodePoolOptions options = poolOptions(1);
    options.helper = QStringLiteral("/bin/true");
    DecodePool pool(options);
    EXPECT_TRUE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
}

// The helper is this script, which ends in it running the real one.
QString scriptedHelper(const QTemporaryDir& folder, const QByteArray& words) {
    const QString path = folder.filePath(QStringLiteral("helper"));
    QFile script(path);
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n" + words + "\nexec " VANTOR_DECODE_HELPER " \"$@\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

TEST(DecodePool, HelpersThatDieWhileTheyStart_ArePassedOver) {
    const QTemporaryDir folder;
    const QByteArray mark = folder.filePath(QStringLiteral("started")).toUtf8();
    DecodePoolOptions options = poolOptions(1);
    options.helper =
        scriptedHelper(folder, "echo >> " + mark + "; test $(wc -l < " + mark + ") -gt 2 || kill -KILL $$");
    DecodePool pool(options);
    EXPECT_FALSE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
    EXPECT_EQ(pool.counts().failedStarts, 2U);
}

TEST(DecodePool, HelperThatNeverReports_IsGivenUp) {
    const QTemporaryDir folder;
    DecodePoolOptions options = poolOptions(1);
    options.helper = scriptedHelper(folder, "exec sleep 1000");
    options.startDeadline = milliseconds(200);
    DecodePool pool(options);
    EXPECT_TRUE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
    EXPECT_GE(pool.counts().failedStarts, 1U);
}

TEST(DecodePool, Destruction_GivesUpAHelperThatNeverReports) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath(QStringLiteral("started"));
    DecodePoolOptions options = poolOptions(1);
    options.helper = scriptedHelper(folder, "echo $$ > " + mark.toUtf8() + "; exec sleep 1000");
    options.startDeadline = std::chrono::minutes(10);
    pid_t starting = 0;
    {
        DecodePool pool(options);
        while (starting == 0) {
            std::this_thread::sleep_for(milliseconds(1));
            starting = bytesOfFile(mark).trimmed().toInt();
        }
    }
    EXPECT_EQ(kill(starting, 0), -1) << "it would have gone on for minutes";
}

TEST(DecodePool, IdleHelpersKilled_AreReplacedAndThePictureIsStillShown) {
    DecodePool pool(poolOptions(2));
    const QByteArray picture = encoded(twoColours({64, 64}), "png");
    ASSERT_FALSE(pool.thumbnail(picture).isEmpty());
    for (int round = 0; round < 5; ++round) {
        const std::vector<pid_t> pids = pool.helperPids();
        ASSERT_FALSE(pids.empty());
        // The one that is lent out next: the pool lends the last one back first.
        kill(pids.back(), SIGKILL);
        EXPECT_FALSE(pool.thumbnail(picture).isEmpty());
    }
}

TEST(DecodePool, AllIdleHelpersKilled_StillCostNoPicture) {
    DecodePool pool(poolOptions(3));
    const QByteArray picture = encoded(twoColours({64, 64}), "png");
    while (pool.helperPids().size() < 3) {
        std::this_thread::yield();
    }
    for (const pid_t pid : pool.helperPids()) {
        kill(pid, SIGKILL);
        siginfo_t end;
        ASSERT_EQ(waitid(P_PID, static_cast<id_t>(pid), &end, WEXITED | WNOWAIT), 0);
    }
    EXPECT_FALSE(pool.thumbnail(picture).isEmpty());
}

TEST(DecodePool, DecoderThatCrashes_CostsItsPictureOnly) {
    DecodePool pool(poolOptions(1));
    const QByteArray small = encoded(twoColours({64, 64}), "png");
    ASSERT_FALSE(pool.thumbnail(small).isEmpty());
    const pid_t helper = pool.helperPids().front();
    stopProcess(helper);
    QByteArray shown = "not asked";
    WatchedThread caller([&] { shown = pool.thumbnail(small); });
    caller.awaitAsleepIn(kAskingAHelper);
    // What a damaged heap ends in; a sanitizer would catch a segmentation fault for itself.
    kill(helper, SIGABRT);
    kill(helper, SIGCONT);
    caller.join();
    EXPECT_TRUE(shown.isEmpty());
    EXPECT_EQ(pool.counts().crashed, 1U);
    EXPECT_FALSE(pool.thumbnail(small).isEmpty());
}

TEST(DecodePool, DecoderThatHangs_IsEndedAtTheDeadline) {
    DecodePoolOptions options = poolOptions(1);
    options.thumbnailDeadline = milliseconds(300);
    DecodePool pool(options);
    const QByteArray small = encoded(twoColours({64, 64}), "png");
    const auto isShown = [&] { return !pool.picture(small, {200, 200}).image.isNull(); };  // has more time
    ASSERT_TRUE(isShown());
    const pid_t helper = pool.helperPids().front();
    stopProcess(helper);
    EXPECT_TRUE(pool.thumbnail(small).isEmpty());
    EXPECT_EQ(pool.counts().late, 1U);
    EXPECT_EQ(kill(helper, 0), -1);
    EXPECT_TRUE(isShown());
}

TEST(DecodePool, Close_FreesACallerAtOnce) {
    DecodePoolOptions options = poolOptions(1);
    options.thumbnailDeadline = std::chrono::minutes(10);
    DecodePool pool(options);
    const QByteArray small = encoded(twoColours({64, 64}), "png");
    ASSERT_FALSE(pool.thumbnail(small).isEmpty());
    stopProcess(pool.helperPids().front());
    QByteArray shown = "not asked";
    WatchedThread caller([&] { shown = pool.thumbnail(small); });
    caller.awaitAsleepIn(kAskingAHelper);
    pool.close();
    caller.join();
    EXPECT_TRUE(shown.isEmpty());
    EXPECT_TRUE(pool.thumbnail(small).isEmpty());
}

TEST(DecodePool, DefaultHelper_IsFoundFromTheProgram) {
    int argc = 1;
    char name[] = VANTOR_BINARY_DIR "/bin/decode_test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    DecodePoolOptions options;
    options.helpers = 1;
    DecodePool pool(options);
    EXPECT_FALSE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
}

TEST(DecodePool, Destruction_EndsItsHelpers) {
    std::vector<pid_t> pids;
    {
        DecodePool pool(poolOptions(2));
        ASSERT_FALSE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
        pids = pool.helperPids();
    }
    for (const pid_t pid : pids) {
        EXPECT_EQ(kill(pid, 0), -1);
    }
}

TEST(DecodePool, LatePicture_CostsItsHelperOnly) {
    DecodePoolOptions options = poolOptions(1);
    options.thumbnailDeadline = milliseconds(1);
    DecodePool pool(options);
    EXPECT_TRUE(pool.thumbnail(encoded(twoColours({9000, 6000}), "png")).isEmpty());
    EXPECT_EQ(pool.counts().late, 1U);
    EXPECT_EQ(pool.picture(encoded(twoColours({64, 64}), "png"), {200, 200}).image.size(), QSize(64, 64));
    EXPECT_EQ(pool.counts().started, 2U);
}

TEST(DecodePool, HelperThatHoldsTooMuchMemory_IsReplaced) {
    DecodePoolOptions options = poolOptions(1);
    options.residentLimitBytes = 1;
    DecodePool pool(options);
    const QByteArray picture = encoded(twoColours({64, 64}), "png");
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(pool.thumbnail(picture).isEmpty());
    }
    EXPECT_EQ(pool.counts().recycled, 3U);
}

TEST(DecodePool, ManyCallers_AllGetTheirOwnPicture) {
    DecodePool pool(poolOptions(2));
    std::atomic<int> wrong{0};
    std::vector<std::thread> callers;
    for (int n = 1; n <= 6; ++n) {
        callers.emplace_back([&pool, &wrong, n] {
            const QByteArray picture = encoded(twoColours({n * 10, 8}), "png");
            for (int i = 0; i < 30; ++i) {
                wrong += decoded(pool.thumbnail(picture)).size() != QSize(n * 10, 8);
            }
        });
    }
    for (std::thread& caller : callers) {
        caller.join();
    }
    EXPECT_EQ(wrong, 0);
}

TEST(DecodePool, Helpers_AreCaged) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the cage and the sanitizers exclude each other";
#endif
    DecodePool pool(poolOptions(1));
    ASSERT_FALSE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
    const QByteArray status = bytesOfFile(QStringLiteral("/proc/%1/status").arg(pool.helperPids().front()));
    EXPECT_TRUE(status.contains("NoNewPrivs:\t1"));
    EXPECT_TRUE(status.contains("Seccomp:\t2"));
    EXPECT_FALSE(status.contains("\nUid:\t0"));
    const QByteArray limits = bytesOfFile(QStringLiteral("/proc/%1/limits").arg(pool.helperPids().front()));
    EXPECT_TRUE(limits.contains("Max core file size        0 "));
    EXPECT_FALSE(limits.contains("Max address space         unlimited"));
}

}  // namespace
}  // namespace vantor
