// Where a listed medium is to be opened, and what was in the slot when it was listed.
#pragma once

#include <QHash>
#include <QString>
#include <mutex>
#include <optional>
#include <utility>

#include "media/RawDevice.h"

namespace vantor {

struct MediumTarget {
    QString path;  // device node, or an image file
    MediumIdentity identity;
};

// The targets of the last listing by device identifier. Any thread.
class MediumTargets {
  public:
    void replace(QHash<QString, MediumTarget> targets) {
        const std::lock_guard lock(m_mutex);
        m_targets = std::move(targets);
    }

    QHash<QString, MediumTarget> all() const {
        const std::lock_guard lock(m_mutex);
        return m_targets;
    }

    std::optional<MediumTarget> find(const QString& identifier) const {
        const std::lock_guard lock(m_mutex);
        const auto at = m_targets.constFind(identifier);
        return at == m_targets.constEnd() ? std::nullopt : std::optional(*at);
    }

  private:
    mutable std::mutex m_mutex;
    QHash<QString, MediumTarget> m_targets;
};

}  // namespace vantor
