// Lets one thread call another back from waiting for a helper.
#pragma once

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace vantor {

// Raised once and for good, from any thread; whoever polls the descriptor sees it readable from then on. Must
// outlive those that wait.
class CancelSignal {
  public:
    CancelSignal() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    CancelSignal(const CancelSignal&) = delete;
    CancelSignal& operator=(const CancelSignal&) = delete;
    ~CancelSignal() {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }

    void raise() const {
        const std::uint64_t one = 1;
        [[maybe_unused]] const ssize_t written = write(m_descriptor, &one, sizeof one);
    }
    int descriptor() const { return m_descriptor; }

  private:
    int m_descriptor;
};

}  // namespace vantor
