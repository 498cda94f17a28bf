// What the tests of movies and of sound share: the helper, files written for it, and broken ones.
#pragma once

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <chrono>
#include <random>

#include "decode/MovieHelper.h"
#include "tests/decode/Fixtures.h"

namespace vantor::test {

inline MovieReaderOptions movieOptions() {
    MovieReaderOptions chosen;
    chosen.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
    chosen.startDeadline = chosen.openDeadline = chosen.frameDeadline = kPatience;
    return chosen;
}

// Skips where the helper was not built.
class MovieHelperTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!QFileInfo::exists(movieOptions().helper)) {
            GTEST_SKIP() << "built without the movie helper";
        }
    }
    QString written(const QByteArray& bytes, const QString& name) {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }

    // Small files below these folders of the corpus, again and again, each damaged in another way: cut off,
    // zeroed in parts, bytes changed. Tells of how many `use` says that there was something to them.
    template <typename Use>
    int useMutated(const std::vector<const char*>& folders, int count, unsigned seedOfRandom,
                   const Use& use) {
        constexpr qint64 kLargestSeed = 300 * 1024;
        std::vector<QString> seeds;
        for (const char* folder : folders) {
            for (const QString& path : filesBelow(corpusFolder() + u'/' + QLatin1String(folder))) {
                if (QFileInfo(path).size() <= kLargestSeed) {
                    seeds.push_back(path);
                }
            }
        }
        EXPECT_GT(seeds.size(), 10U);
        MovieReaderOptions impatient = movieOptions();
        impatient.openDeadline = impatient.frameDeadline = std::chrono::seconds(1);
        std::mt19937 random(seedOfRandom);
        int usable = 0;
        for (int i = 0; i < count && !seeds.empty(); ++i) {
            const QString& seed = seeds[static_cast<std::size_t>(i) % seeds.size()];
            usable += use(written(mutated(bytesOfFile(seed), random),
                                  QStringLiteral("dprv.") + QFileInfo(seed).suffix()),
                          impatient);
        }
        return usable;
    }

    QTemporaryDir m_folder;
};

}  // namespace vantor::test
