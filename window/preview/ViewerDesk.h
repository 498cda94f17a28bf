// Who shows found items large: asks for them, hands them to the viewer as they come, and goes from one to the
// next.
#pragma once

#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

#include "results/BrowserOrder.h"
#include "window/preview/ViewLoader.h"
#include "window/preview/ViewerFacts.h"

namespace vantor {

class ItemViewer;
class MyImageObject;

// Where an item stands among those that the list shows, from 0.
struct ViewedPlace {
    int row = -1;  // it is not shown any more
    int count = 0;
};

// Items by their places in the list of all. Everything is asked on the interface thread.
struct ViewerParts {
    QWidget* over = nullptr;  // the viewer covers it
    std::function<std::shared_ptr<MyImageObject>(qsizetype)> itemAt;
    std::function<ItemFacts(qsizetype)> factsOf;
    std::function<ViewedPlace(qsizetype)> placeOf;
    std::function<qsizetype(int row)> itemOfRow;
    // Makes it the one that is chosen in the list.
    std::function<void(qsizetype)> choose;
    // What was made of it; null: nothing.
    std::function<std::shared_ptr<const Mend>(qsizetype)> mendOf;
    // How its bytes are read; without a bound and without a word of what plays.
    std::function<ViewOrder(const MyImageObject&)> order;
    // Why a file has no picture; empty where nothing stands in the way.
    std::function<QString(const QString& file)> obstacle;
    std::function<void(qsizetype, bool ticked)> tick;  // for saving
    std::function<void()> left;
};

class ViewerDesk : public QObject {
    Q_OBJECT

  public:
    ViewerDesk(ViewerParts parts, PicturePreviewer picture, MovieLoader movie);
    ~ViewerDesk() override;

    void open(qsizetype index);
    // Nothing happens where it is closed.
    void leave();
    bool isOpen() const;
    qsizetype shown() const { return m_index; }
    // More is known of items, or others are in the list.
    void refresh();
    bool isBusy() const { return m_loader.isBusy(); }
    ItemViewer* viewer() const { return m_viewer; }

    void requestEnd() { m_loader.requestEnd(); }
    bool hasEnded() const { return m_loader.hasEnded(); }

  private:
    void show(qsizetype index);
    void begin();
    void goTo(int row);
    void load();
    void take(ViewedThing thing);
    void takeMore(const QImage& picture);
    void askForMore();
    QSize fullSizeOf(const QImage& picture, QSize bound) const;
    QSize toldSize(const QImage& like) const;

    const ViewerParts m_parts;
    ItemViewer* m_viewer;  // of the window
    ViewLoader m_loader;
    qsizetype m_index = -1;
    std::shared_ptr<const Mend> m_mend;  // of the item
    int m_row = 0;                       // where the item stood when it was shown
    QSize m_bound;                       // of the picture asked for last
    ViewedFacts m_viewed;
    bool m_isIcon = false;  // what stands in is the type's icon
};

}  // namespace vantor
