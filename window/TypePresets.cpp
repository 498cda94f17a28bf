// The menu of presets on the file-type screen.
#include "catalogue/TypePresets.h"

#include <QMenu>

#include "window/MyTableController.h"

namespace vantor {

// Presets of which the list holds nothing are not offered.
void MyTableController::buildPresetMenu() {
    QMenu* menu = typePresetButton->menu();
    if (menu == nullptr) {
        menu = new QMenu(typePresetButton);
        menu->setAccessibleName(typePresetButton->accessibleName());
        typePresetButton->setMenu(menu);
    }
    menu->clear();
    for (const TypePreset& preset : typePresets()) {
        const auto belongs = [key = preset.key](const FileTypeRow& row) {
            return isInPreset(key, row.value(QStringLiteral("Extension")).toString());
        };
        if (std::any_of(nsCheckedListDataObject.cbegin(), nsCheckedListDataObject.cend(), belongs)) {
            connect(menu->addAction(preset.name), &QAction::triggered, this,
                    [this, belongs] { choosePreset(belongs); });
        }
    }
    typePresetButton->setEnabled(!menu->isEmpty());
}

// These types and no others, whatever was searched for.
void MyTableController::choosePreset(const std::function<bool(const FileTypeRow&)>& belongs) {
    typeSearchField->clear();
    tickShown(false, [](const FileTypeRow&) { return true; });
    tickShown(true, belongs);
    showSelectAllState();
    showTypeCounts();
}

}  // namespace vantor
