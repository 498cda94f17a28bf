// Samples and wording of a speed.
#include "scan/ScanMeter.h"

#include <QObject>
#include <QStringList>
#include <cmath>

#include "results/SizeForPeople.h"

namespace vantor {

namespace {

constexpr std::int64_t kShortestSample = 500;  // milliseconds
constexpr double kMinute = 60;
constexpr double kHour = 60 * kMinute;
const QString kBetween = QStringLiteral("   ·   ");

QString timeLeft(double seconds) {
    if (seconds < 10) {
        return QObject::tr("a few seconds left");
    }
    if (seconds < kMinute) {
        return QObject::tr("about %1 s left").arg(static_cast<int>(std::ceil(seconds / 10) * 10));
    }
    if (seconds < 2 * kHour) {
        return QObject::tr("about %1 min left").arg(static_cast<int>(std::ceil(seconds / kMinute)));
    }
    return QObject::tr("about %1 h left").arg(static_cast<int>(std::ceil(seconds / kHour)));
}

}  // namespace

void ScanMeter::begin(std::uint64_t sectors) {
    *this = ScanMeter();
    m_sectors = sectors;
}

void ScanMeter::update(std::int64_t milliseconds, std::uint64_t done) {
    if (m_since >= 0 && done >= m_done && milliseconds - m_since < kShortestSample) {
        return;
    }
    m_since = milliseconds;
    m_done = done;
    m_speed.note(SpeedMeter::Clock::time_point(std::chrono::milliseconds(milliseconds)), done);
}

std::optional<double> ScanMeter::bytesPerSecond() const {
    const double speed = m_speed.bytesPerSecond();
    return speed >= 1 ? std::optional(speed) : std::nullopt;
}

std::optional<double> ScanMeter::secondsLeft() const {
    if (!bytesPerSecond() || m_done > m_sectors) {
        return std::nullopt;
    }
    return m_speed.secondsFor(m_sectors - m_done);
}

QString ScanMeter::speedAndTimeLeft() const {
    QStringList parts;
    if (const auto speed = bytesPerSecond()) {
        parts << QObject::tr("%1/s").arg(sizeForPeople(static_cast<std::uint64_t>(*speed), 0));
    }
    if (const auto left = secondsLeft()) {
        parts << timeLeft(*left);
    }
    return parts.join(kBetween);
}

QString ScanMeter::text(std::uint64_t itemsFound) const {
    const QString found =
        itemsFound == 1
            ? QObject::tr("1 item found")
            : QObject::tr("%1 items found", nullptr, pluralOf(itemsFound)).arg(numberForPeople(itemsFound));
    const QString speed = speedAndTimeLeft();
    return speed.isEmpty() ? found : speed + kBetween + found;
}

}  // namespace vantor
