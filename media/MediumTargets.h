// Where a listed medium is to be opened, and what was in the slot when it was listed.
#pragma once

#include <QHash>
#include <QString>
#include <mutex>
#include <optional>
#include <utility>

#include "media/SameMedium.h"

namespace vantor {

// The targets of the last listing by device identifier. Any thread.
class MediumTargets {
  public:
    // A device that is listed as it was before keeps what is remembered of it.
    void replace(QHash<QString, MediumTarget> targets) {
        const std::lock_guard lock(m_mutex);
        for (auto target = targets.begin(); target != targets.end(); ++target) {
            const MediumTarget before = m_targets.value(target.key());
            if (target->memory && isSameStay(before, *target)) {
                target->memory = before.memory;
            }
        }
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
    static bool isSameStay(const MediumTarget& a, const MediumTarget& b) {
        return a.memory && a.path == b.path && a.identity.diskSequence != 0 &&
               a.identity.diskSequence == b.identity.diskSequence;
    }

    mutable std::mutex m_mutex;
    QHash<QString, MediumTarget> m_targets;
};

}  // namespace vantor
