// Saving of found items from both results screens.
#include <numeric>

#include "app/MyTableController.h"

namespace vantor {

bool MyTableController::hasUnsavedItems() const {
    return itemCount() > m_saved.size();
}

void MyTableController::saveSelected() {
    saveItems(browserOf(activeSet())->selectionIndexes());
}

void MyTableController::saveAll() {
    QList<qsizetype> all(static_cast<qsizetype>(itemCount()));
    std::iota(all.begin(), all.end(), 0);
    saveItems(all);
}

void MyTableController::saveItems(const QList<qsizetype>&) {}

}  // namespace vantor
