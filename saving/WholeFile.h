// A file that appears under its name only when it is whole, and never in place of another.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <optional>

namespace vantor {

// Writes unnamed (or, where the file system cannot, under a hidden temporary name) and takes its name at the
// end. An object that is destroyed without commit() leaves nothing behind. Any one thread.
class WholeFile {
  public:
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
    bool takeName(const QByteArray& path);
    bool fail();

    QString m_folder;
    QByteArray m_temporaryPath;  // empty for an unnamed file
    int m_fd = -1;
    int m_error = 0;
};

// Gives a file a second name in a folder of the same file system, numbered like those of WholeFile; nothing
// where the file system has no second names.
std::optional<QString> linkAs(const QString& existing, const QString& folder, const QString& name);

}  // namespace vantor
