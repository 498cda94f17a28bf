// The forms in which the program tells or asks something: a message with "OK", a Yes/No question, and an
// alert of any buttons.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QWidget;

namespace vantor {

// Interface thread only; each runs a modal loop until it is answered.

// Shows the message, a line break in front, with the one button "OK".
int Show_MessageBox(const QString& message);

// True when the question was answered "Yes", the default button; "No" and any other way out are false.
bool Show_YES_NO_MessageBox(const QString& question);

// An alert as it stands, no line break added. The last button answers Escape. Gives the index of the button
// pressed.
struct Alert {
    QString message;
    QString informative = QStringLiteral("");
    QStringList buttons = {QObject::tr("OK")};
    qsizetype defaultButton = 0;
    QString picture = {};  // name of an icon; by default that of a message or a question
};
qsizetype runAlert(const Alert& alert, QWidget* over = nullptr);

// What could not be done, and why; a line break in front, the picture of a warning, and "OK".
void tellFailure(const QString& what, const QString& why, QWidget* over);

}  // namespace vantor
