// Speed and time left of a scan, for people.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace vantor {

class ScanMeter {
  public:
    // A pass begins over `sectors` sectors.
    void begin(std::uint64_t sectors);
    // `done` sectors were searched `milliseconds` after some fixed moment.
    void update(std::int64_t milliseconds, std::uint64_t done);

    // Bytes a second, smoothed; nothing before the first half second.
    std::optional<double> bytesPerSecond() const { return m_speed; }
    std::optional<double> secondsLeft() const;

    // "84 MB/s  ·  about 3 min left  ·  214 items found".
    QString text(std::uint64_t itemsFound) const;

  private:
    std::uint64_t m_sectors = 0;
    std::uint64_t m_done = 0;
    std::int64_t m_since = -1;
    std::optional<double> m_speed;
};

}  // namespace vantor
