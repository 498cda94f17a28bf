// Where the sign of a hint stands.
#include "window/widgets/HintLabel.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kSign = 20;
constexpr int kGap = theme::kUnit;

// Texts may begin with empty lines; these take no room.
QString wordsOf(const QString& text) {
    qsizetype begin = 0;
    while (begin < text.size() && text.at(begin) == u'\n') {
        ++begin;
    }
    return text.mid(begin);
}

}  // namespace

HintLabel::HintLabel(QWidget* parent) : QLabel(parent) {
    setContentsMargins(kSign + kGap, 0, 0, 0);
}

int HintLabel::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    const QRect room(0, 0, std::max(0, width - margins.left() - margins.right()), theme::kAnyHeight);
    const int words = fontMetrics().boundingRect(room, Qt::TextWordWrap, wordsOf(text())).height();
    // The sign is higher than the line beside which it stands.
    const int above = std::max(0, kSign - fontMetrics().lineSpacing());
    return std::max(kSign, words + above) + margins.top() + margins.bottom();
}

void HintLabel::paintEvent(QPaintEvent*) {
    const QString words = wordsOf(text());
    if (words.isEmpty()) {
        return;
    }
    const int flags = static_cast<int>(alignment()) | Qt::TextWordWrap;
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), words, foregroundRole());
    const int top = fontMetrics().boundingRect(contentsRect(), flags, words).top();
    const int middle = top + fontMetrics().lineSpacing() / 2;
    // Another text has only the words painted again.
    if (std::exchange(m_middle, middle) != middle) {
        update();
    }
    ownIcon(QStringLiteral("info")).paint(&painter, QRect(0, middle - kSign / 2, kSign, kSign));
}

}  // namespace vantor
