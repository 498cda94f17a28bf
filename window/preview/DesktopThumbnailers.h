// The thumbnail programs that the desktop has installed, as the freedesktop thumbnailer entries describe them
// (https://specifications.freedesktop.org/thumbnail-spec, section on thumbnailers).
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <chrono>

namespace vantor {

// Thread-safe once made.
class DesktopThumbnailers {
  public:
    // Reads the entries of these folders, the first ones before the later.
    explicit DesktopThumbnailers(const QStringList& folders = standardFolders());

    // The encoded picture that the type's program makes of the file, `side` pixels at most; empty when there
    // is no program for the type, or it fails or takes too long. The program runs with limits on memory and
    // time, and shut in where the system has the means. Blocks until the deadline at most.
    QByteArray thumbnail(const QString& file, int side,
                         std::chrono::milliseconds deadline = std::chrono::seconds{6}) const;

    bool knows(const QString& mimeName) const { return m_commands.contains(mimeName); }

    static QStringList standardFolders();

  private:
    void readEntry(const QString& path);
    QString commandFor(const QString& file) const;

    QHash<QString, QString> m_commands;  // by MIME type
};

}  // namespace vantor
