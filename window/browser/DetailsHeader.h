// The columns in which a browser tells what is known of its items.
#pragma once

#include <QHeaderView>
#include <optional>

#include "results/BrowserOrder.h"

namespace vantor {

class MyImageObject;
struct CellPicture;

enum class DetailsColumn { Name, OriginalName, Type, Size, Date, Camera, Extent, State, Place };
inline constexpr int kDetailsColumns = 9;

SortItems sortOf(DetailsColumn column);
// What stands in a column of an item; empty where it is not known. `picture` may be null.
QString detailsText(DetailsColumn column, const MyImageObject& item, const ItemFacts& facts,
                    const CellPicture* picture);

// Above the items; the user drags columns wider and to other places, and clicks them to sort.
class DetailsHeader : public QHeaderView {
    Q_OBJECT

  public:
    explicit DetailsHeader(QWidget* parent);

    // The mark of the column by which the items are sorted; none has it where there is no such column.
    void showSorted(SortItems sort, bool reversed);

    // What saveState() gave in an earlier run; anything else changes nothing.
    void recall(const QByteArray& state);

    // Whether any item has a name of its own on the card: without one that column is left out.
    void setOriginalsShown(bool shown);

  signals:
    void sortWanted(SortItems sort);

  private:
    bool m_originalsShown = false;
};

}  // namespace vantor
