#include "tests/window/ReaderBus.h"

#include <QDBusInterface>
#include <QDBusMetaType>
#include <QDBusReply>

namespace vantor {
namespace {

constexpr int kEnabled = 8;  // numbers of AT-SPI's states
constexpr int kShowing = 25;

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");

QDBusConnection accessibilityBus() {
    const QDBusReply<QString> address =
        QDBusInterface(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                       QStringLiteral("org.a11y.Bus"))
            .call(QStringLiteral("GetAddress"));
    return QDBusConnection::connectToBus(address.value(), QStringLiteral("accessibility"));
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& out, const BusNode& node) {
    out.beginStructure();
    out << node.program << QDBusObjectPath(node.path);
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, BusNode& node) {
    QDBusObjectPath path;
    in.beginStructure();
    in >> node.program >> path;
    in.endStructure();
    node.path = path.path();
    return in;
}

ReaderBus::ReaderBus() : m_bus(accessibilityBus()) {
    qDBusRegisterMetaType<BusNode>();
    qDBusRegisterMetaType<QList<BusNode>>();
}

QList<BusNode> ReaderBus::children(const BusNode& node) const {
    const QDBusReply<QList<BusNode>> reply =
        QDBusInterface(node.program, node.path, kAccessible, m_bus).call(QStringLiteral("GetChildren"));
    return reply.value();
}

QVariant ReaderBus::property(const BusNode& node, const char* name) const {
    const QDBusReply<QDBusVariant> reply =
        QDBusInterface(node.program, node.path, QStringLiteral("org.freedesktop.DBus.Properties"), m_bus)
            .call(QStringLiteral("Get"), kAccessible, QString::fromLatin1(name));
    return reply.value().variant();
}

QString ReaderBus::name(const BusNode& node) const {
    return property(node, "Name").toString();
}

QString ReaderBus::role(const BusNode& node) const {
    const QDBusReply<QString> reply =
        QDBusInterface(node.program, node.path, kAccessible, m_bus).call(QStringLiteral("GetRoleName"));
    return reply.value();
}

quint64 ReaderBus::states(const BusNode& node) const {
    const QDBusReply<QList<uint>> reply =
        QDBusInterface(node.program, node.path, kAccessible, m_bus).call(QStringLiteral("GetState"));
    const QList<uint> words = reply.value();
    return words.value(0) | quint64{words.value(1)} << 32;
}

std::optional<BusNode> ReaderBus::program(qint64 processId) const {
    const BusNode registry{QStringLiteral("org.a11y.atspi.Registry"),
                           QStringLiteral("/org/a11y/atspi/accessible/root")};
    for (const BusNode& program : children(registry)) {
        const QDBusReply<uint> owner =
            QDBusInterface(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                           QStringLiteral("org.freedesktop.DBus"), m_bus)
                .call(QStringLiteral("GetConnectionUnixProcessID"), program.program);
        if (owner.isValid() && owner.value() == processId) {
            return program;
        }
    }
    return std::nullopt;
}

std::optional<BusNode> ReaderBus::find(const BusNode& below, const QString& name, const QString& role) const {
    constexpr quint64 kUsable = quint64{1} << kShowing | quint64{1} << kEnabled;
    const QList<BusNode> inside = children(below);
    for (auto node = inside.crbegin(); node != inside.crend(); ++node) {
        if ((states(*node) & kUsable) != kUsable) {
            continue;
        }
        if (this->name(*node) == name && (role.isEmpty() || this->role(*node) == role)) {
            return *node;
        }
        if (const auto found = find(*node, name, role)) {
            return found;
        }
    }
    return std::nullopt;
}

bool ReaderBus::act(const BusNode& node, const QString& action) const {
    QDBusInterface actions(node.program, node.path, QStringLiteral("org.a11y.atspi.Action"), m_bus);
    const QVariant count = actions.property("NActions");
    for (int at = 0; at < count.toInt(); ++at) {
        if (QDBusReply<QString>(actions.call(QStringLiteral("GetName"), at)).value() == action) {
            return QDBusReply<bool>(actions.call(QStringLiteral("DoAction"), at)).value();
        }
    }
    return false;
}

bool ReaderBus::write(const BusNode& node, const QString& text) const {
    return QDBusReply<bool>(
               QDBusInterface(node.program, node.path, QStringLiteral("org.a11y.atspi.EditableText"), m_bus)
                   .call(QStringLiteral("SetTextContents"), text))
        .value();
}

QStringList ReaderBus::shown(const BusNode& below) const {
    QStringList lines;
    for (const BusNode& node : children(below)) {
        if ((states(node) >> kShowing & 1) != 0) {
            lines.append(role(node) + QStringLiteral(": ") + name(node));
            lines.append(shown(node));
        }
    }
    return lines;
}

}  // namespace vantor
