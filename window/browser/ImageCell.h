// Draws one cell of a browser: the picture and, below it, the name.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QStyledItemDelegate>

namespace vantor {

class ImageBrowserView;
class MyImageObject;

class ImageCell : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit ImageCell(ImageBrowserView* view);

    static constexpr int kNarrowest = 136;  // of cells

    // The cell for a picture of `edge` pixels with so many lines of words below it.
    static QSize cellSize(int edge, const QFont& font, int lines);

    // Where the tick box of a cell that takes this place can be clicked.
    static QRect tickPlace(const QRect& cell);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    // Decoded thumbnail bytes; those bytes were encoded by this program.
    QPixmap decoded(const QByteArray& bytes) const;

    ImageBrowserView* m_view;
    mutable QCache<QByteArray, QPixmap> m_decoded;
};

}  // namespace vantor
