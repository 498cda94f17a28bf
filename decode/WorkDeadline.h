// A deadline that a helper does not miss by being left without a processor.
#pragma once

#include <algorithm>
#include <chrono>
#include <optional>

namespace vantor::decode {

// Counts the time that passes only as long as nobody else needs the processors: behind it, a helper that has
// not worked that long yet, and goes on working, is given more.
class WorkDeadline {
  public:
    using Milliseconds = std::chrono::milliseconds;
    static constexpr int kMostPatience = 20;  // times the deadline, whatever the helper does

    // `worked`: processor time of the helper so far.
    WorkDeadline(Milliseconds allowed, Milliseconds worked)
        : m_allowed(allowed), m_before(worked), m_last(worked) {}

    Milliseconds allowed() const { return m_allowed; }
    // How long to wait on when so long was waited already; nothing when it is late.
    std::optional<Milliseconds> more(Milliseconds waited, Milliseconds worked) {
        const bool works = worked > m_last;
        m_last = worked;
        if (!works || worked - m_before >= m_allowed || waited >= m_allowed * kMostPatience) {
            return std::nullopt;
        }
        return std::max(m_allowed / 4, Milliseconds{10});
    }

  private:
    const Milliseconds m_allowed;
    const Milliseconds m_before;
    Milliseconds m_last;
};

}  // namespace vantor::decode
