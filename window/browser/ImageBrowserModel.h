// Hands the found items of a data source to a browser view, in batches.
#pragma once

#include <QAbstractListModel>
#include <QList>
#include <memory>
#include <optional>

#include "results/BrowserOrder.h"
#include "window/widgets/CellPicture.h"

namespace vantor {

class ImageBrowserView;
class MyImageObject;

// Who knows the items; asked on the interface thread.
class ImageBrowserDataSource {
  public:
    ImageBrowserDataSource() = default;
    ImageBrowserDataSource(const ImageBrowserDataSource&) = delete;
    ImageBrowserDataSource& operator=(const ImageBrowserDataSource&) = delete;
    virtual ~ImageBrowserDataSource() = default;

    virtual qsizetype numberOfItemsInImageBrowser(const ImageBrowserView* view) = 0;
    // Null beyond the end.
    virtual std::shared_ptr<MyImageObject> imageBrowser_itemAtIndex(const ImageBrowserView* view,
                                                                    qsizetype index) = 0;
    // What is known of an item of the list, for its badge and the words about it.
    virtual ItemFacts factsOfItem(qsizetype) { return {}; }
    // What an item of the list looks like, to be drawn in place of its representation; null: not known.
    virtual const CellPicture* pictureOfItem(qsizetype) { return nullptr; }
};

// Rows are places in an order where one is set, else places in the data source's list.
class ImageBrowserModel : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit ImageBrowserModel(ImageBrowserView* view);

    void setDataSource(ImageBrowserDataSource* source) { m_source = source; }
    // Takes over how the data source stands now: items appended are inserted in one go, anything else is a
    // new list.
    void reloadData();

    // Shows these items of the list in this order, until another order or none is set. The view paints anew
    // and says which rows are selected now.
    void setOrder(std::optional<QList<int>> order);
    bool hasOrder() const { return m_order.has_value(); }
    int listedCount() const { return m_count; }
    int indexOfRow(int row) const { return m_order ? m_order->value(row, -1) : row; }
    int rowOfIndex(int index) const;  // -1: not shown

    // Of the list.
    std::shared_ptr<MyImageObject> item(qsizetype index) const;
    ItemFacts facts(qsizetype index) const;
    const CellPicture* picture(qsizetype index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Items cannot be dragged out.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    void takeOrder(std::optional<QList<int>> order);

    ImageBrowserView* m_view;
    ImageBrowserDataSource* m_source = nullptr;
    int m_count = 0;
    std::optional<QList<int>> m_order;
    QList<int> m_rowOf;  // of an item of the list, while there is an order; -1: not shown
    QString m_firstUid;  // tells a list that grew from one that began anew
};

}  // namespace vantor
