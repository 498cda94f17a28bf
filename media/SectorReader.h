// The seam between the scans and a medium: one 512-byte sector at a time, in stream order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "media/SectorScreen.h"

namespace vantor {

inline constexpr std::size_t kSectorBytes = 512;

// A stream over a medium's sectors. Not thread-safe; one scan or copy owns it.
//
// A read that fails leaves the position and the bytes of current() as they were, exactly as single 512-byte
// reads would; how many sectors a reader fetches at once shows nowhere but in its speed.
class SectorReader {
  public:
    SectorReader() = default;
    SectorReader(const SectorReader&) = delete;
    SectorReader& operator=(const SectorReader&) = delete;
    virtual ~SectorReader() = default;

    // Reads the sector at position(). True: current() holds it and the position is one further.
    bool read() {
        if (m_next != m_windowEnd) {
            m_current = m_next;
            m_next += kSectorBytes;
            ++m_position;
            return true;
        }
        if (!fetch()) {
            return false;
        }
        ++m_position;
        return true;
    }

    // Moves to a sector, counted from the beginning of the medium; false when the medium refuses, the
    // position is then unchanged.
    bool seek(std::uint64_t sector) {
        if (!moveTo(sector)) {
            return false;
        }
        m_position = sector;
        m_next = m_windowEnd = nullptr;
        return true;
    }

    // The sector that the next read asks for.
    std::uint64_t position() const { return m_position; }

    // The 512 bytes of the last sector read; zeros before the first. Valid until the next successful read.
    const std::uint8_t* current() const { return m_current; }

    // False only when the screen has seen the bytes of current() and found them not worth a look.
    bool worthALook() const {
        return m_looks == nullptr || m_looks[(m_current - m_windowBegin) / std::ptrdiff_t{kSectorBytes}] != 0;
    }

    // Has sectors screened from here on, where the reader fetches ahead; null ends it.
    virtual void setScreen(std::shared_ptr<const SectorScreen>) {}

    // Sectors of the medium as it was opened; 0 when that is not known.
    virtual std::uint64_t mediumSectors() const { return 0; }

    // True when the medium went away for good: a refusal then says nothing of the sector.
    virtual bool isGone() { return false; }

  protected:
    // Called when nothing is fetched ahead: calls handOver() with the sector at position() and as many
    // behind it as there are.
    virtual bool fetch() = 0;

    // True when the medium can be positioned at the sector.
    virtual bool moveTo(std::uint64_t sector) = 0;

    // Gives `sectors` sectors at `bytes` to the reads, the first at once, and what the screen said of each,
    // if it was asked; both stay valid until the next fetch that succeeds.
    void handOver(const std::uint8_t* bytes, std::size_t sectors, const std::uint8_t* looks = nullptr) {
        m_windowBegin = m_current = bytes;
        m_looks = looks;
        m_next = bytes + kSectorBytes;
        m_windowEnd = bytes + sectors * kSectorBytes;
    }

  private:
    static constexpr std::uint8_t kZeros[kSectorBytes] = {};

    const std::uint8_t* m_current = kZeros;
    const std::uint8_t* m_next = nullptr;
    const std::uint8_t* m_windowEnd = nullptr;
    const std::uint8_t* m_windowBegin = kZeros;
    const std::uint8_t* m_looks = nullptr;  // one a sector from m_windowBegin on
    std::uint64_t m_position = 0;
};

}  // namespace vantor
