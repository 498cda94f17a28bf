// Movies without an index: the whole ones tell how their camera writes.
#include "repair/AviRepair.h"
#include "repair/ItemMending.h"
#include "repair/MovieProof.h"
#include "results/MediumBytes.h"

namespace vantor {

namespace {

Mend mendOfRepaired(RepairedMovie repaired, const QString& like) {
    Mend mend;
    mend.kind = MendKind::Repaired;
    mend.pictures = repaired.pictures;
    mend.pictureSeconds = repaired.pictureSeconds;
    mend.soundSeconds = repaired.soundSeconds;
    mend.like = like;
    mend.twin = std::move(repaired);
    return mend;
}

}  // namespace

bool ItemMending::useReference(ByteSource& source, const QString& name) {
    auto movie = readReference(source);
    if (movie) {
        m_named = std::make_unique<ReferenceShelf::Kept>(ReferenceShelf::Kept{name, 0, std::move(*movie)});
    }
    return movie.has_value();
}

ItemSource ItemMending::sourceOf(const MendableItem& item) const {
    ItemSource source;
    source.carved = item.carved;
    source.medium = [this] { return &m_medium; };
    source.mediumSectors = m_medium.mediumSectors();
    return source;
}

// Whole movies to the shelf; what has no index is given back, of AVI whatever is not whole. Several types may
// share an item.
std::vector<ItemMending::WithoutIndex> ItemMending::sortOut(const std::vector<MendableItem>& items) {
    std::vector<WithoutIndex> broken;
    std::set<std::uint64_t> seen;
    for (const MendableItem& item : items) {
        const bool isAvi = isMovieOfChunks(item.type) && !item.complete;
        const bool fresh = (isAvi || isMovieOfBoxes(item.type)) && !item.carved.runs.empty() &&
                           !m_completed.contains(item.carved.runs.front().first) &&
                           seen.insert(item.carved.runs.front().first).second;
        if (!fresh || m_stop != 0) {
            continue;
        }
        const ItemSource source = sourceOf(item);
        MediumBytes bytes(source, m_kept);
        if (isAvi) {
            if (isAviWithoutIndex(bytes)) {
                broken.push_back({&item, {}, true});
            }
        } else if (const auto data = dataWithoutIndex(bytes)) {
            broken.push_back({&item, *data, false});
        } else if (const auto cut = item.complete ? std::nullopt : dataBehindIndex(bytes)) {
            broken.push_back({&item, *cut, true});
        } else if (!m_named) {
            if (auto movie = readReference(bytes)) {
                m_shelf.add({item.name, item.carved.runs.front().first, std::move(*movie)});
            }
        }
    }
    return broken;
}

ItemMending::RepairSum ItemMending::repairMovies(const std::vector<MendableItem>& items,
                                                 const Refused& refused) {
    m_progress.looked = 0;
    m_progress.of = 0;
    const std::vector<WithoutIndex> broken = sortOut(items);
    m_progress.of = broken.size();
    RepairSum sum;
    sum.broken = broken.size();
    for (const WithoutIndex& each : broken) {
        if (m_stop != 0) {
            break;
        }
        ++m_progress.looked;
        sum.repaired += repair(each, refused) ? 1 : 0;
    }
    return sum;
}

// AVI movies, and those that were cut off behind their own index. That may be of an earlier movie: then
// nothing stands where it says.
std::optional<RepairedMovie> ItemMending::repairByItself(const WithoutIndex& broken, ByteSource& bytes,
                                                         const WalkLimits& limits, const PartPlays& plays) {
    if (isMovieOfChunks(broken.item->type)) {
        return repairAvi(bytes, limits);
    }
    const auto guide = broken.ownGuide ? readReference(bytes) : std::nullopt;
    return guide ? repairMovie(bytes, broken.data, *guide, m_splitter, limits, plays) : std::nullopt;
}

bool ItemMending::repair(const WithoutIndex& broken, const Refused& refused) {
    const MendableItem& item = *broken.item;
    const ItemSource source = sourceOf(item);
    MediumBytes bytes(source, m_kept);
    const auto refuse = [&](Why why) {
        if (refused && m_stop == 0) {
            refused(item, why);
        }
        return false;
    };
    WalkLimits limits;
    limits.stop = &m_stop;
    const PartPlays plays = [&](const RepairedMovie& part) { return mayPlayWholly(bytes, part, m_helper); };
    if (auto repaired = repairByItself(broken, bytes, limits, plays); repaired && m_stop == 0) {
        return m_take(item, mendOfRepaired(std::move(*repaired), item.name));
    }
    if (isMovieOfChunks(item.type)) {
        return refuse(Why::NoPicture);
    }
    const ReferenceShelf::Kept* const reference =
        m_named ? m_named.get()
                : m_shelf.choose(bytes, broken.data, item.carved.runs.front().first, m_splitter, &m_stop);
    if (reference == nullptr) {
        return refuse(Why::NoReference);
    }
    auto repaired = repairMovie(bytes, broken.data, reference->movie, m_splitter, limits, plays);
    if (!repaired || m_stop != 0) {
        return refuse(Why::NoPicture);
    }
    return m_take(item, mendOfRepaired(std::move(*repaired), reference->name));
}

}  // namespace vantor
