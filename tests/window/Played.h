// Plays through the movie helper into a device that the test listens to.
#pragma once

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTest>
#include <algorithm>
#include <memory>

#include "tests/window/HeardDevice.h"
#include "window/preview/HelperMovie.h"

namespace vantor {

class Played : public testing::Test {
  protected:
    void SetUp() override {
        if (!QFileInfo::exists(QStringLiteral(VANTOR_MOVIE_HELPER))) {
            GTEST_SKIP() << "built without the movie helper";
        }
    }
    HelperMovieOptions options() {
        HelperMovieOptions chosen;
        chosen.sound = [this] { return std::make_unique<HeardDevice>(heard); };
        chosen.reader.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
        return chosen;
    }
    // Listens in steps until it has come so far, or has ended, or time is up.
    bool listenUntil(const Movie& played, std::int64_t timeMs, int stepMs) {
        return QTest::qWaitFor(
            [&] {
                loudest = std::max(loudest, loudestOf(heard.listen(stepMs)));
                return played.positionMs() >= timeMs || played.rate() == 0;
            },
            20000);
    }

    Heard heard;
    int loudest = 0;
};

}  // namespace vantor
