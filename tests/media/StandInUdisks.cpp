// The stand-in's side of the protocol.
#include "tests/media/StandInUdisks.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDeadlineTimer>
#include <QFile>
#include <utility>

using InterfaceMap = QMap<QString, QVariantMap>;
using ObjectMap = QMap<QDBusObjectPath, InterfaceMap>;
Q_DECLARE_METATYPE(InterfaceMap)
Q_DECLARE_METATYPE(ObjectMap)

namespace vantor::test {

namespace {

const QString kManagerPath = QStringLiteral("/org/freedesktop/UDisks2");
const QString kObjectManager = QStringLiteral("org.freedesktop.DBus.ObjectManager");

// The values that are object paths on the wire.
InterfaceMap onTheWire(const UdisksInterfaces& interfaces) {
    InterfaceMap map = interfaces;
    for (QVariantMap& properties : map) {
        for (const char* key : {"Drive", "CryptoBackingDevice", "Table"}) {
            const QString name = QLatin1String(key);
            if (properties.contains(name)) {
                properties[name] = QVariant::fromValue(QDBusObjectPath(properties.value(name).toString()));
            }
        }
    }
    return map;
}

}  // namespace

StandInUdisks::StandInUdisks(const QString& address, UdisksObjects objects) : m_objects(std::move(objects)) {
    static std::atomic<int> number{0};
    qDBusRegisterMetaType<InterfaceMap>();
    qDBusRegisterMetaType<ObjectMap>();
    qDBusRegisterMetaType<QByteArrayList>();
    m_connection = QStringLiteral("stand-in-%1").arg(++number);
    QDBusConnection bus = QDBusConnection::connectToBus(address, m_connection);
    bus.registerVirtualObject(kManagerPath, this, QDBusConnection::SubPath);
    // A virtual object is called in the thread it lives in.
    moveToThread(&m_thread);
    m_thread.start();
    bus.registerService(QStringLiteral("org.freedesktop.UDisks2"));
}

StandInUdisks::~StandInUdisks() {
    m_thread.quit();
    m_thread.wait();
    QDBusConnection::disconnectFromBus(m_connection);
}

bool StandInUdisks::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
    message.setDelayedReply(true);
    if (message.member() == u"GetManagedObjects") {
        ++listings;
    } else if (message.member() == u"OpenDevice") {
        ++openings;
    } else if (message.member() != u"Unmount" && message.member() != u"Eject") {
        return false;
    }
    if (silent) {
        const std::lock_guard lock(m_mutex);
        m_heldBack << message;
        return true;
    }
    send(answerTo(message));
    return true;
}

QDBusMessage StandInUdisks::answerTo(const QDBusMessage& message) {
    if (message.member() == u"GetManagedObjects") {
        return message.createReply(managedObjects());
    }
    const std::lock_guard lock(m_mutex);
    if (message.member() == u"Unmount" || message.member() == u"Eject") {
        calls << message.member() + u' ' + message.path().section(u'/', -1);
        return message.member() == refusedCall
                   ? message.createErrorReply(QStringLiteral("org.freedesktop.UDisks2.Error.DeviceBusy"),
                                              QStringLiteral("target is busy"))
                   : message.createReply();
    }
    openedPath = message.path();
    openedMode = message.arguments().value(0).toString();
    if (!refusal.isEmpty()) {
        return message.createErrorReply(refusal, QStringLiteral("refused"));
    }
    const int fd = ::open(QFile::encodeName(handedOut).constData(), O_RDONLY | O_CLOEXEC);
    const QDBusUnixFileDescriptor descriptor(fd);  // keeps a descriptor of its own
    ::close(fd);
    return message.createReply(QVariant::fromValue(descriptor));
}

QVariant StandInUdisks::managedObjects() const {
    const std::lock_guard lock(m_mutex);
    ObjectMap map;
    for (auto it = m_objects.constBegin(); it != m_objects.constEnd(); ++it) {
        map[QDBusObjectPath(it.key())] = onTheWire(it.value());
    }
    return QVariant::fromValue(map);
}

void StandInUdisks::send(const QDBusMessage& message) {
    QDBusConnection(m_connection).send(message);
}

void StandInUdisks::answerWhatWasHeldBack() {
    QList<QDBusMessage> questions;
    {
        const std::lock_guard lock(m_mutex);
        questions = std::exchange(m_heldBack, {});
    }
    silent = false;
    for (const QDBusMessage& question : questions) {
        send(answerTo(question));
    }
}

void StandInUdisks::setObjects(const UdisksObjects& objects) {
    UdisksObjects before;
    {
        const std::lock_guard lock(m_mutex);
        before = std::exchange(m_objects, objects);
    }
    for (auto it = objects.constBegin(); it != objects.constEnd(); ++it) {
        if (!before.contains(it.key())) {
            auto added =
                QDBusMessage::createSignal(kManagerPath, kObjectManager, QStringLiteral("InterfacesAdded"));
            added << QVariant::fromValue(QDBusObjectPath(it.key()))
                  << QVariant::fromValue(onTheWire(it.value()));
            send(added);
            ++signalsSent;
            continue;
        }
        const UdisksInterfaces was = before.value(it.key());
        for (auto interface = it->constBegin(); interface != it->constEnd(); ++interface) {
            if (was.value(interface.key()) != interface.value()) {
                signalPropertiesChanged(it.key(), interface.key());
            }
        }
    }
    for (auto it = before.constBegin(); it != before.constEnd(); ++it) {
        if (!objects.contains(it.key())) {
            auto removed =
                QDBusMessage::createSignal(kManagerPath, kObjectManager, QStringLiteral("InterfacesRemoved"));
            removed << QVariant::fromValue(QDBusObjectPath(it.key())) << QStringList(it.value().keys());
            send(removed);
            ++signalsSent;
        }
    }
}

void StandInUdisks::signalPropertiesChanged(const QString& path, const QString& interface) {
    auto signal = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                             QStringLiteral("PropertiesChanged"));
    signal << interface << QVariantMap() << QStringList();
    send(signal);
    ++signalsSent;
}

}  // namespace vantor::test
