// Gives the program the desktop's look, light or dark, and every change of it while the program runs.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <optional>

#include "window/widgets/Theme.h"

class QApplication;

namespace vantor {

// The settings portal of the desktop tells; where there is none, or it has no preference, the palette that
// the desktop gives its programs. Interface: org.freedesktop.portal.Settings, color-scheme of
// org.freedesktop.appearance (0 no preference, 1 dark, 2 light), XDG Desktop Portal documentation.
class DesktopLook : public QObject {
    Q_OBJECT

  public:
    explicit DesktopLook(QApplication& application,
                         const QDBusConnection& bus = QDBusConnection::sessionBus());

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private slots:
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

  private:
    void askPortal();
    void follow();

    QApplication& m_application;
    QDBusConnection m_bus;
    std::optional<Look> m_portal;  // nothing: it does not tell
    bool m_following = false;      // the palette that changes is the program's
};

}  // namespace vantor
