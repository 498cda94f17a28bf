// Faces of controls: what they are and how they are operated.
#include "window/widgets/AccessibleControls.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "window/widgets/MixedCheckBox.h"

namespace vantor {

namespace {

// The toolkit's own face of a tick box or radio button changes its state without a click, so that whoever
// waits for the click would not hear of it.
class CheckableFace : public QAccessibleWidget {
  public:
    CheckableFace(QAbstractButton* button, QAccessible::Role role) : QAccessibleWidget(button, role) {}

    QString text(QAccessible::Text which) const override {
        const QString said = QAccessibleWidget::text(which);
        return which == QAccessible::Name && said.isEmpty() ? button()->text().remove(u'&') : said;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const auto* box = qobject_cast<QCheckBox*>(button());
        state.checkable = true;
        state.checked = button()->isChecked();
        const auto* mixed = qobject_cast<MixedCheckBox*>(button());
        state.checkStateMixed = (box != nullptr && box->checkState() == Qt::PartiallyChecked) ||
                                (mixed != nullptr && mixed->isMixed());
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button()->isEnabled()) {
            names.prepend(toggleAction());
        }
        return names;
    }

    void doAction(const QString& action) override {
        if (action == toggleAction()) {
            button()->click();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

  protected:
    ~CheckableFace() override = default;

  private:
    QAbstractButton* button() const { return static_cast<QAbstractButton*>(widget()); }
};

// The toolkit's own face of a box of choices gives what is chosen for its name, and so never says what is
// chosen from.
class ChoiceFace : public QAccessibleWidget {
  public:
    explicit ChoiceFace(QComboBox* box) : QAccessibleWidget(box, QAccessible::ComboBox) {}

    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? box()->currentText() : QAccessibleWidget::text(which);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box()->view()->isVisible();
        state.editable = box()->isEditable();
        return state;
    }

    int childCount() const override { return box()->isEditable() ? 2 : 1; }
    QAccessibleInterface* child(int index) const override {
        if (index == 0) {
            return QAccessible::queryAccessibleInterface(box()->view());
        }
        return index == 1 && box()->isEditable() ? QAccessible::queryAccessibleInterface(box()->lineEdit())
                                                 : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (child != nullptr && child->object() == box()->view()) {
            return 0;
        }
        return child != nullptr && box()->isEditable() && child->object() == box()->lineEdit() ? 1 : -1;
    }

    QStringList actionNames() const override {
        return box()->isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList();
    }
    void doAction(const QString& action) override {
        if (action != showMenuAction() && action != pressAction()) {
            QAccessibleWidget::doAction(action);
        } else if (box()->view()->isVisible()) {
            box()->hidePopup();
        } else {
            box()->showPopup();
        }
    }

  protected:
    ~ChoiceFace() override = default;

  private:
    QComboBox* box() const { return static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* faceOf(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) {
        return nullptr;
    }
    if (className == u"QCheckBox") {
        return new CheckableFace(static_cast<QAbstractButton*>(widget), QAccessible::CheckBox);
    }
    if (className == u"QRadioButton") {
        return new CheckableFace(static_cast<QAbstractButton*>(widget), QAccessible::RadioButton);
    }
    if (className == u"QComboBox") {
        return new ChoiceFace(static_cast<QComboBox*>(widget));
    }
    if (className == u"vantor::StepTrail") {
        return new QAccessibleWidget(widget, QAccessible::StaticText);
    }
    if (className == u"vantor::MovieView") {
        return new QAccessibleWidget(widget, QAccessible::Animation);
    }
    return nullptr;
}

}  // namespace

void describeControls() {
    QAccessible::installFactory(faceOf);
}

}  // namespace vantor
