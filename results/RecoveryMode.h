// The process-wide recovery mode.
#pragma once

#include <atomic>

namespace vantor {

enum RecoveryMode : int { kPhotoMode = 0, kVideoMode = 1, kRawFileMode = 2 };

// Set on the first wizard screen, read by the scans, the browser items, the preview and the end panels; any
// thread.
inline std::atomic<int> Recovery_MODE{kPhotoMode};

}  // namespace vantor
