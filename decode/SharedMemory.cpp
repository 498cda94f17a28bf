// Sealed anonymous memory files.
#include "decode/SharedMemory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <utility>

namespace vantor::decode {

SharedMemory::SharedMemory(std::uint64_t bytes, SharedAccess access) {
    m_descriptor = memfd_create("vantor-decode", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (m_descriptor < 0 || ftruncate(m_descriptor, static_cast<off_t>(bytes)) != 0) {
        return;
    }
    void* mapped = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, m_descriptor, 0);
    if (mapped == MAP_FAILED) {
        return;
    }
    m_data = static_cast<std::byte*>(mapped);
    m_size = bytes;
    int seals = F_SEAL_SHRINK | F_SEAL_GROW;
#ifdef F_SEAL_FUTURE_WRITE
    if (access == SharedAccess::HelperReads) {
        // Our mapping stays writable, every later one is read-only.
        seals |= F_SEAL_FUTURE_WRITE;
    }
#endif
    if (fcntl(m_descriptor, F_ADD_SEALS, seals) != 0) {
        // A kernel without that seal still keeps the size fixed.
        fcntl(m_descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW);
    }
    fcntl(m_descriptor, F_ADD_SEALS, F_SEAL_SEAL);
}

SharedMemory::SharedMemory(SharedMemory&& other) noexcept {
    swap(other);
}

SharedMemory& SharedMemory::operator=(SharedMemory&& other) noexcept {
    SharedMemory taken(std::move(other));
    swap(taken);
    return *this;
}

SharedMemory::~SharedMemory() {
    if (m_data) {
        munmap(m_data, m_size);
    }
    if (m_descriptor >= 0) {
        close(m_descriptor);
    }
}

void SharedMemory::swap(SharedMemory& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_size, other.m_size);
    std::swap(m_data, other.m_data);
}

}  // namespace vantor::decode
