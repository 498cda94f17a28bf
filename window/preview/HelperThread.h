// A thread that asks a helper and waits for orders in between, and is called back from either at once.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "decode/CancelSignal.h"

namespace vantor {

struct HelperThread {
    // To be called before anything goes that the thread uses.
    void end() {
        {
            const std::lock_guard guard(lock);
            closing = true;
        }
        cancel.raise();
        changed.notify_all();
        thread.join();
    }

    std::mutex lock;  // of what the thread and its owner share
    std::condition_variable changed;
    bool closing = false;  // the thread returns when it sees this
    CancelSignal cancel;   // for the helper that the thread asks
    std::thread thread;
};

}  // namespace vantor
