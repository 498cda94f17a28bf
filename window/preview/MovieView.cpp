// Painting and playing of the movie preview.
#include "window/preview/MovieView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>

#include "window/preview/MovieControls.h"
#include "window/widgets/EmptyState.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPlaySign = 6 * theme::kUnit;
constexpr int kSoundSign = 16 * theme::kUnit;
const QColor kScreen{0x1b, 0x24, 0x30};
constexpr std::int64_t kSeekStepMs = 5000;

}  // namespace

MovieView::MovieView(QWidget* parent) : QWidget(parent), m_controls(new MovieControls(this)) {
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addStretch();
    column->addWidget(m_controls);
    connect(m_controls, &MovieControls::changed, this, qOverload<>(&QWidget::update));
}

MovieView::~MovieView() = default;

Movie* MovieView::movie() const {
    return m_controls->movie();
}

void MovieView::setMovie(std::unique_ptr<Movie> movie) {
    m_controls->setMovie(std::move(movie));
    m_frame = {};
    Movie* const shown = this->movie();
    if (shown) {
        m_frame = shown->poster();
        shown->onFrame = [this](const QImage& frame) {
            m_frame = frame;
            update();
        };
    }
    setCursor(shown ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_controls->setCursor(Qt::ArrowCursor);
    setToolTip(shown ? tr("Play or pause (Space)") : QString());
    update();
}

void MovieView::togglePlaying() {
    m_controls->togglePlaying();
}

void MovieView::seekBy(std::int64_t timeMs) {
    m_controls->seekBy(timeMs);
}

void MovieView::setRoomy() {
    m_controls->setRoomy();
}

// Where the pictures are: above the controls.
QRect MovieView::screen() const {
    return rect().adjusted(0, 0, 0, -m_controls->height() - theme::kUnit / 2);
}

void MovieView::paintEvent(QPaintEvent*) {
    const Movie* const shown = movie();
    if (!shown) {
        paintEmptyState(this, ownIcon(QStringLiteral("mode-video")), tr("No movie"),
                        tr("Select an item to preview it."));
        return;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(screen(), kScreen);
    if (!m_frame.isNull()) {
        QRect place({}, m_frame.size().scaled(screen().size(), Qt::KeepAspectRatio));
        place.moveCenter(screen().center());
        painter.drawImage(place, m_frame);
    } else {
        // Sound without a cover.
        QRect place(0, 0, kSoundSign, kSoundSign);
        place.moveCenter(screen().center());
        ownIcon(QStringLiteral("type-sound")).paint(&painter, place);
    }
    if (shown->rate() == 0) {
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
    switch (event->key()) {
        case Qt::Key_Space:
            togglePlaying();
            break;
        case Qt::Key_Left:
            m_controls->seekBy(-kSeekStepMs);
            break;
        case Qt::Key_Right:
            m_controls->seekBy(kSeekStepMs);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace vantor
