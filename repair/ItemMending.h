// Everything that can be made of the broken items of a list: movies and photos put together from their
// pieces, movies without an index made playable.
#pragma once

#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <vector>

#include "decode/SoundSplitter.h"
#include "media/SectorReader.h"
#include "repair/CompletionProgress.h"
#include "repair/ReferenceShelf.h"
#include "results/CarvedRun.h"
#include "results/Mend.h"

namespace vantor {

struct ItemSource;

struct MendableItem {
    std::size_t place = 0;  // in its owner's list
    QString type;
    QString name;
    CarvedRun carved;
    bool complete = false;    // by its own format
    bool checked = false;     // complete, and its content was looked at, or a movie's frames followed
    std::uint64_t bytes = 0;  // of a complete one
    std::size_t pieces = 1;   // that it lies in; of more than one the carved run tells the first alone
};

struct CompletionSum {
    std::size_t broken = 0;  // that were looked at
    std::size_t completed = 0;
    std::size_t putTogether = 0;
};

// Any one thread. Each step takes what is broken in the order of the list, and only one item of those that
// begin in the same place.
class ItemMending {
  public:
    // What was made of an item; false where it could not be kept, so that it counts for nothing.
    using Take = std::function<bool(const MendableItem& item, Mend mend)>;

    // All outlive the object; a stop that is not 0 ends each step soon.
    ItemMending(SectorReader& medium, const std::atomic<int>& stop, CompletionProgress& progress, Take take,
                MovieReaderOptions helper = {})
        : m_medium(medium),
          m_stop(stop),
          m_progress(progress),
          m_take(std::move(take)),
          m_helper(std::move(helper)),
          m_shelf(m_helper),
          m_splitter(m_helper) {}

    // These places are those of files that are whole.
    void explain(const std::vector<SectorRun>& runs) {
        m_whole.insert(m_whole.end(), runs.begin(), runs.end());
    }

    CompletionSum completeMovies(const std::vector<MendableItem>& items);
    CompletionSum completePhotos(const std::vector<MendableItem>& items);
    CompletionSum completeArchives(const std::vector<MendableItem>& items);

    // Movies without an index that no step before completed. What could not be done is told with the item:
    // no whole movie of its camera was found, or no picture.
    enum class Why { NoReference, NoPicture };
    using Refused = std::function<void(const MendableItem& item, Why why)>;
    struct RepairSum {
        std::size_t broken = 0;
        std::size_t repaired = 0;
    };
    RepairSum repairMovies(const std::vector<MendableItem>& items, const Refused& refused = {});
    // A movie of the user's choice as the guide, in place of those that are found; false when it is of no
    // use.
    bool useReference(ByteSource& movie, const QString& name);

  private:
    struct Kind;
    struct WithoutIndex {
        const MendableItem* item = nullptr;
        DataPlace data;
        bool ownGuide = false;  // what stands in front of the data tells all that is needed
    };

    CompletionSum complete(const Kind& kind, const std::vector<MendableItem>& items);
    std::vector<WithoutIndex> sortOut(const std::vector<MendableItem>& items);
    bool repair(const WithoutIndex& broken, const Refused& refused);
    std::optional<RepairedMovie> repairByItself(const WithoutIndex& broken, ByteSource& bytes,
                                                const WalkLimits& limits, const PartPlays& plays);
    ItemSource sourceOf(const MendableItem& item) const;

    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
    CompletionProgress& m_progress;
    const Take m_take;
    const MovieReaderOptions m_helper;
    std::vector<SectorRun> m_whole;       // what is explained by what was put together
    std::set<std::uint64_t> m_completed;  // first sectors
    std::vector<std::uint8_t> m_kept;
    ReferenceShelf m_shelf;
    std::unique_ptr<ReferenceShelf::Kept> m_named;
    SoundSplitter m_splitter;
};

// Whether pieces of such a file can be put together, or a movie be repaired.
bool isPictureWithSyntax(const QString& type);  // JPEG and PNG
bool isArchiveOfMembers(const QString& type);   // ZIP, office documents and the like
bool isMovieOfChunks(const QString& type);      // AVI
bool isMovieOfBoxes(const QString& type);       // MP4, QuickTime and what is built like them

}  // namespace vantor
