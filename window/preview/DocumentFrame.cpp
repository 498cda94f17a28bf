// Paper, rule and shadow.
#include "window/preview/DocumentFrame.h"

#include <QPainter>

namespace vantor {

namespace {

constexpr int kPaperMargin = 6;
constexpr int kShadow = 2;
// Of white paper, on any ground.
const QColor kEdge{0xd3, 0xdb, 0xe9};

}  // namespace

QImage framedAsDocument(const QImage& picture, QSize largest) {
    const int border = kPaperMargin + kShadow;
    const QSize room = largest - QSize(2 * border, 2 * border);
    QSize inner = picture.size();
    if (inner.width() > room.width() || inner.height() > room.height()) {
        inner.scale(room, Qt::KeepAspectRatio);
    }
    inner = inner.expandedTo({1, 1});
    QImage framed(inner + QSize(2 * border, 2 * border), QImage::Format_ARGB32_Premultiplied);
    framed.fill(Qt::transparent);
    QPainter painter(&framed);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect paper = framed.rect().adjusted(kShadow, kShadow, -kShadow, -kShadow);
    painter.fillRect(paper.translated(kShadow, kShadow), QColor(0, 0, 0, 40));
    painter.fillRect(paper, Qt::white);
    painter.setPen(kEdge);
    painter.drawRect(paper.adjusted(0, 0, -1, -1));
    painter.drawImage(QRect(QPoint(border, border), inner), picture);
    return framed;
}

}  // namespace vantor
