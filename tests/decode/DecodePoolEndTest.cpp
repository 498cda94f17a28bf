// The end of a pool while somebody waits in it: made certain by a caller that is slow to wake.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <optional>

#include "decode/DecodePool.h"
#include "tests/decode/Fixtures.h"
#include "tests/decode/WatchedThread.h"

namespace {

// Holds a thread each time it wakes, until the pool is gone or it is plain that the pool waits for it.
class HoldOnWaking {
  public:
    ~HoldOnWaking() { close(m_poolGone); }

    void hold() {
        constexpr int kLongEnoughMs = 300;
        pollfd gone{m_poolGone, POLLIN, 0};
        if (poll(&gone, 1, kLongEnoughMs) > 0) {
            m_outlivedThePool = true;
        }
    }
    void tellPoolGone() const { EXPECT_EQ(eventfd_write(m_poolGone, 1), 0); }
    bool outlivedThePool() const { return m_outlivedThePool; }

  private:
    const int m_poolGone = eventfd(0, EFD_CLOEXEC);
    std::atomic<bool> m_outlivedThePool{false};
};

thread_local HoldOnWaking* t_hold = nullptr;

}  // namespace

// Stands before the C library's own for the whole test program.
extern "C" int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex) {
    using Wait = int (*)(pthread_cond_t*, pthread_mutex_t*);
    static const auto wait = reinterpret_cast<Wait>(dlsym(RTLD_NEXT, "pthread_cond_wait"));
    const int result = wait(condition, mutex);
    if (t_hold) {
        pthread_mutex_unlock(mutex);
        t_hold->hold();
        pthread_mutex_lock(mutex);
    }
    return result;
}

namespace vantor {
namespace {

using namespace test;

TEST(DecodePoolEnd, Destruction_WaitsForACallerThatWaitsForAHelper) {
    DecodePoolOptions options = poolOptions(1);
    options.thumbnailDeadline = std::chrono::minutes(10);
    std::optional<DecodePool> pool(std::in_place, options);
    const QByteArray small = encoded(twoColours({64, 64}), "png");
    ASSERT_FALSE(pool->thumbnail(small).isEmpty());
    stopProcess(pool->helperPids().front());
    WatchedThread asking([&] { pool->thumbnail(small); });
    asking.awaitAsleepIn(kAskingAHelper);
    HoldOnWaking hold;
    QByteArray shown = "not asked";
    WatchedThread waiting([&] {
        t_hold = &hold;
        shown = pool->thumbnail(small);
    });
    waiting.awaitAsleepIn(kWaitingForAHelper);
    pool.reset();
    hold.tellPoolGone();
    asking.join();
    waiting.join();
    EXPECT_FALSE(hold.outlivedThePool()) << "the pool went away under its caller";
    EXPECT_TRUE(shown.isEmpty());
}

}  // namespace
}  // namespace vantor
