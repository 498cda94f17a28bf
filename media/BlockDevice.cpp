// Reading a block device, and telling a bad sector from a medium that is no longer there.
#include "media/BlockDevice.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

#include "media/AlignUp.h"
#include "media/PositionedRead.h"
#include "media/SectorReader.h"

#ifndef BLKGETDISKSEQ
#define BLKGETDISKSEQ _IOR(0x12, 128, __u64)
#endif

namespace vantor {

namespace {

using namespace std::chrono_literals;

// The kernel asks a reader for its medium every two seconds.
constexpr auto kNoticeTime = 3s;
constexpr auto kNoticeStep = 100ms;

// Unbuffered requests need memory aligned to the block.
constexpr std::size_t kBlockAlignment = 65536;

bool errorMeansGone(int error) {
    return error == ENODEV || error == ENXIO || error == ENOMEDIUM || error == EBADF;
}

}  // namespace

std::optional<BlockDeviceFacts> blockDeviceFacts(int fd) {
    std::uint64_t bytes = 0;
    if (::ioctl(fd, BLKGETSIZE64, &bytes) != 0) {
        return std::nullopt;
    }
    BlockDeviceFacts facts;
    facts.sectors = bytes / kSectorBytes;
    int blockBytes = 0;
    if (::ioctl(fd, BLKSSZGET, &blockBytes) == 0 && blockBytes > 0) {
        facts.blockBytes = static_cast<std::uint32_t>(blockBytes);
    }
    std::uint64_t sequence = 0;
    if (::ioctl(fd, BLKGETDISKSEQ, &sequence) == 0) {
        facts.diskSequence = sequence;
    }
    return facts;
}

BlockDevice::BlockDevice(FileDescriptor descriptor, const BlockDeviceFacts& facts)
    : m_descriptor(std::move(descriptor)), m_facts(facts) {
    const int flags = ::fcntl(m_descriptor.get(), F_GETFL);
    m_unbuffered = flags >= 0 && ::fcntl(m_descriptor.get(), F_SETFL, flags | O_DIRECT) == 0;
    if (!m_unbuffered) {
        ::posix_fadvise(m_descriptor.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    }
}

std::int64_t BlockDevice::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    if (m_gone || sector >= m_facts.sectors) {
        return -1;
    }
    const std::uint64_t rest = m_facts.sectors - sector;
    const std::size_t wanted = rest < into.size() / kSectorBytes ? rest * kSectorBytes : into.size();
    const std::int64_t got = ask(sector, into.first(wanted));
    const int error = errno;
    if (got <= 0) {
        m_gone = got == 0 || refusalMeansGone(error);
        return -1;
    }
    if (!sameMedium()) {
        m_gone = true;
        return -1;
    }
    if (got >= static_cast<std::int64_t>(kSectorBytes)) {
        m_lastGoodSector = sector + static_cast<std::uint64_t>(got) / kSectorBytes - 1;
    }
    return got;
}

std::uint64_t BlockDevice::blockSectors() const {
    return std::max<std::uint64_t>(1, m_facts.blockBytes / kSectorBytes);
}

// As positionedRead(), of the blocks that hold the wanted sectors.
std::int64_t BlockDevice::ask(std::uint64_t sector, std::span<std::uint8_t> into) {
    const std::uint64_t block = blockSectors();
    if (block == 1) {
        return positionedRead(m_descriptor.get(), sector * kSectorBytes, into);
    }
    const std::uint64_t first = sector - sector % block;
    const std::uint64_t end = (sector + into.size() / kSectorBytes + block - 1) / block * block;
    const std::size_t bytes = (end - first) * kSectorBytes;
    if (m_blocksBytes < bytes) {
        m_blocks.reset(new std::uint8_t[bytes + kBlockAlignment]);
        m_blocksBytes = bytes;
    }
    std::uint8_t* const blocks = alignUp(m_blocks.get(), kBlockAlignment);
    const std::int64_t got = positionedRead(m_descriptor.get(), first * kSectorBytes, {blocks, bytes});
    const std::size_t skipped = (sector - first) * kSectorBytes;
    if (got <= 0) {
        return got;
    }
    if (static_cast<std::size_t>(got) <= skipped) {
        errno = EIO;
        return -1;
    }
    const std::size_t wanted = std::min(static_cast<std::size_t>(got) - skipped, into.size());
    std::memcpy(into.data(), blocks + skipped, wanted);
    return static_cast<std::int64_t>(wanted);
}

bool BlockDevice::sameMedium() const {
    const auto now = blockDeviceFacts(m_descriptor.get());
    return now && now->sectors == m_facts.sectors && now->diskSequence == m_facts.diskSequence;
}

bool BlockDevice::refusalMeansGone(int error) {
    return errorMeansGone(error) || !sameMedium() || knownGoodSectorIsDead();
}

bool BlockDevice::knownGoodSectorIsDead() {
    if (!m_lastGoodSector || !m_unbuffered) {
        return false;
    }
    alignas(4096) std::uint8_t bytes[kSectorBytes];
    const auto deadline = std::chrono::steady_clock::now() + kNoticeTime;
    for (;;) {
        const std::int64_t got = ask(*m_lastGoodSector, {bytes, kSectorBytes});
        if (got == static_cast<std::int64_t>(kSectorBytes)) {
            return !sameMedium();
        }
        if (got == 0 || errorMeansGone(errno) || !sameMedium()) {
            return true;
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            return true;
        }
        std::this_thread::sleep_for(kNoticeStep);
    }
}

}  // namespace vantor
