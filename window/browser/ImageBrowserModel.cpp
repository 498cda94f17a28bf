// The adapter between the item list and the toolkit's list view.
#include "window/browser/ImageBrowserModel.h"

#include <QTextDocument>
#include <limits>

#include "results/CardIndex.h"
#include "results/ItemWords.h"
#include "results/Mend.h"
#include "results/MyImageObject.h"
#include "window/browser/ImageBrowserView.h"

namespace vantor {

ImageBrowserModel::ImageBrowserModel(ImageBrowserView* view) : QAbstractListModel(view), m_view(view) {}

void ImageBrowserModel::reloadData() {
    const qsizetype asked = m_source != nullptr ? m_source->numberOfItemsInImageBrowser(m_view) : 0;
    const int count = static_cast<int>(std::min<qsizetype>(asked, std::numeric_limits<int>::max()));
    const std::shared_ptr<MyImageObject> first = count > 0 ? item(0) : nullptr;
    const QString firstUid = first ? first->imageUID() : QString();
    if (count >= m_count && m_count > 0 && firstUid == m_firstUid) {
        if (m_order) {
            m_count = count;  // whoever set the order sets the next one
        } else if (count > m_count) {
            beginInsertRows({}, m_count, count - 1);
            m_count = count;
            endInsertRows();
        }
        return;
    }
    beginResetModel();
    m_count = count;
    m_firstUid = firstUid;
    if (m_order) {
        m_order->clear();
        m_rowOf.clear();
    }
    endResetModel();
}

void ImageBrowserModel::setOrder(std::optional<QList<int>> order) {
    if (order == m_order) {
        return;
    }
    const int before = rowCount();
    const int after = order ? static_cast<int>(order->size()) : m_count;
    // All rows are alike to whoever lays them out: with as many as before there is nothing but to paint them.
    if (after < before || before == 0) {
        beginResetModel();
        takeOrder(std::move(order));
        endResetModel();
    } else if (after > before) {
        beginInsertRows({}, before, after - 1);
        takeOrder(std::move(order));
        endInsertRows();
    } else {
        takeOrder(std::move(order));
    }
}

void ImageBrowserModel::takeOrder(std::optional<QList<int>> order) {
    m_order = std::move(order);
    m_rowOf.clear();
    if (!m_order) {
        return;
    }
    m_rowOf.resize(m_count, -1);
    for (int row = 0; row < m_order->size(); ++row) {
        if (const int index = m_order->at(row); index >= 0 && index < m_count) {
            m_rowOf[index] = row;
        }
    }
}

int ImageBrowserModel::rowOfIndex(int index) const {
    return m_order ? m_rowOf.value(index, -1) : index;
}

ItemFacts ImageBrowserModel::facts(qsizetype index) const {
    return m_source != nullptr ? m_source->factsOfItem(index) : ItemFacts();
}

const CellPicture* ImageBrowserModel::picture(qsizetype index) const {
    return m_source != nullptr ? m_source->pictureOfItem(index) : nullptr;
}

std::shared_ptr<MyImageObject> ImageBrowserModel::item(qsizetype index) const {
    return m_source != nullptr ? m_source->imageBrowser_itemAtIndex(m_view, index) : nullptr;
}

int ImageBrowserModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) {
        return 0;
    }
    return m_order ? static_cast<int>(m_order->size()) : m_count;
}

QVariant ImageBrowserModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::CheckStateRole) {
        return facts(indexOfRow(index.row())).ticked ? Qt::Checked : Qt::Unchecked;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) {
        return {};
    }
    const int place = indexOfRow(index.row());
    const auto found = item(place);
    if (!found || role == Qt::DisplayRole) {
        return found ? QVariant(found->imageTitle()) : QVariant();
    }
    const ItemFacts known = facts(place);
    QStringList words{found->imageTitle()};
    if (known.original) {
        words << originalPath(*known.original);
    }
    if (known.soundness) {
        words << describe(*known.soundness);
    }
    // What is proved is told with the file's soundness.
    if (known.mend && known.mend->kind != MendKind::Completed) {
        words << describe(*known.mend);
    }
    if (role == Qt::AccessibleTextRole && m_view->detailsShown()) {
        // What the columns show beside that.
        for (const QString& more :
             {known.soundness ? known.soundness->camera : QString(), placeWords(*found, known)}) {
            if (!more.isEmpty()) {
                words << more;
            }
        }
    }
    if (known.saved) {
        words << tr("saved");
    }
    if (known.ticked && role == Qt::AccessibleTextRole) {
        words << tr("ticked");
    }
    if (role != Qt::ToolTipRole) {
        return words.join(QStringLiteral(", "));
    }
    // A name from a card is text, whatever stands in it.
    const QString tip = words.join(u'\n');
    return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

Qt::ItemFlags ImageBrowserModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

}  // namespace vantor
