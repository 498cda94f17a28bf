// The adapter between the item list and the toolkit's list view.
#include "results/ImageBrowserModel.h"

#include <limits>

#include "results/ImageBrowserView.h"
#include "results/MyImageObject.h"

namespace vantor {

ImageBrowserModel::ImageBrowserModel(ImageBrowserView* view) : QAbstractListModel(view), m_view(view) {}

void ImageBrowserModel::reloadData() {
    const qsizetype asked = m_source != nullptr ? m_source->numberOfItemsInImageBrowser(m_view) : 0;
    const int count = static_cast<int>(std::min<qsizetype>(asked, std::numeric_limits<int>::max()));
    const std::shared_ptr<MyImageObject> first = count > 0 ? item(0) : nullptr;
    if (count >= m_count && m_count > 0 && first == m_first) {
        if (count > m_count) {
            beginInsertRows({}, m_count, count - 1);
            m_count = count;
            endInsertRows();
        }
        return;
    }
    beginResetModel();
    m_count = count;
    m_first = first;
    endResetModel();
}

std::shared_ptr<MyImageObject> ImageBrowserModel::item(qsizetype index) const {
    return m_source != nullptr ? m_source->imageBrowser_itemAtIndex(m_view, index) : nullptr;
}

int ImageBrowserModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_count;
}

QVariant ImageBrowserModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) {
        return {};
    }
    const auto found = item(index.row());
    return found ? QVariant(found->imageTitle()) : QVariant();
}

Qt::ItemFlags ImageBrowserModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

}  // namespace vantor
