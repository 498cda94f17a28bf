// Faces of controls: what they are and how they are operated.
#include "window/widgets/AccessibleControls.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>

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
        state.checkStateMixed = box != nullptr && box->checkState() == Qt::PartiallyChecked;
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
