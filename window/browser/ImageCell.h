// Draws one cell of a browser: the picture and, below it, the name.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QStyledItemDelegate>

namespace vantor {

class ImageBrowserView;
class MyImageObject;
struct CellPicture;

class ImageCell : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit ImageCell(ImageBrowserView* view);

    static constexpr int kNarrowest = 136;  // of cells

    // The cell for a picture of `edge` pixels with so many lines of words below it.
    static QSize cellSize(int edge, const QFont& font, int lines);

    // Where the tick box of a cell that takes this place can be clicked.
    static QRect tickPlace(const QRect& cell);

    // Where its picture of `edge` pixels lies.
    static QRect picturePlace(const QRect& cell, int edge);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // In the middle of the place: the picture that was made of the item, or else what stands for it.
    void paintPictureOf(QPainter* painter, const QRect& place, const MyImageObject& item,
                        const CellPicture* picture) const;

  private:
    // Decoded thumbnail bytes; those bytes were encoded by this program.
    QPixmap decoded(const QByteArray& bytes) const;
    // In the middle of the place; where it was painted.
    QRect paintPicture(QPainter* painter, const QRect& place, const QByteArray& bytes) const;

    ImageBrowserView* m_view;
    mutable QCache<QByteArray, QPixmap> m_decoded;
};

}  // namespace vantor
