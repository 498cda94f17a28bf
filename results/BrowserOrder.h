// Which found items a browser shows, and in which order.
#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <optional>

#include "results/FoundFacets.h"
#include "results/Soundness.h"

namespace vantor {

struct Mend;

enum class ShowItems {
    All,
    Complete,
    Broken,
    UnknownLength,
    Unreadable,
    NotSaved,
    NotSmall,
    OfItsType,
    Lost,
    Mended
};
// By Soundness whole items come first, by Size and Pixels the largest ones, by DateTaken the oldest, by
// Length the longest, and behind what plays the largest pictures.
enum class SortItems {
    AsFound,
    Soundness,
    Size,
    DateTaken,
    OriginalName,
    Name,
    Type,
    Camera,
    Pixels,
    Length,
    Place
};

// Below these an item counts as small in the browser: what cameras and documents embed, not what people make.
inline constexpr std::uint32_t kSmallPixels = 320;
inline constexpr std::uint64_t kSmallBytes = 10'000;

// What is known of an item so far.
struct ItemFacts {
    std::optional<Soundness> soundness;
    bool readFailed = false;  // while it was searched for
    bool saved = false;
    QString type = {};                              // as the results count it; only where it is asked for
    std::shared_ptr<const CardFile> original = {};  // what the card tells of it
    bool stillThere = false;                        // it lies in a file that the card still holds
    bool ticked = false;                            // for saving
    std::shared_ptr<const Mend> mend = {};          // what was made of it where it is broken
    QString name = {};                              // only where the items are sorted by it
    std::uint64_t place = 0;                        // first sector; likewise
};

struct BrowserWish {
    ShowItems show = ShowItems::All;
    SortItems sort = SortItems::AsFound;
    bool reversed = false;  // but what is not known stays last
    std::uint32_t smallPixels = kSmallPixels;
    std::uint64_t smallBytes = kSmallBytes;
    QString type = {};  // empty: every type
    FacetChoice facets = {};
    QString name = {};  // part of a name, in either case; empty: every name

    // No item is left out.
    bool showsAll() const {
        return show == ShowItems::All && type.isEmpty() && facets.isEmpty() && name.isEmpty();
    }
    bool isPlain() const { return showsAll() && sort == SortItems::AsFound && !reversed; }
    // Whether it takes the soundness of all items to grant it.
    bool needsSoundness() const;
};

// Places in the list of `count` items. Items of which too little is known are shown where something is to be
// left out and not shown where something is asked for; they come last in any order but the found one. Of the
// wish's facets and name `admits` knows; without it every item has them.
QList<int> browserOrder(int count, const BrowserWish& wish, const std::function<ItemFacts(int)>& factsOf,
                        const std::function<bool(int)>& admits = {});

}  // namespace vantor
