// The seam below the windows: where a medium's bytes come from.
#pragma once

#include <cstdint>
#include <span>

namespace vantor {

// A descriptor, a thread that owns one, or a script in a test. One reader owns it.
class BlockSource {
  public:
    BlockSource() = default;
    BlockSource(const BlockSource&) = delete;
    BlockSource& operator=(const BlockSource&) = delete;
    virtual ~BlockSource() = default;

    // Reads up to `into.size()` bytes (a multiple of 512) at the sector. Returns the number of bytes read,
    // which is short at the end of the medium or before a place that was refused, or -1 when not even the
    // first sector could be read. Every call asks the medium once; repeating is the caller's affair. Sources
    // that are read ahead are asked from several threads at once.
    virtual std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) = 0;

    // False when the medium is gone for good: reading and positioning then fail without asking it. Never
    // blocks.
    virtual bool usable() = 0;

    // Sectors of the medium as it was opened; 0 when that is not known. Any thread.
    virtual std::uint64_t sectors() const { return 0; }

    // Sectors of the medium's smallest unit, which are read together and refused together. Any thread.
    virtual std::uint64_t blockSectors() const { return 1; }

    // Whether several threads may ask at once, and no answer is waited for so long that a search would not
    // rather have the next one fetched meanwhile. Any thread.
    virtual bool mayBeReadAhead() const { return false; }
};

}  // namespace vantor
