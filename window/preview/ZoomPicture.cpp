// Where the picture lies at every zoom, and what moves it.
#include "window/preview/ZoomPicture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace vantor {

namespace {

constexpr double kStep = 1.25;
constexpr double kLargestScale = 16;
constexpr double kWheelStep = 120;  // eighths of a degree that one notch of a wheel turns

}  // namespace

ZoomPicture::ZoomPicture(QWidget* parent) : QWidget(parent) {
    setMinimumSize(1, 1);
}

void ZoomPicture::begin(const QImage& picture, QSize full) {
    m_fitted = true;
    m_offset = {};
    sharpen(picture, full);
}

void ZoomPicture::sharpen(const QImage& picture, QSize full) {
    const QSize before = m_full;
    m_picture = picture;
    m_fullKnown = !full.isEmpty();
    m_full = m_fullKnown ? full : picture.size();
    // A picture that turns out to be larger is looked at in the same place.
    if (!m_fitted && !before.isEmpty()) {
        m_offset *= static_cast<double>(m_full.width()) / before.width();
    }
    keepInView();
    update();
    emit zoomChanged();
}

// Never enlarged where it is known how large it is.
double ZoomPicture::fittingScale() const {
    if (m_full.isEmpty()) {
        return 1;
    }
    const double most = m_fullKnown ? 1 : kLargestScale;
    return std::min({devicePixelRatioF() * width() / m_full.width(),
                     devicePixelRatioF() * height() / m_full.height(), most});
}

double ZoomPicture::scale() const {
    return m_fitted ? fittingScale() : m_scale;
}

bool ZoomPicture::wantsMore() const {
    return !m_picture.isNull() && m_picture.width() < m_full.width() &&
           m_picture.width() < std::lround(m_full.width() * std::min(scale(), 1.0));
}

QRectF ZoomPicture::place() const {
    const QSizeF size = QSizeF(m_full) * (scale() / devicePixelRatioF());
    QRectF place({}, size);
    place.moveCenter(QRectF(rect()).center() + m_offset);
    return place;
}

void ZoomPicture::fit() {
    m_fitted = true;
    m_offset = {};
    update();
    emit zoomChanged();
}

void ZoomPicture::showActualSize() {
    zoomTo(1, QRectF(rect()).center());
}

void ZoomPicture::zoomBy(double factor) {
    zoomTo(scale() * factor, QRectF(rect()).center());
}

// What lies under the point stays there.
void ZoomPicture::zoomTo(double wanted, QPointF at) {
    const double least = std::min(fittingScale(), 1.0);
    const double before = scale();
    m_scale = std::clamp(wanted, least, kLargestScale);
    const QPointF middle = QRectF(rect()).center() + m_offset;
    m_fitted = m_scale <= least && m_scale < 1;
    m_offset = at + (middle - at) * (m_scale / before) - QRectF(rect()).center();
    keepInView();
    update();
    emit zoomChanged();
}

void ZoomPicture::push(QPointF by) {
    m_offset += by;
    keepInView();
    update();
}

// No further than its edge, and in the middle where all of it is in view.
void ZoomPicture::keepInView() {
    const QSizeF shown = place().size();
    const double sideways = std::max(0.0, (shown.width() - width()) / 2);
    const double upright = std::max(0.0, (shown.height() - height()) / 2);
    m_offset = {std::clamp(m_offset.x(), -sideways, sideways), std::clamp(m_offset.y(), -upright, upright)};
    setCursor(sideways + upright > 0 ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void ZoomPicture::paintEvent(QPaintEvent*) {
    if (m_picture.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale() < 3);
    // Only the part in view: a large picture at its actual size costs no more than a small one.
    const QRectF whole = place();
    const QRectF seen = whole.intersected(rect());
    if (seen.isEmpty()) {
        return;
    }
    if (m_picture.hasAlphaChannel()) {
        painter.fillRect(seen, Qt::white);
    }
    const double across = m_picture.width() / whole.width(), down = m_picture.height() / whole.height();
    painter.drawImage(seen, m_picture,
                      {(seen.left() - whole.left()) * across, (seen.top() - whole.top()) * down,
                       seen.width() * across, seen.height() * down});
}

void ZoomPicture::resizeEvent(QResizeEvent*) {
    keepInView();
    emit zoomChanged();
}

void ZoomPicture::wheelEvent(QWheelEvent* event) {
    zoomTo(scale() * std::pow(kStep, event->angleDelta().y() / kWheelStep), event->position());
    event->accept();
}

void ZoomPicture::mousePressEvent(QMouseEvent* event) {
    m_heldAt = event->position();
    if (cursor().shape() == Qt::OpenHandCursor) {
        setCursor(Qt::ClosedHandCursor);
    }
}

void ZoomPicture::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        push(event->position() - m_heldAt);
        m_heldAt = event->position();
    }
}

void ZoomPicture::mouseReleaseEvent(QMouseEvent*) {
    keepInView();
}

void ZoomPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (m_fitted && scale() < 1) {
        zoomTo(1, event->position());
    } else {
        fit();
    }
}

}  // namespace vantor
