// The results screen with items to select, and what lies in the preview file.
#pragma once

#include <QFile>
#include <initializer_list>
#include <tuple>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {

class Preview : public WindowTest {
  protected:
    // The results screen of the mode with these items, sectors [start, end) each.
    void openResults(std::initializer_list<std::tuple<const char*, std::uint64_t, std::uint64_t>> items,
                     int mode = kRawFileMode) {
        openWithCard();
        toRange(mode);
        controller->show_hide_2_screen(true);
        controller->show_hide_4_screen_RawFile(false);
        controller->screen_counter = 3;
        for (const auto& [name, start, end] : items) {
            controller->addImageWithData_2({}, QString::fromLatin1(name), QString::fromLatin1(name), start,
                                           end);
        }
        settle();
        opened = 0;
    }
    void select(int row) {
        ImageBrowserView* browser = controller->imageBrowser_2;
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {},
                          browser->visualRect(browser->model()->index(row, 0)).center());
        settle();  // the preview begins when the click is over
    }
    QByteArray previewBytes(const char* name) const {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("absent");
    }
    QString title() const { return controller->_QuickLook_View_Box->title(); }
};

}  // namespace vantor
