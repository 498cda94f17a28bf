// What a box takes beside its words is told by the size it wants for the longest of them.
#include "window/widgets/ComboWidth.h"

#include <QComboBox>
#include <QStyledItemDelegate>
#include <algorithm>

namespace vantor {

void keepWordsWhole(QComboBox* box) {
    const QFontMetrics letters = box->fontMetrics();
    int longest = 0;
    for (int at = 0; at < box->count(); ++at) {
        longest = std::max(longest, letters.horizontalAdvance(box->itemText(at)));
    }
    const int beside = box->sizeHint().width() - longest;
    box->setMinimumWidth(letters.horizontalAdvance(box->currentText()) + beside);
}

void openWholeList(QComboBox* box) {
    box->setMaxVisibleItems(box->count());
    box->setItemDelegate(new QStyledItemDelegate(box));
}

}  // namespace vantor
