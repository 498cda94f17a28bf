// Talking to the disk service.
#include "media/UdisksBus.h"

#include <fcntl.h>

#include <QByteArrayList>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusUnixFileDescriptor>
#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr int kObjectsTimeoutMs = 30'000;
constexpr auto kConsentTime = 10min;  // longer than anybody takes to type a password

QString newConnectionName() {
    static std::atomic<int> number{0};
    return QStringLiteral("vantor-udisks-%1").arg(++number);
}

// Looks whether something is done, ever less often up to 20 times a second, until the time is over or a stop
// is asked for.
template <class Done>
bool lookOften(Done done, std::chrono::milliseconds wait, const StopRequest& stop) {
    const auto deadline = std::chrono::steady_clock::now() + wait;
    auto pause = 1ms;
    while (!done()) {
        if (std::chrono::steady_clock::now() >= deadline || (stop && stop())) {
            return false;
        }
        std::this_thread::sleep_for(pause);
        pause = std::min<std::chrono::milliseconds>(2 * pause, 50ms);
    }
    return true;
}

// Values in a form that knows nothing of a bus.
QVariant plainValue(const QVariant& value) {
    if (value.userType() == qMetaTypeId<QDBusObjectPath>()) {
        return value.value<QDBusObjectPath>().path();
    }
    if (value.userType() == qMetaTypeId<QDBusArgument>()) {
        const auto argument = value.value<QDBusArgument>();
        if (argument.currentSignature() == u"aay") {
            return QVariant::fromValue(qdbus_cast<QByteArrayList>(argument));
        }
        return {};
    }
    return value;
}

UdisksInterfaces readInterfaces(const QDBusArgument& argument) {
    UdisksInterfaces interfaces;
    argument.beginMap();
    while (!argument.atEnd()) {
        QString name;
        QVariantMap properties;
        argument.beginMapEntry();
        argument >> name >> properties;
        argument.endMapEntry();
        for (QVariant& value : properties) {
            value = plainValue(value);
        }
        interfaces[name] = properties;
    }
    argument.endMap();
    return interfaces;
}

}  // namespace

struct UdisksBus::Attempt {
    // Shared with the thread that connects, which may outlast everything else.
    std::shared_ptr<std::atomic<bool>> finished = std::make_shared<std::atomic<bool>>(false);
    QString name;  // of the connection, whether or not it came to be

    ~Attempt() {
        if (*finished) {
            QDBusConnection::disconnectFromBus(name);
        }
    }
};

UdisksBus::UdisksBus(QString address) : m_address(std::move(address)) {}

UdisksBus::~UdisksBus() = default;

bool UdisksBus::ensureConnected(std::chrono::milliseconds wait) {
    if (const auto last = this->attempt()) {
        if (!*last->finished) {
            return false;  // it has had its time
        }
        if (connectionOf(last).isConnected()) {
            return true;
        }
    }
    auto attempt = std::make_shared<Attempt>();
    attempt->name = newConnectionName();
    {
        const std::lock_guard lock(m_mutex);
        m_attempt = attempt;
    }
    // On a thread of its own: greeting a bus that does not answer takes its own long time.
    std::thread([finished = attempt->finished, name = attempt->name, address = m_address] {
        if (address.isEmpty()) {
            QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
        } else {
            QDBusConnection::connectToBus(address, name);
        }
        *finished = true;
    }).detach();
    return lookOften([&] { return attempt->finished->load(); }, wait, {}) &&
           connectionOf(attempt).isConnected();
}

std::shared_ptr<UdisksBus::Attempt> UdisksBus::attempt() const {
    const std::lock_guard lock(m_mutex);
    return m_attempt;
}

QDBusConnection UdisksBus::connectionOf(const std::shared_ptr<Attempt>& attempt) {
    return QDBusConnection(attempt ? attempt->name : QString());
}

QDBusConnection UdisksBus::connection() const {
    return connectionOf(attempt());
}

QDBusPendingCall UdisksBus::askForObjects() const {
    const auto message = QDBusMessage::createMethodCall(kUdisksService, kUdisksPath,
                                                        QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                                        QStringLiteral("GetManagedObjects"));
    return connection().asyncCall(message, kObjectsTimeoutMs);
}

std::optional<UdisksObjects> UdisksBus::objectsIn(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != u"a{oa{sa{sv}}}") {
        return std::nullopt;
    }
    const auto argument = answer.arguments().constFirst().value<QDBusArgument>();
    UdisksObjects objects;
    argument.beginMap();
    while (!argument.atEnd()) {
        QDBusObjectPath path;
        argument.beginMapEntry();
        argument >> path;
        objects[path.path()] = readInterfaces(argument);
        argument.endMapEntry();
    }
    argument.endMap();
    return objects;
}

FileDescriptor UdisksBus::openDevice(const QString& node, const StopRequest& stop) const {
    QDBusMessage message = QDBusMessage::createMethodCall(kUdisksService, udisksObjectPath(node),
                                                          QStringLiteral("org.freedesktop.UDisks2.Block"),
                                                          QStringLiteral("OpenDevice"));
    message.setArguments({QStringLiteral("r"), QVariantMap()});
    message.setInteractiveAuthorizationAllowed(true);
    const auto timeout = std::chrono::duration_cast<std::chrono::milliseconds>(kConsentTime);
    const auto kept = attempt();  // the connection lives as long as the wait
    const QDBusPendingCall call = connectionOf(kept).asyncCall(message, static_cast<int>(timeout.count()));
    if (!waitForAnswer(call, timeout, stop) || call.isError()) {
        return {};
    }
    const QVariantList arguments = call.reply().arguments();
    const auto descriptor =
        arguments.isEmpty() ? QDBusUnixFileDescriptor() : arguments.first().value<QDBusUnixFileDescriptor>();
    // The answer's own descriptor closes with the answer.
    return descriptor.isValid() ? FileDescriptor(::fcntl(descriptor.fileDescriptor(), F_DUPFD_CLOEXEC, 0))
                                : FileDescriptor();
}

FileDescriptor DescriptorDesk::openDevice(const QString& node, const StopRequest& stop) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed) {
            return {};
        }
        ++m_inside;
    }
    FileDescriptor descriptor = m_bus.openDevice(node, [&] { return m_closed || (stop && stop()); });
    const std::lock_guard lock(m_mutex);
    --m_inside;
    m_left.notify_all();
    return descriptor;
}

void DescriptorDesk::close() {
    std::unique_lock lock(m_mutex);
    m_closed = true;
    m_left.wait(lock, [this] { return m_inside == 0; });
}

bool waitForAnswer(const QDBusPendingCall& call, std::chrono::milliseconds wait, const StopRequest& stop) {
    return lookOften([&] { return call.isFinished(); }, wait, stop);
}

}  // namespace vantor
