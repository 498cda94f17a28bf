// The two messages.
#include "window/widgets/DesktopTelling.h"

#include <QDBusMessage>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>

namespace vantor {

namespace {

constexpr int kAsLongAsUsual = -1;

}  // namespace

void notifyDesktop(const QString& title, const QString& text, const QDBusConnection& bus) {
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString id = QGuiApplication::desktopFileName();
    message << QGuiApplication::applicationDisplayName() << 0U << id << title << text.toHtmlEscaped()
            << QStringList() << QVariantMap{{QStringLiteral("desktop-entry"), id}} << kAsLongAsUsual;
    bus.send(message);
}

void showTaskProgress(std::optional<double> share, const QDBusConnection& bus) {
    auto signal = QDBusMessage::createSignal(QStringLiteral("/org/vantor/recovery"),
                                             QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                             QStringLiteral("Update"));
    signal << QStringLiteral("application://%1.desktop").arg(QGuiApplication::desktopFileName())
           << QVariantMap{{QStringLiteral("progress"), share.value_or(0)},
                          {QStringLiteral("progress-visible"), share.has_value()}};
    bus.send(signal);
}

}  // namespace vantor
