// What a helper that was taken over could do to the memory it shares with the program, and that it does not
// outlive the program.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

#include "decode/HelperProcess.h"
#include "decode/SharedMemory.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;
using decode::SharedAccess;
using decode::SharedMemory;

constexpr std::uint64_t kBytes = 8192;

bool canMapForWriting(const SharedMemory& memory) {
    void* mapped = mmap(nullptr, kBytes, PROT_READ | PROT_WRITE, MAP_SHARED, memory.descriptor(), 0);
    return mapped != MAP_FAILED && munmap(mapped, kBytes) == 0;
}

TEST(SharedMemory, KeepsItsSizeWhateverTheOtherEndDoes) {
    for (const SharedAccess access : {SharedAccess::HelperReads, SharedAccess::HelperWrites}) {
        const SharedMemory memory(kBytes, access);
        ASSERT_TRUE(memory.isValid());
        EXPECT_EQ(memory.size(), kBytes);
        EXPECT_EQ(ftruncate(memory.descriptor(), 0), -1);
        EXPECT_EQ(ftruncate(memory.descriptor(), 1 << 20), -1);
        // Nor can it be sealed against us.
        EXPECT_EQ(fcntl(memory.descriptor(), F_ADD_SEALS, F_SEAL_WRITE), -1);
        memory.data()[kBytes - 1] = std::byte{7};
        EXPECT_EQ(memory.data()[kBytes - 1], std::byte{7});
    }
}

TEST(SharedMemory, OfEncodedBytes_IsForReadingOnly) {
    EXPECT_FALSE(canMapForWriting(SharedMemory(kBytes, SharedAccess::HelperReads)));
    EXPECT_TRUE(canMapForWriting(SharedMemory(kBytes, SharedAccess::HelperWrites)));
}

// Gone, or dead and waiting for somebody to ask how.
bool isDead(pid_t pid) {
    const QByteArray stat = bytesOfFile(QStringLiteral("/proc/%1/stat").arg(pid));
    return stat.isEmpty() || stat.contains(") Z ") || stat.contains(") X ");
}

TEST(HelperProcess, EndsWithTheProgramEvenWhereItHangs) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t program = fork();
    if (program == 0) {
        const auto helper = decode::HelperProcess::start(QStringLiteral(VANTOR_DECODE_HELPER), kPatience);
        const pid_t pid = helper ? helper->pid() : -1;
        [[maybe_unused]] const ssize_t told = write(ends[1], &pid, sizeof pid);
        pause();
        _exit(0);
    }
    pid_t helper = -1;
    ASSERT_EQ(read(ends[0], &helper, sizeof helper), static_cast<ssize_t>(sizeof helper));
    close(ends[0]);
    close(ends[1]);
    ASSERT_GT(helper, 0);
    // It sees nothing of the socket's other end closing.
    stopProcess(helper);
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    const auto until = std::chrono::steady_clock::now() + kPatience;
    while (!isDead(helper) && std::chrono::steady_clock::now() < until) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_TRUE(isDead(helper));
    kill(helper, isDead(helper) ? 0 : SIGKILL);
}

}  // namespace
}  // namespace vantor
