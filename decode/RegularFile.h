// A file opened for handing to a helper.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QString>

namespace vantor::decode {

// Open for reading, or not open when the path names no regular file with bytes in it.
class RegularFile {
  public:
    explicit RegularFile(const QString& path)
        // Without waiting, should the path name a pipe.
        : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
        struct stat facts {};
        m_usable = m_descriptor >= 0 && fstat(m_descriptor, &facts) == 0 && S_ISREG(facts.st_mode) &&
                   facts.st_size > 0;
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;
    ~RegularFile() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    bool isOpen() const { return m_usable; }
    int descriptor() const { return m_descriptor; }

  private:
    int m_descriptor;
    bool m_usable = false;
};

}  // namespace vantor::decode
