// Painting of the step trail.
#include "window/widgets/StepTrail.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kDot = 3 * theme::kUnit;
constexpr int kDotGap = theme::kUnit;
constexpr int kLongestRule = 6 * theme::kUnit;
constexpr int kShortestRule = theme::kUnit;

QFont stepFont(const QFont& base, bool here) {
    QFont font = base;
    font.setWeight(here ? QFont::DemiBold : QFont::Normal);
    return font;
}

void drawTick(QPainter& painter, const QRectF& dot) {
    QPainterPath tick;
    tick.moveTo(dot.left() + dot.width() * 0.28, dot.top() + dot.height() * 0.52);
    tick.lineTo(dot.left() + dot.width() * 0.44, dot.top() + dot.height() * 0.68);
    tick.lineTo(dot.left() + dot.width() * 0.73, dot.top() + dot.height() * 0.34);
    painter.strokePath(tick, QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

}  // namespace

StepTrail::StepTrail(QWidget* parent) : QWidget(parent) {}

void StepTrail::setSteps(const QStringList& steps, int current) {
    m_steps = steps;
    m_current = current;
    setAccessibleDescription(
        tr("Step %1 of %2: %3").arg(current + 1).arg(steps.size()).arg(steps.value(current)));
    updateGeometry();
    update();
}

QSize StepTrail::sizeHint() const {
    const QFontMetrics metrics(stepFont(font(), true));
    int width = 0;
    for (const QString& step : m_steps) {
        width += kDot + kDotGap + metrics.horizontalAdvance(step) + 2 * kDotGap + kLongestRule;
    }
    return {width, kDot + kDotGap};
}

QSize StepTrail::minimumSizeHint() const {
    return {sizeHint().width() - static_cast<int>(m_steps.size()) * (kLongestRule - kShortestRule),
            kDot + kDotGap};
}

void StepTrail::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int spare = width() - minimumSizeHint().width();
    const int steps = std::max<int>(1, static_cast<int>(m_steps.size()));
    const int rule = std::clamp(kShortestRule + spare / steps, kShortestRule, kLongestRule);
    const qreal middle = height() / 2.0;
    qreal x = 0;
    for (int i = 0; i < m_steps.size(); ++i) {
        const bool done = i < m_current;
        const bool here = i == m_current;
        const QRectF dot(x, middle - kDot / 2.0, kDot, kDot);
        painter.setPen(done || here ? Qt::NoPen : QPen(theme::kDisabledInk, 1.5));
        painter.setBrush(done ? theme::kDone : here ? theme::kAccent : theme::kCard);
        painter.drawEllipse(dot.adjusted(1, 1, -1, -1));
        painter.setFont(stepFont(font(), true));
        if (done) {
            drawTick(painter, dot);
        } else {
            painter.setPen(here ? QColor(Qt::white) : theme::kQuietInk);
            painter.drawText(dot, Qt::AlignCenter, QString::number(i + 1));
        }
        x += kDot + kDotGap;
        painter.setFont(stepFont(font(), here));
        painter.setPen(here ? theme::kInk : theme::kQuietInk);
        const int advance = QFontMetrics(stepFont(font(), true)).horizontalAdvance(m_steps.at(i));
        painter.drawText(QRectF(x, 0, advance + 1, height()), Qt::AlignVCenter, m_steps.at(i));
        x += advance + kDotGap;
        if (i + 1 < m_steps.size()) {
            painter.setPen(QPen(done ? theme::kDone : theme::kRule, 2));
            painter.drawLine(QPointF(x, middle), QPointF(x + rule, middle));
            x += rule + kDotGap;
        }
    }
}

}  // namespace vantor
