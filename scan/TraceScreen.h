// Lets a search come by the sectors that tell of a card's directories, besides those in which a file may
// begin.
#pragma once

#include <memory>
#include <utility>

#include "filesystem/CardCollector.h"
#include "media/SectorReader.h"

namespace vantor {

class TraceScreen final : public SectorScreen {
  public:
    explicit TraceScreen(std::shared_ptr<const SectorScreen> headers) : m_headers(std::move(headers)) {}

    void screen(const std::uint8_t* bytes, std::size_t count, std::uint8_t* looks) const override {
        m_headers->screen(bytes, count, looks);
        for (std::size_t i = 0; i < count; ++i) {
            if (looks[i] == 0 && CardCollector::isTrace(bytes + i * kSectorBytes)) {
                looks[i] = 1;
            }
        }
    }

  private:
    const std::shared_ptr<const SectorScreen> m_headers;
};

}  // namespace vantor
