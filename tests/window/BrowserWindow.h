// The results screens with items that no scan found.
#pragma once

#include <QScrollBar>

#include "results/MyImageObject.h"
#include "tests/window/WindowTest.h"

namespace vantor {

// As many items as asked for, all the same one.
class SameItems : public ImageBrowserDataSource {
  public:
    qsizetype numberOfItemsInImageBrowser(const ImageBrowserView*) override { return count; }
    std::shared_ptr<MyImageObject> imageBrowser_itemAtIndex(const ImageBrowserView*, qsizetype) override {
        return item;
    }
    qsizetype count = 0;
    std::shared_ptr<MyImageObject> item =
        MyImageObject::initWithImage_data({}, QStringLiteral("a"), QStringLiteral("u"));
};

class Browser : public WindowTest {
  protected:
    void addPhotos(int count) {
        for (int i = 0; i < count; ++i) {
            ++m_added;
            controller->addImageWithData(QByteArray("junk"), QStringLiteral("GND%1.JPG").arg(m_added),
                                         QStringLiteral("UID%1").arg(m_added));
        }
    }
    void addRaw(const QString& name) { controller->addImageWithData_2({}, name, name, 1, 2); }
    // The last item is in view.
    static bool atEnd(const ImageBrowserView* browser) {
        return browser->verticalScrollBar()->value() == browser->verticalScrollBar()->maximum();
    }
    // Shows the photo screen with room for few items.
    void showPhotoScreen() {
        controller->show_hide_1_screen(true);
        controller->show_hide_3_screen_Photo(false);
        controller->window->resize(1024, 720);
        settle();
    }

    int m_added = 0;
};

}  // namespace vantor
