// Owner of a file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace vantor {

class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~FileDescriptor() {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }

    int get() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }

  private:
    int m_fd = -1;
};

}  // namespace vantor
