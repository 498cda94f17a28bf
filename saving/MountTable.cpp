// Holds the table open and asks the kernel whether it is still the same.
#include "saving/MountTable.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <poll.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <QFile>
#include <array>
#include <cerrno>
#include <utility>

namespace vantor {

namespace {

// Of other files a poll tells nothing.
bool tellsChanges(int table) {
    struct statfs info {};
    return ::fstatfs(table, &info) == 0 && info.f_type == PROC_SUPER_MAGIC;
}

}  // namespace

QByteArray unescapedMountField(const QByteArray& field) {
    QByteArray text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code =
            field.at(i) == '\\' && i + 3 < field.size() ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        text.append(isOctal ? static_cast<char>(code) : field.at(i));
        i += isOctal ? 3 : 0;
    }
    return text;
}

MountTable::MountTable(QString path) : m_path(std::move(path)) {}

std::shared_ptr<MountTable> MountTable::ofThisProcess() {
    static const auto table = std::make_shared<MountTable>(QStringLiteral("/proc/self/mountinfo"));
    return table;
}

// The mark is taken away by the asking: what changes while the table is read is seen the next time.
bool MountTable::hasChanged() {
    struct pollfd asked {
        m_table.get(), POLLPRI, 0
    };
    const int answers = m_isWatched ? ::poll(&asked, 1, 0) : -1;
    return answers != 0;
}

void MountTable::read() {
    ++m_readings;
    m_isRead = false;
    m_mounts.clear();
    if (!m_table) {
        m_table = FileDescriptor(::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_CLOEXEC));
        m_isWatched = m_table && tellsChanges(m_table.get());
    }
    QByteArray text;
    std::array<char, 64 * 1024> chunk;
    if (!m_table || ::lseek(m_table.get(), 0, SEEK_SET) != 0) {
        return;
    }
    for (;;) {
        const ssize_t n = ::read(m_table.get(), chunk.data(), chunk.size());
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            m_isRead = n == 0;
            break;
        }
        text.append(chunk.data(), n);
    }
    for (const QByteArray& line : text.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype dash = fields.indexOf("-");
        if (dash > 0 && dash + 3 < fields.size()) {
            m_mounts.append({fields.value(2), fields.at(dash + 1), unescapedMountField(fields.at(dash + 2)),
                             fields.at(dash + 3).split(',')});
        }
    }
}

QList<Mount> MountTable::of(dev_t device) {
    const QByteArray number = QByteArray::number(major(device)) + ':' + QByteArray::number(minor(device));
    const std::lock_guard lock(m_mutex);
    if (hasChanged() || !m_isRead) {
        read();
    }
    QList<Mount> mounts;
    for (const Mount& mount : m_mounts) {
        if (mount.number == number) {
            mounts.append(mount);
        }
    }
    return mounts;
}

}  // namespace vantor
