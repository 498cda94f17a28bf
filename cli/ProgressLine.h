// The progress line of a terminal: done, speed, time left, items found.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <thread>

#include "media/MediumCopy.h"
#include "scan/ScanMeter.h"

namespace vantor {

class CliSession;

// Draws on standard error twice a second from its own thread until it is destroyed, and then wipes the line.
class ProgressLine {
  public:
    // `copy` is absent where none is made.
    ProgressLine(const CliSession& session, std::shared_ptr<const MediumCopy> copy);
    ~ProgressLine();

  private:
    void draw();

    const CliSession& m_session;
    const std::shared_ptr<const MediumCopy> m_copy;
    const std::chrono::steady_clock::time_point m_begun = std::chrono::steady_clock::now();
    ScanMeter m_meter;
    std::uint64_t m_total = 0;
    std::uint64_t m_done = 0;
    std::jthread m_thread;
};

}  // namespace vantor
