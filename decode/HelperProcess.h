// One decode helper: started, asked, given up on.
#pragma once

#include <sys/types.h>

#include <QByteArrayView>
#include <QString>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

#include "decode/DecodeProtocol.h"
#include "decode/SharedMemory.h"
#include "decode/WorkDeadline.h"

namespace vantor::decode {

// What became of a request.
enum class AskOutcome {
    Answered,
    NotTaken,     // the helper was dead already
    Died,         // the helper crashed or was ended
    Late,         // no answer by the deadline (see WorkDeadline), or the wait was cancelled
    BadAnswer,    // an answer that no helper of ours gives
    NotPossible,  // no memory or no descriptor could be had; the helper is unharmed
};

// How a helper's life ended.
struct HelperEnd {
    bool bySignal = false;
    int code = 0;  // signal or exit status
};

// Why there is no helper.
enum class StartFailure {
    None,
    NotRunning,  // it could not be started, or did not report ready in time
    NotCaged,    // the system gives it no cage, and nothing is decoded outside one
};

// Used by one thread at a time. The thread that calls start() must outlive the process: the system ends a
// helper together with the thread that started it.
class HelperProcess {
  public:
    using Clock = std::chrono::steady_clock;

    // Null when there is a failure, of which `failure` then tells. `cancel` is a descriptor that ends every
    // wait when it becomes readable; -1 for none.
    static std::unique_ptr<HelperProcess> start(const QString& executable, std::chrono::milliseconds deadline,
                                                int cancel = -1, StartFailure* failure = nullptr);
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;
    // Kills and reaps whatever still runs.
    ~HelperProcess();

    // Sends the encoded bytes and waits. After any outcome but Answered and NotPossible the helper is of no
    // further use. `request` comes with kind, bound, hint and time set; the rest is filled in here.
    AskOutcome ask(Request request, QByteArrayView encoded, std::chrono::milliseconds deadline,
                   Answer& answer);
    // The same over a file opened for reading; -1 for requests that go on with the file sent before.
    AskOutcome askFile(Request request, int file, std::chrono::milliseconds deadline, Answer& answer);

    // The pixels of the last good answer; valid until the next request.
    const std::byte* pixels() const { return m_output.data(); }

    pid_t pid() const { return m_pid; }
    std::uint64_t answered() const { return m_answered; }
    // Memory in use and processor time spent so far; nullopt, and 0, when the system does not tell.
    std::optional<std::uint64_t> residentBytes() const;
    std::chrono::milliseconds processorTime() const;

    // Kills the process if need be, reaps it and tells how it ended.
    HelperEnd finish();

  private:
    HelperProcess(pid_t pid, int socket, int cancel) : m_pid(pid), m_socket(socket), m_cancel(cancel) {}

    AskOutcome exchange(Request& request, int file, std::chrono::milliseconds deadline, Answer& answer);
    bool send(const Request& request, int file, bool withInput, bool withOutput);
    AskOutcome receive(WorkDeadline deadline, Answer& answer);

    pid_t m_pid = -1;
    int m_socket = -1;
    int m_cancel = -1;
    bool m_inputSent = false;
    bool m_outputSent = false;
    std::uint64_t m_serial = 0;
    std::uint64_t m_answered = 0;
    SharedMemory m_input;
    SharedMemory m_output;
};

}  // namespace vantor::decode
