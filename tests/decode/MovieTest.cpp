#include <gtest/gtest.h>
#include "decode/MovieReader.h"
#include "tests/decode/Fixtures.h"
#include <cstdio>
namespace vantor {
namespace {
using namespace test;
TEST(Movie, Print) {
    for (const QString& path : filesBelow(corpusFolder() + QStringLiteral("/videos"))) {
        const auto t = std::chrono::steady_clock::now();
        auto m = MovieReader::open(path, {200, 200}, {.helper = QStringLiteral(VANTOR_MOVIE_HELPER)});
        const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now()-t).count();
        if (!m) { std::printf("%-60s none %ldms\n", qPrintable(path.mid(corpusFolder().size()+8).left(60)), ms); continue; }
        int frames = 1; qint64 last = m->poster().timeMs; bool ordered = true;
        while (auto f = m->next()) { ++frames; ordered &= f->timeMs >= last; last = f->timeMs; if (frames > 100) break; }
        auto mid = m->seek(m->durationMs() / 2);
        std::printf("%-60s %dx%d full %dx%d dur %lld sound %d frames %d last %lld ordered %d mid %lld %ldms over %d\n", qPrintable(path.mid(corpusFolder().size()+8).left(60)), m->poster().image.width(), m->poster().image.height(), m->fullSize().width(), m->fullSize().height(), (long long)m->durationMs(), m->hasSound(), frames, (long long)last, ordered, mid ? (long long)mid->timeMs : -1LL, ms, m->isOver());
    }
}
}
}
