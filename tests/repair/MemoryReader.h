// A medium that lies in memory.
#pragma once

#include <QByteArray>

#include "media/SectorReader.h"

namespace vantor::test {

class MemoryReader final : public SectorReader {
  public:
    explicit MemoryReader(const QByteArray& bytes) : m_bytes(bytes) {}
    std::uint64_t mediumSectors() const override {
        return static_cast<std::uint64_t>(m_bytes.size()) / kSectorBytes;
    }

  protected:
    bool fetch() override {
        if (position() >= mediumSectors()) {
            return false;
        }
        handOver(reinterpret_cast<const std::uint8_t*>(m_bytes.constData()) + position() * kSectorBytes, 1);
        return true;
    }
    bool moveTo(std::uint64_t) override { return true; }

  private:
    const QByteArray& m_bytes;
};

}  // namespace vantor::test
