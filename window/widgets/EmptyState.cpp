// Painting of empty states.
#include "window/widgets/EmptyState.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPicture = 6 * theme::kUnit;
constexpr int kWidestText = 520;

}  // namespace

void paintEmptyState(QWidget* viewport, const QIcon& picture, const QString& title, const QString& advice) {
    QPainter painter(viewport);
    QFont titleFont = viewport->font();
    titleFont.setWeight(QFont::DemiBold);
    const int width = std::min(viewport->width() - 4 * theme::kUnit, kWidestText);
    const QRect line((viewport->width() - width) / 2, 0, width, theme::kAnyHeight);
    const int titleHeight = QFontMetrics(titleFont).boundingRect(line, Qt::TextWordWrap, title).height();
    const int adviceHeight = viewport->fontMetrics().boundingRect(line, Qt::TextWordWrap, advice).height();
    const int words = titleHeight + theme::kUnit / 2 + adviceHeight;
    const bool withPicture = !picture.isNull() && viewport->height() > words + kPicture + 3 * theme::kUnit;
    const int height = words + (withPicture ? kPicture + theme::kUnit : 0);

    int y = std::max(theme::kUnit, (viewport->height() - height) / 2);
    if (withPicture) {
        picture.paint(&painter, QRect((viewport->width() - kPicture) / 2, y, kPicture, kPicture));
        y += kPicture + theme::kUnit;
    }
    painter.setFont(titleFont);
    painter.setPen(theme::kInk);
    painter.drawText(line.translated(0, y), Qt::TextWordWrap | Qt::AlignHCenter | Qt::AlignTop, title);
    y += titleHeight + theme::kUnit / 2;
    painter.setFont(viewport->font());
    painter.setPen(theme::kQuietInk);
    painter.drawText(line.translated(0, y), Qt::TextWordWrap | Qt::AlignHCenter | Qt::AlignTop, advice);
}

}  // namespace vantor
