// A small window without buttons that hangs over another while something takes its time.
#pragma once

#include <QObject>

class QDialog;
class QWidget;

namespace vantor {

// While it lives the sheet is shown and the window beneath takes no input, but for the widgets that `exempt`
// contains: leaving the program stays possible. The window can be closed, moved and repainted.
class SheetSession : public QObject {
  public:
    SheetSession(QDialog* sheet, QWidget* over, QWidget* exempt);
    ~SheetSession() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QDialog* m_sheet;
    QWidget* m_over;
    QWidget* m_exempt;
};

}  // namespace vantor
