// Keeps an image file the one that it was, whatever becomes of its name.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <ctime>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "media/FileDescriptor.h"

namespace vantor {

// A search opens its medium many times: for both passes, for pictures, for saving. Another file may have the
// image's name by then, and its bytes would be saved as what was found. The files that the first opening
// found stay open, and all read those. Any thread.
class HeldImage {
  public:
    struct Part {
        QString path;
        FileDescriptor descriptor;  // shared by all: its position is nobody's
        std::uint64_t bytes = 0;    // as the first opening found it, like the time
        timespec written = {};
    };
    using Parts = std::shared_ptr<const std::vector<Part>>;

    // The files themselves; null, with errno, when one cannot be opened or is no regular file, or when there
    // are more than may be open. `names` counts at the first time alone.
    Parts open(const QStringList& names);

    // Whether the first opening is over; nothing is asked of the names then.
    bool isOpen() const { return parts() != nullptr; }

    // Of what is open, descriptors that have positions of their own; nothing, with errno, when one is
    // refused.
    std::optional<std::vector<FileDescriptor>> openApart() const;

    // Whether a file that is held was written to since the first opening; what was found in it before need
    // not be there any more.
    bool wasWrittenTo() const;

    // Whether the names lead to the very files that are held, as they were. Of what is not opened yet they
    // do.
    bool isAsNamed() const;

  private:
    Parts parts() const;

    mutable std::mutex m_mutex;
    Parts m_parts;
};

}  // namespace vantor
