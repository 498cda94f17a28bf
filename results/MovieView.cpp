// Painting and playing of the movie preview.
#include "results/MovieView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "wizard/EmptyState.h"
#include "wizard/Theme.h"

namespace vantor {

namespace {

constexpr int kPlaySign = 6 * theme::kUnit;

}  // namespace

MovieView::MovieView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

MovieView::~MovieView() = default;

void MovieView::setMovie(std::unique_ptr<Movie> movie) {
    if (m_movie) {
        m_movie->onFrame = nullptr;
    }
    m_movie = std::move(movie);
    m_frame = {};
    if (m_movie) {
        m_frame = m_movie->poster();
        m_movie->onFrame = [this](const QImage& frame) {
            if (!frame.isNull()) {
                m_frame = frame;
            }
            update();
        };
    }
    setCursor(m_movie ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setToolTip(m_movie ? tr("Play or stop (Space)") : QString());
    update();
}

void MovieView::togglePlaying() {
    if (!m_movie) {
        return;
    }
    if (m_movie->rate() != 0) {
        m_movie->stop();
    } else {
        m_movie->play();
    }
    update();
}

void MovieView::paintEvent(QPaintEvent*) {
    if (!m_movie) {
        paintEmptyState(this, ownIcon(QStringLiteral("mode-video")), tr("No movie"),
                        tr("Select an item to preview it."));
        return;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), theme::kInk);
    if (!m_frame.isNull()) {
        QRect place({}, m_frame.size().scaled(size(), Qt::KeepAspectRatio));
        place.moveCenter(rect().center());
        painter.drawImage(place, m_frame);
    }
    if (m_movie->rate() == 0) {
        QRectF sign(0, 0, kPlaySign, kPlaySign);
        sign.moveCenter(QRectF(rect()).center());
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 150));
        painter.drawEllipse(sign);
        painter.setBrush(Qt::white);
        const QPointF triangle[] = {{sign.left() + kPlaySign * 0.38, sign.top() + kPlaySign * 0.28},
                                    {sign.left() + kPlaySign * 0.38, sign.top() + kPlaySign * 0.72},
                                    {sign.left() + kPlaySign * 0.74, sign.top() + kPlaySign * 0.50}};
        painter.drawPolygon(triangle, 3);
    }
}

void MovieView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        togglePlaying();
    }
}

void MovieView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        togglePlaying();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace vantor
