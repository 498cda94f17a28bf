// The way to a medium that may have a copy.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

#include "media/MediumCopy.h"
#include "media/SectorReader.h"

namespace vantor {

// Whoever opens the medium through this reads the copy while there is one. Any thread; what opens lives on
// without it.
class CopiedMedium {
  public:
    using Opener = std::function<std::unique_ptr<SectorReader>(const QString& devicePath)>;

    // Opens the copy of that medium, or as `medium` does. `stop` ends waits for the copy, and pauses it.
    Opener through(Opener medium, StopRequest stop) const {
        return [state = m_state, medium = std::move(medium),
                stop = std::move(stop)](const QString& devicePath) -> std::unique_ptr<SectorReader> {
            if (const auto copy = state->of(devicePath)) {
                return copy->openReader(stop);
            }
            return medium ? medium(devicePath) : nullptr;
        };
    }

    // Null: no medium has one. The copy of another medium ends with the last of its readers.
    void set(const QString& devicePath, std::shared_ptr<MediumCopy> copy) {
        const std::lock_guard lock(m_state->mutex);
        m_state->device = devicePath;
        std::swap(m_state->copy, copy);
    }
    std::shared_ptr<MediumCopy> of(const QString& devicePath) const { return m_state->of(devicePath); }

  private:
    struct State {
        std::shared_ptr<MediumCopy> of(const QString& devicePath) {
            const std::lock_guard lock(mutex);
            return device == devicePath ? copy : nullptr;
        }

        std::mutex mutex;
        QString device;
        std::shared_ptr<MediumCopy> copy;
    };

    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace vantor
