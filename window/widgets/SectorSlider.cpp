// Scaling between sectors and the toolkit's steps.
#include "window/widgets/SectorSlider.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <limits>

namespace vantor {

namespace {

constexpr double kMostSteps = std::numeric_limits<std::int32_t>::max();

}  // namespace

SectorSlider::SectorSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, 0);
    connect(this, &QAbstractSlider::actionTriggered, this, &SectorSlider::movedByUser);
    // Assistive technology sets the value without an action.
    connect(this, &QAbstractSlider::valueChanged, this, [this] {
        if (!m_moving) {
            emit movedByUser();
        }
    });
}

void SectorSlider::setSectors(double sectors) {
    const QScopedValueRollback moving(m_moving, true);
    m_sectors = std::max(0.0, sectors);
    setRange(0, static_cast<int>(std::min(m_sectors, kMostSteps)));
    setSingleStep(std::max(1, maximum() / 1000));
    setPageStep(std::max(1, maximum() / 20));
    setValue(0);
}

bool SectorSlider::reachesAll() const {
    return m_sectors <= kMostSteps;
}

double SectorSlider::doubleValue() const {
    const double scale = m_sectors > kMostSteps ? m_sectors / kMostSteps : 1.0;
    return std::round(sliderPosition() * scale);
}

void SectorSlider::setDoubleValue(double sector) {
    const QScopedValueRollback moving(m_moving, true);
    const double scale = m_sectors > kMostSteps ? m_sectors / kMostSteps : 1.0;
    setValue(static_cast<int>(std::clamp(sector / scale, 0.0, kMostSteps)));
}

std::int32_t SectorSlider::intValue() const {
    return static_cast<std::int32_t>(std::min(doubleValue(), kMostSteps));
}

}  // namespace vantor
