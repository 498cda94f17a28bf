// Unnamed files where the kernel has them, temporary names elsewhere; both end in a name that replaces none.
#include "saving/WholeFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QRandomGenerator>
#include <cerrno>
#include <cstdio>
#include <vector>

#include "media/SystemWords.h"

namespace vantor {

namespace {

constexpr int kMostNamesTried = 1000;
constexpr int kTriedInTurn = 16;  // numbers, before it is asked how many there are
constexpr int kLargestNumber = 1'000'000'000;
constexpr mode_t kMode = 0644;  // less the user's mask

constexpr qsizetype kLongestExtension = 16;  // with its dot; longer ones are part of the name

// The text up to so many bytes of UTF-8, whole characters.
QString cutToBytes(QString text, qsizetype most) {
    while (text.toUtf8().size() > most) {
        text.chop(text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    }
    return text;
}

bool isTaken(const SavingFolder& folder, const QString& name) {
    return ::faccessat(folder.descriptor(), QFile::encodeName(name).constData(), F_OK, AT_SYMLINK_NOFOLLOW) ==
           0;
}

// A number whose name is free, past one that is taken: in steps that double, then halving, so that a card
// whose files all have one name does not cost the square of their number.
int freeNumberBehind(const SavingFolder& folder, const QString& name, int taken) {
    int free = 2 * taken;
    while (free < kLargestNumber && isTaken(folder, numberedName(name, free))) {
        taken = free;
        free *= 2;
    }
    while (free - taken > 1) {
        const int middle = taken + (free - taken) / 2;
        (isTaken(folder, numberedName(name, middle)) ? taken : free) = middle;
    }
    return free;
}

// The path of a numbered name that `take` accepts, the first one where few are taken; it refuses with errno
// EEXIST what is taken.
template <typename Take>
std::optional<QString> firstFreeName(const SavingFolder& folder, const QString& name, const Take& take) {
    int n = 1;
    for (int tries = 1; tries <= kMostNamesTried && n < kLargestNumber; ++tries) {
        const QString numbered = numberedName(name, n);
        if (take(QFile::encodeName(numbered))) {
            return folder.path() + u'/' + numbered;
        }
        if (errno != EEXIST) {
            break;
        }
        n = tries == kTriedInTurn ? freeNumberBehind(folder, name, n) : n + 1;
        errno = EEXIST;
    }
    return std::nullopt;
}

const QByteArray kTemporaryPrefix = ".vantor-";
const QByteArray kTemporarySuffix = ".part";

QByteArray temporaryName() {
    return kTemporaryPrefix + QByteArray::number(QRandomGenerator::system()->generate64(), 16) +
           kTemporarySuffix;
}

// Whoever writes a temporary file holds its lock, which goes with the process.
bool isLeftover(const SavingFolder& folder, const QByteArray& name) {
    if (!name.startsWith(kTemporaryPrefix) || !name.endsWith(kTemporarySuffix)) {
        return false;
    }
    const FileDescriptor file(
        ::openat(folder.descriptor(), name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return file && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

QString cutToComponent(const QString& name, const QString& number) {
    constexpr qsizetype kLongest = 255;
    const qsizetype dot = name.lastIndexOf(u'.');
    qsizetype stem = dot > 0 ? dot : name.size();
    const qsizetype over = (name + number).toUtf8().size() - kLongest;
    if (over > 0 && name.size() - stem > kLongestExtension) {
        stem = name.size();
    }
    const QString end = number + name.mid(stem);
    return (over > 0 ? cutToBytes(name.left(stem), kLongest - end.toUtf8().size()) : name.left(stem)) + end;
}

QString numberedName(const QString& name, int n) {
    return n == 1 ? name : cutToComponent(name, QStringLiteral(" (%1)").arg(n));
}

WholeFile::WholeFile(const SavingFolder& folder) : m_folder(folder) {
    create();
}

WholeFile::WholeFile(const QString& folder) : m_folder(SavingFolder::open(folder)) {
    if (m_folder) {
        create();
    } else {
        fail();
    }
}

void WholeFile::create() {
    m_fd = ::openat(m_folder->descriptor(), ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, kMode);
    if (m_fd >= 0) {
        return;
    }
    if (errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL || errno == ENOENT) {
        m_temporaryName = temporaryName();
        m_fd = ::openat(m_folder->descriptor(), m_temporaryName.constData(),
                        O_CREAT | O_EXCL | O_NOFOLLOW | O_WRONLY | O_CLOEXEC, kMode);
        if (m_fd >= 0) {
            ::flock(m_fd, LOCK_EX | LOCK_NB);
            return;
        }
        m_temporaryName.clear();
    }
    fail();
}

WholeFile::~WholeFile() {
    if (m_fd >= 0) {
        ::close(m_fd);
    }
    if (!m_temporaryName.isEmpty()) {
        ::unlinkat(m_folder->descriptor(), m_temporaryName.constData(), 0);
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

void setModificationTime(const SavingFolder& folder, const QString& name, std::int64_t seconds) {
    const struct timespec times[] = {{0, UTIME_OMIT}, {static_cast<time_t>(seconds), 0}};
    ::utimensat(folder.descriptor(), QFile::encodeName(name).constData(), times, AT_SYMLINK_NOFOLLOW);
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
    const auto path = firstFreeName(*m_folder, name, [this](const QByteArray& n) { return takeName(n); });
    if (!path) {
        fail();
    }
    return path;
}

// False with errno EEXIST when the name is taken.
bool WholeFile::takeName(const QByteArray& name) {
    if (!m_temporaryName.isEmpty()) {
        return takeNameOfTemporary(name);
    }
    char self[64];
    std::snprintf(self, sizeof self, "/proc/self/fd/%d", m_fd);
    return ::linkat(AT_FDCWD, self, m_folder->descriptor(), name.constData(), AT_SYMLINK_FOLLOW) == 0;
}

// A second name that refuses to replace, or a new name that does; where the file system knows neither, a new
// name once none stands there. Nothing empty ever bears the final name.
bool WholeFile::takeNameOfTemporary(const QByteArray& name) {
    const int folder = m_folder->descriptor();
    if (::linkat(folder, m_temporaryName.constData(), folder, name.constData(), 0) == 0) {
        ::unlinkat(folder, m_temporaryName.constData(), 0);
        m_temporaryName.clear();
        return true;
    }
    if (errno == EEXIST) {
        return false;
    }
    int renamed =
        ::renameat2(folder, m_temporaryName.constData(), folder, name.constData(), RENAME_NOREPLACE);
    if (renamed != 0 && (errno == EINVAL || errno == ENOSYS)) {
        if (::faccessat(folder, name.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
            errno = EEXIST;
            return false;
        }
        renamed = ::renameat(folder, m_temporaryName.constData(), folder, name.constData());
    }
    if (renamed == 0) {
        m_temporaryName.clear();
    }
    return renamed == 0;
}

std::optional<QString> linkAs(const QString& existing, const SavingFolder& folder, const QString& name) {
    return firstFreeName(folder, name,
                         [from = QFile::encodeName(existing), to = folder.descriptor()](const QByteArray& n) {
                             return ::linkat(AT_FDCWD, from.constData(), to, n.constData(), 0) == 0;
                         });
}

void removeLeftovers(const SavingFolder& folder) {
    // A stream of its own: reading a folder moves the position of its descriptor.
    const int again = ::openat(folder.descriptor(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const listing = again >= 0 ? ::fdopendir(again) : nullptr;
    if (listing == nullptr) {
        return;
    }
    std::vector<QByteArray> leftovers;
    while (const dirent* const entry = ::readdir(listing)) {
        if (isLeftover(folder, entry->d_name)) {
            leftovers.emplace_back(entry->d_name);
        }
    }
    ::closedir(listing);
    for (const QByteArray& name : leftovers) {
        ::unlinkat(folder.descriptor(), name.constData(), 0);
    }
}

QString WholeFile::error() const {
    return systemWords(m_error);
}

}  // namespace vantor
