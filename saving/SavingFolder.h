// A folder that is written into, held open so that nothing that happens to its path leads elsewhere.
#pragma once

#include <sys/types.h>

#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <optional>

#include "media/FileDescriptor.h"

namespace vantor {

// What fails leaves the reason in errno. Any thread; copies share the open folder.
class SavingFolder {
  public:
    // The folder as the user chose it: links on the way are followed.
    static std::optional<SavingFolder> open(const QString& path);

    // A folder below this one, such as "JPG/2026-05-17", made where it is absent. No part of the way may be a
    // link (ELOOP), something else than a folder (ENOTDIR) or lead to another file system (EXDEV): somebody
    // may have planted it. `made` gets those that were absent, the outer ones first.
    std::optional<SavingFolder> below(const QString& relative, QStringList* made = nullptr) const;
    // Removes a folder below this one if there is nothing in it; no link is followed on the way to it. True
    // when it was removed.
    bool removeIfEmpty(const QString& relative) const;

    int descriptor() const { return m_folder->get(); }
    const QString& path() const { return m_path; }
    // The number of the file system it lies on; nothing when it cannot be asked any more.
    std::optional<dev_t> device() const;
    // When it was made, in nanoseconds since 1970 UTC, by which a folder that was made anew in its place is
    // told from it (numbers of inodes are given out again). Nothing where the file system does not keep it
    // to the letter.
    std::optional<std::int64_t> birth() const;
    // What was created in it survives a loss of power from here on, as far as the file system can.
    void flush() const;

  private:
    SavingFolder(FileDescriptor folder, QString path);

    std::shared_ptr<const FileDescriptor> m_folder;
    QString m_path;
};

// Why below() failed to make or open the folder at a path, for the user: without a full stop, but for
// something else that bears the name. `error` is the errno that it left.
QString whyNoFolder(const QString& path, int error);

}  // namespace vantor
