// What waits to be shown of a browser: a scan notes it, the interface thread takes it.
#pragma once

#include <QtGlobal>
#include <atomic>

namespace vantor {

struct PendingView {
    std::atomic<bool> reload{false};
    std::atomic<qint64> scrollTo{-1};  // -1: stays where it is
};

}  // namespace vantor
