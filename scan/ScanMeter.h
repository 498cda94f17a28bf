// Speed and time left of a scan or of saving, for people.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "scan/SpeedMeter.h"

namespace vantor {

class ScanMeter {
  public:
    // Work over `sectors` sectors begins, such as a pass.
    void begin(std::uint64_t sectors);
    // `done` sectors were worked through `milliseconds` after some fixed moment.
    void update(std::int64_t milliseconds, std::uint64_t done);

    // Bytes a second over the last minute; nothing before the first half second.
    std::optional<double> bytesPerSecond() const;
    std::optional<double> secondsLeft() const;

    // "84 MB/s  ·  about 3 min left".
    QString speedAndTimeLeft() const;
    // "84 MB/s  ·  about 3 min left  ·  214 items found".
    QString text(std::uint64_t itemsFound) const;

  private:
    std::uint64_t m_sectors = 0;
    std::uint64_t m_done = 0;
    std::int64_t m_since = -1;
    SpeedMeter m_speed;
};

}  // namespace vantor
