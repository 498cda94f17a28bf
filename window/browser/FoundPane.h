// What was found, by type, day, camera and size with counts, to pick what the list shows: several with Ctrl.
#pragma once

#include <QHash>
#include <QWidget>
#include <memory>
#include <vector>

#include "results/FoundFacets.h"

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace vantor {

// Interface thread.
class FoundPane : public QWidget {
    Q_OBJECT

  public:
    explicit FoundPane(QWidget* parent = nullptr);

    // The counts of `all` items, of which the facets know perhaps not all yet.
    void showFacets(const FoundFacets& facets, std::size_t all);
    // Files that only the card's directory tells of, and so many others that were left out as with
    // toldOnly(); no line for none.
    void showTold(const std::vector<std::shared_ptr<const CardFile>>& files, std::uint64_t beyondRoom);
    // Nothing is picked and nothing is shown.
    void begin();

    const FacetChoice& choice() const { return m_choice; }
    QString name() const;
    // The keyboard is in the field for a name.
    bool isSearching() const;
    // Someone looks at what takes a look at every item to know.
    bool wantsDetails() const;

  signals:
    void chosen();

  private:
    enum class Facet {
        All,
        Group,
        Type,
        Days,
        Day,
        Cameras,
        Camera,
        Sizes,
        Size,
        Pixels,
        PixelRange,
        Lengths,
        Length,
        Told
    };
    QTreeWidgetItem* heading(Facet facet, const QString& text);
    void put(QTreeWidgetItem* parent, Facet facet, const QVariant& key, const QString& text,
             std::size_t count);
    void dropUnseen();
    void takeChoice();

    QLineEdit* m_search;
    QTreeWidget* m_tree;
    QTreeWidgetItem *m_all, *m_days, *m_cameras, *m_sizes, *m_pixels, *m_lengths, *m_told;
    FacetChoice m_choice;
    QHash<QString, QTreeWidgetItem*> m_rows;  // by facet and key
    QHash<QString, bool> m_seen;
    bool m_filling = false;
};

}  // namespace vantor
