// What the world around the program may do to it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <new>
#include <system_error>
#include <thread>

#include "media/ProcessManners.h"

namespace vantor {
namespace {

bool takesWriting(int descriptor) {
    return ::write(descriptor, "x", 1) == 1;
}

// The streams are closed in a process of their own; what it finds is its exit code.
[[noreturn]] void reportClosedStreams() {
    for (int stream = 0; stream <= 2; ++stream) {
        ::close(stream);
    }
    settleIntoTheProcess();
    const int opened = ::open("/dev/null", O_RDWR);
    std::_Exit(opened <= 2 ? 1 : takesWriting(1) ? 2 : takesWriting(2) ? 3 : 0);
}

[[noreturn]] void reportOpenStreams() {
    const int file = ::open("/dev/null", O_RDWR);
    for (int stream = 0; stream <= 2; ++stream) {
        ::dup2(file, stream);
    }
    settleIntoTheProcess();
    std::_Exit(takesWriting(1) && takesWriting(2) ? 0 : 1);
}

[[noreturn]] void writeIntoAPipeThatNobodyReads() {
    settleIntoTheProcess();
    int ends[2] = {};
    const bool piped = ::pipe(ends) == 0;
    ::close(ends[0]);
    std::_Exit(piped && !takesWriting(ends[1]) && errno == EPIPE ? 0 : 1);
}

// A limit of the size of files does the same.
[[noreturn]] void raiseFileLimit() {
    settleIntoTheProcess();
    std::raise(SIGXFSZ);
    std::_Exit(0);
}

template <typename Thrown>
[[noreturn]] void throwInAThread(const Thrown& thrown) {
    endClearlyWithoutMemory(6);
    std::thread([&thrown] { throw thrown; }).join();
    std::_Exit(0);
}

}  // namespace

TEST(ProcessMannersDeathTest, ClosedStreams_AreNoPlaceForFiles) {
    EXPECT_EXIT(reportClosedStreams(), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(reportOpenStreams(), testing::ExitedWithCode(0), "");
}

TEST(ProcessMannersDeathTest, WritesFail_WhereTheyWouldEndTheProgram) {
    EXPECT_EXIT(writeIntoAPipeThatNobodyReads(), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(raiseFileLimit(), testing::ExitedWithCode(0), "");
}

TEST(ProcessMannersDeathTest, WithoutMemory_ItEndsWithASentence) {
    const char* const sentence = "There is not enough memory to go on.";
    EXPECT_EXIT(throwInAThread(std::bad_alloc()), testing::ExitedWithCode(6), sentence);
    EXPECT_EXIT(throwInAThread(std::system_error(EAGAIN, std::generic_category())),
                testing::ExitedWithCode(6), sentence);
    EXPECT_EXIT(throwInAThread(std::system_error(EPERM, std::generic_category())),
                testing::KilledBySignal(SIGABRT), "");
}

}  // namespace vantor
