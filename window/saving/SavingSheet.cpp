// Polling the job, and the words for what it says.
#include "window/saving/SavingSheet.h"

#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>

#include "results/SizeForPeople.h"
#include "saving/SaveJob.h"
#include "ui_SavingProgress.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPollMilliseconds = 20;
constexpr qint64 kCancelPatience = 1000;  // milliseconds
constexpr int kBarSteps = 1000;

}  // namespace

SavingSheet::SavingSheet(QWidget* over, std::shared_ptr<SaveJob> job)
    : m_job(std::move(job)),
      m_dialog(std::make_unique<QDialog>(over)),
      m_ui(std::make_unique<Ui::SavingProgress>()) {
    m_ui->setupUi(m_dialog.get());
    m_dialog->setWindowModality(Qt::WindowModal);
    setCommonBackground(m_dialog.get());
    m_ui->saveBar->setMaximum(kBarSteps);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &SavingSheet::cancel);
    connect(m_ui->skipButton, &QPushButton::clicked, this, &SavingSheet::skip);
    m_dialog->installEventFilter(this);
    // Neither button has the keyboard by itself: what was meant for the list would end the saving.
    m_dialog->setFocusPolicy(Qt::StrongFocus);
    m_dialog->setFocus();
    m_meter.begin(m_job->total());
    m_clock.start();
    showProgress();
}

SavingSheet::~SavingSheet() = default;

void SavingSheet::run(const std::function<bool()>& ending) {
    QEventLoop loop;
    connect(&m_poll, &QTimer::timeout, &loop, [&] {
        showProgress();
        const bool hangs = m_sinceCancel.isValid() && m_sinceCancel.elapsed() > kCancelPatience;
        if (m_job->isFinished() || hangs || ending()) {
            loop.quit();
        }
    });
    m_poll.start(kPollMilliseconds);
    m_dialog->show();
    loop.exec();
    m_poll.stop();
    m_dialog->hide();
}

// Escape and the close button cancel too; the sheet goes when the job has ended. Return presses the button
// that has the keyboard, and no other.
bool SavingSheet::eventFilter(QObject* watched, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (event->type() == QEvent::Close || key == Qt::Key_Escape) {
        cancel();
        event->ignore();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (auto* const button = qobject_cast<QPushButton*>(m_dialog->focusWidget())) {
            button->click();
        }
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void SavingSheet::cancel() {
    m_job->cancel();
    if (!m_sinceCancel.isValid()) {
        m_sinceCancel.start();
    }
    m_ui->cancelButton->setEnabled(false);
    m_ui->skipButton->setEnabled(false);
    showProgress();
}

// The file that the sheet names, not one that came to hand meanwhile.
void SavingSheet::skip() {
    m_job->skip(m_shown);
    // Not to the button beside it.
    m_skipHasKeyboard = m_ui->skipButton->hasFocus();
    if (m_skipHasKeyboard) {
        m_dialog->setFocus();
    }
    m_ui->skipButton->setEnabled(false);
}

// What holds a file up, and the way past it.
void SavingSheet::showTrouble(const SaveProgress& progress) {
    if (m_shown != progress.turn) {
        m_shown = progress.turn;
        m_ui->skipButton->setEnabled(!m_job->isCancelled());
        if (m_skipHasKeyboard && m_dialog->focusWidget() == m_dialog.get()) {
            m_ui->skipButton->setFocus();
        }
    }
    const bool trouble = progress.refused > 0;
    m_ui->saveTroubleLabel->setText(
        trouble ? tr("The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies "
                     "behind them is read all the same.")
                      .arg(numberForPeople(progress.refused))
                : QString());
    m_ui->saveTroubleLabel->setVisible(trouble);
}

void SavingSheet::showProgress() {
    const SaveProgress progress = m_job->progress();
    m_meter.update(m_clock.elapsed(), progress.share);
    const std::size_t at = std::min(progress.done + 1, m_job->count());
    showTrouble(progress);
    const bool checking = progress.toCheck > 0;
    const std::size_t checked = std::min(progress.checked + 1, progress.toCheck);
    m_ui->saveHeading->setText(
        checking ? tr("Checking the content of %1 of %2")
                       .arg(numberForPeople(checked), numberForPeople(progress.toCheck))
                 : tr("Saving %1 of %2").arg(numberForPeople(at), numberForPeople(m_job->count())));
    m_ui->saveFileLabel->setText(m_ui->saveFileLabel->fontMetrics().elidedText(
        progress.current, Qt::ElideMiddle, m_ui->saveFileLabel->width()));
    const auto [done, of] = checking
                                ? std::pair<std::uint64_t, std::uint64_t>(progress.checked, progress.toCheck)
                                : std::pair(progress.share, m_job->total());
    m_ui->saveBar->setValue(
        of > 0 ? static_cast<int>(static_cast<double>(done) / static_cast<double>(of) * kBarSteps) : 0);
    m_ui->saveFactsLabel->setText(m_job->isCancelled() ? tr("Cancelling…")
                                  : checking           ? tr("Nothing more is read from the medium. "
                                                                      "Cancel ends this check only.")
                                                       : m_meter.speedAndTimeLeft());
}

}  // namespace vantor
