// Plays through the movie helper into a device that the test listens to.
#pragma once

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>

#include "tests/window/HeardDevice.h"
#include "window/preview/HelperMovie.h"

namespace vantor {

class Played : public testing::Test {
  protected:
    // Beyond which a test fails rather than waits: longer than anything takes on the busiest machine.
    static constexpr std::chrono::minutes kPatience{1};

    static bool waitFor(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, static_cast<int>(std::chrono::milliseconds(kPatience).count()));
    }
    void SetUp() override {
        if (!QFileInfo::exists(QStringLiteral(VANTOR_MOVIE_HELPER))) {
            GTEST_SKIP() << "built without the movie helper";
        }
    }
    HelperMovieOptions options() {
        HelperMovieOptions chosen;
        chosen.sound = [this] { return std::make_unique<HeardDevice>(heard); };
        chosen.reader.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
        // How fast the machine is has no part in what is tested.
        chosen.reader.startDeadline = chosen.reader.openDeadline = chosen.reader.frameDeadline = kPatience;
        chosen.soundPatience = kPatience;
        return chosen;
    }
    // Listens in steps until it has come so far, or has ended, or time is up.
    bool listenUntil(const Movie& played, std::int64_t timeMs, int stepMs) {
        return waitFor([&] {
            loudest = std::max(loudest, loudestOf(heard.listen(stepMs)));
            return played.positionMs() >= timeMs || played.rate() == 0;
        });
    }

    Heard heard;
    int loudest = 0;
};

}  // namespace vantor
