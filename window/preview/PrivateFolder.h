// A folder for one user's eyes, whose lock says that its program lives.
#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

namespace vantor {

// Goes with the object, all that is in it included; WholePreview::clearLeftovers() removes those of programs
// that were killed.
struct PrivateFolder {
    explicit PrivateFolder(const QString& parent)
        : folder(parent + QStringLiteral("/shown-XXXXXX")), lock(folder.path() + QStringLiteral("/lock")) {
        lock.setStaleLockTime(0);
        held = folder.isValid() && lock.tryLock(0);
    }

    QTemporaryDir folder;  // 0700
    QLockFile lock;
    bool held = false;  // else it is of no use
};

}  // namespace vantor
