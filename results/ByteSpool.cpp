// Whole chunks move to the file, the oldest first.
#include "results/ByteSpool.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cstring>

namespace vantor {

std::uint64_t ByteSpool::append(std::span<const char> bytes) {
    const std::uint64_t first = m_size;
    while (!bytes.empty()) {
        const std::size_t within = m_size % kChunkBytes;
        if (within == 0) {
            m_chunks.push_back(std::make_unique<char[]>(kChunkBytes));
        }
        const std::size_t count = std::min(bytes.size(), kChunkBytes - within);
        std::memcpy(m_chunks.back().get() + within, bytes.data(), count);
        m_size += count;
        bytes = bytes.subspan(count);
        if (m_size % kChunkBytes == 0 && m_chunks.size() - m_firstInMemory > m_mostInMemory) {
            spill();
        }
    }
    return first;
}

std::size_t ByteSpool::read(std::uint64_t at, std::span<char> into) const {
    std::size_t done = 0;
    while (done < into.size() && at < m_size) {
        const std::size_t within = at % kChunkBytes;
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>({into.size() - done, kChunkBytes - within, m_size - at}));
        if (const auto& chunk = m_chunks[static_cast<std::size_t>(at / kChunkBytes)]) {
            std::memcpy(into.data() + done, chunk.get() + within, count);
        } else if (::pread(m_file.get(), into.data() + done, count, static_cast<off_t>(at)) !=
                   static_cast<ssize_t>(count)) {
            return done;
        }
        done += count;
        at += count;
    }
    return done;
}

// The oldest chunk in memory, which is full.
void ByteSpool::spill() {
    if (!m_file && !m_noFile) {
        const QString folder = m_folder ? m_folder() : QString();
        if (!folder.isEmpty()) {
            m_file = FileDescriptor(
                ::open(QFile::encodeName(folder).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
        }
        m_noFile = !m_file;
    }
    if (m_noFile) {
        return;
    }
    auto& chunk = m_chunks[m_firstInMemory];
    const auto at = static_cast<off_t>(m_firstInMemory * kChunkBytes);
    if (::pwrite(m_file.get(), chunk.get(), kChunkBytes, at) != static_cast<ssize_t>(kChunkBytes)) {
        m_noFile = true;  // full: what it holds stays there
        return;
    }
    chunk.reset();
    ++m_firstInMemory;
}

void ByteSpool::clear() {
    m_chunks.clear();
    m_file = FileDescriptor();
    m_noFile = false;
    m_firstInMemory = 0;
    m_size = 0;
}

std::uint64_t ByteSpool::bytesInMemory() const {
    return (m_chunks.size() - m_firstInMemory) * kChunkBytes;
}

}  // namespace vantor
