// Unmounting first: a mounted file system may hold what was not written yet.
#include "media/UdisksEjector.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr auto kAnswerPatience = 3s;
// A user may be asked, and a slow card be written to its end.
constexpr auto kEjectPatience = 120s;
const QString kBlockInterface = QStringLiteral("org.freedesktop.UDisks2.Block");
const QString kDriveInterface = QStringLiteral("org.freedesktop.UDisks2.Drive");
const QString kFilesystemInterface = QStringLiteral("org.freedesktop.UDisks2.Filesystem");

QString text(const char* words) {
    return QCoreApplication::translate("UdisksEjector", words);
}

}  // namespace

std::optional<Ejection> ejectionOf(const UdisksObjects& objects, const QString& node) {
    if (!node.startsWith(QLatin1String("/dev/"))) {
        return std::nullopt;
    }
    const auto driveOf = [&](const QString& path) {
        return objects.value(path).value(kBlockInterface).value(QStringLiteral("Drive")).toString();
    };
    Ejection ejection{driveOf(udisksObjectPath(node)), {}};
    const QVariantMap drive = objects.value(ejection.drive).value(kDriveInterface);
    if (!drive.value(QStringLiteral("Ejectable")).toBool()) {
        return std::nullopt;
    }
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        const auto mounts =
            object->value(kFilesystemInterface).value(QStringLiteral("MountPoints")).value<QByteArrayList>();
        if (!mounts.isEmpty() && driveOf(object.key()) == ejection.drive) {
            ejection.mounted.append(object.key());
        }
    }
    return ejection;
}

bool UdisksEjector::canEject(const QString& node) {
    return m_bus.ensureConnected(kAnswerPatience) && ejectionNow(node).has_value();
}

std::optional<Ejection> UdisksEjector::ejectionNow(const QString& node) const {
    const QDBusPendingCall call = m_bus.askForObjects();
    const auto objects =
        waitForAnswer(call, kAnswerPatience) ? UdisksBus::objectsIn(call.reply()) : std::nullopt;
    return objects ? ejectionOf(*objects, node) : std::nullopt;
}

QString UdisksEjector::eject(const QString& node) const {
    const auto ejection = ejectionNow(node);
    if (!ejection) {
        return text(QT_TRANSLATE_NOOP("UdisksEjector", "The disk service no longer knows it."));
    }
    for (const QString& volume : ejection->mounted) {
        if (const QString refusal = ask(volume, "Filesystem", "Unmount"); !refusal.isEmpty()) {
            return refusal;
        }
    }
    return ask(ejection->drive, "Drive", "Eject");
}

QString UdisksEjector::ask(const QString& object, const char* interface, const char* method) const {
    QDBusMessage message = QDBusMessage::createMethodCall(
        kUdisksService, object, kUdisksService + u'.' + QLatin1String(interface), QLatin1String(method));
    message.setArguments({QVariantMap()});
    message.setInteractiveAuthorizationAllowed(true);
    const auto timeout = std::chrono::duration_cast<std::chrono::milliseconds>(kEjectPatience);
    const QDBusPendingCall call = m_bus.connection().asyncCall(message, static_cast<int>(timeout.count()));
    if (!waitForAnswer(call, timeout)) {
        return text(QT_TRANSLATE_NOOP("UdisksEjector", "The disk service does not answer."));
    }
    if (!call.isError()) {
        return {};
    }
    const QString why = call.error().message();
    return why.isEmpty() ? text(QT_TRANSLATE_NOOP("UdisksEjector", "The disk service refused it.")) : why;
}

}  // namespace vantor
