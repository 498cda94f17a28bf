// A file that appears under its name only when it is whole, and never in place of another.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <optional>

#include "saving/SavingFolder.h"

namespace vantor {

// The name, with the number before its extension, in the 255 bytes that file systems take for a name: what is
// longer loses characters before the number.
QString cutToComponent(const QString& name, const QString& number = {});
// "name.ext" with " (n)" before the extension; n = 1 is the name itself.
QString numberedName(const QString& name, int n);

// Writes unnamed (or, where the file system cannot, under a hidden temporary name) and takes its name at the
// end. An object that is destroyed without commit() leaves nothing behind. Any one thread.
class WholeFile {
  public:
    explicit WholeFile(const SavingFolder& folder);
    // The folder is opened for this file alone.
    explicit WholeFile(const QString& folder);
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    ~WholeFile();

    // False when the file could not be created or a write failed; error() says why.
    bool isGood() const { return m_error == 0; }
    bool write(QByteArrayView bytes);

    // Seconds since 1970 UTC; to be called behind the last write().
    bool setModificationTime(std::int64_t seconds);

    // Flushes to the medium and takes the name, or the name with " (2)", " (3)" ... before its extension when
    // it is taken; the path of the file, or nothing when that failed.
    std::optional<QString> commit(const QString& name);

    QString error() const;

  private:
    void create();
    bool takeName(const QByteArray& name);
    bool takeNameOfTemporary(const QByteArray& name);
    bool fail();

    std::optional<SavingFolder> m_folder;
    QByteArray m_temporaryName;  // in the folder; empty for an unnamed file
    int m_fd = -1;
    int m_error = 0;
};

// The same of a file of the folder; a link is not followed.
void setModificationTime(const SavingFolder& folder, const QString& name, std::int64_t seconds);

// Gives a file a second name in a folder of the same file system, numbered like those of WholeFile; nothing
// where the file system has no second names.
std::optional<QString> linkAs(const QString& existing, const SavingFolder& folder, const QString& name);

// Removes the temporary files that runs which were killed left in the folder; those of runs that go on stay.
void removeLeftovers(const SavingFolder& folder);

}  // namespace vantor
