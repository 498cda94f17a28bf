// Creation with the initial state, and teardown.

#include <QFileInfo>
#include <QSettings>
#include <QThread>

#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/preview/DraggedFiles.h"
#include "window/preview/PreviewFile.h"
#include "window/preview/ViewerDesk.h"
#include "window/preview/WholePreview.h"

namespace vantor {

namespace {

constexpr std::chrono::milliseconds kTeardownPatience{5000};

// Few enough to be made while the user waits for the end of a stopped scan.
constexpr std::size_t kPhotosWaiting = 16;

// A pipe would be waited for, and all of a file is taken into memory.
bool canHoldSettings(const QString& path) {
    constexpr qint64 kMostBytes = qint64{1} << 20;
    const QFileInfo file(path);
    return !path.isEmpty() && (!file.exists() || (file.isFile() && file.size() <= kMostBytes));
}

ThumbnailQueueOptions thumbnailQueueOptions() {
    ThumbnailQueueOptions options;
    options.workers = std::max(1, QThread::idealThreadCount());
    options.maxItems = kPhotosWaiting;
    return options;
}

}  // namespace

MyTableController::MyTableController(ProgramParts parts)
    : MediaList(*parts.media),
      ScanSession(static_cast<ScanView&>(*this)),
      ControllerState(std::move(parts), [this] {
          QMetaObject::invokeMethod(this, &MyTableController::drainQueue, Qt::QueuedConnection);
      }) {
    Recovery_MODE = kPhotoMode;
    if (canHoldSettings(m_parts.settingsFile)) {
        m_settings = std::make_unique<QSettings>(m_parts.settingsFile, QSettings::IniFormat);
    }
    m_previewFolder = previewFolder(m_parts.resourcesFolder);
    m_previewHold = PreviewFolderHold(m_previewFolder);
    // A copy knows what was refused, and may come back to it.
    m_parts.openMedium = m_copied.through(knowingRefusals(std::move(m_parts.openMedium)),
                                          [this] { return stop_now == 1 || *m_leaving; });
    if (m_parts.openBeside) {
        m_parts.openBeside = m_copied.through(knowingRefusals(std::move(m_parts.openBeside)),
                                              [leaving = m_leaving] { return leaving->load(); });
    }
    setMediumOpener([this](const QString& device) { return openForSearch(device); },
                    RefusedSectorsAre::AskedForAgain);
    setAskCard(m_parts.askCard);
    setThumbnailer(m_parts.thumbnailer);
    if (m_parts.thumbnailer) {
        m_thumbnails = std::make_unique<ThumbnailQueue>(m_parts.thumbnailer, thumbnailQueueOptions());
    }
    m_wholeFolder = m_parts.privateFolder.isEmpty() ? m_previewFolder : m_parts.privateFolder;
    WholePreview::clearLeftovers(m_wholeFolder);
    loadInterface();
    wire();
    recall();
}

MyTableController::~MyTableController() {
    m_parts.media->changed = nullptr;
    shutDown(kTeardownPatience);
    endParts();
}

QColor MyTableController::getColorFromRGB(int red, int blue, int green) {
    return QColor::fromRgbF(static_cast<float>(red) / 255.0F, static_cast<float>(green) / 255.0F,
                            static_cast<float>(blue) / 255.0F, 1.0F);
}

}  // namespace vantor
