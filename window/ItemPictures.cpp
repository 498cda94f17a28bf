// What found items look like in the browsers: cells with pictures, or lines of details.
#include "decode/DecodePool.h"
#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/preview/DraggedFiles.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {

void MyTableController::setUpItemPictures() {
    m_dragged = std::make_unique<DraggedFiles>(m_wholeFolder);
    m_pictures = std::make_unique<CellPictures>(m_parts.look,
                                                [this](std::size_t index) { return pictureOrderOf(index); });
    connect(m_looks.get(), &BrowserLooks::looked, this, &MyTableController::wantItemPictures);
    connect(m_pictures.get(), &CellPictures::changed, this,
            [this] { browserOf(activeSet())->viewport()->update(); });
}

void MyTableController::wantItemPictures() {
    const ImageBrowserView& browser = *browserOf(activeSet());
    const bool busy = scanRunning() || m_desk->isRunning() || m_dragged->isRunning() || m_filling > 0;
    m_pictures->want(m_viewer->isOpen() ? std::vector<std::size_t>() : browser.indexesInView(),
                     browser.largestPictureSide(), busy);
}

// In both browsers alike.
void MyTableController::showDetails(bool shown) {
    for (QToolButton* button : {detailsButton, detailsButton_Sig}) {
        const QSignalBlocker quiet(button);
        button->setChecked(shown);
    }
    for (ImageBrowserView* browser : {imageBrowser, imageBrowser_2}) {
        browser->setDetailsShown(shown);
    }
    for (QSlider* slider : {_zoom_slider, zoomSlider_Sig}) {
        slider->setEnabled(!shown);
    }
}

// A photo has its thumbnail already, which does as long as cells are small and it is one; that of a photo
// that was put together shows what was found.
std::optional<ViewOrder> MyTableController::pictureOrderOf(std::size_t index) const {
    const auto item = itemAt(index);
    if (!item || (scanRunning() && item->carved().readFailed)) {
        return std::nullopt;
    }
    ViewOrder order = viewOrderOf(*item);
    order.file.hints.mend = m_mended->of(*item);
    const bool hasThumbnail = Recovery_MODE == kPhotoMode && item->imageData() != Null_Image_Data &&
                              order.file.hints.mend == nullptr;
    if (hasThumbnail && imageBrowser->pictureSide() <= kThumbnailSide * 3 / 2) {
        return std::nullopt;
    }
    return order;
}

const CellPicture* MyTableController::pictureOfItem(qsizetype index) {
    return m_pictures->find(static_cast<std::size_t>(index));
}

}  // namespace vantor
