// Reads a medium in large windows while every failure still surfaces at its own sector.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "media/SectorReader.h"

namespace vantor {

// Where the bytes come from: a descriptor, or a script in a test.
class BlockSource {
  public:
    virtual ~BlockSource() = default;

    // Reads up to `into.size()` bytes (a multiple of 512) at the sector; the number of bytes read, which is
    // short at the end of the medium or before an unreadable place, or -1 when not even the first could be
    // read.
    virtual std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) = 0;

    // False when the medium is gone for good: then positioning fails too.
    virtual bool usable() = 0;
};

// Fetches windows of kWindowSectors; where one fails it goes on in single sectors for the length of a window,
// so that one unreadable sector is one failed read.
class WindowedReader : public SectorReader {
  public:
    static constexpr std::size_t kWindowSectors = 512;  // 256 KiB, which stays in the second-level cache

    explicit WindowedReader(std::unique_ptr<BlockSource> source);
    ~WindowedReader() override;

  protected:
    bool fetch() override;
    bool moveTo(std::uint64_t sector) override;

  private:
    bool fetchSingle();

    std::unique_ptr<BlockSource> m_source;
    // Two windows: a fetch that fails must leave the bytes of the last good sector in place.
    std::unique_ptr<std::uint8_t[]> m_storage;
    std::uint8_t* m_front;
    std::uint8_t* m_back;
    std::uint64_t m_singleUntil = 0;  // sectors before this one are read one by one
};

}  // namespace vantor
