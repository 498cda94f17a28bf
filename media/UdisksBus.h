// The connection to the disk service: every wait on it is bounded, since the list must come up without it.
#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

#include "media/RawDevice.h"
#include "media/UdisksObjects.h"

class QDBusConnection;
class QDBusMessage;
class QDBusPendingCall;

namespace vantor {

// Any thread, but for connecting, which is the main thread's.
class UdisksBus {
  public:
    // `address` is that of a bus; empty stands for the system bus.
    explicit UdisksBus(QString address = {});
    ~UdisksBus();
    UdisksBus(const UdisksBus&) = delete;
    UdisksBus& operator=(const UdisksBus&) = delete;

    // True when there is a living connection; tries to make one, for `wait` at most. An attempt that takes
    // longer goes on behind the scenes and counts for a later call.
    bool ensureConnected(std::chrono::milliseconds wait);

    // The living connection, or one that is not connected.
    QDBusConnection connection() const;

    // Asks for every object; the answer comes later.
    QDBusPendingCall askForObjects() const;
    // The objects in a finished answer; nothing when it is an error or of another form.
    static std::optional<UdisksObjects> objectsIn(const QDBusMessage& answer);

    // A read-only descriptor of a device node, by the user's consent; empty when it is refused, not given
    // within ten minutes, or a stop is asked for. Also of mounted devices.
    FileDescriptor openDevice(const QString& node, const StopRequest& stop) const;

  private:
    struct Attempt;
    std::shared_ptr<Attempt> attempt() const;
    static QDBusConnection connectionOf(const std::shared_ptr<Attempt>& attempt);

    const QString m_address;
    mutable std::mutex m_mutex;
    std::shared_ptr<Attempt> m_attempt;  // guarded by m_mutex; shared with those who wait on it
};

// Where threads that may outlast the bus ask it for descriptors. Any thread.
class DescriptorDesk {
  public:
    explicit DescriptorDesk(const UdisksBus& bus) : m_bus(bus) {}

    // As UdisksBus::openDevice(); empty once the desk is closed.
    FileDescriptor openDevice(const QString& node, const StopRequest& stop);
    // Ends what is being waited for, within a moment, and returns when nobody uses the bus any more.
    void close();

  private:
    const UdisksBus& m_bus;
    std::mutex m_mutex;
    std::condition_variable m_left;
    int m_inside = 0;
    std::atomic<bool> m_closed{false};
};

// Waits for an answer, looking for it often; false when `wait` went by or a stop was asked for.
bool waitForAnswer(const QDBusPendingCall& call, std::chrono::milliseconds wait,
                   const StopRequest& stop = {});

}  // namespace vantor
