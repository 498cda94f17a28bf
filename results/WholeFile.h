// A file that appears under its name only when it is whole, and never in place of another.
#pragma once

#include <QByteArrayView>
#include <QString>
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

}  // namespace vantor
