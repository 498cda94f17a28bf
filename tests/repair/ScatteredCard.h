// A medium to which pieces of files are written, and a look at what is put together from it.
#pragma once

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
    void putNoise(int clusters) {
        std::mt19937 random(7);
        for (qsizetype i = 0; i < clusters * kClusterBytes; ++i) {
            m_bytes += static_cast<char>(random());
        }
    }

    std::optional<Assembly> completed(std::uint64_t first, const std::vector<std::uint64_t>& alsoBroken = {},
                                      const std::vector<SectorRun>& whole = {}) const {
        const QByteArray bytes = m_bytes + QByteArray(16 * kClusterBytes, '\0');
        MemoryReader reader(bytes);
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

inline qsizetype clustersOf(const QByteArray& file) {
    return (file.size() + kClusterBytes - 1) / kClusterBytes;
}

}  // namespace vantor::test
