// A small window without buttons that hangs over another while something takes its time.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <chrono>
#include <memory>
#include <utility>
#include <vector>

class QDialog;

namespace vantor {

// While it lives the sheet is shown and the window beneath takes no input, but for the widgets that `exempt`
// contains: leaving the program stays possible. The window can be closed, moved and repainted. Keys that move
// or tick in a list reach it afterwards, up to the first that opens an item of it; a mouse button that went
// down meanwhile counts as never pressed, also when it is let go later.
class SheetSession : public QObject {
  public:
    // Shows it only when the work still goes on after `unnoticed` of the event loop's time.
    SheetSession(QDialog* sheet, QWidget* over, QWidget* exempt, std::chrono::milliseconds unnoticed = {});
    ~SheetSession() override;

    // Whether somebody has clicked twice on the widget meanwhile, or for the second time.
    bool wasDoubleClicked(const QWidget* widget) const { return m_doubleClicked == widget; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show();
    void keep(QWidget* widget, const QKeyEvent& key);

    QDialog* m_sheet;
    QWidget* m_over;
    QWidget* m_exempt;
    QPointer<QWidget> m_doubleClicked;
    bool m_buttonHeld = false;  // by a press that was taken away
    bool m_opens = false;       // a kept key does: those behind it are for what is open then
    std::vector<std::pair<QPointer<QWidget>, std::unique_ptr<QKeyEvent>>> m_keys;
};

}  // namespace vantor
