// Size first, which tells most files apart; the checksums of earlier files only where sizes agree.
#include "results/SavedFiles.h"

#include <QFile>
#include <QFileInfo>

#include "results/Sha256.h"

namespace vantor {

namespace {

constexpr qint64 kChunkBytes = 1024 * 1024;

// Empty when the file cannot be read.
QByteArray checksumOfFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    Sha256 sum;
    QByteArray chunk;
    do {
        chunk = file.read(kChunkBytes);
        sum.add(chunk);
    } while (!chunk.isEmpty());
    return sum.result();
}

// The candidate when the file is still there; the best so far otherwise. One of the type is the best.
const SavedFile* better(const SavedFile* best, const SavedFile& candidate, std::uint64_t bytes,
                        const QString& type) {
    const bool wanted = best == nullptr || (best->type != type && candidate.type == type);
    const bool there = wanted && QFileInfo(candidate.path).size() == static_cast<qint64>(bytes);
    return there ? &candidate : best;
}

}  // namespace

const SavedFile* SavedFiles::fromPlace(std::uint64_t bytes, std::uint64_t firstSector,
                                       const QString& type) const {
    const SavedFile* best = nullptr;
    const auto [begin, end] = m_bySize.equal_range(bytes);
    for (auto file = begin; file != end; ++file) {
        if (file->second.firstSector == firstSector) {
            best = better(best, file->second, bytes, type);
        }
    }
    return best;
}

const SavedFile* SavedFiles::withChecksum(std::uint64_t bytes, const QByteArray& sha256,
                                          const QString& type) {
    const SavedFile* best = nullptr;
    const auto [begin, end] = m_bySize.equal_range(bytes);
    for (auto file = begin; file != end; ++file) {
        SavedFile& candidate = file->second;
        if (candidate.sha256.isEmpty()) {
            candidate.sha256 = checksumOfFile(candidate.path);
        }
        if (candidate.sha256 == sha256) {
            best = better(best, candidate, bytes, type);
        }
    }
    return best;
}

}  // namespace vantor
