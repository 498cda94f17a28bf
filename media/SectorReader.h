// The seam between the scans and a medium: one 512-byte sector at a time, in stream order.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#include "media/SectorRecall.h"
#include "media/SectorScreen.h"

namespace vantor {

class RefusedSectors;

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
        if (m_left != 0) {
            --m_left;
            m_current += m_stride;
            ++m_position;
            return true;
        }
        if (!fetch()) {
            return false;
        }
        ++m_position;
        return true;
    }

    // Does as many reads as the fetched sectors behind current() last for, and copies their bytes, at most
    // `most` sectors; how many there were. The next read may then ask the medium.
    std::uint64_t readFetched(std::uint8_t* into, std::uint64_t most) {
        const std::uint64_t count = m_stride == kSectorBytes ? std::min(most, m_left) : 0;
        std::memcpy(into, m_current + m_stride, count * kSectorBytes);
        m_current += count * kSectorBytes;
        m_left -= count;
        m_position += count;
        return count;
    }

    // Moves to a sector, counted from the beginning of the medium; false when the medium refuses, the
    // position is then unchanged.
    bool seek(std::uint64_t sector) {
        if (!moveTo(sector)) {
            return false;
        }
        m_position = sector;
        m_left = 0;
        return true;
    }

    // The sector that the next read asks for.
    std::uint64_t position() const { return m_position; }

    // The 512 bytes of the last sector read; zeros before the first. Valid until the next successful read.
    const std::uint8_t* current() const { return m_current; }

    // What the screen said of the bytes of current(), a bit a search; all bits where it did not see them.
    std::uint8_t looks() const {
        return m_looks == nullptr ? kAllLooks
                                  : m_looks[(m_current - m_windowBegin) / std::ptrdiff_t{kSectorBytes}];
    }
    // False only when the screen has seen the bytes of current() and found them not worth a look.
    bool worthALook() const { return (looks() & kLookNow) != 0; }

    // Has sectors screened from here on, where the reader fetches many at once; null ends it.
    virtual void setScreen(std::shared_ptr<const SectorScreen>) {}

    // Sectors that the recall calls quiet may be read from here on without asking the medium; null ends it.
    // They are not worth a look, and current() is zeros.
    virtual void setRecall(std::shared_ptr<const SectorRecall>) {}
    // Whether the bytes of quiet sectors are wanted too, from the next read on; false until it is called.
    virtual void wantBytes(bool) {}
    // Puts the bytes of current() in place where it is zeros for its quietness; they stay zeros where the
    // medium no longer gives them.
    virtual void bringCurrent() {}

    // What this reader and others know to be refused they learn from each other from here on.
    virtual void shareRefusals(std::shared_ptr<RefusedSectors>) {}

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
        m_stride = kSectorBytes;
        m_left = sectors - 1;
    }

    // Gives as many reads the same 512 bytes, not worth a look.
    void handOverQuiet(const std::uint8_t* bytes, std::uint64_t sectors) {
        static constexpr std::uint8_t kNoLook = 0;
        m_windowBegin = m_current = bytes;
        m_looks = &kNoLook;
        m_stride = 0;
        m_left = sectors - 1;
    }

    // Sectors handed over that nobody has read yet.
    std::uint64_t sectorsLeft() const { return m_left; }
    void dropSectorsLeft() { m_left = 0; }

  private:
    static constexpr std::uint8_t kZeros[kSectorBytes] = {};

    const std::uint8_t* m_current = kZeros;
    const std::uint8_t* m_windowBegin = kZeros;
    const std::uint8_t* m_looks = nullptr;  // one a sector from m_windowBegin on
    std::size_t m_stride = 0;               // bytes from a sector to the next
    std::uint64_t m_left = 0;               // sectors
    std::uint64_t m_position = 0;
};

}  // namespace vantor
