// Words and progress for a user who looks at something else.
#pragma once

#include <QDBusConnection>
#include <QString>
#include <optional>

namespace vantor {

// Both are sent without waiting; a desktop without such a service says nothing. Any thread.

// A notification (org.freedesktop.Notifications, Desktop Notifications Specification). The text is text,
// whatever stands in it.
void notifyDesktop(const QString& title, const QString& text,
                   const QDBusConnection& bus = QDBusConnection::sessionBus());

// Progress from 0 to 1 on the program's entry in the task bar (com.canonical.Unity.LauncherEntry, which docks
// and task bars of several desktops follow); nothing takes it away.
void showTaskProgress(std::optional<double> share,
                      const QDBusConnection& bus = QDBusConnection::sessionBus());

}  // namespace vantor
