// Media as the disk utility of macOS describes them.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "media/MediaSource.h"

namespace vantor {

// Runs the utility once for every query, and waits for it. A utility that cannot run, takes longer than half
// a minute or prints no property list gives no facts.
class DiskUtilitySource : public MediaSource {
  public:
    using Enumerator = std::function<QStringList()>;

    // `volumes` gives mount paths, by default those below "/Volumes".
    explicit DiskUtilitySource(QString executable = QStringLiteral("/usr/sbin/diskutil"),
                               Enumerator volumes = {});

    QStringList mountedRemovableMedia() override;
    MediaFacts diskInfo(const QString& path) override;
    std::shared_ptr<const MediumTargets> targets() const override { return m_targets; }

  private:
    QByteArray outputFor(const QString& path) const;

    const QString m_executable;
    const Enumerator m_volumes;
    std::shared_ptr<MediumTargets> m_targets = std::make_shared<MediumTargets>();
};

}  // namespace vantor
