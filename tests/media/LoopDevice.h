// A loop device of the kernel's over a file; for tests that run as root.
#pragma once

#include <fcntl.h>
#include <linux/loop.h>
#include <sys/ioctl.h>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <cerrno>
#include <cstring>

#include "media/FileDescriptor.h"

namespace vantor::test {

class LoopDevice {
  public:
    // Read-only, since that is the kind whose file can be changed for another of the same size.
    explicit LoopDevice(const QString& file) {
        const FileDescriptor control(::open("/dev/loop-control", O_RDWR | O_CLOEXEC));
        if (!control) {
            m_why = QStringLiteral("no loop control: ") + QString::fromLocal8Bit(std::strerror(errno));
            return;
        }
        for (int attempt = 0; attempt < 5 && !m_device; ++attempt) {
            tryNumber(::ioctl(control.get(), LOOP_CTL_GET_FREE), file);
        }
    }
    ~LoopDevice() {
        if (m_device) {
            ::ioctl(m_device.get(), LOOP_CLR_FD);
        }
    }
    LoopDevice(const LoopDevice&) = delete;
    LoopDevice& operator=(const LoopDevice&) = delete;

    bool isThere() const { return static_cast<bool>(m_device); }
    QString why() const { return m_why; }
    QString node() const { return m_node; }
    QString name() const { return m_node.sliced(5); }

    // Another file of the same size: another card in the slot.
    bool swap(const QString& file) {
        const FileDescriptor other(::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC));
        return ::ioctl(m_device.get(), LOOP_CHANGE_FD, other.get()) == 0;
    }
    // Smallest unit of a request, in bytes.
    bool useBlocksOf(unsigned long bytes) { return ::ioctl(m_device.get(), LOOP_SET_BLOCK_SIZE, bytes) == 0; }
    // Past the page cache of the file's own file system; only so is what lies behind the file's end an
    // input/output error rather than zeros.
    bool useDirectRequests() { return ::ioctl(m_device.get(), LOOP_SET_DIRECT_IO, 1UL) == 0; }
    // Takes the size of its file anew.
    bool resize() { return ::ioctl(m_device.get(), LOOP_SET_CAPACITY) == 0; }

  private:
    void tryNumber(int number, const QString& file) {
        const QString node = QStringLiteral("/dev/loop%1").arg(number);
        FileDescriptor device(::open(QFile::encodeName(node).constData(), O_RDONLY | O_CLOEXEC));
        const FileDescriptor backing(::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC));
        if (number < 0 || !device || !backing || ::ioctl(device.get(), LOOP_SET_FD, backing.get()) != 0) {
            m_why = QStringLiteral("no loop device: ") + QString::fromLocal8Bit(std::strerror(errno));
            return;
        }
        m_node = node;
        m_device = std::move(device);
    }

    FileDescriptor m_device;
    QString m_node, m_why;
};

}  // namespace vantor::test
