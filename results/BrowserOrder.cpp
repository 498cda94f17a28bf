// Choosing and sorting by what is known of the items.
#include "results/BrowserOrder.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <vector>

#include "results/CardIndex.h"

namespace vantor {

namespace {

bool isSmall(const Soundness& soundness, const BrowserWish& wish) {
    const std::uint32_t longer = std::max(soundness.width, soundness.height);
    return soundness.bytes < wish.smallBytes || (longer != 0 && longer < wish.smallPixels);
}

bool isShown(const ItemFacts& facts, const BrowserWish& wish) {
    if (!wish.type.isEmpty() && facts.type != wish.type) {
        return false;
    }
    const auto& soundness = facts.soundness;
    const auto is = [&](Verdict verdict) {
        return soundness && !soundness->notOfItsType && soundness->verdict == verdict;
    };
    switch (wish.show) {
        case ShowItems::All:
            return true;
        case ShowItems::Complete:
            return is(Verdict::Complete);
        case ShowItems::Broken:
            return is(Verdict::CutOff) || is(Verdict::Damaged);
        case ShowItems::UnknownLength:
            return is(Verdict::Unknown);
        case ShowItems::Unreadable:
            return facts.readFailed || (soundness && soundness->unreadable);
        case ShowItems::NotSaved:
            return !facts.saved;
        case ShowItems::NotSmall:
            return !soundness || !isSmall(*soundness, wish);
        case ShowItems::OfItsType:
            return !soundness || !soundness->notOfItsType;
        case ShowItems::Lost:
            return !facts.stillThere;
        case ShowItems::Mended:
            return facts.mend || (soundness && soundness->pieces > 1);
    }
    return true;
}

// Sorts ascending; what is best comes first, what is not known last.
using SortKey = std::tuple<int, std::int64_t, QString>;
constexpr int kNotKnown = 100;

// By the folded text, of which the first eight letters stand in the number in their order, so that the texts
// of very many items are mostly not looked at; what is no Latin letter leaves the rest to the text.
SortKey textKey(int rank, const QString& text) {
    constexpr int kLetters = 8;
    constexpr std::uint64_t kLastLatin = 0xFF;
    const QString folded = text.toCaseFolded();
    std::uint64_t letters = 0;
    bool isLatin = true;
    for (int i = 0; i < kLetters; ++i) {
        const std::uint64_t letter = isLatin && i < folded.size() ? folded.at(i).unicode() : 0;
        isLatin = isLatin && letter < kLastLatin;
        letters = letters << 8 | std::min(letter, kLastLatin);
    }
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;  // the number is signed
    return {rank, static_cast<std::int64_t>(letters ^ kSign), folded};
}

SortKey largestFirst(int rank, std::uint64_t number) {
    return {number == 0 ? kNotKnown - 1 : rank,
            -static_cast<std::int64_t>(std::min<std::uint64_t>(number, INT64_MAX)),
            {}};
}

SortKey keyOf(const ItemFacts& facts, SortItems sort) {
    switch (sort) {
        case SortItems::AsFound:
            return {0, 0, {}};
        case SortItems::Name:
            return textKey(0, facts.name);
        case SortItems::Type:
            return textKey(0, facts.type);
        case SortItems::Place:
            return {0, static_cast<std::int64_t>(std::min<std::uint64_t>(facts.place, INT64_MAX)), {}};
        default:
            break;
    }
    if (sort == SortItems::OriginalName && facts.original) {
        return textKey(0, originalPath(*facts.original));
    }
    if (!facts.soundness) {
        return {kNotKnown, 0, {}};
    }
    const Soundness& soundness = *facts.soundness;
    switch (sort) {
        case SortItems::Soundness: {
            static constexpr int kRank[] = {3, 0, 1, 2};  // by Verdict
            // Of complete ones those whose content was checked come first.
            return {soundness.notOfItsType ? 4 : kRank[static_cast<int>(soundness.verdict)],
                    soundness.checked ? 0 : 1,
                    {}};
        }
        case SortItems::Size:
            return {0, -static_cast<std::int64_t>(soundness.bytes), {}};
        case SortItems::OriginalName:
            return {kNotKnown - 1, 0, {}};
        case SortItems::Camera:
            return textKey(soundness.camera.isEmpty() ? kNotKnown - 1 : 0, soundness.camera);
        case SortItems::Pixels:
            return largestFirst(0, std::uint64_t{soundness.width} * soundness.height);
        case SortItems::Length:
            return soundness.durationMs != 0
                       ? largestFirst(0, soundness.durationMs)
                       : largestFirst(1, std::uint64_t{soundness.width} * soundness.height);
        default:
            break;  // by the date
    }
    if (!soundness.taken) {
        return {kNotKnown - 1, 0, {}};
    }
    const CivilTime& taken = *soundness.taken;
    std::int64_t moment = taken.year;
    for (const auto& [part, size] :
         {std::pair{taken.month, 13}, std::pair{taken.day, 32}, std::pair{taken.hour, 25},
          std::pair{taken.minute, 61}, std::pair{taken.second, 62}}) {
        moment = moment * size + part;
    }
    return {0, moment, {}};
}

}  // namespace

bool BrowserWish::needsSoundness() const {
    const bool sorted = sort != SortItems::AsFound && sort != SortItems::Name && sort != SortItems::Type &&
                        sort != SortItems::Place;
    return sorted || (show != ShowItems::All && show != ShowItems::NotSaved && show != ShowItems::Lost);
}

QList<int> browserOrder(int count, const BrowserWish& wish, const std::function<ItemFacts(int)>& factsOf,
                        const std::function<bool(int)>& admits) {
    std::vector<std::pair<SortKey, int>> chosen;
    chosen.reserve(static_cast<std::size_t>(count));
    for (int place = 0; place < count; ++place) {
        if (admits && !admits(place)) {
            continue;
        }
        const ItemFacts facts = factsOf(place);
        if (isShown(facts, wish)) {
            chosen.push_back({wish.sort == SortItems::AsFound ? SortKey{} : keyOf(facts, wish.sort), place});
        }
    }
    // Items are found in the order of their names and places, mostly.
    if (!std::is_sorted(chosen.cbegin(), chosen.cend())) {
        std::sort(chosen.begin(), chosen.end());
    }
    if (wish.reversed) {
        const auto known = std::partition_point(chosen.begin(), chosen.end(), [](const auto& item) {
            return std::get<0>(item.first) < kNotKnown - 1;
        });
        std::reverse(chosen.begin(), known);
    }
    QList<int> order;
    order.reserve(static_cast<qsizetype>(chosen.size()));
    for (const auto& item : chosen) {
        order.append(item.second);
    }
    return order;
}

}  // namespace vantor
