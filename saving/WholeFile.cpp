// Unnamed files where the kernel has them, temporary names elsewhere; both end in a link that refuses to
// replace.
#include "saving/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QRandomGenerator>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace vantor {

namespace {

constexpr int kMostNamesTried = 100000;
constexpr mode_t kMode = 0644;  // less the user's mask

// "name.ext" with " (n)" before the extension; n = 1 is the name itself.
QString numberedName(const QString& name, int n) {
    if (n == 1) {
        return name;
    }
    const qsizetype dot = name.lastIndexOf(u'.');
    const qsizetype cut = dot > 0 ? dot : name.size();
    return name.left(cut) + QStringLiteral(" (%1)").arg(n) + name.mid(cut);
}

// The first of the numbered paths that `take` accepts; it refuses with errno EEXIST what is taken.
template <typename Take>
std::optional<QString> firstFreeName(const QString& folder, const QString& name, const Take& take) {
    for (int n = 1; n <= kMostNamesTried; ++n) {
        const QString path = folder + u'/' + numberedName(name, n);
        if (take(QFile::encodeName(path))) {
            return path;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return std::nullopt;
}

}  // namespace

WholeFile::WholeFile(const QString& folder) : m_folder(folder) {
    const QByteArray path = QFile::encodeName(folder);
    m_fd = ::open(path.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kMode);
    if (m_fd >= 0) {
        return;
    }
    if (errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL || errno == ENOENT) {
        m_temporaryPath =
            path + "/.vantor-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16) + ".part";
        m_fd = ::open(m_temporaryPath.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kMode);
        if (m_fd >= 0) {
            return;
        }
        m_temporaryPath.clear();
    }
    fail();
}

WholeFile::~WholeFile() {
    if (m_fd >= 0) {
        ::close(m_fd);
    }
    if (!m_temporaryPath.isEmpty()) {
        ::unlink(m_temporaryPath.constData());
    }
}

bool WholeFile::fail() {
    m_error = errno != 0 ? errno : EIO;
    return false;
}

bool WholeFile::write(QByteArrayView bytes) {
    while (isGood() && !bytes.isEmpty()) {
        const ssize_t n = ::write(m_fd, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (n > 0) {
            bytes = bytes.sliced(n);
        } else if (n == 0 || errno != EINTR) {
            return fail();
        }
    }
    return isGood();
}

bool WholeFile::setModificationTime(std::int64_t seconds) {
    const struct timespec times[] = {{0, UTIME_OMIT}, {static_cast<time_t>(seconds), 0}};
    return isGood() && ::futimens(m_fd, times) == 0;
}

std::optional<QString> WholeFile::commit(const QString& name) {
    if (!isGood()) {
        return std::nullopt;
    }
    if (::fsync(m_fd) != 0 && errno != EINVAL) {
        fail();
        return std::nullopt;
    }
    const auto path = firstFreeName(m_folder, name, [this](const QByteArray& p) { return takeName(p); });
    if (!path) {
        fail();
    }
    return path;
}

// False with errno EEXIST when the name is taken.
bool WholeFile::takeName(const QByteArray& path) {
    if (m_temporaryPath.isEmpty()) {
        char self[64];
        std::snprintf(self, sizeof self, "/proc/self/fd/%d", m_fd);
        return ::linkat(AT_FDCWD, self, AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) == 0;
    }
    if (::renameat2(AT_FDCWD, m_temporaryPath.constData(), AT_FDCWD, path.constData(), RENAME_NOREPLACE) ==
        0) {
        m_temporaryPath.clear();
        return true;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return false;
    }
    // The file system knows no rename that refuses to replace: reserve the name first, then replace our own
    // file.
    const int reserved = ::open(path.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kMode);
    if (reserved < 0) {
        return false;
    }
    ::close(reserved);
    if (::rename(m_temporaryPath.constData(), path.constData()) != 0) {
        const int why = errno;
        ::unlink(path.constData());
        errno = why;
        return false;
    }
    m_temporaryPath.clear();
    return true;
}

std::optional<QString> linkAs(const QString& existing, const QString& folder, const QString& name) {
    return firstFreeName(folder, name, [from = QFile::encodeName(existing)](const QByteArray& path) {
        return ::link(from.constData(), path.constData()) == 0;
    });
}

QString WholeFile::error() const {
    return QString::fromLocal8Bit(std::strerror(m_error));
}

}  // namespace vantor
