// A block device as the scans read it: unbuffered, and gone for good once it went away.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "media/BlockSource.h"
#include "media/FileDescriptor.h"

namespace vantor {

// What the kernel says of an open block device.
struct BlockDeviceFacts {
    std::uint64_t sectors = 0;       // of 512 bytes
    std::uint32_t blockBytes = 512;  // smallest unit of a request
    // Number that the kernel gives to what is in the slot and never gives again (Linux 5.15,
    // Documentation/ABI/stable/sysfs-block "diskseq"); 0 where there is none.
    std::uint64_t diskSequence = 0;
};

std::optional<BlockDeviceFacts> blockDeviceFacts(int fd);

// Reads an open block device without the page cache, so that one bad sector costs one sector, the kernel
// repeats nothing on its own account, and no byte of an earlier card is ever taken for one of this. Of a
// device with larger blocks whole blocks are read.
//
// The medium counts as gone when an error says so, when its size becomes 0 or its sequence number changes, or
// when after a refusal a sector that was good before stays refused for kNoticeTime: the time the kernel may
// take to notice that a card was pulled. From then on nothing is asked of it.
class BlockDevice : public BlockSource {
  public:
    BlockDevice(FileDescriptor descriptor, const BlockDeviceFacts& facts);

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;
    bool usable() override { return !m_gone; }
    std::uint64_t sectors() const override { return m_facts.sectors; }
    std::uint64_t blockSectors() const override;

  private:
    std::int64_t ask(std::uint64_t sector, std::span<std::uint8_t> into);
    bool sameMedium() const;
    bool refusalMeansGone(int error);
    bool knownGoodSectorIsDead();

    FileDescriptor m_descriptor;
    BlockDeviceFacts m_facts;
    std::unique_ptr<std::uint8_t[]> m_blocks;  // whole blocks on their way, where these are not sectors
    std::size_t m_blocksBytes = 0;
    std::optional<std::uint64_t> m_lastGoodSector;
    bool m_unbuffered = false;
    bool m_gone = false;
};

}  // namespace vantor
