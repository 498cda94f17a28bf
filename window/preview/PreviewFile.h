// Makes the one temporary file that the preview shows.
#pragma once

#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "media/FileDescriptor.h"
#include "media/SectorReader.h"

namespace vantor {

struct PreviewFileRequest {
    std::function<std::unique_ptr<SectorReader>()> openMedium;
    QString previousFile;  // deleted once the medium is open
    QString newFile;
    std::uint64_t start = 0;  // sectors [start, end)
    std::uint64_t end = 0;
    // Called with the medium behind a copy that was not ended; `faithful` when the file holds what stands
    // there.
    std::function<void(std::unique_ptr<SectorReader> medium, bool faithful)> behind;
};

// Deletes the previous preview file and copies the sectors into the new one; false when the medium cannot be
// opened: then the previous file is still there and nothing was made. Any thread; ends early when stop_now
// is 1.
bool makePreviewFile(const PreviewFileRequest& request, const std::atomic<int>& stop_now);

// Where preview files of the item are kept: `folder`/dprv.ext; without an extension, `folder`/dprv.
QString previewFilePath(const QString& folder, const QString& itemPath);

// The resources folder when it can be written to and is a build's or nobody else's to look into; else, as for
// every installed program, a folder of the user's own for the running session (0700). The resources folder as
// well when even that cannot be had: the file itself is its owner's alone (0600) in any case.
QString previewFolder(const QString& resourcesFolder);

// Says that this process keeps its preview files in the folder, as long as it lives. Where no other live one
// does, what killed ones left there is deleted first. Without the folder nothing is held.
class PreviewFolderHold {
  public:
    PreviewFolderHold() = default;
    explicit PreviewFolderHold(const QString& folder);

  private:
    FileDescriptor m_folder;
};

// Deletes every entry of the folder whose name without its extension is "dprv"; errors are ignored.
void deletePreviewFiles(const QString& folder);

}  // namespace vantor
