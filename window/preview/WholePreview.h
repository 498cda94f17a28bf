// The file that is shown in place of the preview file: the item's true bytes, no sector more or less.
#pragma once

#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "media/WatchedReader.h"
#include "results/CarvedRun.h"
#include "results/MediumBytes.h"

namespace vantor {

class TrueCopy;

struct WholePreviewRequest {
    QString type;             // of the item
    CarvedRun carved;         // none: nothing more is known than the preview file says
    ItemHints hints;          // what else is known of it
    std::uint64_t start = 0;  // sector that the preview file begins with
    QString previewFile;
    bool faithful = false;  // the preview file holds what stands on the medium
    QString folder;         // where the private files lie; made when it is missing
    std::function<std::optional<std::uint64_t>(const QString& folder)> freeBytes;
};

// begin() and fill() run on a thread of their own, one after the other; what is told of the file holds once
// begin() has returned. The file is readable by its owner alone and goes with the object.
//
// A file too long to wait for is sparse at first: its beginning and its end are there when begin() returns,
// the rest comes with fill(), and until then is a hole. It never takes the last kLeastFreeBytes of the disk.
class WholePreview {
  public:
    static constexpr std::uint64_t kLeastFreeBytes = std::uint64_t{512} << 20;

    WholePreview();
    WholePreview(const WholePreview&) = delete;
    WholePreview& operator=(const WholePreview&) = delete;
    ~WholePreview();

    // Finds out how long the item is, and makes the file where the preview file is not as good.
    void begin(WholePreviewRequest request, std::unique_ptr<SectorReader> medium);
    // True when something is left for fill().
    bool isToBeFilled() const { return m_toBeFilled; }
    // True when the file is whole now.
    bool fill();
    // Whoever reads the medium for it returns soon; any thread.
    void cancel() { m_watch.ended = true; }
    bool wasCancelled() const { return m_watch.ended; }

    // The file to show in place of the preview file; empty when that is as good.
    QString path() const;
    // What saving would write; nothing when that could not be found out.
    std::optional<std::uint64_t> bytes() const { return m_bytes; }
    bool lengthIsKnown() const { return m_lengthKnown; }

    // Removes what a program left there that was killed.
    static void clearLeftovers(const QString& folder);

  private:
    struct PrivateFile;

    bool makeFile();
    bool hasRoomFor(std::uint64_t bytes) const;
    bool write(std::uint64_t offset, std::span<const std::uint8_t> bytes);

    WholePreviewRequest m_request;
    ReadWatch m_watch;
    std::unique_ptr<TrueCopy> m_copy;  // as long as it has something to do
    std::unique_ptr<PrivateFile> m_file;
    std::optional<std::uint64_t> m_bytes;
    bool m_lengthKnown = false;
    bool m_toBeFilled = false;
};

}  // namespace vantor
