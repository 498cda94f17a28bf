// Bytes that are written once and looked up now and then: in memory while they are few, behind that in a file
// without a name.
#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "media/FileDescriptor.h"

namespace vantor {

// Any one thread at a time.
class ByteSpool {
  public:
    static constexpr std::size_t kChunkBytes = std::size_t{1} << 20;
    static constexpr std::size_t kMostChunksInMemory = 256;

    // Names the folder for the file when it is needed first; where it names none, or the file cannot grow,
    // all stays in memory.
    using Folder = std::function<QString()>;

    explicit ByteSpool(std::size_t mostChunksInMemory = kMostChunksInMemory)
        : m_mostInMemory(mostChunksInMemory) {}

    void setFolder(Folder folder) { m_folder = std::move(folder); }

    // The position of the first byte.
    std::uint64_t append(std::span<const char> bytes);
    // Of [at, at + into.size()) the bytes that there are, from the first on; fewer also where the file cannot
    // be read.
    std::size_t read(std::uint64_t at, std::span<char> into) const;
    void clear();

    std::uint64_t size() const { return m_size; }
    std::uint64_t bytesInMemory() const;

  private:
    void spill();

    const std::size_t m_mostInMemory;
    Folder m_folder;
    FileDescriptor m_file;
    bool m_noFile = false;                          // there is none to be had
    std::vector<std::unique_ptr<char[]>> m_chunks;  // null: in the file, at the same position
    std::size_t m_firstInMemory = 0;
    std::uint64_t m_size = 0;
};

}  // namespace vantor
