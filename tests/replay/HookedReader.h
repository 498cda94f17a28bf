// A reader over an image with read faults, seek faults and a stop request at chosen places.
#pragma once

#include <QHash>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>

#include "media/SectorReader.h"

namespace vantor {

// The faults of a whole run, shared by its readers; transient ones are used up.
struct ReadFaults {
    std::set<std::uint64_t> always;
    QHash<std::uint64_t, int> transient;  // sector: how many reads of it still fail
    bool seekAfterFailureFails = false;
};

// Reads sector by sector through another reader.
class HookedReader : public SectorReader {
  public:
    HookedReader(std::unique_ptr<SectorReader> inner, std::shared_ptr<ReadFaults> faults, bool alwaysOnly)
        : m_inner(std::move(inner)), m_faults(std::move(faults)), m_alwaysOnly(alwaysOnly) {}

    // Called once, before the read that follows `reads` earlier ones.
    void beforeRead(std::uint64_t reads, std::function<void()> hook) {
        m_hookAt = reads;
        m_hook = std::move(hook);
    }

  protected:
    bool fetch() override {
        if (m_hookAt == m_reads++) {
            m_hook();
        }
        m_justFailed = !fetchOne();
        return !m_justFailed;
    }

    bool moveTo(std::uint64_t sector) override {
        if (m_justFailed && !m_alwaysOnly && m_faults->seekAfterFailureFails) {
            return false;
        }
        return m_inner->seek(sector);
    }

  private:
    bool fetchOne() {
        if (m_faults->always.contains(position())) {
            return false;
        }
        if (!m_alwaysOnly) {
            const auto left = m_faults->transient.find(position());
            if (left != m_faults->transient.end() && left.value() > 0) {
                --left.value();
                return false;
            }
        }
        if (m_inner->position() != position() && !m_inner->seek(position())) {
            return false;
        }
        if (!m_inner->read()) {
            return false;
        }
        handOver(m_inner->current(), 1);
        return true;
    }

    std::unique_ptr<SectorReader> m_inner;
    std::shared_ptr<ReadFaults> m_faults;
    bool m_alwaysOnly;
    bool m_justFailed = false;
    std::uint64_t m_reads = 0;
    std::optional<std::uint64_t> m_hookAt;
    std::function<void()> m_hook;
};

}  // namespace vantor
