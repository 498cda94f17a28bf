// A message bus of a test's own.
#pragma once

#include <sys/types.h>

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace vantor::test {

// isRunning() is false where no dbus-daemon is installed.
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

}  // namespace vantor::test
