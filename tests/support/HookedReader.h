// A reader over another one with read faults, seek faults and a look at every read.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include "media/SectorReader.h"

namespace vantor {

// Where the faults of a run are written down, which outlives its readers; none: no such faults.
struct ReadFaults {
    const std::set<std::uint64_t>* always = nullptr;
    std::map<std::uint64_t, int>* transient = nullptr;  // sector: how many reads of it still fail
    bool seekAfterFailureFails = false;
};

// Reads sector by sector through another reader, and passes on what that one's screen said of each.
class HookedReader : public SectorReader {
  public:
    // Whether the inner reader is told what the scan looks for.
    enum class Screen { Kept, PassedOn };

    HookedReader(std::unique_ptr<SectorReader> inner, const ReadFaults& faults, Screen screen)
        : m_inner(std::move(inner)), m_faults(faults), m_screen(screen) {}

    // Called before every read with the number of reads before it.
    void beforeRead(std::function<void(std::uint64_t reads)> hook) { m_hook = std::move(hook); }

    void setScreen(std::shared_ptr<const SectorScreen> screen) override {
        if (m_screen == Screen::PassedOn) {
            m_inner->setScreen(std::move(screen));
        }
    }
    void setRecall(std::shared_ptr<const SectorRecall> recall) override {
        if (m_screen == Screen::PassedOn) {
            m_inner->setRecall(std::move(recall));
        }
    }
    void wantBytes(bool wanted) override { m_inner->wantBytes(wanted); }
    void bringCurrent() override { m_inner->bringCurrent(); }
    void shareRefusals(std::shared_ptr<RefusedSectors> refusals) override {
        m_inner->shareRefusals(std::move(refusals));
    }
    bool isGone() override { return m_inner->isGone(); }
    std::uint64_t mediumSectors() const override { return m_inner->mediumSectors(); }

    // Sectors so far that the inner reader's screen passed over, of all readers of the process.
    static std::uint64_t& passedOver() {
        static std::uint64_t count = 0;
        return count;
    }

  protected:
    bool fetch() override {
        if (m_hook) {
            m_hook(m_reads);
        }
        ++m_reads;
        m_justFailed = !fetchOne();
        return !m_justFailed;
    }

    bool moveTo(std::uint64_t sector) override {
        return !(m_justFailed && m_faults.seekAfterFailureFails) && m_inner->seek(sector);
    }

  private:
    bool failsHere() {
        if (m_faults.always != nullptr && m_faults.always->contains(position())) {
            return true;
        }
        if (m_faults.transient == nullptr) {
            return false;
        }
        const auto left = m_faults.transient->find(position());
        return left != m_faults.transient->end() && left->second-- > 0;
    }

    bool fetchOne() {
        if (failsHere() || (m_inner->position() != position() && !m_inner->seek(position())) ||
            !m_inner->read()) {
            return false;
        }
        m_look = m_inner->looks();
        passedOver() += m_inner->worthALook() ? 0 : 1;
        handOver(m_inner->current(), 1, &m_look);
        return true;
    }

    std::unique_ptr<SectorReader> m_inner;
    ReadFaults m_faults;
    Screen m_screen;
    bool m_justFailed = false;
    std::uint8_t m_look = 1;
    std::uint64_t m_reads = 0;
    std::function<void(std::uint64_t)> m_hook;
};

}  // namespace vantor
