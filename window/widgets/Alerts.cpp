// Every alert of the program is made here, so that all look and answer alike.
#include "window/widgets/Alerts.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPictureEdge = 40;
// So many fit into a line of the smaller text, however short the headline.
constexpr int kLineCharacters = 56;

}  // namespace

qsizetype runAlert(const Alert& alert, QWidget* over) {
    QMessageBox box(over != nullptr ? over : QApplication::activeWindow());
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    const QString byForm = alert.buttons.size() > 1 ? QStringLiteral("question") : QStringLiteral("info");
    box.setIconPixmap(
        ownIcon(alert.picture.isEmpty() ? byForm : alert.picture).pixmap(kPictureEdge, kPictureEdge));
    box.setText(alert.message);
    box.setInformativeText(alert.informative);
    box.setAccessibleName(alert.message.trimmed());
    box.setAccessibleDescription(alert.informative);
    QList<QAbstractButton*> buttons;
    for (const QString& title : alert.buttons) {
        buttons.append(
            box.addButton(title, buttons.isEmpty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.at(alert.defaultButton)));
    box.setEscapeButton(buttons.constLast());
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout());
        grid != nullptr && !alert.informative.isEmpty()) {
        grid->addItem(new QSpacerItem(kLineCharacters * box.fontMetrics().averageCharWidth(), 0),
                      grid->rowCount(), 0, 1, grid->columnCount());
    }
    box.exec();
    return buttons.indexOf(box.clickedButton());
}

void tellFailure(const QString& what, const QString& why, QWidget* over) {
    Alert alert{QStringLiteral("\n") + what, why};
    alert.picture = QStringLiteral("warning");
    runAlert(alert, over);
}

int Show_MessageBox(const QString& message) {
    return runAlert({QStringLiteral("\n") + message}) == 0 ? 1 : 0;
}

bool Show_YES_NO_MessageBox(const QString& question) {
    return runAlert({question, QStringLiteral(""), {QObject::tr("Yes"), QObject::tr("No")}}) == 0;
}

}  // namespace vantor
