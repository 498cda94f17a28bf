// A disk service and its bus inside the test process.
#pragma once

#include <sys/types.h>

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <atomic>
#include <memory>
#include <mutex>

#include "media/UdisksObjects.h"

namespace vantor::test {

// A bus of the test's own; isRunning() is false where no dbus-daemon is installed.
class PrivateBus {
  public:
    PrivateBus();
    ~PrivateBus();

    bool isRunning() const { return !m_address.isEmpty(); }
    QString address() const { return m_address; }
    void kill();  // from any thread

  private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    pid_t m_pid = 0;
};

// Answers as org.freedesktop.UDisks2 does, from a thread of its own.
class StandInUdisks : public QDBusVirtualObject {
    Q_OBJECT

  public:
    StandInUdisks(const QString& address, UdisksObjects objects);
    ~StandInUdisks() override;

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
    QString introspect(const QString&) const override { return {}; }

    // Signals the difference, object by object.
    void setObjects(const UdisksObjects& objects);
    void answerWhatWasHeldBack();

    std::atomic<bool> silent{false};  // keeps questions without answering
    QString refusal;                  // error name that OpenDevice answers with
    QString handedOut;                // file whose descriptor OpenDevice answers with
    std::atomic<int> listings{0};
    std::atomic<int> openings{0};
    int signalsSent = 0;
    QString openedPath, openedMode;  // of the last OpenDevice

  private:
    void signalPropertiesChanged(const QString& path, const QString& interface);
    QVariant managedObjects() const;
    QDBusMessage answerTo(const QDBusMessage& message);
    void send(const QDBusMessage& message);

    mutable std::mutex m_mutex;
    UdisksObjects m_objects;
    QList<QDBusMessage> m_heldBack;
    QString m_connection;
    QThread m_thread;
};

}  // namespace vantor::test
