// Lets a card go by way of the desktop's disk service: unmounts what is mounted of it, and ejects it.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "media/UdisksBus.h"

namespace vantor {

// What it takes, in objects of the service; see the reference of its interfaces Drive and Filesystem
// (https://storaged.org/doc/udisks2-api/latest/).
struct Ejection {
    QString drive;
    QStringList mounted;  // file systems of that drive
};

// Nothing for what is no device, or one whose drive cannot eject.
std::optional<Ejection> ejectionOf(const UdisksObjects& objects, const QString& node);

class UdisksEjector {
  public:
    // `busAddress` is empty but in tests.
    explicit UdisksEjector(const QString& busAddress = {}) : m_bus(busAddress) {}

    // Whether the medium of this device node can be ejected; answers within some seconds. Main thread.
    bool canEject(const QString& node);
    // "" or why it failed, a sentence; asks the user for consent where that is needed. Any thread, once
    // canEject() said so.
    QString eject(const QString& node) const;

  private:
    std::optional<Ejection> ejectionNow(const QString& node) const;
    QString ask(const QString& object, const char* interface, const char* method) const;

    UdisksBus m_bus;
};

}  // namespace vantor
