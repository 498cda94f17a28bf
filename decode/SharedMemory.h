// Memory that the program shares with one helper: made here, of a fixed size, so that the other end can
// neither shrink it under our feet nor grow it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vantor::decode {

// Who may write after the memory was made.
enum class SharedAccess { HelperReads, HelperWrites };

// An anonymous memory file with a mapping of ours. Move-only; empty when the system granted none.
class SharedMemory {
  public:
    SharedMemory() = default;
    SharedMemory(std::uint64_t bytes, SharedAccess access);
    SharedMemory(SharedMemory&& other) noexcept;
    SharedMemory& operator=(SharedMemory&& other) noexcept;
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;
    ~SharedMemory();

    bool isValid() const { return m_data != nullptr; }
    int descriptor() const { return m_descriptor; }
    std::uint64_t size() const { return m_size; }
    std::byte* data() const { return m_data; }

  private:
    void swap(SharedMemory& other) noexcept;

    int m_descriptor = -1;
    std::uint64_t m_size = 0;
    std::byte* m_data = nullptr;
};

}  // namespace vantor::decode
