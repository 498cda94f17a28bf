// What a list shows in place of rows: a picture, what is the case, and what to do next.
#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace vantor {

// Paints into the middle of a view's viewport, from within its paint event.
void paintEmptyState(QWidget* viewport, const QIcon& picture, const QString& title, const QString& advice);

}  // namespace vantor
