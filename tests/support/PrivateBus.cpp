// A dbus-daemon that lets everyone do everything, and goes with the test.
#include "tests/support/PrivateBus.h"

#include <QFile>
#include <csignal>

namespace vantor::test {

PrivateBus::PrivateBus() {
    QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
    if (!configuration.open(QIODevice::WriteOnly)) {
        return;
    }
    configuration.write(
        "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
        "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n<busconfig><type>session</type>"
        "<listen>unix:dir=" +
        m_folder.path().toUtf8() +
        "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow send_destination=\"*\"/>"
        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n");
    configuration.close();
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                    QStringLiteral("--config-file=") + configuration.fileName()});
    if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead(60000)) {
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        m_pid = static_cast<pid_t>(m_daemon.processId());
    }
}

PrivateBus::~PrivateBus() {
    kill();
    m_daemon.waitForFinished();
}

void PrivateBus::kill() {
    if (m_pid > 0) {
        ::kill(m_pid, SIGKILL);
        m_pid = 0;
    }
}

}  // namespace vantor::test
