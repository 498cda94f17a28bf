// Painting and measuring of the choice cards.
#include "window/widgets/ChoiceCard.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kCardMargin = 2 * theme::kUnit;
constexpr int kCardPicture = 5 * theme::kUnit;
constexpr int kBelowTitle = 4;
constexpr int kPreferredWidth = 280;
constexpr int kSmallestWidth = 176;
constexpr qreal kRadius = theme::kUnit;

QFont titleFont(const QFont& base) {
    QFont font = base;
    font.setWeight(QFont::DemiBold);
    return font;
}

}  // namespace

ChoiceCard::ChoiceCard(QWidget* parent) : QRadioButton(parent) {
    setMouseTracking(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    const auto followTab = [this](bool on) { setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus); };
    followTab(false);
    connect(this, &QAbstractButton::toggled, this, followTab);
}

void ChoiceCard::setExplanation(const QString& explanation) {
    m_explanation = explanation;
    setAccessibleDescription(explanation);
    updateGeometry();
    update();
}

QRect ChoiceCard::wordsRect(int width) const {
    const int left = kCardMargin + kCardPicture + kCardMargin;
    return QRect(left, kCardMargin, std::max(1, width - left - kCardMargin), theme::kAnyHeight);
}

int ChoiceCard::heightOfWords(int width) const {
    const int title = QFontMetrics(titleFont(font())).height();
    return title + kBelowTitle +
           fontMetrics().boundingRect(wordsRect(width), Qt::TextWordWrap, m_explanation).height();
}

int ChoiceCard::heightForWidth(int width) const {
    return std::max(kCardPicture, heightOfWords(width)) + 2 * kCardMargin;
}

QSize ChoiceCard::sizeHint() const {
    return {kPreferredWidth, heightForWidth(kPreferredWidth)};
}

QSize ChoiceCard::minimumSizeHint() const {
    return {kSmallestWidth, heightForWidth(std::max(width(), kPreferredWidth))};
}

void ChoiceCard::enterEvent(QEnterEvent* event) {
    update();
    QRadioButton::enterEvent(event);
}

void ChoiceCard::leaveEvent(QEvent* event) {
    update();
    QRadioButton::leaveEvent(event);
}

void ChoiceCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool on = isChecked();
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(
        QPen(on ? theme::kAccent : (underMouse() ? theme::kDisabledInk : theme::kRule), on ? 2 : 1));
    painter.setBrush(on ? theme::kAccentWash : theme::kCard);
    painter.drawRoundedRect(frame, kRadius, kRadius);
    if (hasFocus()) {
        painter.setPen(QPen(theme::kAccent, 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame.adjusted(4, 4, -4, -4), kRadius - 3, kRadius - 3);
    }
    const QRect picture(kCardMargin, (height() - kCardPicture) / 2, kCardPicture, kCardPicture);
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

    QRect words = wordsRect(width());
    const int wordsHeight = heightOfWords(width());
    words.moveTop((height() - wordsHeight) / 2);
    painter.setFont(titleFont(font()));
    painter.setPen(isEnabled() ? theme::kInk : theme::kDisabledInk);
    painter.drawText(words, Qt::TextShowMnemonic, text());
    words.setTop(words.top() + painter.fontMetrics().height() + kBelowTitle);
    painter.setFont(font());
    painter.setPen(isEnabled() ? theme::kQuietInk : theme::kDisabledInk);
    painter.drawText(words, Qt::TextWordWrap, m_explanation);
}

}  // namespace vantor
