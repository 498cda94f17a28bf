// The player of sound, and a helper that lies about every time and length.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "tests/window/HeardDevice.h"
#include "window/preview/SoundPlayer.h"

namespace vantor {
namespace {

constexpr std::chrono::minutes kAnswerPatience{1};
constexpr int kLiars = 100;
// More than the longest hole that is filled, and than what is decoded ahead.
constexpr std::size_t kMostHeld = std::size_t{60} * kSoundFramesPerSecond * kSoundChannels;

TEST(LyingSound, IsPlayedWithinItsBuffers) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("dprv.WAV")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("any bytes") > 0);
    file.close();
    std::size_t heardInAll = 0;
    for (int seed = 0; seed < kLiars; ++seed) {
        MovieReaderOptions options;
        options.helper = folder.filePath(QStringLiteral("random-%1").arg(seed));
        options.startDeadline = options.openDeadline = options.frameDeadline = kAnswerPatience;
        ASSERT_TRUE(QFile::link(QStringLiteral(VANTOR_LYING_HELPER), options.helper));
        Heard heard;
        SoundPlayer player(file.fileName(), std::make_unique<HeardDevice>(heard), options);
        const std::int64_t begun = seed % 3 * decode::kMostMs / 2;
        player.start(begun);
        std::int64_t last = begun;
        std::size_t heardOfThis = 0;
        const auto until = std::chrono::steady_clock::now() + kAnswerPatience;
        while (!player.isFinished() && !player.hasFailed() && std::chrono::steady_clock::now() < until &&
               heardOfThis < kMostHeld) {
            heardOfThis += heard.listen(20).size();
            const std::int64_t now = player.positionMs();
            EXPECT_GE(now, last) << "time goes on";
            last = now;
            std::this_thread::yield();
        }
        EXPECT_TRUE(player.isFinished() || player.hasFailed() || heardOfThis >= kMostHeld) << seed;
        heardInAll += heardOfThis;
    }
    EXPECT_GT(heardInAll, 0U);
}

}  // namespace
}  // namespace vantor
