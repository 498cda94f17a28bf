// How the card fares while it is searched.
#include <algorithm>

#include "media/MediumCopy.h"
#include "results/SizeForPeople.h"
#include "saving/CopyWords.h"
#include "window/MyTableController.h"
#include "window/keeping/CardStrip.h"

namespace vantor {

namespace {

constexpr qint64 kBetweenLooks = 500;            // milliseconds
constexpr std::size_t kMostItemsALook = 2000;    // so that a look takes moments
constexpr qint64 kTimeToJudgeSpeed = 60 * 1000;  // milliseconds
constexpr double kSlow = 2e6;                    // bytes a second

}  // namespace

void MyTableController::setUpCardStrip() {
    m_cardStrip = new CardStrip(scanStrip);
    m_cardWords = new QLabel(scanStrip);
    m_cardWords->setObjectName(QStringLiteral("cardWords"));
    m_cardWords->setTextFormat(Qt::PlainText);
    m_cardWords->setWordWrap(true);
    m_cardWords->setAccessibleDescription(tr("How the card fares"));
    m_keepCopyButton = new QPushButton(tr("Keep a C&opy…"), scanStrip);
    m_keepCopyButton->setObjectName(QStringLiteral("keepCopyButton"));
    m_keepCopyButton->setToolTip(
        tr("The search is stopped for a moment and goes on, reading the card once into the file that you "
           "choose"));
    m_cardWords->hide();
    m_keepCopyButton->hide();
    auto* const row = new QHBoxLayout;
    row->addWidget(m_cardWords, 1);
    row->addWidget(m_keepCopyButton);
    scanStripLayout->addWidget(m_cardStrip);
    scanStripLayout->addLayout(row);
    QWidget::setTabOrder(_stop_scan, m_keepCopyButton);
    connect(m_keepCopyButton, &QPushButton::clicked, this, &MyTableController::keepCopyNow);
}

void MyTableController::beginCardStrip() {
    const SectorRange range = rangeFromControls(m_inputs.range[static_cast<std::size_t>(activeSet())]);
    m_cardStrip->begin({range.start, range.end});
    m_stripItems = 0;
    m_lastLookAtCard = -kBetweenLooks;
    m_cardWords->hide();
    m_keepCopyButton->hide();
}

void MyTableController::showCard() {
    if (m_clock.elapsed() - m_lastLookAtCard < kBetweenLooks) {
        return;
    }
    m_lastLookAtCard = m_clock.elapsed();
    using Mark = CardStrip::Mark;
    // A later pass begins again where all was read.
    m_cardStrip->mark({start_sector, for_index}, Mark::Read);
    const std::size_t upTo = std::min(itemCount(), m_stripItems + kMostItemsALook);
    for (; m_stripItems < upTo; ++m_stripItems) {
        if (const auto item = itemAt(m_stripItems)) {
            m_cardStrip->mark(item->publishedSectors(), Mark::Found);
        }
    }
    const auto copy = m_copied.of(devicePath());
    std::uint64_t bad = 0;
    for (const SectorRun& run : refusals().runs()) {
        m_cardStrip->mark(run, Mark::Bad);
        bad += run.end - run.first;
    }
    if (copy) {
        showCopy(*copy);
        return;
    }
    const auto speed = m_meter.bytesPerSecond();
    const bool slow = m_clock.elapsed() > kTimeToJudgeSpeed && speed && *speed < kSlow;
    QString words;
    if (bad > 0) {
        words = bad == 1 ? tr("This card is failing: 1 bad sector.")
                         : tr("This card is failing: %1 bad sectors.", nullptr, pluralOf(bad))
                               .arg(numberForPeople(bad));
    } else if (slow) {
        words = tr("This card is very slow.");
    }
    const bool offer = m_parts.openSource && !words.isEmpty();
    if (offer) {
        words += u' ' + tr("Keep a copy, so that every sector is read only once.");
    }
    m_cardWords->setText(words);
    m_cardWords->setVisible(!words.isEmpty());
    m_keepCopyButton->setVisible(offer);
}

void MyTableController::showCopy(const MediumCopy& copy) {
    const CopyMap map = copy.map();
    std::uint64_t byte = 0;
    while (byte < map.bytes()) {
        const CopyRun run = map.at(byte);
        byte = run.end;
        if (run.state != CopyState::NotTried) {
            m_cardStrip->mark({run.first / kSectorBytes, run.end / kSectorBytes},
                              run.state == CopyState::Copied ? CardStrip::Mark::Read : CardStrip::Mark::Bad);
        }
    }
    const CopyProgress progress = copy.progress();
    m_cardWords->setText(progress.trouble.isEmpty()
                             ? tr("Copy: %1").arg(copyWords(progress))
                             : tr("Copy: %1. %2").arg(copyWords(progress), progress.trouble));
    m_cardWords->show();
    m_keepCopyButton->hide();
}

// In the middle of a search, which is stopped for it and gone on with.
void MyTableController::keepCopyNow() {
    if (!chooseCopyPlace() || !scanRunning()) {
        return;
    }
    m_goOnWhenStopped = true;
    stop_usb_disk(nullptr);
    clearWaitingThumbnails();
}

bool MyTableController::goesOnByItself() const {
    return m_goOnWhenStopped && searchEnd().outcome == PassOutcome::Stopped;
}

}  // namespace vantor
