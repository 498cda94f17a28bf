// The sheet that hangs over the window while found items are saved.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>

#include "scan/ScanMeter.h"

class QDialog;
class QWidget;

namespace Ui {
class SavingProgress;
}

namespace vantor {

class SaveJob;
struct SaveProgress;

// Interface thread only; the job runs elsewhere.
class SavingSheet : public QObject {
    Q_OBJECT

  public:
    SavingSheet(QWidget* over, std::shared_ptr<SaveJob> job);
    ~SavingSheet() override;

    // Shows how far the job is until it is finished, `ending` says that the program ends, or a cancelled job
    // has not answered for a second, as with a medium that hangs.
    void run(const std::function<bool()>& ending);

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showProgress();
    void cancel();
    void skip();
    void showTrouble(const SaveProgress& progress);

    std::shared_ptr<SaveJob> m_job;
    std::unique_ptr<QDialog> m_dialog;
    std::unique_ptr<Ui::SavingProgress> m_ui;
    QTimer m_poll;
    QElapsedTimer m_clock, m_sinceCancel;
    bool m_skipHasKeyboard = false;  // until the file that was skipped is left
    std::size_t m_shown = 0;         // turn of the item that the sheet shows
    ScanMeter m_meter;
};

}  // namespace vantor
