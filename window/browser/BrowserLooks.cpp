// What the browsers show of the found items and in which order, and who finds out how sound they are.
#include "window/browser/BrowserLooks.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalBlocker>

#include "results/Mend.h"
#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "results/ResultRow.h"
#include "window/browser/DetailsHeader.h"
#include "window/browser/FoundPane.h"
#include "window/browser/ImageBrowserView.h"
#include "window/widgets/ComboWidth.h"

namespace vantor {

namespace {

constexpr int kLookMilliseconds = 150;
constexpr qint64 kReorderMilliseconds = 500;
constexpr int kListMargins = 24;
// What is spent at a time on getting to know items; with more to do it goes on soon.
constexpr qint64 kFacetMilliseconds = 25;
constexpr int kSoonMilliseconds = 5;

std::uint64_t firstSectorOf(const MyImageObject& item) {
    const auto& runs = item.carved().runs;
    return runs.empty() ? item.File_Start_Sector() : runs.front().first;
}

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
        {tr("By name"), SortItems::Name},
        {tr("By type"), SortItems::Type},
        {tr("By camera"), SortItems::Camera},
        {tr("By pixels"), SortItems::Pixels},
        {tr("By length"), SortItems::Length},
        {tr("By place on the card"), SortItems::Place},
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
            openWholeList(box);
            // A narrow box has a list that can be read.
            box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) + kListMargins);
            keepWordsWhole(box);
            connect(box, &QComboBox::currentIndexChanged, this, &BrowserLooks::choose);
        }
        connect(screen.pane, &FoundPane::chosen, this, &BrowserLooks::pick);
        connect(screen.browser->detailsHeader(), &DetailsHeader::sortWanted, this, &BrowserLooks::sortBy);
    }
}

// Nothing of the last list is known any more.
void BrowserLooks::begin(SoundnessBoard::Open open, SoundnessBoard::Failing failing) {
    m_wish = {};
    for (const BrowserScreen& screen : m_screens) {
        for (QComboBox* box : {screen.show, screen.sort}) {
            const QSignalBlocker quiet(box);
            box->setCurrentIndex(0);
            keepWordsWhole(box);
        }
        screen.pane->begin();
        screen.browser->setOrder(std::nullopt);
        screen.browser->detailsHeader()->showSorted(SortItems::AsFound, false);
    }
    m_facets.clear();
    m_named.clear();
    m_nextFacet = 0;
    m_board.begin(std::move(open), std::move(failing));
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
    m_named.clear();
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
    traits.pixels =
        soundness != nullptr ? pixelClassOf(soundness->width, soundness->height) : PixelClass::NotKnown;
    traits.length = soundness != nullptr ? lengthClassOf(soundness->durationMs) : LengthClass::NotKnown;
    traits.complete = soundness != nullptr && soundness->verdict == Verdict::Complete && soundness->checked &&
                      !soundness->notOfItsType;
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
        if (index < m_named.size()) {
            m_named[index] = isNamedAsWished(index);
        }
    }
    while (m_nextFacet < count && since.elapsed() < kFacetMilliseconds) {
        m_facets.set(m_nextFacet, traitsOf(m_nextFacet));
        ++m_nextFacet;
    }
    return m_nextFacet >= count;
}

bool BrowserLooks::isNamedAsWished(std::size_t index) const {
    const auto item = m_items.at(index);
    if (!item || item->imageTitle().contains(m_wish.name, Qt::CaseInsensitive)) {
        return item != nullptr;
    }
    ItemFacts facts;
    facts.soundness = m_board.find(index);
    addCard(facts, *item);
    return facts.original && originalPath(*facts.original).contains(m_wish.name, Qt::CaseInsensitive);
}

// Looks at the names of a part of the items, so that nobody waits for all of them; false while some are left.
bool BrowserLooks::takeNames() {
    const std::size_t count = m_wish.name.isEmpty() ? 0 : m_items.count();
    QElapsedTimer since;
    since.start();
    while (m_named.size() < count && since.elapsed() < kFacetMilliseconds) {
        m_named.push_back(isNamedAsWished(m_named.size()));
    }
    return m_named.size() >= count;
}

// A few times a second while found items are in view.
void BrowserLooks::look() {
    ImageBrowserView* browser = screen().browser;
    takeCard();
    m_board.setMediumBusy(m_items.mediumBusy());
    m_board.want(browser->indexesInView());
    emit looked();
    m_board.wantAll(m_wish.needsSoundness() || screen().pane->wantsDetails() ? m_items.count() : 0);
    const bool allTaken = takeFacets();
    const bool allNamed = takeNames();
    m_look.setInterval(allTaken && allNamed ? kLookMilliseconds : kSoonMilliseconds);
    if (m_facets.changes() != m_shownFacets && allTaken) {
        m_shownFacets = m_facets.changes();
        screen().pane->showFacets(m_facets, m_items.count());
        emit changed();
    }
    const std::uint64_t changes = m_board.changes();
    const bool pickedAnew = !m_wish.facets.isEmpty() && m_facets.changes() != m_pickedFacets;
    const bool namedAnew = m_named.size() != m_orderedNames;
    if (changes == m_seenChanges && static_cast<int>(m_items.count()) == m_orderedCount && !pickedAnew &&
        !namedAnew) {
        return;
    }
    browser->viewport()->update();
    if (m_wish.isPlain() || !m_sinceOrder.isValid() || m_sinceOrder.elapsed() > kReorderMilliseconds ||
        (namedAnew && allNamed)) {
        m_seenChanges = changes;
        putInOrder();
    }
}

// The user chose what to show.
void BrowserLooks::choose() {
    keepWordsWhole(screen().show);
    keepWordsWhole(screen().sort);
    m_wish.show = static_cast<ShowItems>(screen().show->currentData().toInt());
    const auto sort = static_cast<SortItems>(screen().sort->currentData().toInt());
    m_wish.reversed = m_wish.reversed && sort == m_wish.sort;
    m_wish.sort = sort;
    const SavePolicy policy = m_items.policy();
    m_wish.smallPixels = policy.minPixels != 0 ? policy.minPixels : kSmallPixels;
    m_wish.smallBytes = policy.minBytes != 0 ? policy.minBytes : kSmallBytes;
    putInChosenOrder();
    look();
}

// A click on a column: by it, and with the next click the other way round.
void BrowserLooks::sortBy(SortItems sort) {
    QComboBox* const box = screen().sort;
    m_wish.reversed = sort == m_wish.sort && !m_wish.reversed;
    m_wish.sort = sort;
    {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(box->findData(static_cast<int>(sort)));
    }
    choose();
}

void BrowserLooks::showTold(const std::vector<std::shared_ptr<const CardFile>>& files,
                            std::uint64_t beyondRoom) {
    screen().pane->showTold(files, beyondRoom);
}

// The user picked something of what was found, or typed a name.
void BrowserLooks::pick() {
    m_wish.facets = screen().pane->choice();
    if (m_wish.name != screen().pane->name()) {
        m_wish.name = screen().pane->name();
        m_named.clear();
        takeNames();
    }
    putInChosenOrder();
    look();
}

void BrowserLooks::showType(const QString& type) {
    if (m_wish.type != type) {
        m_wish.type = type;
        putInChosenOrder();
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

// Another list is seen from its beginning, unless the user has an item in it. While a search runs, who sees
// the newest items goes on doing so.
void BrowserLooks::putInChosenOrder() {
    putInOrder();
    if (!m_items.searching || !m_items.searching()) {
        screen().browser->showCurrentOrFirst();
    }
}

void BrowserLooks::putInOrder() {
    ImageBrowserView* browser = screen().browser;
    m_orderedCount = static_cast<int>(m_items.count());
    m_orderedNames = m_named.size();
    m_sinceOrder.start();
    browser->detailsHeader()->showSorted(m_wish.sort, m_wish.reversed);
    if (m_wish.isPlain()) {
        browser->setOrder(std::nullopt);
    } else {
        const bool asksBoard = m_wish.needsSoundness();
        const bool byName = !m_wish.name.isEmpty();
        const bool asksType = !m_wish.type.isEmpty() || m_wish.sort == SortItems::Type;
        const bool asksName = m_wish.sort == SortItems::Name;
        const bool asksItem = asksType || asksName || m_wish.sort == SortItems::Place;
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
                if (asksItem) {
                    if (const auto item = m_items.at(at)) {
                        facts.type = asksType ? pathExtension(item->imageTitle()) : QString();
                        facts.name = asksName ? item->imageTitle() : QString();
                        facts.place = firstSectorOf(*item);
                    }
                }
                return facts;
            },
            [&](int index) {
                const auto at = static_cast<std::size_t>(index);
                return picked.admits(at) && (!byName || (at < m_named.size() && m_named[at]));
            }));
    }
    emit changed();
}

}  // namespace vantor
