// The thumbnail programs that the desktop has installed, as the freedesktop thumbnailer entries describe them
// (https://specifications.freedesktop.org/thumbnail-spec, section on thumbnailers).
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <chrono>
#include <mutex>

namespace vantor {

// Thread-safe once made.
class DesktopThumbnailers {
  public:
    // Reads the entries of these folders, the first ones before the later. `bubblewrap` is the program that
    // shuts others in.
    explicit DesktopThumbnailers(const QStringList& folders = standardFolders(),
                                 QString bubblewrap = standardBubblewrap());

    // The encoded picture that the type's program makes of the file, `side` pixels at most; empty when there
    // is no program for the type, or it fails or takes too long. The program runs with limits on memory and
    // time, and sees nothing of this session but the file; where it cannot be shut in, it does not run.
    // Blocks until the deadline at most, the first time a little longer.
    QByteArray thumbnail(const QString& file, int side,
                         std::chrono::milliseconds deadline = std::chrono::seconds{6}) const;

    bool knows(const QString& mimeName) const { return m_commands.contains(mimeName); }

    // There is a program for the file's type, but nothing to shut it in. Blocks as thumbnail() does.
    bool lacksCageFor(const QString& file) const;

    static QStringList standardFolders();
    static QString standardBubblewrap();

  private:
    void readEntry(const QString& path);
    QString commandFor(const QString& file) const;
    bool canShutIn() const;

    const QString m_bubblewrap;
    QHash<QString, QString> m_commands;  // by MIME type
    mutable std::once_flag m_tried;
    mutable bool m_canShutIn = false;  // once tried
};

}  // namespace vantor
