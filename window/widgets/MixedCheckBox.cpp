// The look, and what assistive technology is told of it.
#include "window/widgets/MixedCheckBox.h"

#include <QAccessible>
#include <QStyleOptionButton>

namespace vantor {

MixedCheckBox::MixedCheckBox(QWidget* parent) : QCheckBox(parent) {
    connect(this, &QCheckBox::toggled, this, [this](bool on) { m_mixed = m_mixed && !on; });
}

void MixedCheckBox::setMixed(bool mixed) {
    const bool was = isMixed();
    m_mixed = mixed && !isChecked();
    if (was == m_mixed) {
        return;
    }
    update();
    QAccessible::State changed;
    changed.checkStateMixed = true;
    QAccessibleStateChangeEvent news(this, changed);
    QAccessible::updateAccessibility(&news);
}

void MixedCheckBox::initStyleOption(QStyleOptionButton* option) const {
    QCheckBox::initStyleOption(option);
    if (isMixed()) {
        option->state &= ~(QStyle::State_Off | QStyle::State_On);
        option->state |= QStyle::State_NoChange;
    }
}

}  // namespace vantor
