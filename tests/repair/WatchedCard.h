// A card in memory at which somebody counts the reads.
#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include "tests/repair/MemoryReader.h"

namespace vantor::test {

// A medium that is pulled out, or at which somebody waits, at a read.
class WatchedCard final : public SectorReader {
  public:
    struct Script {
        std::atomic<std::uint64_t> reads{0};
        std::uint64_t goneAt = ~std::uint64_t{0};
        std::function<void(std::uint64_t)> atRead;
    };
    WatchedCard(const QByteArray& bytes, std::shared_ptr<Script> script)
        : m_card(bytes), m_script(std::move(script)) {}
    std::uint64_t mediumSectors() const override { return m_card.mediumSectors(); }
    bool isGone() override { return m_script->reads >= m_script->goneAt; }

  protected:
    bool fetch() override {
        const std::uint64_t read = m_script->reads++;
        if (m_script->atRead) {
            m_script->atRead(read);
        }
        if (read >= m_script->goneAt || !m_card.seek(position()) || !m_card.read()) {
            return false;
        }
        handOver(m_card.current(), 1);
        return true;
    }
    bool moveTo(std::uint64_t) override { return true; }

  private:
    MemoryReader m_card;
    const std::shared_ptr<Script> m_script;
};

}  // namespace vantor::test
