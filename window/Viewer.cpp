// Found items over the whole window.
#include "results/MyImageObject.h"
#include "window/MyTableController.h"
#include "window/preview/ItemViewer.h"
#include "window/preview/PreviewFile.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {

void MyTableController::setUpViewer() {
    ViewerParts parts;
    parts.over = window->centralWidget();
    parts.itemAt = [this](qsizetype index) { return imageBrowser_itemAtIndex(nullptr, index); };
    parts.factsOf = [this](qsizetype index) { return factsOfItem(index); };
    parts.mendOf = [this](qsizetype index) {
        const auto item = imageBrowser_itemAtIndex(nullptr, index);
        return item ? m_mended->of(*item) : nullptr;
    };
    parts.placeOf = [this](qsizetype index) {
        const ImageBrowserView& browser = *browserOf(activeSet());
        return ViewedPlace{browser.rowOfIndex(index), browser.shownCount()};
    };
    parts.itemOfRow = [this](int row) { return browserOf(activeSet())->indexOfRow(row); };
    parts.choose = [this](qsizetype index) { browserOf(activeSet())->chooseIndex(index); };
    parts.order = [this](const MyImageObject& item) { return viewOrderOf(item); };
    parts.obstacle = m_parts.obstacle;
    parts.tick = [this](qsizetype index, bool ticked) { tickItems({index}, ticked); };
    parts.left = [this] {
        browserOf(activeSet())->setFocus();
        // What was chosen meanwhile is on preview beside the list.
        if (activeSet() == ControlSet::Sig) {
            m_previewDue.start(0);
        }
    };
    m_viewer = std::make_unique<ViewerDesk>(std::move(parts), m_parts.picture,
                                            m_parts.largeMovie ? m_parts.largeMovie : m_parts.movie);
    connect(m_looks.get(), &BrowserLooks::changed, m_viewer.get(), &ViewerDesk::refresh);
}

// The bytes that saving would write; of an item without a run of its own the sectors that were published.
ViewOrder MyTableController::viewOrderOf(const MyImageObject& item) const {
    ViewOrder order;
    order.file.type = item.fileType();
    order.file.carved = item.carved();
    order.file.hints.card = card();
    order.file.start = item.File_Start_Sector();
    order.file.previewFile = previewFilePath(m_wholeFolder, item.imageTitle());
    order.file.folder = m_wholeFolder;
    order.file.freeBytes = m_parts.freeBytes;
    if (order.file.carved.runs.empty() && item.File_End_Sector() > item.File_Start_Sector()) {
        order.file.carved.runs = {{item.File_Start_Sector(), item.File_End_Sector()}};
    }
    order.openMedium = [open = m_parts.openBeside ? m_parts.openBeside : m_parts.openMedium,
                        device = devicePath()] { return open ? open(device) : nullptr; };
    return order;
}

void MyTableController::openInViewer(qsizetype index) {
    if (!session && !m_ending && onScanScreen()) {
        m_viewer->open(index);
    }
}

}  // namespace vantor
