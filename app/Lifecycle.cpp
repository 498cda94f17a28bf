// Creation with the initial state, and teardown.

#include "app/MyTableController.h"
#include "results/PreviewFile.h"
#include "results/RecoveryMode.h"

namespace vantor {

namespace {

constexpr std::chrono::milliseconds kTeardownPatience{5000};

}  // namespace

MyTableController::MyTableController(ProgramParts parts)
    : MediaList(*parts.media), ScanSession(static_cast<ScanView&>(*this)), m_parts(std::move(parts)) {
    Recovery_MODE = kPhotoMode;
    m_previewFolder = previewFolder(m_parts.resourcesFolder);
    setMediumOpener(m_parts.openMedium);
    setThumbnailer(m_parts.thumbnailer);
    loadInterface();
    wire();
}

MyTableController::~MyTableController() {
    m_parts.media->changed = nullptr;
    shutDown(kTeardownPatience);
}

QColor MyTableController::getColorFromRGB(int red, int blue, int green) {
    return QColor::fromRgbF(static_cast<float>(red) / 255.0F, static_cast<float>(green) / 255.0F,
                            static_cast<float>(blue) / 255.0F, 1.0F);
}

}  // namespace vantor
