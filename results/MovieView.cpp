// Painting and playing of the movie preview.
#include "results/MovieView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>

#include "results/MovieControls.h"
#include "wizard/EmptyState.h"
#include "wizard/Theme.h"

namespace vantor {

namespace {

constexpr int kPlaySign = 6 * theme::kUnit;
constexpr std::int64_t kSeekStepMs = 5000;

}  // namespace

MovieView::MovieView(QWidget* parent) : QWidget(parent), m_controls(new MovieControls(this)) {
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addStretch();
    column->addWidget(m_controls);
    m_controls->hide();
    connect(m_controls, &MovieControls::playClicked, this, &MovieView::togglePlaying);
    connect(m_controls, &MovieControls::muteClicked, this, [this] {
        m_movie->setMuted(!m_movie->isMuted());
        showProgress();
    });
    connect(m_controls, &MovieControls::positionChosen, this,
            [this](qint64 timeMs) { m_movie->seek(timeMs); });
}

MovieView::~MovieView() = default;

void MovieView::setMovie(std::unique_ptr<Movie> movie) {
    m_movie = std::move(movie);
    m_frame = {};
    m_controls->setVisible(m_movie != nullptr);
    if (m_movie) {
        m_frame = m_movie->poster();
        m_controls->setMovie(m_movie->durationMs(), m_movie->hasSound());
        m_movie->onFrame = [this](const QImage& frame) {
            m_frame = frame;
            update();
        };
        m_movie->onProgress = [this] { showProgress(); };
        showProgress();
    }
    setCursor(m_movie ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_controls->setCursor(Qt::ArrowCursor);
    setToolTip(m_movie ? tr("Play or pause (Space)") : QString());
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
    showProgress();
}

void MovieView::showProgress() {
    m_controls->setPlaying(m_movie->rate() != 0);
    m_controls->setPosition(m_movie->positionMs());
    m_controls->setMuted(m_movie->isMuted());
    update();
}

// Where the pictures are: above the controls.
QRect MovieView::screen() const {
    return rect().adjusted(0, 0, 0, -m_controls->height() - theme::kUnit / 2);
}

void MovieView::paintEvent(QPaintEvent*) {
    if (!m_movie) {
        paintEmptyState(this, ownIcon(QStringLiteral("mode-video")), tr("No movie"),
                        tr("Select an item to preview it."));
        return;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(screen(), theme::kInk);
    if (!m_frame.isNull()) {
        QRect place({}, m_frame.size().scaled(screen().size(), Qt::KeepAspectRatio));
        place.moveCenter(screen().center());
        painter.drawImage(place, m_frame);
    }
    if (m_movie->rate() == 0) {
        QRectF sign(0, 0, kPlaySign, kPlaySign);
        sign.moveCenter(QRectF(screen()).center());
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
    const auto seekBy = [this](std::int64_t timeMs) {
        if (m_movie && m_movie->durationMs() > 0) {
            m_movie->seek(m_movie->positionMs() + timeMs);
            showProgress();
        }
    };
    switch (event->key()) {
        case Qt::Key_Space:
            togglePlaying();
            break;
        case Qt::Key_Left:
            seekBy(-kSeekStepMs);
            break;
        case Qt::Key_Right:
            seekBy(kSeekStepMs);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace vantor
