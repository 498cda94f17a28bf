// The grid of found items: thumbnails or file-type icons with their names, zoomed smoothly.
#pragma once

#include <QIcon>
#include <QListView>
#include <memory>

namespace vantor {

class ImageBrowserDataSource;
class ImageBrowserModel;
class MyImageObject;

class ImageBrowserView : public QListView {
    Q_OBJECT

  public:
    explicit ImageBrowserView(QWidget* parent = nullptr);

    void setDataSource(ImageBrowserDataSource* source);
    void reloadData();

    // 0 (smallest cells) to 1.
    void setZoomValue(float zoom);
    float zoomValue() const { return m_zoom; }

    void scrollIndexToVisible(qsizetype index);
    // Rows of the selected items, ascending.
    QList<qsizetype> selectionIndexes() const;
    std::shared_ptr<MyImageObject> item(qsizetype index) const;

    void setEmptyState(const QIcon& picture, const QString& title, const QString& advice);

  signals:
    void selectionDidChange();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void startDrag(Qt::DropActions) override {}

  private:
    void describeState();

    ImageBrowserModel* m_model;
    float m_zoom = 0;
    QIcon m_emptyPicture;
    QString m_emptyTitle, m_emptyAdvice;
};

}  // namespace vantor
