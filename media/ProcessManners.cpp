#include "media/ProcessManners.h"

#include <fcntl.h>
#include <unistd.h>

#include <QByteArray>
#include <QObject>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <new>
#include <system_error>

namespace vantor {

namespace {

struct LastWords {
    QByteArray text;  // made while there is memory for it
    int exitCode = 1;
};

LastWords& lastWords() {
    static LastWords words;
    return words;
}

[[noreturn]] void leaveWithLastWords() {
    const LastWords& words = lastWords();
    // Nobody is left to be told that this failed.
    [[maybe_unused]] const ssize_t told =
        ::write(STDERR_FILENO, words.text.constData(), static_cast<std::size_t>(words.text.size()));
    std::_Exit(words.exitCode);
}

[[noreturn]] void endUncaught() {
    try {
        if (std::current_exception()) {
            std::rethrow_exception(std::current_exception());
        }
    } catch (const std::bad_alloc&) {
        leaveWithLastWords();
    } catch (const std::system_error& refused) {
        if (refused.code() == std::errc::resource_unavailable_try_again) {
            leaveWithLastWords();
        }
    } catch (...) {
    }
    std::abort();
}

}  // namespace

void settleIntoTheProcess() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0) {
            // The lowest number that is free, which is this one.
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void endClearlyWithoutMemory(int exitCode) {
    const QString sentence =
        QObject::tr("There is not enough memory to go on. What was saved until now is whole.");
    lastWords() = {QByteArray("vantor-recovery: ") + sentence.toLocal8Bit() + '\n', exitCode};
    std::set_terminate(endUncaught);
}

}  // namespace vantor
