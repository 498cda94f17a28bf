// Hands the found items of a data source to a browser view, in batches.
#pragma once

#include <QAbstractListModel>
#include <memory>

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
};

class ImageBrowserModel : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit ImageBrowserModel(ImageBrowserView* view);

    void setDataSource(ImageBrowserDataSource* source) { m_source = source; }
    // Takes over how the data source stands now: items appended are inserted in one go, anything else is a
    // new list.
    void reloadData();

    std::shared_ptr<MyImageObject> item(qsizetype index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Items cannot be dragged out.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    ImageBrowserView* m_view;
    ImageBrowserDataSource* m_source = nullptr;
    int m_count = 0;
    std::shared_ptr<MyImageObject> m_first;  // tells a list that grew from one that began anew
};

}  // namespace vantor
