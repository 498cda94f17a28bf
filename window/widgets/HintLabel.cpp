// Where the sign of a hint stands.
#include "window/widgets/HintLabel.h"

#include <QPainter>
#include <utility>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kSign = 20;
constexpr int kGap = theme::kUnit;

int emptyLinesBefore(const QString& text) {
    int lines = 0;
    while (lines < text.size() && text.at(lines) == u'\n') {
        ++lines;
    }
    return lines;
}

}  // namespace

HintLabel::HintLabel(QWidget* parent) : QLabel(parent) {
    setContentsMargins(kSign + kGap, 0, 0, 0);
}

void HintLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (text().isEmpty()) {
        return;
    }
    const QRect words =
        fontMetrics().boundingRect(contentsRect(), static_cast<int>(alignment()) | Qt::TextWordWrap, text());
    const int line = fontMetrics().lineSpacing();
    const int middle = words.top() + emptyLinesBefore(text()) * line + line / 2;
    // Another text has only the words painted again.
    if (std::exchange(m_middle, middle) != middle) {
        update();
    }
    QPainter painter(this);
    ownIcon(QStringLiteral("info")).paint(&painter, QRect(0, middle - kSign / 2, kSign, kSign));
}

}  // namespace vantor
