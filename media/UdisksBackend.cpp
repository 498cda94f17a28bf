// Listing over the bus, and turning the service's signals into one change.
#include "media/UdisksBackend.h"

#include <QDBusConnection>
#include <QDBusObjectPath>

#include "media/DiskSequence.h"
#include "media/SysfsBackend.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 3s;
constexpr auto kSettleTime = 200ms;
constexpr std::chrono::milliseconds kLongestUnsettled = 1s;
constexpr auto kRetryTime = 5s;

}  // namespace

UdisksBackend::UdisksBackend(const QString& busAddress, const QString& root)
    : m_root(root),
      m_bus(std::make_unique<UdisksBus>(busAddress)),
      m_desk(std::make_shared<DescriptorDesk>(*m_bus)) {
    qRegisterMetaType<QDBusObjectPath>();
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleTime);
    m_retry.setInterval(kRetryTime);
    connect(&m_settle, &QTimer::timeout, this, &UdisksBackend::tell);
    connect(&m_retry, &QTimer::timeout, this, &UdisksBackend::onRetry);
}

// The bus goes here and nowhere else: a thread that is left behind in a device must not take it down while
// the program ends.
UdisksBackend::~UdisksBackend() {
    m_desk->close();
}

std::optional<QList<MediumRecord>> UdisksBackend::list() {
    const auto answer = answerWithinPatience();
    const auto objects = answer ? UdisksBus::objectsIn(*answer) : std::nullopt;
    if (!objects) {
        return std::nullopt;
    }
    QList<MediumRecord> media = udisksMedia(*objects);
    // A card that is put back is looked for by the kernel's texts, so it is known by them from the start.
    const QList<MediumTarget> present = presentTargets(m_root);
    for (MediumRecord& record : media) {
        MediumTarget& target = record.target;
        target.memory = std::make_shared<MediumMemory>();
        for (const MediumTarget& known : present) {
            if (known.path == target.path) {
                target.identity = known.identity;
            }
        }
        target.identity.diskSequence =
            diskSequenceOf(record.facts.value(QStringLiteral("DeviceIdentifier")).toString(), m_root);
    }
    return media;
}

std::optional<QDBusMessage> UdisksBackend::answerWithinPatience() {
    if (!m_bus->ensureConnected(kPatience)) {
        m_retry.start();
        return std::nullopt;
    }
    m_retry.stop();
    listen();
    if (m_late) {
        return std::nullopt;
    }
    const QDBusPendingCall call = m_bus->askForObjects();
    if (waitForAnswer(call, kPatience)) {
        return call.reply();
    }
    m_late = std::make_unique<QDBusPendingCallWatcher>(call);
    connect(m_late.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const bool answered = !m_late->isError();
        m_late.release()->deleteLater();
        if (answered) {
            m_settle.start();
        }
    });
    return std::nullopt;
}

// The service's name is left out of the matches, since naming it would ask the bus who that is, and wait.
void UdisksBackend::listen() {
    QDBusConnection bus = m_bus->connection();
    if (bus.name() == m_listeningOn) {
        return;
    }
    m_listeningOn = bus.name();
    const QString any;
    for (const char* signal : {"InterfacesAdded", "InterfacesRemoved"}) {
        bus.connect(any, kUdisksPath, QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                    QLatin1String(signal), this, SLOT(onSignal()));
    }
    for (const char* interface : {"Block", "Drive", "Filesystem", "Partition", "PartitionTable"}) {
        bus.connect(any, any, QStringLiteral("org.freedesktop.DBus.Properties"),
                    QStringLiteral("PropertiesChanged"), {kUdisksService + u'.' + QLatin1String(interface)},
                    any, this, SLOT(onSignal()));
    }
    bus.connect(any, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("NameOwnerChanged"), {kUdisksService}, any, this, SLOT(onSignal()));
    bus.connect(any, QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SLOT(onSignal()));
}

DescriptorRequest UdisksBackend::descriptorRequest() const {
    return [desk = m_desk](const QString& node, const StopRequest& stop) {
        return desk->openDevice(node, stop);
    };
}

// A device that never comes to rest does not keep the others from the list.
void UdisksBackend::onSignal() {
    if (!m_settle.isActive()) {
        m_unsettled.start();
    }
    if (!m_settle.isActive() || !m_unsettled.hasExpired(kLongestUnsettled.count())) {
        m_settle.start();
    }
}

void UdisksBackend::onRetry() {
    if (m_bus->ensureConnected(0ms)) {
        m_retry.stop();
        tell();
    }
}

void UdisksBackend::tell() {
    if (changed) {
        changed();
    }
}

}  // namespace vantor
