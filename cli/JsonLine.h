// Lines of JSON as the command prints them.
#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace vantor {

// The object in one line without its end. What would steer a terminal is spelt out, as "\u009b": Qt does so
// below U+0020 alone.
QByteArray jsonLine(const QJsonObject& object);

// The same, to the standard output.
void printJsonLine(const QJsonObject& object);

}  // namespace vantor
