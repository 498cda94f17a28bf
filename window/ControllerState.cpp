#include "window/ControllerState.h"

#include <QMainWindow>
#include <QSettings>

#include "window/preview/CellPictures.h"
#include "window/preview/DraggedFiles.h"
#include "window/preview/ViewerDesk.h"
#include "window/preview/WholePreview.h"

namespace vantor {

ControllerState::ControllerState(ProgramParts parts, std::function<void()> queued)
    : m_parts(std::move(parts)), m_queue(std::move(queued)) {}

ControllerState::~ControllerState() = default;

void ControllerState::endParts() {
    m_mending.stop();
    m_dragged.reset();
    m_pictures.reset();
    m_viewer.reset();
    m_desk.reset();
    m_looks.reset();
    m_thumbnails.reset();
    m_panels.reset();
    m_range = {};
    m_window.reset();
}

}  // namespace vantor
