// Size and first bytes tell most files apart; the whole bytes of earlier files are asked for only where
// both agree.
#include "saving/SavedFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <optional>

#include "results/ResultRow.h"
#include "saving/Sha256.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

constexpr qint64 kSumChunkBytes = 1024 * 1024;

std::optional<QByteArray> checksumOfHead(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return Sha256::of(file.read(static_cast<qint64>(Likeness::kHeadBytes)));
}

// Empty when the file cannot be read.
QByteArray checksumOfFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    Sha256 sum;
    QByteArray chunk;
    do {
        chunk = file.read(kSumChunkBytes);
        sum.add(chunk);
    } while (!chunk.isEmpty());
    return sum.result();
}

// Whether the path is the other one with a number, "IMG_0412 (2).JPG".
bool isNumbered(const QString& path, const QString& plain) {
    static const QRegularExpression kNumber(QStringLiteral(" \\(([0-9]{1,9})\\)(\\.[^./]*)?$"));
    const auto number = kNumber.match(path);
    const qsizetype name = plain.lastIndexOf(u'/') + 1;
    return number.hasMatch() &&
           path == plain.left(name) + numberedName(plain.mid(name), number.capturedView(1).toInt());
}

// The candidate when the file is still there; the best so far otherwise. One that serves is the best.
const SavedFile* better(const SavedFile* best, const SavedFile& candidate, std::uint64_t bytes,
                        const SoughtFile& sought) {
    const bool wanted = best == nullptr || (!sought.isServedBy(*best) && sought.isServedBy(candidate));
    const bool there = wanted && QFileInfo(candidate.path).size() == static_cast<qint64>(bytes);
    return there ? &candidate : best;
}

}  // namespace

bool SoughtFile::isServedBy(const SavedFile& file) const {
    if (!byPath) {
        return file.type == type;
    }
    return file.path == path || isNumbered(file.path, path);
}

void SavedFiles::lookIntoCardFolder(const QString& folder) {
    if (!m_folders.insert(folder).second) {
        return;
    }
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : files) {
        m_fromEarlier.emplace(
            static_cast<std::uint64_t>(file.size()),
            SavedFile{
                file.filePath(), pathExtension(file.fileName()).toUpper(), {}, SavedFile::kNoPlace, true});
    }
}

void SavedFiles::add(const Likeness& likeness, SavedFile file) {
    const auto added = m_files.emplace(likeness, std::move(file));
    if (added->second.allRead && added->second.firstSector != SavedFile::kNoPlace) {
        m_byPlace.emplace(added->second.firstSector, added);
    }
}

void SavedFiles::lookInto(const QString& folder, const QString& type) {
    if (!m_folders.insert(folder).second) {
        return;
    }
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        m_fromEarlier.emplace(static_cast<std::uint64_t>(files.fileInfo().size()),
                              SavedFile{path, type, {}, SavedFile::kNoPlace, true});
    }
}

void SavedFiles::lookAtFilesOf(std::uint64_t bytes) {
    const auto [begin, end] = m_fromEarlier.equal_range(bytes);
    for (auto file = begin; file != end; ++file) {
        if (const auto head = checksumOfHead(file->second.path)) {
            add({bytes, *head}, std::move(file->second));
        }
    }
    m_fromEarlier.erase(begin, end);
}

bool SavedFiles::hasLike(const Likeness& likeness) {
    lookAtFilesOf(likeness.bytes);
    return m_files.contains(likeness);
}

const SavedFile* SavedFiles::fromPlace(std::uint64_t bytes, const SoughtFile& sought) const {
    const SavedFile* best = nullptr;
    const auto [begin, end] = m_byPlace.equal_range(sought.firstSector);
    for (auto place = begin; place != end; ++place) {
        const auto& [likeness, file] = *place->second;
        if (likeness.bytes == bytes) {
            best = better(best, file, bytes, sought);
        }
    }
    return best;
}

const SavedFile* SavedFiles::servingCopyOf(const SavedFile& same, const Likeness& likeness,
                                           const SoughtFile& sought) {
    lookAtFilesOf(likeness.bytes);
    QByteArray sum = same.sha256;
    const auto [begin, end] = m_files.equal_range(likeness);
    for (auto file = begin; file != end; ++file) {
        SavedFile& candidate = file->second;
        if (!sought.isServedBy(candidate) || better(nullptr, candidate, likeness.bytes, sought) == nullptr) {
            continue;
        }
        if (sum.isEmpty()) {
            sum = checksumOfFile(same.path);
        }
        if (candidate.sha256.isEmpty()) {
            candidate.sha256 = checksumOfFile(candidate.path);
        }
        if (candidate.sha256 == sum) {
            return &candidate;
        }
    }
    return nullptr;
}

const SavedFile* SavedFiles::withChecksum(const Likeness& likeness, const QByteArray& sha256,
                                          const SoughtFile& sought) {
    lookAtFilesOf(likeness.bytes);
    const auto mayBeSame = [&sought](const SavedFile& file) {
        return (file.allRead && sought.allRead) || file.firstSector == sought.firstSector ||
               file.path == sought.path;
    };
    const SavedFile* best = nullptr;
    const auto [begin, end] = m_files.equal_range(likeness);
    for (auto file = begin; file != end; ++file) {
        SavedFile& candidate = file->second;
        if (!mayBeSame(candidate)) {
            continue;
        }
        if (candidate.sha256.isEmpty()) {
            candidate.sha256 = checksumOfFile(candidate.path);
        }
        if (candidate.sha256 == sha256) {
            best = better(best, candidate, likeness.bytes, sought);
        }
    }
    return best;
}

}  // namespace vantor
