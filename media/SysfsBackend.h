// Media as the kernel shows them, for machines where nothing else answers.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <optional>

#include "media/MediaBackend.h"
#include "media/SysfsMedia.h"

namespace vantor {

// The texts below `root`: sys/block, run/udev/data. Files that are missing give empty texts.
QList<SysfsDisk> readSysfsDisks(const QString& root);

// Where the media of sysfsMedia() are at the moment. Any thread.
QList<MediumTarget> presentTargets(const QString& root = {});

// `root` is "" but in tests. Looks for changes every two seconds once it was asked for a list.
class SysfsBackend : public QObject, public MediaBackend {
    Q_OBJECT

  public:
    explicit SysfsBackend(QString root = {});

    std::optional<QList<MediumRecord>> list() override;
    void rest() override { m_watch.stop(); }

  private:
    QList<MediumRecord> current() const;
    void look();

    const QString m_root;
    QList<MediumRecord> m_listed;
    QTimer m_watch;
};

}  // namespace vantor
