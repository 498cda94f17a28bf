// The help window: a few lines of help and the link to the help document.
#pragma once

#include <functional>

#include "window/panels/Panels.h"

class QPushButton;

namespace vantor {

class Help_Support : public Panel {
    Q_OBJECT

  public:
    // `openDocument` shows a file in its default application.
    Help_Support(QWidget* parent, const QString& resourcesFolder,
                 std::function<bool(const QString& file)> openDocument);

    void awakeFromNib() override;
    void ContinuePressed(QObject* sender);
    void HelpFilePressed(QObject* sender);

    QPushButton* _Help_File_Label = nullptr;
    // About the program, and what it remembers.
    QPushButton* aboutButton = nullptr;
    QPushButton* forgetButton = nullptr;

  private:
    QString m_resourcesFolder;
    std::function<bool(const QString&)> m_openDocument;
};

}  // namespace vantor
