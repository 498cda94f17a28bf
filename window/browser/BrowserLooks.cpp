// What the browsers show of the found items and in which order, and who finds out how sound they are.
#include "window/browser/BrowserLooks.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalBlocker>

#include "results/Mend.h"
#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "results/ResultRow.h"
#include "window/browser/FoundPane.h"
#include "window/browser/ImageBrowserView.h"

namespace vantor {

namespace {

constexpr int kLookMilliseconds = 150;
constexpr qint64 kReorderMilliseconds = 500;
constexpr int kListMargins = 24;
// What is spent at a time on getting to know items; with more to do it goes on soon.
constexpr qint64 kFacetMilliseconds = 25;
constexpr int kSoonMilliseconds = 5;

}  // namespace

BrowserLooks::BrowserLooks(const std::array<BrowserScreen, 2>& screens, LookedAtItems items)
    : m_screens(screens),
      m_items(std::move(items)),
      m_board(m_items.at, [card = m_items.card, mendOf = m_items.mendOf](const MyImageObject& item) {
          ItemHints hints;
          hints.card = card ? card() : nullptr;
          const auto mend = mendOf ? mendOf(item) : nullptr;
          hints.mend = mend && mend->kind == MendKind::Completed ? mend : nullptr;
          return hints;
      }) {
    fillBoxes();
    m_look.setInterval(kLookMilliseconds);
    connect(&m_look, &QTimer::timeout, this, &BrowserLooks::look);
}

const BrowserScreen& BrowserLooks::screen() const {
    return m_screens[Recovery_MODE == kPhotoMode ? 0 : 1];
}

void BrowserLooks::fillBoxes() {
    const std::pair<QString, ShowItems> shows[] = {
        {tr("All items"), ShowItems::All},
        {tr("Complete"), ShowItems::Complete},
        {tr("Broken"), ShowItems::Broken},
        {tr("Put together or repaired"), ShowItems::Mended},
        {tr("Of unknown length"), ShowItems::UnknownLength},
        {tr("With unreadable sectors"), ShowItems::Unreadable},
        {tr("Not saved yet"), ShowItems::NotSaved},
        {tr("Without small ones"), ShowItems::NotSmall},
        {tr("Without false finds"), ShowItems::OfItsType},
        {tr("Only what is lost"), ShowItems::Lost},
    };
    const std::pair<QString, SortItems> sorts[] = {
        {tr("As found"), SortItems::AsFound},
        {tr("By soundness"), SortItems::Soundness},
        {tr("By size"), SortItems::Size},
        {tr("By date taken"), SortItems::DateTaken},
        {tr("By name on the card"), SortItems::OriginalName},
    };
    for (const BrowserScreen& screen : m_screens) {
        for (const auto& [text, value] : shows) {
            screen.show->addItem(text, static_cast<int>(value));
        }
        for (const auto& [text, value] : sorts) {
            screen.sort->addItem(text, static_cast<int>(value));
        }
        for (QComboBox* box : {screen.show, screen.sort}) {
            box->view()->setAccessibleName(box->accessibleName());
            // A narrow box has a list that can be read.
            box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) + kListMargins);
            connect(box, &QComboBox::currentIndexChanged, this, &BrowserLooks::choose);
        }
        connect(screen.pane, &FoundPane::chosen, this, &BrowserLooks::pick);
    }
}

// Nothing of the last list is known any more.
void BrowserLooks::begin(SoundnessBoard::Open open) {
    m_wish = {};
    for (const BrowserScreen& screen : m_screens) {
        for (QComboBox* box : {screen.show, screen.sort}) {
            const QSignalBlocker quiet(box);
            box->setCurrentIndex(0);
        }
        screen.pane->begin();
        screen.browser->setOrder(std::nullopt);
    }
    m_facets.clear();
    m_nextFacet = 0;
    m_board.begin(std::move(open));
    m_look.start();
}

void BrowserLooks::end() {
    m_look.stop();
    m_board.begin({});
}

void BrowserLooks::shutDown() {
    m_look.stop();
    m_board.requestEnd();
}

ItemFacts BrowserLooks::factsOf(std::size_t index) const {
    const auto item = m_items.at(index);
    ItemFacts facts{m_board.find(index), item && item->carved().readFailed, m_items.isSaved(index)};
    facts.ticked = m_items.isTicked(index);
    if (item) {
        addCard(facts, *item);
        facts.mend = m_items.mendOf ? m_items.mendOf(*item) : nullptr;
    }
    return facts;
}

// Before an item was looked at only what is still there has its name: of all else the bytes may be another's.
void BrowserLooks::addCard(ItemFacts& facts, const MyImageObject& item) const {
    if (facts.soundness) {
        facts.original = facts.soundness->original;
    }
    if (!m_card || item.carved().runs.empty()) {
        return;
    }
    const std::uint64_t first = item.carved().runs.front().first;
    facts.stillThere = m_card->isLiveAt(first);
    if (!facts.original && facts.stillThere) {
        const CardIndex::Match match = m_card->match(first, item.fileType());
        facts.original = {m_card, match.fit == CardFit::Yes ? match.file : nullptr};
    }
}

// What the card tells is known when the search begins, and more of it when it has ended.
void BrowserLooks::takeCard() {
    const auto card = m_items.card ? m_items.card() : nullptr;
    if (card == m_card) {
        return;
    }
    m_card = card;
    m_nextFacet = 0;
    m_board.beginAgain();
    for (const BrowserScreen& each : m_screens) {
        each.browser->setOriginalsShown(m_card && !m_card->table().files.empty());
    }
}

ItemTraits BrowserLooks::traitsOf(std::size_t index) const {
    ItemTraits traits;
    const auto item = m_items.at(index);
    if (!item) {
        return traits;
    }
    ItemFacts facts;
    facts.soundness = m_board.find(index);
    addCard(facts, *item);
    const Soundness* soundness = facts.soundness ? &*facts.soundness : nullptr;
    traits.type = pathExtension(item->imageTitle());
    traits.day = dayOf(soundness, facts.original.get());
    traits.camera = soundness != nullptr ? soundness->camera : QString();
    traits.complete =
        soundness != nullptr && soundness->verdict == Verdict::Complete && !soundness->notOfItsType;
    traits.bytes = soundness != nullptr ? soundness->bytes : item->carved().sectors() * kSectorBytes;
    return traits;
}

// Gets to know items that are new or of which something was found out; false while there are more of them.
bool BrowserLooks::takeFacets() {
    const std::size_t count = m_items.count();
    QElapsedTimer since;
    since.start();
    for (const std::size_t index : m_board.takeNews()) {
        // Those further on have their turn anyhow.
        if (index < m_nextFacet) {
            m_facets.set(index, traitsOf(index));
        }
    }
    while (m_nextFacet < count && since.elapsed() < kFacetMilliseconds) {
        m_facets.set(m_nextFacet, traitsOf(m_nextFacet));
        ++m_nextFacet;
    }
    return m_nextFacet >= count;
}

// A few times a second while found items are in view.
void BrowserLooks::look() {
    ImageBrowserView* browser = screen().browser;
    takeCard();
    m_board.setMediumBusy(m_items.mediumBusy());
    m_board.want(browser->indexesInView());
    m_board.wantAll(m_wish.needsSoundness() || screen().pane->wantsDetails() ? m_items.count() : 0);
    const bool allTaken = takeFacets();
    m_look.setInterval(allTaken ? kLookMilliseconds : kSoonMilliseconds);
    if (m_facets.changes() != m_shownFacets && allTaken) {
        m_shownFacets = m_facets.changes();
        screen().pane->showFacets(m_facets, m_items.count());
        emit changed();
    }
    const std::uint64_t changes = m_board.changes();
    const bool pickedAnew = !m_wish.facets.isEmpty() && m_facets.changes() != m_pickedFacets;
    if (changes == m_seenChanges && static_cast<int>(m_items.count()) == m_orderedCount && !pickedAnew) {
        return;
    }
    browser->viewport()->update();
    if (m_wish.isPlain() || !m_sinceOrder.isValid() || m_sinceOrder.elapsed() > kReorderMilliseconds) {
        m_seenChanges = changes;
        putInOrder();
    }
}

// The user chose what to show.
void BrowserLooks::choose() {
    m_wish.show = static_cast<ShowItems>(screen().show->currentData().toInt());
    m_wish.sort = static_cast<SortItems>(screen().sort->currentData().toInt());
    const SavePolicy policy = m_items.policy();
    m_wish.smallPixels = policy.minPixels != 0 ? policy.minPixels : kSmallPixels;
    m_wish.smallBytes = policy.minBytes != 0 ? policy.minBytes : kSmallBytes;
    putInOrder();
    look();
}

void BrowserLooks::showTold(const std::vector<std::shared_ptr<const CardFile>>& files) {
    screen().pane->showTold(files);
}

// The user picked something of what was found, or typed a name.
void BrowserLooks::pick() {
    m_wish.facets = screen().pane->choice();
    m_wish.name = screen().pane->name();
    putInOrder();
    look();
}

void BrowserLooks::showType(const QString& type) {
    if (m_wish.type != type) {
        m_wish.type = type;
        putInOrder();
        look();
    }
}

void BrowserLooks::showOnly(ShowItems items) {
    QComboBox* const box = screen().show;
    box->setCurrentIndex(box->findData(static_cast<int>(items)));
}

void BrowserLooks::mendsChanged() {
    putInOrder();
    screen().browser->viewport()->update();
}

void BrowserLooks::putInOrder() {
    ImageBrowserView* browser = screen().browser;
    m_orderedCount = static_cast<int>(m_items.count());
    m_sinceOrder.start();
    if (m_wish.isPlain()) {
        browser->setOrder(std::nullopt);
    } else {
        const bool asksBoard = m_wish.needsSoundness() || !m_wish.name.isEmpty();
        const FoundFacets::Filter picked(m_facets, m_wish.facets);
        m_pickedFacets = m_facets.changes();
        browser->reloadData();
        browser->setOrder(browserOrder(
            m_orderedCount, m_wish,
            [&](int index) {
                const auto at = static_cast<std::size_t>(index);
                ItemFacts facts;
                if (asksBoard) {
                    facts.soundness = m_board.find(at);
                }
                if (m_wish.show == ShowItems::Lost || m_wish.sort == SortItems::OriginalName) {
                    if (const auto item = m_items.at(at)) {
                        addCard(facts, *item);
                    }
                }
                if (m_wish.show == ShowItems::Unreadable) {
                    const auto item = m_items.at(at);
                    facts.readFailed = item && item->carved().readFailed;
                } else if (m_wish.show == ShowItems::Mended) {
                    const auto item = m_items.at(at);
                    facts.mend = item && m_items.mendOf ? m_items.mendOf(*item) : nullptr;
                } else if (m_wish.show == ShowItems::NotSaved) {
                    facts.saved = m_items.isSaved(at);
                }
                if (!m_wish.type.isEmpty()) {
                    const auto item = m_items.at(at);
                    facts.type = item ? pathExtension(item->imageTitle()) : QString();
                }
                if (!m_wish.name.isEmpty()) {
                    if (const auto item = m_items.at(at)) {
                        addCard(facts, *item);
                        facts.names = item->imageTitle();
                        facts.names += facts.original ? u'\n' + originalPath(*facts.original) : QString();
                    }
                }
                return facts;
            },
            [&picked](int index) { return picked.admits(static_cast<std::size_t>(index)); }));
    }
    emit changed();
}

}  // namespace vantor
