// The private file's life, and what of the preview file can be used for it.
#include "window/preview/WholePreview.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <algorithm>
#include <utility>

#include "results/TrueCopy.h"
#include "window/preview/PrivateFolder.h"

namespace vantor {

namespace {

const QString kFolders = QStringLiteral("shown-*");
const QString kLockName = QStringLiteral("/lock");
// How often the room on the disk is looked at.
constexpr std::uint64_t kRoomStep = std::uint64_t{64} << 20;

}  // namespace

// In a folder of its own.
struct WholePreview::PrivateFile : PrivateFolder {
    explicit PrivateFile(const WholePreviewRequest& request) : PrivateFolder(request.folder) {
        if (held) {
            file.setFileName(folder.path() + u'/' + QFileInfo(request.previewFile).fileName());
            file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        }
    }

    QFile file;
    std::uint64_t sinceLook = 0;  // bytes written since the room was looked at
};

WholePreview::WholePreview() = default;

WholePreview::~WholePreview() = default;

void WholePreview::begin(WholePreviewRequest request, std::unique_ptr<SectorReader> medium) {
    m_request = std::move(request);
    if (!medium || m_request.carved.runs.empty()) {
        return;
    }
    // What was copied need not be read again, but for what stands behind the item.
    QFile preview(m_request.previewFile);
    QByteArrayView firstBytes;
    const SectorRun& run = m_request.carved.runs.front();
    if (m_request.faithful && m_request.carved.runs.size() == 1 && run.first == m_request.start &&
        preview.open(QIODevice::ReadOnly) && preview.size() > 0) {
        const auto size =
            std::min(static_cast<std::uint64_t>(preview.size()) / kSectorBytes, run.end - run.first) *
            kSectorBytes;
        if (const uchar* const mapped = preview.map(0, static_cast<qint64>(size))) {
            firstBytes = QByteArrayView(mapped, static_cast<qsizetype>(size));
        }
    }
    m_copy = std::make_unique<TrueCopy>(m_request.type, m_request.carved, std::move(medium), m_watch,
                                        m_request.hints);
    if (!m_copy->measure(firstBytes)) {
        m_copy.reset();
        return;
    }
    m_bytes = m_copy->bytes();
    m_lengthKnown = m_copy->lengthIsKnown();
    const bool alike = !firstBytes.isEmpty() && static_cast<std::uint64_t>(preview.size()) == *m_bytes;
    const auto writer = [this](std::uint64_t at, std::span<const std::uint8_t> bytes) {
        return write(at, bytes);
    };
    if (alike || !makeFile() || !m_copy->writeEnds(writer)) {
        m_file.reset();
        m_copy.reset();
        return;
    }
    m_toBeFilled = !m_copy->isSmall();
    if (!m_toBeFilled) {
        m_file->file.close();
        m_copy.reset();
    }
}

bool WholePreview::fill() {
    const bool whole =
        m_copy && m_copy->writeRest([this](std::uint64_t at, std::span<const std::uint8_t> bytes) {
            return write(at, bytes);
        });
    m_copy.reset();
    return whole;
}

bool WholePreview::makeFile() {
    QDir().mkpath(m_request.folder);
    const std::uint64_t atOnce = std::min(*m_bytes, TrueCopy::kHeadBytes + TrueCopy::kTailBytes);
    if (!hasRoomFor(atOnce)) {
        return false;
    }
    m_file = std::make_unique<PrivateFile>(m_request);
    return m_file->file.isOpen() && m_file->file.resize(static_cast<qint64>(*m_bytes));
}

bool WholePreview::hasRoomFor(std::uint64_t bytes) const {
    const auto free = m_request.freeBytes ? m_request.freeBytes(m_request.folder) : std::nullopt;
    return !free || *free >= bytes + kLeastFreeBytes;
}

bool WholePreview::write(std::uint64_t offset, std::span<const std::uint8_t> bytes) {
    m_file->sinceLook += bytes.size();
    if (m_file->sinceLook >= kRoomStep) {
        m_file->sinceLook = 0;
        if (!hasRoomFor(kRoomStep)) {
            return false;
        }
    }
    QFile& file = m_file->file;
    const auto size = static_cast<qint64>(bytes.size());
    return file.seek(static_cast<qint64>(offset)) &&
           file.write(reinterpret_cast<const char*>(bytes.data()), size) == size && file.flush();
}

QString WholePreview::path() const {
    return m_file ? m_file->file.fileName() : QString();
}

void WholePreview::clearLeftovers(const QString& folder) {
    const QDir directory(folder);
    for (const QString& name : directory.entryList({kFolders}, QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString path = directory.filePath(name);
        QLockFile lock(path + kLockName);
        lock.setStaleLockTime(0);
        if (QFileInfo::exists(path + kLockName) && lock.tryLock(0)) {
            lock.unlock();
            QDir(path).removeRecursively();
        }
    }
}

}  // namespace vantor
