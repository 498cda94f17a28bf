// Saving beside a search: all of it, in order, with bounded memory.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include "saving/SaveQueue.h"
#include "tests/support/SmallFiles.h"

namespace vantor {

TEST(SaveQueue, SavesAllInOrder) {
    const QTemporaryDir folder;
    ScriptedMedium medium = mediumWith({}, 0, 400);
    QStringList names;
    int opened = 0;
    SaveQueue queue(
        folder.path(), {},
        [&] {
            ++opened;
            return std::make_unique<ScriptedReader>(medium);
        },
        [&](const SaveTask& task, const SaveOutcome& outcome) {
            EXPECT_TRUE(outcome.saved) << outcome.error.toStdString();
            names.append(task.name);
        });
    QStringList expected;
    for (std::uint64_t i = 0; i < 100; ++i) {
        expected.append(QString::number(i));
        queue.add({"T", expected.last(), {{{i, i + 4}}, false}, {}});
    }
    queue.finish();
    EXPECT_EQ(names, expected);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(contentsOf(folder.filePath("T/99")),
              QByteArray(reinterpret_cast<const char*>(medium.bytes[99].data()), 2048));
}

TEST(SaveQueue, MediumThatIsGoneIsToldForEach) {
    const QTemporaryDir folder;
    int failed = 0;
    SaveQueue queue(
        folder.path(), {}, [] { return nullptr; },
        [&](const SaveTask&, const SaveOutcome& outcome) {
            failed += !outcome.saved && !outcome.error.isEmpty() ? 1 : 0;
        });
    for (std::uint64_t i = 0; i < 3; ++i) {
        queue.add({"T", QString::number(i), {{{i, i + 4}}, false}, {}});
    }
    queue.finish();
    EXPECT_EQ(failed, 3);
}

class WaitingBytes : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(SaveQueue, WaitingBytes, testing::Bool());

TEST_P(WaitingBytes, SlowDestinationHoldsTheSearchUp) {
    const bool roomCounts = GetParam();
    const QTemporaryDir folder;
    std::atomic<bool> go{false};
    std::atomic<int> added{0}, done{0};
    SaveQueue queue(
        folder.path(), {}, [] { return nullptr; },
        [&](const SaveTask&, const SaveOutcome&) {
            go.wait(false);
            ++done;
        });
    constexpr qsizetype kBytes = 40 * 1024 * 1024;
    constexpr int kTasks = 6;
    std::thread search([&] {
        for (int i = 0; i < kTasks; ++i) {
            QByteArray bytes(roomCounts ? 10 : kBytes, static_cast<char>('a' + i));
            if (roomCounts) {
                bytes.reserve(kBytes);
            }
            queue.add({"T", QString::number(i), {}, bytes});
            ++added;
        }
    });
    while (added < 3) {
        std::this_thread::yield();
    }
    // A fourth would be more than may wait; give it the time to slip through.
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(added, 3);
    go = true;
    go.notify_all();
    search.join();
    queue.finish();
    EXPECT_EQ(done, kTasks);
}

}  // namespace vantor
