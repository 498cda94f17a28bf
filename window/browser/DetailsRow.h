// Draws one item of a browser as a line of columns.
#pragma once

#include <QStyledItemDelegate>

namespace vantor {

class ImageBrowserView;
class ImageCell;

class DetailsRow : public QStyledItemDelegate {
    Q_OBJECT

  public:
    // `cell` draws the small picture in the line.
    DetailsRow(ImageBrowserView* view, const ImageCell* cell);

    static int heightFor(const QFont& font);
    // Where the tick box of a line that takes this place can be clicked.
    static QRect tickPlace(const QRect& line);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    ImageBrowserView* m_view;
    const ImageCell* m_cell;
};

}  // namespace vantor
