// The secondary windows of the main window, made and gone together.
#pragma once

#include "window/panels/Help_Support.h"
#include "window/panels/Panels.h"
#include "window/saving/SavingOptions.h"

namespace vantor {

struct WindowPanels {
    // `openDocument` shows a file in its default application.
    WindowPanels(QWidget* window, const QString& resourcesFolder,
                 const std::function<bool(const QString& file)>& openDocument)
        : browseInfo(window),
          saveFileInfo(window),
          saveFileInfoForRaw(window),
          clearPreview(window),
          loadDrive(window),
          help(window, resourcesFolder, openDocument),
          savingOptions(window),
          photoEnd(saveFileInfo.words()),
          rawEnd(saveFileInfoForRaw.words()) {}

    Browse_Info browseInfo;
    SaveFile_Info saveFileInfo;
    SaveFile_Info_For_RAW saveFileInfoForRaw;
    ClearPreview_Modeless clearPreview;
    LoadDrive_Modeless loadDrive;
    Help_Support help;
    SavingOptions savingOptions;

    // What the panels at the end of a search say of its results, as they were drawn.
    PanelWords photoEnd, rawEnd;
};

}  // namespace vantor
