// Receives and validates. The program is trusted; the checks keep a mistake of ours from becoming a stray
// pointer.
#include "decode/helper/Channel.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>

namespace vantor::decode {

namespace {

// The descriptors that came with a message, however many the control bytes hold.
std::size_t descriptorsOf(msghdr& message, std::array<int, kMaxDescriptors>& found) {
    std::size_t count = 0;
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) {
            continue;
        }
        const std::size_t sent = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        const std::size_t taken = std::min(sent, found.size() - count);
        std::memcpy(found.data() + count, CMSG_DATA(header), taken * sizeof(int));
        count += taken;
    }
    return count;
}

bool isSound(const Request& request) {
    const bool known = request.kind >= RequestKind::Picture && request.kind <= RequestKind::ReadEvidence;
    const auto sideFits = [](std::uint32_t side) { return side >= 1 && side <= kMaxAnswerSide; };
    return known && request.magic == kMessageMagic && request.serial != 0 && sideFits(request.maxWidth) &&
           sideFits(request.maxHeight) && request.inputBytes <= kMaxInputBytes &&
           request.hint[sizeof request.hint - 1] == '\0';
}

}  // namespace

bool Mapping::map(int descriptor, int protection, int flags, std::uint64_t most) {
    release();
    struct stat facts {};
    if (fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode) || facts.st_size <= 0) {
        return false;
    }
    const std::uint64_t size = std::min(static_cast<std::uint64_t>(facts.st_size), most);
    void* mapped = mmap(nullptr, size, protection, flags, descriptor, 0);
    if (mapped == MAP_FAILED) {
        return false;
    }
    m_data = static_cast<std::byte*>(mapped);
    m_size = size;
    return true;
}

void Mapping::release() {
    if (m_data) {
        munmap(m_data, m_size);
    }
    m_data = nullptr;
    m_size = 0;
}

bool Channel::sayReady(bool caged) {
    Answer ready;
    ready.status = AnswerStatus::Ready;
    ready.flags = caged ? static_cast<std::uint32_t>(kCaged) : 0;
    return answer(ready);
}

bool Channel::serve(JobDecoder& decoder) {
    for (;;) {
        Job job;
        const Received received = receive(job);
        if (received == Received::Closed) {
            return true;
        }
        Answer reply;
        if (received == Received::Malformed) {
            reply.status = AnswerStatus::BadRequest;
            answer(reply);
            return false;
        }
        reply = decoder.decode(job);
        reply.magic = kMessageMagic;
        reply.serial = job.request.serial;
        if (job.file >= 0) {
            close(job.file);
        }
        if (!answer(reply)) {
            return true;
        }
    }
}

Channel::Received Channel::receive(Job& job) {
    iovec part{&job.request, sizeof job.request};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int) * kMaxDescriptors)> control{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    ssize_t got;
    do {
        got = recvmsg(m_socket, &message, MSG_CMSG_CLOEXEC);
    } while (got < 0 && errno == EINTR);
    if (got <= 0) {
        return Received::Closed;
    }
    std::array<int, kMaxDescriptors> descriptors{};
    const std::size_t count = descriptorsOf(message, descriptors);
    const bool whole =
        got == static_cast<ssize_t>(sizeof job.request) && (message.msg_flags & MSG_CTRUNC) == 0;
    const bool taken =
        whole && isSound(job.request) && takeDescriptors(job.request, {descriptors.data(), count}, job);
    return taken ? Received::Job : Received::Malformed;
}

bool Channel::takeDescriptors(const Request& request, std::span<const int> descriptors, Job& job) {
    const auto expected = static_cast<std::size_t>(std::popcount(request.descriptors));
    if (descriptors.size() != expected) {
        return false;
    }
    std::size_t next = 0;
    if (request.descriptors & kNewInput) {
        const int descriptor = descriptors[next++];
        const bool mapped = m_input.map(descriptor, PROT_READ, MAP_SHARED, UINT64_MAX);
        close(descriptor);
        if (!mapped) {
            return false;
        }
    }
    if (request.descriptors & kNewOutput) {
        const int descriptor = descriptors[next++];
        const bool mapped = m_output.map(descriptor, PROT_READ | PROT_WRITE, MAP_SHARED, UINT64_MAX);
        close(descriptor);
        if (!mapped) {
            return false;
        }
    }
    if (request.descriptors & kInputFile) {
        job.file = descriptors[next++];
    }
    const std::uint64_t wanted = std::uint64_t{request.maxWidth} * request.maxHeight * kBytesPerPixel;
    if (m_output.size() < wanted || m_input.size() < request.inputBytes) {
        return false;
    }
    job.encoded = {m_input.data(), job.file < 0 ? request.inputBytes : 0};
    job.pixels = {m_output.data(), m_output.size()};
    return true;
}

bool Channel::answer(const Answer& reply) {
    ssize_t sent;
    do {
        sent = send(m_socket, &reply, sizeof reply, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(sizeof reply);
}

}  // namespace vantor::decode
