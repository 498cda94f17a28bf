// The checksum of the report, alone and beside its owner.
#include <gtest/gtest.h>

#include <QCryptographicHash>

#include "saving/Sha256.h"
#include "tests/support/SmallFiles.h"

namespace vantor {

TEST(Sha256, OfKnownTexts) {
    // FIPS 180-2, appendix B.
    EXPECT_EQ(Sha256::of("abc").toHex(), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Sha256::of({}).toHex(), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
}

TEST(BackgroundSha256, SumsStretchesOfAnySizeAndBeginsAnew) {
    const QByteArray bytes = noise(1'000'000, 8);
    const QByteArray expected = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    BackgroundSha256 sum;
    for (const qsizetype step : {1000, 65536, 300'000, 1'000'000}) {
        for (qsizetype at = 0; at < bytes.size(); at += step) {
            sum.add(QByteArrayView(bytes).sliced(at, std::min(step, bytes.size() - at)));
        }
        EXPECT_EQ(sum.result(), expected) << step;
    }
}

}  // namespace vantor
