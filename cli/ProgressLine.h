// The progress line of a terminal: done, speed, time left, items found.
#pragma once

#include <QString>
#include <memory>
#include <thread>

#include "scan/SpeedMeter.h"

namespace vantor {

class CliSession;

// "4 min 10 s", "35 s", "2 h 5 min".
QString durationText(double seconds);

// Draws on standard error twice a second from its own thread until it is destroyed, and then wipes the line.
class ProgressLine {
  public:
    explicit ProgressLine(const CliSession& session);
    ~ProgressLine();

  private:
    void draw();

    const CliSession& m_session;
    SpeedMeter m_speed;
    std::jthread m_thread;
};

}  // namespace vantor
