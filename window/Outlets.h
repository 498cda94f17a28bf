// The controls of the main window under their given names, as the interface description has them.
#pragma once

#include "ui_FileTypeScreen.h"
#include "ui_MainWindow.h"
#include "ui_MediaScreen.h"
#include "ui_PhotoScreen.h"
#include "ui_RangeScreen.h"
#include "ui_RangeScreen_Sig.h"
#include "ui_RawScreen.h"

namespace vantor {

// Names that begin with an underscore and a capital are the program's own terms and kept as they are.
class Outlets : public Ui::MainWindow,
                public Ui::MediaScreen,
                public Ui::RangeScreen,
                public Ui::RangeScreen_Sig,
                public Ui::FileTypeScreen,
                public Ui::PhotoScreen,
                public Ui::RawScreen {
  protected:
    // Loads the interface description into the window.
    void loadInto(QMainWindow* window) {
        MainWindow::setupUi(window);
        MediaScreen::setupUi(mediaScreen);
        RangeScreen::setupUi(rangeScreen);
        RangeScreen_Sig::setupUi(rangeScreen_Sig);
        FileTypeScreen::setupUi(fileTypeScreen);
        PhotoScreen::setupUi(photoScreen);
        RawScreen::setupUi(rawScreen);
    }
};

}  // namespace vantor
