// A disk service inside the test process.
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QThread>
#include <atomic>
#include <memory>
#include <mutex>

#include "media/UdisksObjects.h"
#include "tests/support/PrivateBus.h"

namespace vantor::test {

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
    QStringList calls;                // "Unmount …/sdb1": what else was asked of which object
    QString refusedCall;              // of those, the one that is answered by an error
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
