// A line that names the format and the search, then an entry a thumbnail: place, length, bytes, and a sum
// over all of it.
#include "scan/KeptThumbnails.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QtEndian>

namespace vantor {

namespace {

const QByteArray kThumbnailsMagic = QByteArrayLiteral("Vantor Recovery thumbnails 1\n");
constexpr qsizetype kHeadBytes = 8 + 8 + 4;
constexpr qsizetype kThumbnailSumBytes = 8;

QByteArray headOf(const ThumbnailPlace& place, qsizetype bytes) {
    QByteArray head(kHeadBytes, Qt::Uninitialized);
    qToLittleEndian<quint64>(place.firstSector, head.data());
    qToLittleEndian<quint64>(place.bytes, head.data() + 8);
    qToLittleEndian<quint32>(static_cast<quint32>(bytes), head.data() + 16);
    return head;
}

QByteArray sumOf(const QByteArray& headAndBytes) {
    return QCryptographicHash::hash(headAndBytes, QCryptographicHash::Sha256).first(kThumbnailSumBytes);
}

}  // namespace

KeptThumbnails::KeptThumbnails(const QString& path, const QByteArray& searchId)
    : m_head(kThumbnailsMagic + searchId.toHex() + '\n'), m_file(path) {
    // A pipe would be waited for, and a link written through.
    const QFileInfo there(path);
    if (there.isSymLink() || !there.isFile()) {
        m_file.remove();
        return;
    }
    if (!m_file.open(QIODevice::ReadWrite)) {
        return;
    }
    if (m_file.size() <= kMostFileBytes && m_file.read(m_head.size()) == m_head) {
        readEntries();
        m_file.resize(m_end);
    } else {
        m_file.remove();
    }
}

// For the first thumbnail: a search without any leaves no file.
bool KeptThumbnails::begin() {
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Truncate)) {
        return false;
    }
    m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    m_end = m_file.write(m_head) == m_head.size() ? m_head.size() : 0;
    return m_end != 0;
}

void KeptThumbnails::readEntries() {
    m_end = m_head.size();
    for (;;) {
        QByteArray entry = m_file.read(kHeadBytes);
        if (entry.size() != kHeadBytes) {
            return;
        }
        const ThumbnailPlace place{qFromLittleEndian<quint64>(entry.constData()),
                                   qFromLittleEndian<quint64>(entry.constData() + 8)};
        const auto bytes = static_cast<qsizetype>(qFromLittleEndian<quint32>(entry.constData() + 16));
        if (bytes == 0 || bytes > kMostThumbnailBytes) {
            return;
        }
        entry += m_file.read(bytes);
        if (entry.size() != kHeadBytes + bytes || m_file.read(kThumbnailSumBytes) != sumOf(entry)) {
            return;
        }
        m_known.insert(place, {m_end + kHeadBytes, bytes});
        m_end += kHeadBytes + bytes + kThumbnailSumBytes;
    }
}

bool KeptThumbnails::contains(const ThumbnailPlace& place) const {
    const std::lock_guard lock(m_mutex);
    return m_known.contains(place);
}

QByteArray KeptThumbnails::find(const ThumbnailPlace& place) const {
    const std::lock_guard lock(m_mutex);
    const auto known = m_known.constFind(place);
    if (known == m_known.cend() || !m_file.seek(known->offset)) {
        return {};
    }
    const QByteArray bytes = m_file.read(known->bytes);
    return bytes.size() == known->bytes ? bytes : QByteArray();
}

void KeptThumbnails::add(const ThumbnailPlace& place, const QByteArray& thumbnail) {
    const std::lock_guard lock(m_mutex);
    const QByteArray entry = headOf(place, thumbnail.size()) + thumbnail;
    const QByteArray whole = entry + sumOf(entry);
    if (thumbnail.isEmpty() || thumbnail.size() > kMostThumbnailBytes ||
        m_end + whole.size() > kMostFileBytes || m_known.contains(place) || (m_end == 0 && !begin())) {
        return;
    }
    if (m_file.seek(m_end) && m_file.write(whole) == whole.size() && m_file.flush()) {
        m_known.insert(place, {m_end + kHeadBytes, thumbnail.size()});
        m_end += whole.size();
    }
}

}  // namespace vantor
