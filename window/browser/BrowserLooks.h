// What the browsers show of the found items and in which order, and who finds out how sound they are.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <array>
#include <functional>

#include "results/BrowserOrder.h"
#include "results/CardIndex.h"
#include "results/FoundFacets.h"
#include "results/SoundnessBoard.h"
#include "saving/SavePolicy.h"

class QComboBox;

namespace vantor {

class FoundPane;
class ImageBrowserView;
class MyImageObject;

// A browser with the boxes in which the user chooses.
struct BrowserScreen {
    ImageBrowserView* browser = nullptr;
    QComboBox* show = nullptr;
    QComboBox* sort = nullptr;
    FoundPane* pane = nullptr;
};

// Who knows the items; all are asked on the interface thread but the first, which any thread may ask.
struct LookedAtItems {
    SoundnessBoard::ItemAt at;
    std::function<std::size_t()> count;
    std::function<bool(std::size_t)> isSaved;
    std::function<bool(std::size_t)> isTicked;
    std::function<bool()> mediumBusy;    // somebody else reads it
    std::function<bool()> searching;     // items are added
    std::function<SavePolicy()> policy;  // says what counts as small
    // What the card's directories tell, null as long as nothing is known; any thread.
    std::function<std::shared_ptr<const CardIndex>()> card;
    // What was made of a broken item, null: nothing; any thread.
    std::function<std::shared_ptr<const Mend>(const MyImageObject&)> mendOf;
};

// Lives on the interface thread. The screens are that of photo mode and that of the other modes, of which the
// one of the mode of the moment is looked at.
class BrowserLooks : public QObject {
    Q_OBJECT

  public:
    BrowserLooks(const std::array<BrowserScreen, 2>& screens, LookedAtItems items);

    // The list begins anew, on the medium that `open` opens; without it nothing is examined.
    void begin(SoundnessBoard::Open open, SoundnessBoard::Failing failing);
    // The items are gone.
    void end();
    // Nothing is looked at any more; the board ends when its medium answers.
    void shutDown();
    bool hasEnded() const { return m_board.hasEnded(); }

    ItemFacts factsOf(std::size_t index) const;
    // While somebody waits for the medium.
    void rest(bool resting) { m_board.rest(resting); }
    // The medium may be there again.
    void tryAgain() { m_board.tryAgain(); }
    // What is known of the item so far; any thread.
    std::optional<Soundness> find(std::size_t index) const { return m_board.find(index); }
    // What saving or mending found out; any thread.
    void note(std::size_t index, const Soundness& soundness) { m_board.note(index, soundness); }
    // Leaves out all other types; an empty text shows every type again.
    void showType(const QString& type);
    // Only these, as if the user had chosen so.
    void showOnly(ShowItems items);
    // Something was made of broken items.
    void mendsChanged();
    QString shownType() const { return m_wish.type; }
    // Files that only the card's directory tells of, of the list of the moment, as with FoundPane.
    void showTold(const std::vector<std::shared_ptr<const CardFile>>& files, std::uint64_t beyondRoom);
    // Types, days and the like of all items, as far as they are known.
    const FoundFacets& facets() const { return m_facets; }
    // Every item was looked at and is whole.
    // Until then the sum of their bytes is one of what was found, which ends where the next item begins.
    bool allExamined() const { return m_board.known() >= m_items.count(); }
    bool allComplete() const { return m_facets.size() > 0 && m_facets.complete() == m_items.count(); }
    // Something of it is picked, or a name is searched for.
    bool isPicked() const { return !m_wish.facets.isEmpty() || !m_wish.name.isEmpty(); }
    // No kind is left out.
    bool showsEveryKind() const { return m_wish.show == ShowItems::All; }
    // No item is left out, in whatever order.
    bool showsAll() const { return m_wish.showsAll(); }

  signals:
    // Other items are shown, or others are selected.
    void changed();
    // A few times a second while found items may be in view.
    void looked();

  private:
    const BrowserScreen& screen() const;
    void fillBoxes();
    void look();
    void choose();
    void pick();
    void sortBy(SortItems sort);
    void putInOrder();
    void putInChosenOrder();
    void takeCard();
    bool takeFacets();
    bool takeNames();
    bool isNamedAsWished(std::size_t index) const;
    ItemTraits traitsOf(std::size_t index) const;
    void addCard(ItemFacts& facts, const MyImageObject& item) const;

    const std::array<BrowserScreen, 2> m_screens;
    const LookedAtItems m_items;
    BrowserWish m_wish;
    std::shared_ptr<const CardIndex> m_card;
    SoundnessBoard m_board;
    FoundFacets m_facets;
    std::size_t m_nextFacet = 0;       // up to which all are as well known as they can be
    std::uint64_t m_shownFacets = 0;   // changes that the pane shows
    std::uint64_t m_pickedFacets = 0;  // changes that the order knows of
    std::vector<bool> m_named;       // of the items looked at so far: whether they have the name searched for
    std::size_t m_orderedNames = 0;  // as many of them the order knows of
    QTimer m_look;
    QElapsedTimer m_sinceOrder;
    std::uint64_t m_seenChanges = 0;
    int m_orderedCount = 0;
};

}  // namespace vantor
