// A medium to which pieces of files are written, and a look at what is put together from it.
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <atomic>
#include <optional>
#include <random>
#include <vector>

#include "repair/PhotoCompletion.h"
#include "tests/repair/MemoryReader.h"

namespace vantor::test {

constexpr qsizetype kClusterBytes = 4096;
constexpr std::uint64_t kClusterSectors = 8;

inline qsizetype clustersOf(const QByteArray& file) {
    return (file.size() + kClusterBytes - 1) / kClusterBytes;
}

// Pieces of files one behind the other, each in clusters of its own, behind four empty ones.
class ScatteredCard {
  public:
    // Clusters [from, to) of the file; the first sector of them.
    std::uint64_t put(const QByteArray& file, qsizetype from = 0, qsizetype to = 1'000'000) {
        const auto first = static_cast<std::uint64_t>(m_bytes.size()) / kSectorBytes;
        const QByteArray piece = file.mid(from * kClusterBytes, (to - from) * kClusterBytes);
        const qsizetype clusters = (piece.size() + kClusterBytes - 1) / kClusterBytes;
        m_bytes += piece.leftJustified(clusters * kClusterBytes, '\0');
        return first;
    }
    // The first halves of both, then their second halves; where each of them begins.
    std::pair<std::uint64_t, std::uint64_t> putCrossed(const QByteArray& one, const QByteArray& other) {
        const std::uint64_t firstOfOne = put(one, 0, clustersOf(one) / 2);
        const std::uint64_t firstOfOther = put(other, 0, clustersOf(other) / 2);
        put(one, clustersOf(one) / 2);
        put(other, clustersOf(other) / 2);
        return {firstOfOne, firstOfOther};
    }
    // Its first third, its last, then what lies between them; where it begins.
    std::uint64_t putOutOfOrder(const QByteArray& file) {
        const qsizetype third = clustersOf(file) / 3;
        const std::uint64_t first = put(file, 0, third);
        putNoise(3);
        put(file, 2 * third);
        putNoise(2);
        put(file, third, 2 * third);
        return first;
    }
    void putNoise(int clusters) {
        std::mt19937 random(7);
        for (qsizetype i = 0; i < clusters * kClusterBytes; ++i) {
            m_bytes += static_cast<char>(random());
        }
    }

    // With empty clusters behind.
    QByteArray bytes() const { return m_bytes + QByteArray(16 * kClusterBytes, '\0'); }

    std::optional<Assembly> completed(std::uint64_t first, const std::vector<std::uint64_t>& alsoBroken = {},
                                      const std::vector<SectorRun>& whole = {}) const {
        const QByteArray card = bytes();
        MemoryReader reader(card);
        const std::atomic<int> goOn{0};
        CompletionProgress progress;
        std::vector<std::uint64_t> broken = alsoBroken;
        broken.push_back(first);
        return PhotoCompletion(reader, goOn, progress).run(broken, whole).back();
    }
    QByteArray contentOf(const Assembly& assembly) const {
        QByteArray content;
        for (const SectorRun& run : assembly.runs) {
            content += m_bytes.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                                   static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
        }
        return content.left(static_cast<qsizetype>(assembly.bytes));
    }

  private:
    QByteArray m_bytes = QByteArray(4 * kClusterBytes, '\0');
};

// Each of the two comes back to the byte, as the other stands to be found too.
inline void expectToComeApart(const QByteArray& one, const QByteArray& other) {
    ScatteredCard card;
    const auto [firstOfOne, firstOfOther] = card.putCrossed(one, other);
    const auto assembly = card.completed(firstOfOne, {firstOfOther});
    ASSERT_TRUE(assembly);
    EXPECT_EQ(card.contentOf(*assembly), one);
    const auto second = card.completed(firstOfOther, {firstOfOne});
    ASSERT_TRUE(second);
    EXPECT_EQ(card.contentOf(*second), other);
}

}  // namespace vantor::test
