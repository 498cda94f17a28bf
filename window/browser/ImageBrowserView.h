// The grid of found items: thumbnails or file-type icons with their names, zoomed smoothly.
#pragma once

#include <QIcon>
#include <QMouseEvent>
#include <memory>
#include <optional>

#include "results/BrowserOrder.h"
#include "window/browser/GridView.h"

namespace vantor {

class ImageBrowserDataSource;
class DetailsHeader;
class ImageBrowserModel;
class MyImageObject;
struct CellPicture;

class ImageBrowserView : public GridView {
    Q_OBJECT

  public:
    explicit ImageBrowserView(QWidget* parent = nullptr);

    void setDataSource(ImageBrowserDataSource* source);
    void reloadData();

    // 0 (smallest cells) to 1.
    void setZoomValue(float zoom);
    float zoomValue() const { return m_zoom; }
    // A line below each title for the name that the item had on the card.
    void setOriginalsShown(bool shown);
    bool originalsShown() const { return m_originalsShown; }
    // Below a picture: the title, that name, and what else is known.
    int linesOfWords() const { return m_originalsShown ? 3 : 2; }

    // A line of columns for each item in place of its cell; the same items, order, selection and ticks.
    void setDetailsShown(bool shown);
    bool detailsShown() const { return m_detailsShown; }
    DetailsHeader* detailsHeader() const { return m_header; }

    // Shows these items of the list in this order; the selection stays with its items, as far as they are
    // shown.
    void setOrder(std::optional<QList<int>> order);

    // Brings the selected item that has the keyboard into view; without one, the first.
    void showCurrentOrFirst();

    // Items by their places in the list, whatever the order.
    void scrollIndexToVisible(qsizetype index);
    // The same for whom the end of the list is in view; who has looked back is left there.
    void followIndex(qsizetype index);
    // The list grows no more: whom it led to its end sees it from the beginning, or at the selected item.
    void endFollowing();
    QList<qsizetype> selectionIndexes() const;  // ascending
    qsizetype selectedCount() const;
    std::vector<std::size_t> indexesInView() const;
    // Items of the list as far as the browser knows of them, which may be fewer than have been found.
    qsizetype listedCount() const;
    int shownCount() const;
    QList<qsizetype> shownIndexes() const;  // in the order in which they are shown
    int rowOfIndex(qsizetype index) const;  // -1: not shown
    qsizetype indexOfRow(int row) const;
    // Makes it the selected one, in view.
    void chooseIndex(qsizetype index);
    void selectIndexes(const QList<qsizetype>& indexes);

    // Of a row.
    std::shared_ptr<MyImageObject> itemOfRow(int row) const;
    ItemFacts factsOfRow(int row) const;
    const CellPicture* pictureOfRow(int row) const;
    // Pixels of the screen that the longer side of a cell's picture takes, now and with the largest cells.
    int pictureSide() const;
    int largestPictureSide() const;

    // The picture of items that have none: these show the icon of their kind instead.
    void setPlaceholder(const QByteArray& bytes) { m_placeholder = bytes; }
    const QByteArray& placeholder() const { return m_placeholder; }

    void setEmptyState(const QIcon& picture, const QString& title, const QString& advice);

  signals:
    // By the user; what another order hides or brings back does not count.
    void selectionDidChange();
    // By mouse or keys: items, by their places in the list, are to be ticked for saving or no longer.
    void ticksWanted(const QList<qsizetype>& indexes, bool ticked);
    // Somebody wants to see an item of the list large: a double click, Return or Space.
    void openWanted(qsizetype index);
    // The selected items are pulled away with the mouse, whose button is down.
    void dragWanted(const QList<qsizetype>& indexes);
    // The menu of an item, there on the screen.
    void menuWanted(qsizetype index, const QPoint& place);

  protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    // The toolkit drags nothing; see dragWanted().
    void startDrag(Qt::DropActions) override {}

  private:
    QModelIndex itemAtHand() const;
    QModelIndex tickAt(const QPoint& place) const;
    bool tickByMouse(const QMouseEvent& event);
    bool tickByKey(int key);
    bool opensItem(const QKeyEvent& key) const;
    QItemSelection rangesOf(const QList<qsizetype>& indexes) const;
    void describeState();
    void layCellsOut();
    QRect tickPlace(const QModelIndex& item) const;
    void seeWhetherAtEnd();

    ImageBrowserModel* m_model;
    DetailsHeader* m_header;
    QAbstractItemDelegate *m_cells, *m_lines;
    bool m_detailsShown = false;
    QByteArray m_placeholder;
    float m_zoom = 0;
    bool m_originalsShown = false;
    bool m_reordering = false;
    bool m_atEnd = true;
    enum class Pull { None, May, Done } m_pull = Pull::None;  // of items, since the press
    QPoint m_pulledFrom;
    std::unique_ptr<QMouseEvent> m_heldPress;  // on one of several selected items, which may be dragged all
    bool m_ticking = false;                    // the mouse was pressed on a tick and is not released yet
    QIcon m_emptyPicture;
    QString m_emptyTitle, m_emptyAdvice;
};

}  // namespace vantor
