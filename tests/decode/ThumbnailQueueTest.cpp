// The queue: order, bounds, cancelling.
#include <gtest/gtest.h>
#include <signal.h>

#include <atomic>
#include <deque>
#include <map>
#include <optional>
#include <random>
#include <semaphore>
#include <thread>

#include "decode/DecodePool.h"
#include "decode/ThumbnailQueue.h"
#include "tests/decode/Fixtures.h"
#include "tests/decode/WatchedThread.h"

namespace vantor {
namespace {

using namespace test;
using std::chrono::milliseconds;

QByteArray echo(const QByteArray& bytes, const QString&) {
    return bytes;
}

TEST(ThumbnailQueue, UnevenWork_IsDeliveredInOrder) {
    constexpr int kItems = 200;
    std::deque<std::binary_semaphore> isMade;
    while (isMade.size() < kItems) {
        isMade.emplace_back(0);
    }
    ThumbnailQueue queue(
        [&](const QByteArray& bytes, const QString&) {
            const auto item = static_cast<std::size_t>(bytes.toInt());
            // Every other one is made after the one behind it, which takes a second worker.
            if (item % 2 == 0) {
                EXPECT_TRUE(isMade[item + 1].try_acquire_for(kPatience));
            }
            isMade[item].release();
            return bytes;
        },
        {.workers = 4});
    std::vector<int> delivered;
    for (int i = 0; i < kItems; ++i) {
        ASSERT_TRUE(queue.submit(QByteArray::number(i),
                                 [&](const QByteArray& made) { delivered.push_back(made.toInt()); }));
    }
    queue.flush();
    ASSERT_EQ(delivered.size(), 200U);
    EXPECT_TRUE(std::ranges::is_sorted(delivered));
    EXPECT_EQ(delivered.back(), 199);
}

TEST(ThumbnailQueue, FullQueue_BlocksTheSubmitterAndHoldsItsBound) {
    std::counting_semaphore<> gate(0);
    ThumbnailQueue queue(
        [&](const QByteArray&, const QString&) {
            gate.acquire();
            return QByteArray();
        },
        {.workers = 2, .maxBytes = 10'000});
    std::atomic<int> submitted{0};
    std::thread scan([&] {
        for (int i = 0; i < 50; ++i) {
            queue.submit(QByteArray(1000, 'x'), [](const QByteArray&) {});
            ++submitted;
        }
    });
    while (queue.bytesHeld() < 9000) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    EXPECT_LT(submitted, 50);
    gate.release(50);
    scan.join();
    queue.flush();
    EXPECT_LE(queue.mostBytesHeld(), 10'000U);
    EXPECT_EQ(queue.bytesHeld(), 0U);
}

TEST(ThumbnailQueue, ItemAboveTheBound_PassesAlone) {
    ThumbnailQueue queue(echo, {.workers = 2, .maxBytes = 100});
    std::vector<qsizetype> delivered;
    for (const int size : {50, 5000, 50}) {
        queue.submit(QByteArray(size, 'x'),
                     [&](const QByteArray& made) { delivered.push_back(made.size()); });
    }
    queue.flush();
    EXPECT_EQ(delivered, (std::vector<qsizetype>{50, 5000, 50}));
}

TEST(ThumbnailQueue, Extension_GoesWithItsItem) {
    ThumbnailQueue queue(
        [](const QByteArray& bytes, const QString& extension) { return bytes + '.' + extension.toLatin1(); },
        {.workers = 2});
    std::vector<QByteArray> delivered;
    const auto deliver = [&](const QByteArray& made) { delivered.push_back(made); };
    queue.submit("a", deliver, QStringLiteral("TGA"));
    queue.submit("b", deliver);
    queue.flush();
    EXPECT_EQ(delivered, (std::vector<QByteArray>{"a.TGA", "b."}));
}

TEST(ThumbnailQueue, ItemCount_IsBoundedToo) {
    std::counting_semaphore<> gate(0);
    ThumbnailQueue queue(
        [&](const QByteArray& bytes, const QString&) {
            gate.acquire();
            return bytes;
        },
        {.workers = 1, .maxItems = 4});
    std::atomic<int> submitted{0};
    std::thread scan([&] {
        for (int i = 0; i < 20; ++i) {
            queue.submit("x", [](const QByteArray&) {});
            ++submitted;
        }
    });
    while (submitted < 4) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    std::this_thread::sleep_for(milliseconds(20));
    EXPECT_EQ(submitted, 4);
    gate.release(20);
    scan.join();
}

TEST(ThumbnailQueue, Hurry_DeliversAtOnceInOrder_AndTheThumbnailsFollow) {
    std::counting_semaphore<> gate(0);
    ThumbnailQueue queue(
        [&](const QByteArray& bytes, const QString&) {
            gate.acquire();
            return bytes;
        },
        {.workers = 2, .maxItems = 3});
    std::mutex mutex;
    std::vector<std::pair<int, QByteArray>> delivered;
    std::map<int, QByteArray> late;
    const auto submit = [&](int i) {
        return queue.submit(
            QByteArray::number(i),
            [&, i](const QByteArray& made) {
                const std::scoped_lock lock(mutex);
                delivered.push_back({i, made});
            },
            {},
            [&, i](const QByteArray& made) {
                const std::scoped_lock lock(mutex);
                late[i] = made;
            });
    };
    std::atomic<int> submitted{0};
    std::thread scan([&] {
        for (int i = 0; i < 6; ++i) {
            submit(i);
            ++submitted;
        }
    });
    while (submitted < 3) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    queue.hurry();
    scan.join();  // a full queue holds nobody up
    queue.flush();
    {
        const std::scoped_lock lock(mutex);
        ASSERT_EQ(delivered.size(), 6U);
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(delivered[static_cast<std::size_t>(i)], (std::pair<int, QByteArray>(i, QByteArray())));
        }
        EXPECT_TRUE(late.empty());
    }
    gate.release(6);
    while (queue.bytesHeld() != 0) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    queue.cancel();
    ASSERT_EQ(late.size(), 6U);
    EXPECT_EQ(late[5], QByteArray("5"));
    queue.resume();
    delivered.clear();
    gate.release();
    submit(7);
    queue.flush();
    EXPECT_EQ(delivered.at(0).second, QByteArray("7")) << "after resuming everybody waits again";
    EXPECT_EQ(late.size(), 6U);
}

TEST(ThumbnailQueue, Cancel_DropsLateThumbnailsToo) {
    std::counting_semaphore<> gate(0);
    std::atomic<int> late{0};
    ThumbnailQueue queue(
        [&](const QByteArray& bytes, const QString&) {
            gate.acquire();
            return bytes;
        },
        {.workers = 1});
    for (int i = 0; i < 3; ++i) {
        queue.submit(
            "x", [](const QByteArray&) {}, {}, [&](const QByteArray&) { ++late; });
    }
    queue.hurry();
    queue.flush();
    queue.cancel();
    gate.release(3);
    while (queue.bytesHeld() != 0) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    EXPECT_EQ(late, 0);
}

TEST(ThumbnailQueue, Cancel_DropsWhatWaitsAndFreesTheSubmitter) {
    std::counting_semaphore<> gate(0);
    ThumbnailQueue queue(
        [&](const QByteArray& bytes, const QString&) {
            gate.acquire();
            return bytes;
        },
        {.workers = 2, .maxBytes = 4000});
    std::atomic<int> delivered{0};
    std::atomic<bool> refused{false};
    std::thread scan([&] {
        for (int i = 0; i < 100 && !refused; ++i) {
            refused = !queue.submit(QByteArray(1000, 'x'), [&](const QByteArray&) { ++delivered; });
        }
    });
    while (queue.bytesHeld() < 3000) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    queue.cancel();
    scan.join();
    EXPECT_TRUE(refused);
    EXPECT_FALSE(queue.submit("late", [&](const QByteArray&) { ++delivered; }));
    queue.flush();

    // What was under way before must not be mistaken for what comes after.
    queue.resume();
    std::vector<QByteArray> after;
    ASSERT_TRUE(queue.submit("a", [&](const QByteArray& made) { after.push_back(made); }));
    ASSERT_TRUE(queue.submit("b", [&](const QByteArray& made) { after.push_back(made); }));
    gate.release(100);
    queue.flush();
    EXPECT_EQ(after, (std::vector<QByteArray>{"a", "b"}));
    EXPECT_EQ(delivered, 0);
    // What was under way at the cancelling is let go of when its decoding ends, whenever that is.
    while (queue.bytesHeld() > 0) {
        std::this_thread::sleep_for(milliseconds(1));
    }
}

TEST(ThumbnailQueue, Destruction_WithWorkWaiting_DeliversNothingMore) {
    std::counting_semaphore<> gate(0);
    std::atomic<int> delivered{0};
    std::optional<ThumbnailQueue> queue(
        std::in_place,
        [&](const QByteArray& bytes, const QString&) {
            gate.acquire();
            return bytes;
        },
        ThumbnailQueueOptions{.workers = 2});
    for (int i = 0; i < 100; ++i) {
        queue->submit("x", [&](const QByteArray&) { ++delivered; });
    }
    WatchedThread leaving([&] { queue.reset(); });
    leaving.awaitAsleepIn({SYS_futex});  // for the workers, which are in the midst of theirs
    gate.release(100);
    leaving.join();
    EXPECT_EQ(delivered, 0);
}

// A scan's worth of pictures while somebody kills a helper after every few of them: every item comes, in
// order, with its thumbnail.
TEST(ThumbnailQueue, HelpersKilledAtRandom_EveryItemComesInOrder) {
    DecodePool pool(poolOptions(2));
    ThumbnailQueue queue([&](const QByteArray& bytes, const QString&) { return pool.thumbnail(bytes); },
                         {.workers = 2});
    constexpr int kItemsAKill = 4;
    std::counting_semaphore<> due(0);
    std::atomic<bool> over{false};
    std::atomic<int> kills{0};
    std::thread killer([&] {
        std::mt19937 random(7);
        for (due.acquire(); !over; due.acquire()) {
            std::this_thread::sleep_for(milliseconds(random() % 30));  // into the midst of something
            const std::vector<pid_t> pids = pool.helperPids();
            if (!pids.empty() && kill(pids[random() % pids.size()], SIGKILL) == 0) {
                ++kills;
            }
        }
    });
    constexpr int kItems = 300;
    std::vector<int> order;
    int shown = 0;
    for (int i = 0; i < kItems; ++i) {
        const QByteArray picture = encoded(twoColours({600 + i, 400}), "jpeg");
        queue.submit(picture, [&, i](const QByteArray& thumbnail) {
            order.push_back(i);
            shown += !thumbnail.isEmpty();
            due.release(i % kItemsAKill == 0 ? 1 : 0);
        });
    }
    queue.flush();
    over = true;
    due.release();
    killer.join();
    ASSERT_EQ(order.size(), static_cast<std::size_t>(kItems));
    EXPECT_TRUE(std::ranges::is_sorted(order));
    EXPECT_GT(kills, 0);
    // An item loses its picture only when its second helper is shot as well.
    EXPECT_GE(shown, kItems - kills / 2);
    EXPECT_EQ(pool.counts().crashed, 0U);
}

}  // namespace
}  // namespace vantor
