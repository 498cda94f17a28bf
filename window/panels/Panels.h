// The six secondary windows, each with its small controller.
#pragma once

#include <QDialog>
#include <QObject>
#include <QString>
#include <memory>

namespace vantor {

// The code that a panel's button stops its modal loop with.
inline constexpr int kButtonPressed = 1;

// Runs a modal loop for a panel's window and takes it off the screen; gives the code that the loop was
// stopped with, 0 when the window was closed in another way.
int runModalForWindow(QDialog* window);

// What a panel says beside its buttons.
struct PanelWords {
    QString picture;  // name of an icon
    QString heading;
    QString text;
};

// What every panel does: it owns its window, gives it the common background and is its delegate. Interface
// thread only.
class Panel : public QObject {
    Q_OBJECT

  public:
    ~Panel() override;

    // Called once the window is loaded.
    virtual void awakeFromNib();

    // Of a panel that has a heading: what it says, and what it is to say from now on.
    PanelWords words() const;
    void setWords(const PanelWords& words);

    QDialog* window = nullptr;

  protected:
    explicit Panel(QWidget* parent, Qt::WindowFlags flags = {});
    void stopModalWithCode(int code);

  private:
    std::unique_ptr<QDialog> m_window;
};

// Before the folder chooser opens.
class Browse_Info : public Panel {
    Q_OBJECT
  public:
    explicit Browse_Info(QWidget* parent);
    void Continue_Btn(QObject* sender);
};

// At the end of a photo scan.
class SaveFile_Info : public Panel {
    Q_OBJECT
  public:
    explicit SaveFile_Info(QWidget* parent);
    void OK_Btn(QObject* sender);
};

// At the end of a video or raw-file scan.
class SaveFile_Info_For_RAW : public Panel {
    Q_OBJECT
  public:
    explicit SaveFile_Info_For_RAW(QWidget* parent);
    void OK_Btn(QObject* sender);
};

// While a preview is copied.
class ClearPreview_Modeless : public Panel {
    Q_OBJECT
  public:
    explicit ClearPreview_Modeless(QWidget* parent);
};

// While the media list is loaded.
class LoadDrive_Modeless : public Panel {
    Q_OBJECT
  public:
    explicit LoadDrive_Modeless(QWidget* parent);
};

}  // namespace vantor
