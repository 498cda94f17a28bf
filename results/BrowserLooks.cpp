// What the browsers show of the found items and in which order, and who finds out how sound they are.
#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalBlocker>

#include "app/MyTableController.h"

namespace vantor {

namespace {

constexpr int kLookMilliseconds = 150;
constexpr qint64 kReorderMilliseconds = 500;

}  // namespace

void MyTableController::setUpLooks() {
    const std::pair<QString, ShowItems> shows[] = {
        {tr("All items"), ShowItems::All},
        {tr("Complete"), ShowItems::Complete},
        {tr("Cut off or damaged"), ShowItems::Broken},
        {tr("Of unknown length"), ShowItems::UnknownLength},
        {tr("With unreadable sectors"), ShowItems::Unreadable},
        {tr("Not saved yet"), ShowItems::NotSaved},
        {tr("Without small ones"), ShowItems::NotSmall},
        {tr("Without false finds"), ShowItems::OfItsType},
    };
    const std::pair<QString, SortItems> sorts[] = {
        {tr("As found"), SortItems::AsFound},
        {tr("By soundness"), SortItems::Soundness},
        {tr("By size"), SortItems::Size},
        {tr("By date taken"), SortItems::DateTaken},
    };
    for (QComboBox* box : {showBox, showBox_Sig}) {
        for (const auto& [text, value] : shows) {
            box->addItem(text, static_cast<int>(value));
        }
        connect(box, &QComboBox::currentIndexChanged, this, [this] { orderItems(); });
    }
    for (QComboBox* box : {showBox, showBox_Sig, sortBox, sortBox_Sig}) {
        box->view()->setAccessibleName(box->accessibleName());
    }
    for (QComboBox* box : {sortBox, sortBox_Sig}) {
        for (const auto& [text, value] : sorts) {
            box->addItem(text, static_cast<int>(value));
        }
        connect(box, &QComboBox::currentIndexChanged, this, [this] { orderItems(); });
    }
    m_look.setInterval(kLookMilliseconds);
    connect(&m_look, &QTimer::timeout, this, &MyTableController::lookAtItems);
}

// The list begins anew: nothing of the last one is known any more.
void MyTableController::beginLooks() {
    for (QComboBox* box : {showBox, showBox_Sig, sortBox, sortBox_Sig}) {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(0);
    }
    m_wish = {};
    for (ImageBrowserView* browser : {imageBrowser, imageBrowser_2}) {
        browser->setOrder(std::nullopt);
    }
    m_board.begin(m_parts.openBeside
                      ? [open = m_parts.openBeside, device = devicePath()] { return open(device); }
                      : SoundnessBoard::Open());
    m_look.start();
}

void MyTableController::endLooks() {
    m_look.stop();
    m_board.begin({});
}

ItemFacts MyTableController::factsOfItem(qsizetype index) {
    const auto at = static_cast<std::size_t>(index);
    const auto item = itemAt(at);
    return {m_board.find(at), item && item->carved().readFailed, m_marks.isSaved(at)};
}

// A few times a second while found items are in view.
void MyTableController::lookAtItems() {
    ImageBrowserView* browser = browserOf(activeSet());
    m_board.setMediumBusy(scanRunning() || m_saveRunning);
    m_board.want(browser->indexesInView());
    m_board.wantAll(m_wish.needsSoundness() ? itemCount() : 0);
    const std::uint64_t changes = m_board.changes();
    if (changes == m_seenChanges && static_cast<int>(itemCount()) == m_orderedCount) {
        return;
    }
    browser->viewport()->update();
    if (m_wish.isPlain() || !m_sinceOrder.isValid() || m_sinceOrder.elapsed() > kReorderMilliseconds) {
        m_seenChanges = changes;
        putInOrder();
    }
}

// The user chose what to show.
void MyTableController::orderItems() {
    const bool photo = activeSet() == ControlSet::Photo;
    m_wish.show = static_cast<ShowItems>((photo ? showBox : showBox_Sig)->currentData().toInt());
    m_wish.sort = static_cast<SortItems>((photo ? sortBox : sortBox_Sig)->currentData().toInt());
    const SavePolicy& policy = m_savingChoices.policy;
    m_wish.smallPixels = policy.minPixels != 0 ? policy.minPixels : kSmallPixels;
    m_wish.smallBytes = policy.minBytes != 0 ? policy.minBytes : kSmallBytes;
    putInOrder();
    lookAtItems();
}

void MyTableController::putInOrder() {
    ImageBrowserView* browser = browserOf(activeSet());
    m_orderedCount = static_cast<int>(itemCount());
    m_sinceOrder.start();
    if (m_wish.isPlain()) {
        browser->setOrder(std::nullopt);
    } else {
        browser->reloadData();
        browser->setOrder(
            browserOrder(m_orderedCount, m_wish, [this](int index) { return factsOfItem(index); }));
    }
    showItemCounts();
}

}  // namespace vantor
