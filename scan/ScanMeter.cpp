// Smoothing and wording of a scan's speed.
#include "scan/ScanMeter.h"

#include <QLocale>
#include <QObject>
#include <QStringList>
#include <cmath>

#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr std::int64_t kShortestSample = 500;  // milliseconds
constexpr double kNewShare = 0.3;              // of a sample in the smoothed speed
constexpr double kMinute = 60;
constexpr double kHour = 60 * kMinute;

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
    if (m_since < 0 || done < m_done) {
        m_since = milliseconds;
        m_done = done;
        return;
    }
    const std::int64_t passed = milliseconds - m_since;
    if (passed < kShortestSample) {
        return;
    }
    const double speed =
        static_cast<double>((done - m_done) * kSectorBytes) * 1000.0 / static_cast<double>(passed);
    m_speed = m_speed ? *m_speed * (1 - kNewShare) + speed * kNewShare : speed;
    m_since = milliseconds;
    m_done = done;
}

std::optional<double> ScanMeter::secondsLeft() const {
    if (!m_speed || *m_speed < 1 || m_done > m_sectors) {
        return std::nullopt;
    }
    return static_cast<double>((m_sectors - m_done) * kSectorBytes) / *m_speed;
}

QString ScanMeter::text(std::uint64_t itemsFound) const {
    QStringList parts;
    if (m_speed) {
        parts << QObject::tr("%1/s").arg(
            QLocale().formattedDataSize(static_cast<qint64>(*m_speed), 0, QLocale::DataSizeSIFormat));
    }
    if (const auto left = secondsLeft()) {
        parts << timeLeft(*left);
    }
    parts << (itemsFound == 1 ? QObject::tr("1 item found")
                              : QObject::tr("%1 items found").arg(QLocale().toString(itemsFound)));
    return parts.join(QStringLiteral("   ·   "));
}

}  // namespace vantor
