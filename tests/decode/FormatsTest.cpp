// Formats.
#include <gtest/gtest.h>

#include <cstdio>

#include "decode/DecodePool.h"
#include "tests/decode/Fixtures.h"
namespace vantor {
namespace {
using namespace test;
TEST(Formats, Print) {
    DecodePool pool(poolOptions(1));
    for (const QString& path : filesBelow(corpusFolder() + QStringLiteral("/photos"))) {
        const auto t = std::chrono::steady_clock::now();
        const DecodedPicture p = pool.picture(path, {200, 200});
        const auto ms =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - t)
                .count();
        std::printf("%-60s %dx%d full %dx%d partial %d %ldms\n",
                    qPrintable(path.mid(corpusFolder().size() + 8).left(60)), p.image.width(),
                    p.image.height(), p.fullSize.width(), p.fullSize.height(), p.partial, ms);
    }
    auto c = pool.counts();
    std::printf("crashed %lu late %lu exited %lu recycled %lu\n", c.crashed, c.late, c.exited, c.recycled);
}
}  // namespace
}  // namespace vantor
