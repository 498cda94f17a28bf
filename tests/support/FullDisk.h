// A disk that takes nothing more, without one: no file may grow while this lives.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace vantor::test {

class FullDisk {
  public:
    FullDisk() : m_handler(::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        struct rlimit none = m_before;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    void (*m_handler)(int);
    struct rlimit m_before {};
};

}  // namespace vantor::test
