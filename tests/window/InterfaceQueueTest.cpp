// The road from a scan's threads to the interface thread.
#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

#include "window/InterfaceQueue.h"

namespace vantor {
namespace {

TEST(InterfaceQueue, StepsRunInTheOrderOfPosting) {
    InterfaceQueue queue;
    std::vector<int> ran;
    for (int i = 0; i < 3; ++i) {
        queue.post([&ran, i] { ran.push_back(i); });
    }
    EXPECT_FALSE(queue.isEmpty());
    while (queue.runOne()) {
    }
    EXPECT_EQ(ran, (std::vector<int>{0, 1, 2}));
    EXPECT_TRUE(queue.isEmpty());
}

TEST(InterfaceQueue, WhoWaitsIsReleasedAfterTheStep) {
    InterfaceQueue queue;
    std::atomic<bool> ran{false};
    std::atomic<int> answer{-1};
    std::thread scan([&] { answer = queue.runAndWait([&ran] { ran = true; }) && ran ? 1 : 0; });
    while (!queue.runOne()) {
        std::this_thread::yield();
    }
    scan.join();
    EXPECT_EQ(answer, 1);
}

TEST(InterfaceQueue, WhoWaitsIsThrownWhatTheStepThrew) {
    InterfaceQueue queue;
    std::atomic<bool> caught{false};
    std::thread scan([&] {
        try {
            queue.runAndWait([] { throw std::runtime_error("raised there"); });
        } catch (const std::runtime_error&) {
            caught = true;
        }
    });
    while (!queue.runOne()) {
        std::this_thread::yield();
    }
    scan.join();
    EXPECT_TRUE(caught);
}

TEST(InterfaceQueue, WhoWaitsWakesTheOtherSide_WhichFindsTheStep) {
    std::atomic<int> woken{0};
    InterfaceQueue queue([&woken] { ++woken; });
    queue.post([] {});
    EXPECT_EQ(woken, 0);
    std::thread scan([&] { queue.runAndWait([] {}); });
    while (woken == 0) {
        std::this_thread::yield();
    }
    EXPECT_TRUE(queue.runOne());
    EXPECT_TRUE(queue.runOne()) << "the step was there before the call";
    scan.join();
    EXPECT_EQ(woken, 1);
}

TEST(InterfaceQueue, ClosingReleasesWhoWaitsWithoutTheStep) {
    InterfaceQueue queue;
    bool ran = false;
    std::atomic<int> answer{-1};
    std::thread scan([&] { answer = queue.runAndWait([&ran] { ran = true; }) ? 1 : 0; });
    while (queue.isEmpty() && answer == -1) {
        std::this_thread::yield();
    }
    queue.close();
    scan.join();
    EXPECT_EQ(answer, 0);
    EXPECT_FALSE(ran);
    EXPECT_FALSE(queue.runAndWait([] {}));
    queue.post([&ran] { ran = true; });
    EXPECT_FALSE(queue.runOne());
    EXPECT_FALSE(ran);
}

TEST(InterfaceQueue, AStepMayPostFurtherSteps) {
    InterfaceQueue queue;
    int ran = 0;
    queue.post([&] { queue.post([&ran] { ++ran; }); });
    EXPECT_TRUE(queue.runOne());
    EXPECT_TRUE(queue.runOne());
    EXPECT_EQ(ran, 1);
}

}  // namespace
}  // namespace vantor
