// Digits in groups, painted in place of those that are kept.
#include "window/widgets/NumberLabel.h"

#include <QPainter>
#include <QStyle>

#include "results/SizeForPeople.h"

namespace vantor {

QString NumberLabel::shownText() const {
    bool isNumber = false;
    const qulonglong number = text().toULongLong(&isNumber);
    return isNumber && !hasSelectedText() ? numberForPeople(number) : text();
}

QSize NumberLabel::sizeHint() const {
    const int more = fontMetrics().horizontalAdvance(shownText()) - fontMetrics().horizontalAdvance(text());
    return QLabel::sizeHint() + QSize(more, 0);
}

void NumberLabel::paintEvent(QPaintEvent* event) {
    const QString shown = shownText();
    if (shown == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}

}  // namespace vantor
