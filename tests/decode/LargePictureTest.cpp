// Pictures as large as phones make them.
#include <gtest/gtest.h>

#include <chrono>

#include "decode/DecodePool.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;

TEST(LargePicture, Of200Megapixels_FitsTheMemoryOfAHelper) {
    DecodePoolOptions options = poolOptions(1);
    options.pictureDeadline = std::chrono::minutes(10);  // what counts here is the memory
    DecodePool pool(options);
    const DecodedPicture shown =
        pool.picture(QStringLiteral(VANTOR_SOURCE_DIR "/tests/data/large/201-megapixels.avif"), {200, 200});
    EXPECT_EQ(pool.counts().crashed, 0U);
    ASSERT_EQ(shown.image.size(), QSize(200, 150));
    EXPECT_EQ(shown.fullSize, QSize(16384, 12288));
    // Tiles of fifty pixels, each red and then blue.
    for (const int tile : {0, 1, 2, 3}) {
        EXPECT_TRUE(isNear(shown.image.pixel(tile * 50 + 12, 75), Qt::red)) << tile;
        EXPECT_TRUE(isNear(shown.image.pixel(tile * 50 + 37, 75), Qt::blue)) << tile;
    }
}

}  // namespace
}  // namespace vantor
