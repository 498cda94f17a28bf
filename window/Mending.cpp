// Broken files among what was found: put together or repaired in the background, beside the items themselves.
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <numeric>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/mending/MendingBar.h"
#include "window/preview/PieceStrip.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {

namespace {

constexpr int kMendingLookMilliseconds = 150;

}  // namespace

void MyTableController::setUpMending() {
    m_mendButton = new QPushButton(tr("Co&mplete Broken Files"), searchEndBar);
    m_mendButton->setObjectName(QStringLiteral("completeBrokenButton"));
    m_mendButton->setAccessibleName(tr("Complete broken files"));
    m_mendButton->setToolTip(
        tr("Look on the medium for the missing pieces of photos and movies, and repair movies without an "
           "index; what was found stays as it is beside it"));
    m_mendButton->hide();
    searchEndLayout->addWidget(m_mendButton);
    m_mendingBar = new MendingBar(body);
    m_mendingBar->hide();
    bodyLayout->insertWidget(bodyLayout->indexOf(searchEndBar) + 1, m_mendingBar);
    const std::pair<QWidget*, QWidget*> order[] = {{m_goOnButton, m_mendButton},
                                                   {m_mendButton, m_mendingBar->stopButton},
                                                   {m_mendingBar->stopButton, m_mendingBar->showButton},
                                                   {m_mendingBar->showButton, m_mendingBar->closeButton}};
    for (const auto& [first, second] : order) {
        QWidget::setTabOrder(first, second);
    }
    m_pieceStrip = new PieceStrip(previewFacts->parentWidget());
    previewFacts->parentWidget()->layout()->addWidget(m_pieceStrip);
    m_mendingLook.setInterval(kMendingLookMilliseconds);
    connect(m_mendButton, &QPushButton::clicked, this, &MyTableController::mendBrokenItems);
    connect(&m_mendingLook, &QTimer::timeout, this, &MyTableController::showMending);
    connect(m_mendingBar->stopButton, &QPushButton::clicked, this, &MyTableController::stopMending);
    connect(m_mendingBar->showButton, &QPushButton::clicked, this,
            [this] { m_looks->showOnly(ShowItems::Mended); });
}

void MyTableController::offerMending() {
    m_mendButton->setVisible(m_searchEnded && onScanScreen() && itemCount() > 0 && !m_looks->allComplete());
    m_mendButton->setEnabled(!m_mending.isRunning());
}

void MyTableController::mendBrokenItems() {
    if (m_mending.isRunning() || scanRunning() || itemCount() == 0) {
        return;
    }
    MendingOrder order;
    // What the user looks at has its turn first.
    const std::vector<std::size_t> inView = browserOf(activeSet())->indexesInView();
    order.places = inView;
    std::vector<bool> taken(itemCount());
    for (const std::size_t place : inView) {
        taken.at(place) = true;
    }
    for (std::size_t place = 0; place < taken.size(); ++place) {
        if (!taken[place]) {
            order.places.push_back(place);
        }
    }
    order.openMedium = [open = m_parts.openBeside ? m_parts.openBeside : m_parts.openMedium,
                        device = devicePath()] { return open ? open(device) : nullptr; };
    order.itemAt = [this](std::size_t place) { return itemAt(place); };
    order.known = [this](std::size_t place) { return m_looks->find(place); };
    order.examined = [this](std::size_t place, const Soundness& found) { m_looks->note(place, found); };
    order.card = card();
    order.mended = m_mended;
    // What a mode does not search for cannot be completed.
    order.movies = Recovery_MODE != kPhotoMode;
    order.photos = Recovery_MODE != kVideoMode;
    m_shownMends = 0;
    m_mending.start(std::move(order), {});
    m_mendingLook.start();
    offerMending();
    showMending();
    // A second Return of whoever began it would stop it.
    homeOfScreen()->setFocus();
}

void MyTableController::stopMending() {
    m_mending.stop();
}

// The list goes, and with it what was made of its items.
void MyTableController::forgetMends() {
    m_mending.stop();
    m_mendingLook.stop();
    m_mended->clear();
    m_previewedMend.reset();
    m_pieceStrip->setPieces({});
    m_mendingBar->hide();
    m_mendButton->hide();
}

// A few times a second while it goes on, and once when it is over.
void MyTableController::showMending() {
    const std::size_t mends = m_mended->counts().all();
    if (mends != m_shownMends) {
        m_shownMends = mends;
        m_looks->mendsChanged();
        m_pictures->mendsChanged();
        wantItemPictures();
        m_viewer->refresh();
    }
    if (m_mending.isRunning()) {
        m_mendingBar->showProgress(mendingWords(), m_mending.looked(), m_mending.of());
        return;
    }
    m_mendingLook.stop();
    const bool hadKeyboard = m_mendingBar->stopButton->hasFocus();
    m_mendingBar->showEnd(mendingEndWords(), mends != 0);
    if (hadKeyboard) {
        (mends != 0 ? m_mendingBar->showButton : m_mendingBar->closeButton)->setFocus();
    }
    m_looks->mendsChanged();
    previewMendedItem();
    offerMending();
}

// Beside the preview of an item that something was made of.
void MyTableController::showPieces() {
    m_pieceStrip->setPieces(m_previewedMend ? m_previewedMend->assembly.runs : std::vector<SectorRun>());
    if (m_previewedMend) {
        previewFacts->setText(previewFacts->text() + u'\n' + describe(*m_previewedMend));
    }
}

// What is on preview may be whole now.
void MyTableController::previewMendedItem() {
    const auto item = itemAt(Prev_Index);
    const auto mend = item ? m_mended->of(*item) : nullptr;
    if (mend != m_previewedMend && !session && imageBrowser_2->isVisible()) {
        Prev_Index = kNoPreview;
        m_previewDue.start(0);
    }
}

QString MyTableController::mendingWords() const {
    const QString looked = numberForPeople(m_mending.looked());
    const QString of = numberForPeople(m_mending.of());
    switch (m_mending.step()) {
        case MendingStep::Examining:
            return tr("Looking for broken files: %1 of %2").arg(looked, of);
        case MendingStep::Movies:
            return m_mending.of() == 0 ? tr("Completing broken movies…")
                                       : tr("Completing broken movies: %1 of %2").arg(looked, of);
        case MendingStep::Photos:
            return m_mending.of() == 0 ? tr("Completing broken photos…")
                                       : tr("Completing broken photos: %1 of %2").arg(looked, of);
        case MendingStep::Archives:
            return m_mending.of() == 0 ? tr("Completing broken documents…")
                                       : tr("Completing broken documents: %1 of %2").arg(looked, of);
        case MendingStep::Repairing:
            break;
    }
    return m_mending.of() == 0 ? tr("Repairing movies without an index…")
                               : tr("Repairing movies without an index: %1 of %2").arg(looked, of);
}

QString MyTableController::mendingEndWords() const {
    const MendingResult result = m_mending.result();
    const MendedItems::Counts counts = m_mended->counts();
    QStringList sentences;
    switch (result.end) {
        case MendingEnd::CannotOpen:
            return tr(
                "Broken files were left as they are: the storage medium cannot be opened. Put it back in "
                "and try again.");
        case MendingEnd::MediumGone:
            sentences << tr("The storage medium went away. Put it back in and try again.");
            break;
        case MendingEnd::Stopped:
            sentences << tr("Stopped.");
            break;
        case MendingEnd::Finished:
            break;
    }
    QStringList made;
    const auto add = [&made](std::size_t count, const QString& one, const char* many) {
        if (count != 0) {
            made << (count == 1 ? one : tr(many, nullptr, pluralOf(count)).arg(numberForPeople(count)));
        }
    };
    add(counts.completed, tr("1 file completed"), QT_TR_N_NOOP("%1 files completed"));
    add(counts.putTogether, tr("1 file put together (please look)"),
        QT_TR_N_NOOP("%1 files put together (please look)"));
    add(counts.repaired, tr("1 movie repaired"), QT_TR_N_NOOP("%1 movies repaired"));
    if (!made.isEmpty()) {
        sentences << tr("%1.").arg(made.join(QStringLiteral(", ")));
    } else if (result.end == MendingEnd::Finished) {
        sentences << (result.broken == 0 ? tr("No broken file of a kind that can be completed was found.")
                                         : tr("No broken file could be completed."));
    }
    return sentences.join(u' ');
}

}  // namespace vantor
