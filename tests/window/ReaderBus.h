// The program as a screen reader meets it: over the accessibility bus, from another process.
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace vantor {

// One accessible of a program: the program's name on the bus, and the accessible's path there.
struct BusNode {
    QString program;
    QString path;
};

QDBusArgument& operator<<(QDBusArgument& out, const BusNode& node);
const QDBusArgument& operator>>(const QDBusArgument& in, BusNode& node);

// A client of the accessibility bus (AT-SPI 2; interfaces as in its published D-Bus descriptions). One
// thread. Calls that fail give nothing; a test sees that by what does not happen.
class ReaderBus {
  public:
    ReaderBus();

    bool isConnected() const { return m_bus.isConnected(); }

    // The program that runs as this process, as soon as it has told the bus of itself.
    std::optional<BusNode> program(qint64 processId) const;

    // The first shown, enabled accessible of this name and role ("push button"; empty: of any) below a node.
    // What was opened last is looked at first, as a dialog lies before its window.
    std::optional<BusNode> find(const BusNode& below, const QString& name, const QString& role) const;

    // What a reader can ask of an accessible. False where it does not offer that.
    bool act(const BusNode& node, const QString& action) const;
    bool write(const BusNode& node, const QString& text) const;

    // All that is shown, a line each, to be printed when something is not found.
    QStringList shown(const BusNode& below) const;

  private:
    QList<BusNode> children(const BusNode& node) const;
    QString name(const BusNode& node) const;
    QString role(const BusNode& node) const;
    QVariant property(const BusNode& node, const char* name) const;
    quint64 states(const BusNode& node) const;

    QDBusConnection m_bus;
};

}  // namespace vantor

Q_DECLARE_METATYPE(vantor::BusNode)
