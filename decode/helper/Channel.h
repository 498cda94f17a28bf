// The helper's end of the socket: takes requests, maps what rides with them, gives answers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "decode/DecodeProtocol.h"

namespace vantor::decode {

// A shared memory mapped here; unmapped with the object.
class Mapping {
  public:
    Mapping() = default;
    Mapping(const Mapping&) = delete;
    Mapping& operator=(const Mapping&) = delete;
    ~Mapping() { release(); }

    // Maps the whole of the file, or its first `most` bytes; false leaves the mapping empty. Takes no
    // ownership of the descriptor.
    bool map(int descriptor, int protection, int flags, std::uint64_t most);
    void release();

    std::byte* data() const { return m_data; }
    std::uint64_t size() const { return m_size; }

  private:
    std::byte* m_data = nullptr;
    std::uint64_t m_size = 0;
};

// One request as the decoder sees it. The spans hold until the next one.
struct Job {
    Request request;
    std::span<const std::byte> encoded;  // empty when a file came instead
    int file = -1;                       // a movie's, or -1 to go on with the one before
    std::span<std::byte> pixels;         // at least maxWidth * maxHeight * kBytesPerPixel bytes
};

// Decodes; fills everything of the answer but magic and serial.
class JobDecoder {
  public:
    virtual ~JobDecoder() = default;
    virtual Answer decode(const Job& job) = 0;
};

class Channel {
  public:
    explicit Channel(int socket) : m_socket(socket) {}

    // False when the other end is gone.
    bool sayReady(bool caged);
    // Serves until the other end closes; false after a request that no program of ours sends.
    bool serve(JobDecoder& decoder);

    // The steps of that, for helpers whose answers are questions.
    enum class Received { Job, Closed, Malformed };
    Received receive(Job& job);
    // False when the other end is gone.
    bool answer(const Answer& answer);

  private:
    bool takeDescriptors(const Request& request, std::span<const int> descriptors, Job& job);

    int m_socket;
    Mapping m_input;
    Mapping m_output;
};

}  // namespace vantor::decode
